// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/dlgTaller_ventana.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>

#include "forms/ImpresionTabla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Procedencia.h"
#include "frequency/taller/TallerAjustes_ventana.h"
#include "frequency/taller/TallerIdf_ventana.h"
#include "frequency/taller/TallerMaximos_ventana.h"
#include "frequency/taller/TallerPruebas_ventana.h"
#include "frequency/taller/TallerTormenta_ventana.h"

namespace frequency {

dlgTaller_ventana::dlgTaller_ventana(forms::Entorno& alrededor, dlgTaller& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgTaller", TituloDlgTaller, RotulosDlgTaller}, padre), f(registro)
{
    Sigue(f.abierta);
    pasos = Nombra(new QTabBar, "pasos");
    pasos->setExpanding(false);
    pasos->setDrawBase(false);
    pila = Nombra(new QStackedWidget, "pila");
    auto* const aviso = Texto("lblFalta", falta);
    aviso->setWordWrap(true);
    aviso->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    constexpr int Orla = 24;  // [pixels at 96 dpi]
    aviso->setMargin(Orla);
    pila->addWidget(aviso);
    PonPaginas();
    setLayout(EnPila({Encabezado(), EnMano(), {pila, 1}, Botones()}));
    connect(pasos, &QTabBar::currentChanged, this, [this](int cual) { VeAlPaso(cual); });
    const auto atajo = [this](Qt::Key tecla, void (*rutina)(dlgTaller&)) {
        auto* const orden = new QShortcut(QKeySequence(Qt::CTRL | tecla), this);
        orden->setContext(Qt::WidgetWithChildrenShortcut);
        connect(orden, &QShortcut::activated, this, [this, rutina] { SucesoDePagina([&] { rutina(f); }); });
    };
    atajo(Qt::Key_Z, &cmdDeshacer);
    atajo(Qt::Key_Y, &cmdRehacer);
    entorno.AlTerminarSuceso(*this, [this] {
        if (isVisible()) Muestra();
    });
    constexpr int Ancho = 78, Alto = 40;  // [heights of a letter]
    resize(Ancho * fontMetrics().height(), Alto * fontMetrics().height());
}

void dlgTaller_ventana::PonPaginas()
{
    Agrega("1 Máximos", new TallerMaximos_ventana(entorno, f));
    Agrega("2 Pruebas", new TallerPruebas_ventana(entorno, f));
    Agrega("3 Ajustes", new TallerAjustes_ventana(entorno, f));
    Agrega("4 IDF", new TallerIdf_ventana(entorno, f));
    Agrega("5 Tormenta", new TallerTormenta_ventana(entorno, f));
}

void dlgTaller_ventana::Agrega(std::string_view titulo, PaginaDeTaller* pagina)
{
    pasos->addTab(forms::Q(titulo));
    pila->addWidget(pagina);
    paginas.push_back(pagina);
}

QLayout* dlgTaller_ventana::Encabezado()
{
    const auto tecla = [this](std::string_view control, const std::string& leyenda,
                              const std::function<void()>& rutina) {
        QPushButton* const boton = Nombra(new QPushButton, control);
        boton->setAutoDefault(false);
        boton->setFocusPolicy(Qt::TabFocus);
        connect(boton, &QPushButton::clicked, this, [this, rutina] { SucesoDePagina(rutina); });
        const std::string sola(Fila(control).leyenda), ayuda(Fila(control).ayuda);
        AlMostrar([this, boton, &leyenda, sola, ayuda] {
            constexpr int Letras = 30;
            const int ancho = Letras * fontMetrics().averageCharWidth();
            boton->setText(fontMetrics().elidedText(forms::Q(leyenda), Qt::ElideRight, ancho));
            boton->setToolTip(forms::Q(leyenda + ". " + ayuda));
            boton->setEnabled(leyenda.size() > sola.size());
        });
        return boton;
    };
    return EnFila({{pasos, 1},
                   tecla("cmdDeshacer", f.cmdDeshacer, [this] { cmdDeshacer(f); }),
                   tecla("cmdRehacer", f.cmdRehacer, [this] { cmdRehacer(f); })});
}

QLayout* dlgTaller_ventana::EnMano()
{
    const auto lista = [this](std::string_view control, const std::vector<std::string>& items,
                              const int& cual, void (*elige)(dlgTaller&, int)) {
        auto* const combo = Nombra(new QComboBox, control);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        constexpr int Letras = 22;
        combo->setMinimumContentsLength(Letras);
        connect(combo, &QComboBox::activated, this,
                [this, elige](int i) { SucesoDePagina([&] { elige(f, i); }); });
        AlMostrar([combo, &items, &cual] {
            forms::Pon(*combo, items, cual);
            combo->setEnabled(!items.empty());
        });
        return combo;
    };
    QComboBox* const estacion = lista("cmbEstacion", f.estaciones, f.estacion, &cmbEstacion_Click);
    QComboBox* const serie = lista("cmbSerie", f.series, f.serie, &cmbSerie_Click);
    QLabel* const archivo =
        VisibleSi(Texto("lblArchivo", f.lblArchivo), [this] { return !f.lblArchivo.empty(); });
    archivo->setWordWrap(true);
    QPushButton* const reintenta =
        VisibleSi(Boton("cmdArchivo", [this] { cmdArchivo(f); }), [this] { return !f.lblArchivo.empty(); });
    AlMostrar([this, reintenta] {
        reintenta->setText(f.danado ? QStringLiteral("&Apartar el dañado") : QStringLiteral("&Reintentar"));
    });
    return EnFila({Rotulo("cmbEstacion", estacion),
                   estacion,
                   Rotulo("cmbSerie", serie),
                   serie,
                   {archivo, 1},
                   reintenta,
                   Hueco()});
}

QLayout* dlgTaller_ventana::Botones()
{
    const auto conPagina = [this] { return HayPagina(); };
    return EnFila(
        {HabilitadoSi(Boton("cmdImprimirTabla",
                            [this] {
                                forms::ImprimePlanilla(
                                    entorno, forms::NombreDeArchivo({.titulo = std::string(TituloDlgTaller)}),
                                    Pagina().ParaImprimir());
                            }),
                      conPagina),
         HabilitadoSi(Boton("cmdImprimirPagina",
                            [this] { forms::ImprimeConLamina(entorno, *this, Pagina().Grafico()); }),
                      conPagina),
         Hueco(), Boton("OKButton", [this] { OKButton(f); })});
}

PaginaDeTaller& dlgTaller_ventana::Pagina() const
{
    return *paginas[static_cast<std::size_t>(f.paso)];
}

bool dlgTaller_ventana::HayPagina() const
{
    return falta.empty();
}

void dlgTaller_ventana::SucesoDePagina(const std::function<void()>& cuerpo)
{
    Suceso([&] {
        if (Pagina().Asienta()) cuerpo();
    });
}

void dlgTaller_ventana::VeAlPaso(int cual)
{
    SucesoDePagina([&] {
        Pagina().AlDejar();
        f.paso = cual;
        Pagina().AlEntrar();
    });
}

void dlgTaller_ventana::Abre()
{
    f.abierta = true;
    Muestra();
    entorno.Presenta(*this);
    if (HayPagina()) Pagina().setFocus();
}

void dlgTaller_ventana::Muestra()
{
    Toma(f);
    falta = FaltaProyecto(f);
    if (falta.empty()) falta = Pagina().Falta();
    if (falta.empty()) {
        Pagina().Muestra();
        pila->setCurrentWidget(&Pagina());
    } else {
        pila->setCurrentIndex(0);
    }
    const QSignalBlocker silencio(*pasos);
    pasos->setCurrentIndex(f.paso);
    Ventana::Muestra();
}

void dlgTaller_ventana::AlCerrar()
{
    Pagina().Asienta();
    Pagina().AlDejar();
    OKButton(f);
}

void dlgTaller_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape && Pagina().AlEscapar()) return;
    Ventana::keyPressEvent(evento);
}

}  // namespace frequency
