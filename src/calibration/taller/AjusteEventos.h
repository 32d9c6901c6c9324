// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/taller/CuadroDePuntajes.h"
#include "calibration/taller/dlgAjuste.h"
#include "forms/Grafico.h"
#include "forms/Grilla.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "model/Resultados.h"
#include "runs/Corredor.h"

// Rules of the first step: events, their rain, what was measured at the components.
namespace calibration {

inline constexpr auto RotulosAjusteEventos = std::to_array<forms::FilaRotulo>({
    {"MarcoEvento", "Evento"},
    {"txtNombre", "&Nombre:"},
    {"txtInicio", "&Inicio:", "Fecha y hora en que empieza la tormenta, como 2019-03-04 12:00; puede faltar"},
    {"cmbPapel", "&Papel:", "En la calibración: ajusta los parámetros, los pone a prueba, o no cuenta"},
    {"txtPesoEvento", "P&eso:", "Cuánto cuenta entre los eventos; 0: nada"},
    {"cmbOrigen", "&Lluvia:", "De dónde sale la lluvia del evento"},
    {"cmbTormenta", "&Tormenta:", "Una de las tormentas registradas en la carpeta del proyecto"},
    {"txtLamina", "Lá&mina:"},
    {"txtDuracion", "&Duración:"},
    {"cmbDistribucion", "Distri&bución:", "Cómo se reparte la lámina en el tiempo"},
    {"cmdNuevoEvento", "N&uevo", "Agrega un evento detrás del que está en mano"},
    {"cmdDuplicaEvento", "Dupli&car", "Agrega una copia del evento con todo lo observado"},
    {"cmdQuitaEvento", "&Quitar", "Quita el evento con todo lo observado; se puede deshacer"},
    {"cmdSubeEvento", "S&ubir", "Pone el evento delante del anterior"},
    {"cmdBajaEvento", "Ba&jar", "Pone el evento detrás del siguiente"},
    {"MarcoObservacion", "Observación"},
    {"cmbComponente", "C&omponente:", "Donde se midió"},
    {"cmbMagnitud", "Ma&gnitud:", "Lo que se midió; un nivel da caudales por la curva de gasto"},
    {"txtPromedio",
     "Promedio de:", "Cada valor es la media de tantos minutos antes de su hora; 0: el valor de su instante"},
    {"txtPesoObservacion", "Pe&so:", "Cuánto cuenta entre las observaciones del evento"},
    {"txtFuente", "&Fuente:", "De dónde son los datos: organismo, publicación, licencia"},
    {"txtNotas", "Notas:"},
    {"cmdNuevaObservacion", "Agre&gar", "Agrega al evento una observación de otro componente"},
    {"cmdQuitaObservacion", "Quita&r", "Quita la observación con sus valores; se puede deshacer"},
    {"cmdImportar", "Importar...", "Toma los valores de un archivo de texto"},
    {"cmdPegar", "Pegar...", "Toma los valores de lo que se copió de una planilla, con fechas o con minutos"},
    {"cmdBase", "Caudal &base...",
     "Separa a mano el caudal base sobre la recesión observada: Q0 y K de las unidades"},
    {"fichas", "Tablas de la observación"},
    {"grdValores", "Valores",
     "Minutos desde el inicio de la tormenta y valor; se puede pegar de una planilla"},
    {"grdVentanas", "Ventanas", "Partes del tiempo que cuentan, y cuánto; sin ninguna cuenta todo"},
    {"grdCurva", "Curva de gasto", "Nivel y caudal, de menor a mayor"},
    {"cmbInterpolacion", "Entre puntos:", "Cómo se interpola entre dos puntos de la curva de gasto"},
    {"lblValores", "Valores de la observación"},
    {"lamEvento", "Evento observado y corrida"},
    {"lblAvisos", "Avisos del evento"},
    {"tblPuntajes", "Puntajes de la corrida contra lo observado"},
    {"lblPuntajes", "Los puntajes en palabras"},
});

/// A run of the event in hand with the network as it is.
struct CorridaDeEvento {
    int cargas = -1;  ///< of the network
    study::LluviaDeEvento origen{};
    runs::Lluvia lluvia{};
    model::Resultados resultados{};
    std::string motivo{};  ///< why there is none, a sentence; empty: there is one
};

struct AjusteEventos {
    // --- the event ---
    std::string txtNombre{}, txtInicio{}, txtPesoEvento{}, txtLamina{}, txtDuracion{};
    std::vector<std::string> papeles{"Calibración", "Validación", "Fuera"};
    std::vector<std::string> origenes{"La tormenta en mano", "Una tormenta registrada", "Lámina y duración"};
    std::vector<std::string> tormentas{}, distribuciones{};
    int papel = 0, origen = 0, tormenta = -1, distribucion = 0;

    // --- the observation ---
    std::string txtPromedio{}, txtPesoObservacion{}, txtFuente{}, txtNotas{};
    std::vector<std::string> componentes{};
    std::vector<std::string> magnitudes{"Caudal [m3/s]", "Nivel [m]"};
    std::vector<std::string> interpolaciones{"logaritmos de nivel y caudal", "línea recta"};
    int componente = -1, magnitud = 0, interpolacion = 0;
    int ficha = 0;  ///< values, windows, rating curve, scores
    forms::Grilla grdValores{}, grdVentanas{}, grdCurva{};
    bool demasiados = false;  ///< more values than the grid shows: it changes none
    std::string lblValores{};

    CorridaDeEvento corrida{};
    std::string lblAvisos{};
    CuadroDePuntajes puntajes{};
    forms::Grafico Grafico{};
};

AjusteEventos NuevaAjusteEventos();
/// Fills the record; runs the event where it has become another.
void Toma(AjusteEventos& m, const dlgAjuste& f);

/// Leaving a field. Returns false where its text is refused, which has been told.
bool txt_AlSalir(AjusteEventos& m, dlgAjuste& f, const model::Siro& s, std::string_view control);
void cmbPapel_Click(dlgAjuste& f, int cual);
void cmbOrigen_Click(dlgAjuste& f, int cual);
void cmbTormenta_Click(const AjusteEventos& m, dlgAjuste& f, int cual);
void cmbDistribucion_Click(dlgAjuste& f, int cual);
void cmbComponente_Click(const AjusteEventos& m, dlgAjuste& f, int cual);
void cmbMagnitud_Click(dlgAjuste& f, int cual);
void cmbInterpolacion_Click(dlgAjuste& f, int cual);

void cmdNuevoEvento(dlgAjuste& f);
void cmdDuplicaEvento(dlgAjuste& f);
void cmdQuitaEvento(dlgAjuste& f);
/// -1: up, 1: down.
void cmdMueveEvento(dlgAjuste& f, int paso);
void cmdNuevaObservacion(dlgAjuste& f);
void cmdQuitaObservacion(dlgAjuste& f);

/// Cells of a grid have settled: the rows that are whole become the observation's.
void grdValores_Asienta(AjusteEventos& m, dlgAjuste& f);
void grdVentanas_Asienta(AjusteEventos& m, dlgAjuste& f);
void grdCurva_Asienta(AjusteEventos& m, dlgAjuste& f);

/// Name of the component that an observation is likely to be of: the first one that drains nowhere.
std::string PrimeraSalida(const model::Red& red);

forms::Planilla PlanillaDeEventos(const AjusteEventos& m, const dlgAjuste& f);

// --- the chart, AjusteEventosGrafico.cpp ---

/// Runs the event in hand, unless the run in hand is of it.
void Corre(AjusteEventos& m, const dlgAjuste& f);
/// Rain that hangs from the top, the run's flow at the component, the readings as dots; what is to be known.
void Dibuja(AjusteEventos& m, const dlgAjuste& f);

}  // namespace calibration
