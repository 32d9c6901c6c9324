// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Pasos_ventana.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>

#include "forms/ImpresionTabla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Procedencia.h"

namespace study {

Pasos_ventana::Pasos_ventana(forms::Entorno& alrededor, Pasos& registro,
                             const forms::DescripcionDeVentana& descripcion, QWidget* padre)
    : Ventana(alrededor, descripcion, padre), f(registro), titulo(descripcion.titulo)
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
}

void Pasos_ventana::Agrega(std::string_view suTitulo, Pagina* pagina)
{
    pasos->addTab(forms::Q(suTitulo));
    pila->addWidget(pagina);
    paginas.push_back(pagina);
}

void Pasos_ventana::Arma(const forms::Partes& enMano)
{
    setLayout(EnPila({Encabezado(), EnMano(enMano), {pila, 1}, Botones()}));
    connect(pasos, &QTabBar::currentChanged, this, [this](int cual) { VeAlPaso(cual); });
    PonAtajos();
    entorno.AlTerminarSuceso(*this, [this] {
        if (isVisible()) Muestra();
    });
    constexpr int Ancho = 78, Alto = 40;  // [heights of a letter]
    resize(Ancho * fontMetrics().height(), Alto * fontMetrics().height());
}

void Pasos_ventana::PonAtajos()
{
    const auto atajo = [this](QKeyCombination teclas, void (*rutina)(Pasos&)) {
        auto* const orden = new QShortcut(QKeySequence(teclas), this);
        orden->setContext(Qt::WidgetWithChildrenShortcut);
        connect(orden, &QShortcut::activated, this, [this, rutina] { SucesoDePagina([&] { rutina(f); }); });
    };
    atajo(Qt::CTRL | Qt::Key_Z, &cmdDeshacer);
    atajo(Qt::CTRL | Qt::Key_Y, &cmdRehacer);
    atajo(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &cmdRehacer);
}

QLayout* Pasos_ventana::Encabezado()
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

QComboBox* Pasos_ventana::ListaEnMano(std::string_view control, const std::vector<std::string>& items,
                                      const int& cual, const std::function<void(int)>& elige)
{
    auto* const combo = Nombra(new QComboBox, control);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int Letras = 22;
    combo->setMinimumContentsLength(Letras);
    connect(combo, &QComboBox::activated, this, [this, elige](int i) { SucesoDePagina([&] { elige(i); }); });
    AlMostrar([combo, &items, &cual] {
        forms::Pon(*combo, items, cual);
        combo->setEnabled(!items.empty());
    });
    return combo;
}

QLayout* Pasos_ventana::EnMano(const forms::Partes& enMano)
{
    QLabel* const archivo =
        VisibleSi(Texto("lblArchivo", f.lblArchivo), [this] { return !f.lblArchivo.empty(); });
    archivo->setWordWrap(true);
    QPushButton* const reintenta =
        VisibleSi(Boton("cmdArchivo", [this] { cmdArchivo(f); }), [this] { return !f.lblArchivo.empty(); });
    AlMostrar([this, reintenta] {
        reintenta->setText(f.danado ? QStringLiteral("&Apartar el dañado") : QStringLiteral("&Reintentar"));
    });
    forms::Partes todo = enMano;
    todo.insert(todo.end(), {{archivo, 1}, reintenta, Hueco()});
    return EnFila(todo);
}

QLayout* Pasos_ventana::Botones()
{
    const auto conPagina = [this] { return HayPagina(); };
    return EnFila(
        {HabilitadoSi(Boton("cmdImprimirTabla",
                            [this] {
                                forms::ImprimePlanilla(entorno, forms::NombreDeArchivo({.titulo = titulo}),
                                                       EnVista().ParaImprimir());
                            }),
                      conPagina),
         HabilitadoSi(Boton("cmdImprimirPagina",
                            [this] { forms::ImprimeConLamina(entorno, *this, EnVista().Grafico()); }),
                      conPagina),
         Hueco(), Boton("OKButton", [this] { OKButton(f); })});
}

Pagina& Pasos_ventana::EnVista() const
{
    return *paginas[static_cast<std::size_t>(f.paso)];
}

bool Pasos_ventana::HayPagina() const
{
    return falta.empty();
}

void Pasos_ventana::SucesoDePagina(const std::function<void()>& cuerpo)
{
    Suceso([&] {
        if (EnVista().Asienta()) cuerpo();
    });
}

void Pasos_ventana::VeAlPaso(int cual)
{
    SucesoDePagina([&] {
        EnVista().AlDejar();
        f.paso = cual;
        EnVista().AlEntrar();
    });
}

void Pasos_ventana::Abre()
{
    f.abierta = true;
    Muestra();
    entorno.Presenta(*this);
    if (HayPagina()) EnVista().setFocus();
}

void Pasos_ventana::Muestra()
{
    Toma(f);
    falta = FaltaProyecto(f);
    if (falta.empty()) falta = EnVista().Falta();
    if (falta.empty()) {
        EnVista().Muestra();
        pila->setCurrentWidget(&EnVista());
    } else {
        pila->setCurrentIndex(0);
    }
    const QSignalBlocker silencio(*pasos);
    pasos->setCurrentIndex(f.paso);
    Ventana::Muestra();
}

void Pasos_ventana::AlCerrar()
{
    EnVista().Asienta();
    EnVista().AlDejar();
    OKButton(f);
}

void Pasos_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Escape && EnVista().AlEscapar()) return;
    Ventana::keyPressEvent(evento);
}

}  // namespace study
