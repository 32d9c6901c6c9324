// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Rotulo.h"
#include "frequency/Maximos.h"
#include "study/Abierto.h"

// Rules of the rain workshop's window: the study that it stands on, the station and the series in hand, what
// is said where a step can't be taken yet. Each step has a page with rules of its own.
namespace frequency {

inline constexpr std::string_view TituloDlgTaller = "Taller de lluvia";

inline constexpr auto RotulosDlgTaller = std::to_array<forms::FilaRotulo>({
    {"pasos", "Pasos del taller", "Los pasos, de los máximos anuales a la tormenta que se corre"},
    {"cmbEstacion", "&Estación:", "Estación en mano; sus datos están en el paso 1"},
    {"cmbSerie", "&Serie:", "Duración de los máximos en mano"},
    {"cmdDeshacer", "Deshacer", "Vuelve atrás el último cambio (Ctrl+Z)"},
    {"cmdRehacer", "Rehacer", "Repite el cambio deshecho (Ctrl+Y)"},
    {"cmdArchivo", "&Reintentar", "Vuelve a guardar el estudio; uno dañado se aparta con otro nombre"},
    {"cmdImprimirTabla", "Imprimir &tabla", "Imprime entera la tabla de este paso"},
    {"cmdImprimirPagina", "Imprimir &página", "Imprime este paso como se ve, con su gráfico"},
    {"OKButton", "Ce&rrar"},
});

struct dlgTaller {
    explicit dlgTaller(study::Abierto& suEstudio) : estudio(suEstudio) {}

    study::Abierto& estudio;  ///< of the project in hand
    bool abierta = false;
    int paso = 0;                                     ///< from 0
    int estacion = 0, serie = 0;                      ///< in hand, from 0; 0 where there is none
    std::vector<std::string> estaciones{}, series{};  ///< by name
    std::string cmdDeshacer{}, cmdRehacer{};          ///< captions
    std::string lblArchivo{};                         ///< what is wrong with the study's file
    bool danado = false;                              ///< it can't be read
};

const study::Taller& TallerDe(const dlgTaller& f);
/// What is in hand; none: null.
const study::Estacion* EstacionEnMano(const dlgTaller& f);
const study::SerieDeMaximos* SerieEnMano(const dlgTaller& f);
/// The same within a change, made where there is none.
study::Estacion& EstacionDe(const dlgTaller& f, study::Taller& t);
study::SerieDeMaximos& SerieDe(const dlgTaller& f, study::Taller& t);

/// A change that undoing takes back; the caption says what it was, "Quitar la estación". Nothing without a
/// project.
void Cambia(dlgTaller& f, std::string_view leyenda, const std::function<void(study::Taller&)>& cambio);
void cmdDeshacer(dlgTaller& f);
void cmdRehacer(dlgTaller& f);
/// Tries the study's file again; puts one that can't be read aside.
void cmdArchivo(dlgTaller& f);

/// Fills lists and captions; what is in hand stays within what there is.
void Toma(dlgTaller& f);
void cmbEstacion_Click(dlgTaller& f, int cual);
void cmbSerie_Click(dlgTaller& f, int cual);
void OKButton(dlgTaller& f);

/// Why no page can be shown; empty: a project is open.
std::string FaltaProyecto(const dlgTaller& f);
/// Why the series in hand can't be tested and fitted; empty: it can.
std::string FaltanMaximos(const dlgTaller& f);

/// The maxima of a series as the fits take them, with all that is wrong with them.
Serie Revisada(const study::SerieDeMaximos& serie);

std::string NombreDe(const study::Estacion& e, std::size_t numero);
/// "1440 min (24 h)"
std::string NombreDe(const study::SerieDeMaximos& s);
/// Station and duration, as charts and tables name what is in hand.
std::string TemaDe(const dlgTaller& f);
/// The same in two lines, for what stands over a chart.
std::string TituloDe(const dlgTaller& f);
/// A number with so many decimals at most, without zeros behind them.
std::string TextoDe(double x, int decimales = 3);

}  // namespace frequency
