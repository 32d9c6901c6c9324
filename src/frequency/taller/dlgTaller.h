// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Rotulo.h"
#include "frequency/Maximos.h"
#include "study/Pasos.h"

// Rules of the rain workshop's window: the study that it stands on, the station and the series in hand, what
// is said where a step can't be taken yet. Each step has a page with rules of its own.
namespace frequency {

inline constexpr std::string_view TituloDlgTaller = "Taller de lluvia";

inline constexpr auto RotulosDlgTaller = study::ConRotulosDePasos(std::to_array<forms::FilaRotulo>({
    {"pasos", "Pasos del taller", "Los pasos, de los máximos anuales a la tormenta que se corre"},
    {"cmbEstacion", "&Estación:", "Estación en mano; sus datos están en el paso 1"},
    {"cmbSerie", "&Serie:", "Duración de los máximos en mano"},
}));

struct dlgTaller : study::Pasos {
    using study::Pasos::Pasos;
    void TomaEnMano() override;

    int estacion = 0, serie = 0;                      ///< in hand, from 0; 0 where there is none
    std::vector<std::string> estaciones{}, series{};  ///< by name
};

const study::Taller& TallerDe(const dlgTaller& f);
/// What the pages are made of.
struct EnManoDeTaller {
    study::Taller taller{};
    int estacion = 0, serie = 0;
    bool operator==(const EnManoDeTaller&) const = default;
};
EnManoDeTaller EnManoDe(const dlgTaller& f);
/// What is in hand; none: null.
const study::Estacion* EstacionEnMano(const dlgTaller& f);
const study::SerieDeMaximos* SerieEnMano(const dlgTaller& f);
/// The same within a change, made where there is none.
study::Estacion& EstacionDe(const dlgTaller& f, study::Taller& t);
study::SerieDeMaximos& SerieDe(const dlgTaller& f, study::Taller& t);

/// A change that undoing takes back; the caption says what it was, "Quitar la estación". Nothing without a
/// project.
void Cambia(dlgTaller& f, std::string_view leyenda, const std::function<void(study::Taller&)>& cambio);

void cmbEstacion_Click(dlgTaller& f, int cual);
void cmbSerie_Click(dlgTaller& f, int cual);

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
