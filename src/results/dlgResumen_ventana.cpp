// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/dlgResumen_ventana.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/Cuadro_ventana.h"
#include "forms/ImpresionTabla_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {

using forms::Q;

namespace {

/// Width of a column [letters]: its heading in two lines, the unit in one of them.
int Ancho(const checks::ColumnaDeResumen& c)
{
    constexpr int DeUnNumero = 12, AireDeUnidad = 6;
    return std::max(DeUnNumero, static_cast<int>(c.unidad.size()) + AireDeUnidad);
}

/// Red that is read on a light and on a dark ground.
QColor Rojo(const QPalette& colores)
{
    const bool oscuro = colores.color(QPalette::Base).lightness() < colores.color(QPalette::Text).lightness();
    return oscuro ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20);
}

}  // namespace

dlgResumen_ventana::dlgResumen_ventana(forms::Entorno& alrededor, dlgResumen& registro, QWidget* padre)
    : Ventana(alrededor, {"dlgResumen", TituloDlgResumen, RotulosDlgResumen}, padre), f(registro)
{
    Sigue(f.abierta);
    franja = new checks::Franja(entorno, checks::Alcance::Corrida);
    PonTabla();
    QLabel* const queHacer = Texto("lblQueHacer", f.lblQueHacer);
    queHacer->setWordWrap(true);
    VisibleSi(queHacer, [this] { return !f.lblQueHacer.empty(); });
    setLayout(EnPila({franja, Encabezado(), queHacer, {tabla, 1}, Botones()}));
}

QLayout* dlgResumen_ventana::Encabezado()
{
    const auto dato = [this](std::string_view control, const std::string& texto, bool enUnRenglon = false) {
        QLabel* const rotulo = Texto(control, texto);
        rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
        rotulo->setWordWrap(!enUnRenglon);
        return forms::Partes{Rotulo(control), rotulo};
    };
    forms::Partes huella = dato("lblHuella", f.lblHuella, true);
    QPushButton* const copia =
        Boton("cmdCopiarHuella", [this] { QGuiApplication::clipboard()->setText(Q(f.lblHuella)); });
    HabilitadoSi(copia, [this] { return !f.lblHuella.empty(); });
    huella.back() = EnFila({huella.back().control, copia, Hueco()});
    return EnRejilla({dato("lblProyecto", f.lblProyecto), dato("lblTormenta", f.lblTormenta),
                      dato("lblCuando", f.lblCuando), dato("lblAvisos", f.lblAvisos), huella},
                     {0, 1});
}

void dlgResumen_ventana::PonTabla()
{
    tabla = new forms::TablaCuadro(entorno, f.tblResumen, "tblResumen", TituloDlgResumen);
    QHeaderView& encabezado = *tabla->horizontalHeader();
    encabezado.setDefaultAlignment(Qt::Alignment(QFlag(int{Qt::AlignCenter} | int{Qt::TextWordWrap})));
    encabezado.setFixedHeight(fontMetrics().height() * 2 + fontMetrics().height() / 2);
    tabla->AlPulsarEncabezado = [this](int columna) { Suceso([&] { AlPulsarEncabezado(f, columna); }); };
    tabla->AlElegir = [this](std::size_t) { Suceso([this] { AbreElegido(); }); };
    tabla->Adorno = [this](std::size_t fila, int columna, int papel) { return Adorno(fila, columna, papel); };
    tabla->DaPlanilla = [this] { return ComoPlanilla(f); };
    tabla->AlArmarMenu = [this](QMenu& menu) {
        for (const char* const control : {"cmdHidrograma", "cmdComparar"}) {
            auto* const boton = findChild<QPushButton*>(QString::fromUtf8(control));
            QAction* const entrada = menu.addAction(boton->text());
            entrada->setEnabled(boton->isEnabled());
            connect(entrada, &QAction::triggered, boton, &QPushButton::click);
        }
    };
    AlMostrar([this] {
        const auto columnas = checks::ColumnasDeResumen(f.corrida != nullptr && f.corrida->esSerie);
        if (std::exchange(nroColumnas, columnas.size()) != columnas.size()) {
            std::vector<int> letras{0};  // that of the names takes what is left over
            std::transform(columnas.begin(), columnas.end(), std::back_inserter(letras), Ancho);
            tabla->PonColumnas(letras);
        }
        tabla->Muestra();
    });
    tabla->AlMoverse = [this] { Muestra(); };
}

QLayout* dlgResumen_ventana::Botones()
{
    const auto conHidrograma = [this] { return !Elegidos().empty(); };
    return EnFila({HabilitadoSi(Boton("cmdHidrograma", [this] { AbreElegido(); }), conHidrograma),
                   HabilitadoSi(Boton("cmdComparar", [this] { Compara(Elegidos()); }), conHidrograma),
                   Hueco(),
                   HabilitadoSi(Boton("cmdImprimir", [this] { Imprime(); }),
                                [this] { return !f.resumen.planilla.filas.empty(); }),
                   Boton("OKButton", [this] { OKButton(f); })});
}

/// The basin stands out; what the run couldn't keep is red.
QVariant dlgResumen_ventana::Adorno(std::size_t fila, int columna, int papel) const
{
    if (fila >= f.resumen.nombres.size() || columna < 0) return {};
    if (papel == Qt::FontRole && f.resumen.nombres[fila].empty()) {
        QFont letra = font();
        letra.setBold(true);
        return letra;
    }
    if (papel == Qt::ToolTipRole && columna > 0)
        return Q(
            checks::ColumnasDeResumen(f.corrida->esSerie)[static_cast<std::size_t>(columna) - 1].explica);
    const bool roja = f.resumen.rojas[fila][static_cast<std::size_t>(columna)];
    return papel == Qt::ForegroundRole && roja ? QVariant(Rojo(palette())) : QVariant();
}

std::vector<std::string> dlgResumen_ventana::Elegidos() const
{
    return Hidrogramas(f, tabla->Elegidas());
}

/// Several outfalls, those of the basin, are one chart.
void dlgResumen_ventana::AbreElegido()
{
    const std::vector<std::string> nombres = Hidrogramas(f, {tabla->Actual()});
    if (nombres.size() == 1) AbreHidrograma(nombres.front());
    if (nombres.size() > 1) Compara(nombres);
}

void dlgResumen_ventana::PonCorrida(Corrida corrida)
{
    Pon(f, std::move(corrida));
    if (f.corrida != nullptr)
        franja->Toma(f.corrida->sello);
    else
        franja->Suelta();
}

void dlgResumen_ventana::Abre(Corrida corrida)
{
    f.abierta = true;
    PonCorrida(std::move(corrida));
    Muestra();
    entorno.Presenta(*this);
    tabla->setFocus();
}

void dlgResumen_ventana::Toma(Corrida corrida)
{
    if (!f.abierta || corrida == f.corrida) return;
    PonCorrida(std::move(corrida));
    Muestra();
}

void dlgResumen_ventana::AlCerrar()
{
    OKButton(f);
}

void dlgResumen_ventana::Imprime()
{
    forms::ImprimePlanilla(entorno, forms::NombreDeArchivo({.titulo = std::string(TituloDlgResumen)}),
                           ComoPlanilla(f));
}

}  // namespace results
