// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerMaximos_ventana.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSplitter>

#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "frequency/taller/dlgImportaMaximos_ventana.h"

namespace frequency {

TallerMaximos_ventana::TallerMaximos_ventana(forms::Entorno& alrededor, dlgTaller& taller)
    : PaginaDeTaller(alrededor, taller, RotulosTallerMaximos, "TallerMaximos")
{
    forms::TablaGrilla* const grilla = Tabla(m.grdMaximos, "grdMaximos");
    grilla->AlCambiar = [this](const forms::Efecto& efecto) {
        if (!efecto.asentadas.empty()) grdMaximos_Asienta(m, f);
    };
    grilla->DeshaceFuera = [this] { Suceso([this] { cmdDeshacer(f); }); };
    grilla->RehaceFuera = [this] { Suceso([this] { cmdRehacer(f); }); };
    constexpr int EntreFilas = 8;  // [pixels at 96 dpi]
    grilla->verticalHeader()->setMinimumSectionSize(grilla->fontMetrics().height());
    grilla->verticalHeader()->setDefaultSectionSize(grilla->fontMetrics().height() + EntreFilas);
    grilla->setMinimumWidth(grilla->horizontalHeader()->length() + 2 * grilla->frameWidth() +
                            grilla->verticalScrollBar()->sizeHint().width());
    setFocusProxy(grilla);
    auto* const fila = EnFila({Datos(), {LadoALado(grilla, Derecha(), 0, 1), 1}});
    fila->setContentsMargins(0, 0, 0, 0);
    setLayout(fila);
}

QLineEdit* TallerMaximos_ventana::CampoDeTexto(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txtTexto_AlSalir(m, f, control); });
}

QLineEdit* TallerMaximos_ventana::CampoDeNumero(std::string_view control, std::string& texto)
{
    return Campo(control, texto, [this, control] { return txtNumero_AlSalir(m, f, entorno.s, control); });
}

/// What the station and the series are; it scrolls where the room is low.
QWidget* TallerMaximos_ventana::Datos()
{
    const auto hayEstacion = [this] { return EstacionEnMano(f) != nullptr; };
    const auto haySerie = [this] { return SerieEnMano(f) != nullptr; };
    QLayout* const estacion = EnPila(
        {EnRejilla({Renglon("txtNombre", CampoDeTexto("txtNombre", m.txtNombre)),
                    Renglon("txtLatitud", CampoDeNumero("txtLatitud", m.txtLatitud), "°"),
                    Renglon("txtLongitud", CampoDeNumero("txtLongitud", m.txtLongitud), "°"),
                    Renglon("txtAltitud", CampoDeNumero("txtAltitud", m.txtAltitud), "m"),
                    Renglon("txtFuente", CampoDeTexto("txtFuente", m.txtFuente)),
                    Renglon("txtNotas", CampoDeTexto("txtNotas", m.txtNotas))},
                   {0, 1}),
         EnFila({Boton("cmdNuevaEstacion", [this] { cmdNuevaEstacion(f); }),
                 HabilitadoSi(Boton("cmdQuitaEstacion", [this] { cmdQuitaEstacion(f); }), hayEstacion)})});
    QLayout* const serie = EnPila(
        {EnRejilla({Renglon("txtDuracion", CampoDeNumero("txtDuracion", m.txtDuracion), "min")}, {0, 1}),
         Casilla(
             "chkDiaria", [this] { return m.chkDiaria; },
             [this](bool tildada) { chkDiaria_Click(f, tildada); }),
         EnFila({Boton("cmdNuevaSerie", [this] { cmdNuevaSerie(f); }),
                 HabilitadoSi(Boton("cmdQuitaSerie", [this] { cmdQuitaSerie(f); }), haySerie)}),
         Boton("cmdImportar", [this] { Importa(); })});
    constexpr int Letras = 34;
    return EnColumna({Marco("MarcoEstacion", estacion), Marco("MarcoSerie", serie), Hueco()}, Letras);
}

QWidget* TallerMaximos_ventana::Derecha()
{
    grafico = new forms::Lamina(entorno, "lamMaximos", "Máximos anuales");
    DejaChico(*grafico);
    return SobreAvisos(grafico, m.lblAvisos);
}

void TallerMaximos_ventana::Importa()
{
    dlgImportaMaximos_ventana(entorno, f, window()).Abre();
}

void TallerMaximos_ventana::Muestra()
{
    PaginaDeTaller::Muestra();
    grafico->Muestra(m.Grafico);
    grafico->PonTema(TemaDe(f), TemaDe(f));
}

}  // namespace frequency
