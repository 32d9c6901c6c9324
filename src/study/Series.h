// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "study/Ajuste.h"

// The values of an observation, in a file of their own beside the study, P_serie_1.csv:
//
//     minutos [min];caudal [m3/s];3 valores
//     0;0.4
//     10;1.25
//     20;7.5
//
// The unit says what was measured, "caudal [m3/s]" or "nivel [m]". The count is there so that a file that
// was cut is known; whoever makes one by hand may leave it out. A comma is a decimal sign as well.
namespace study {

/// What a file may hold.
inline constexpr std::size_t MaximoDeValores = 1'000'000;

struct LecturaDeSerie {
    std::vector<Punto> puntos{};  ///< by time; empty where the text is no series
    int renglon = 0;              ///< where it fails, from 1
    std::string motivo{};         ///< why it is none, without capital and full stop; empty: it is one
};

/// Reads the bytes of a file that holds what `magnitud` says. Times go forward.
LecturaDeSerie LeeSerie(std::string_view bytes, std::string_view magnitud);

/// The text of the values of an observation, with every digit that tells one number from the next.
std::string EscribeSerie(const Observacion& observacion);

/// What keeps values from being written so that they can be read again, with their place, without capital
/// and full stop; empty where nothing does.
std::string ReparoDe(const std::vector<Punto>& puntos);
/// The same of the values of all observations.
std::string ReparoDe(const Ajuste& ajuste);

/// The file of an observation, beside those of its project: "/proy/P" and "1" make "/proy/P_serie_1.csv".
/// Empty where that can't be the name of one.
std::string RutaDeSerie(std::string_view base, std::string_view archivo);

/// What the path of a study and of its series have in common: "/proy/P" of "/proy/P_Estudio.json".
std::string BaseDeSeries(std::string_view rutaDelEstudio);

/// A series that isn't there, or is none.
struct SerieDanada {
    std::string archivo{};  ///< as the observation has it
    std::string texto{};    ///< what it is and why, a sentence
    bool operator==(const SerieDanada&) const = default;
};

/// Fills in the values of all observations that have a file. `lee` returns the bytes of one; throws Falla.
/// Those whose file is of no use stay without values: they are told.
std::vector<SerieDanada> LeeSeries(Ajuste& ajuste, std::string_view base,
                                   const std::function<std::string(const std::string& ruta)>& lee);

/// The text of each file, by its name as the observation has it.
std::map<std::string, std::string> EscribeSeries(const Ajuste& ajuste);

/// How many values a study holds in all.
std::size_t CuentaDeValores(const Ajuste& ajuste);

/// Names the file of each observation that has values: the name that it has, unless another one ahead bears
/// it or it isn't `libre`; else the first free number. One without values has none, but for a damaged one.
void NombraSeries(Ajuste& ajuste, const std::vector<SerieDanada>& danadas,
                  const std::function<bool(const std::string& archivo)>& libre);

/// What is told of a file of that name; null where it could be read.
const SerieDanada* DanadaDe(const std::vector<SerieDanada>& danadas, const std::string& archivo);

}  // namespace study
