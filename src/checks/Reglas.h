// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "checks/Hallazgo.h"
#include "engine/Calcula.h"
#include "model/Red.h"

// The rules of the check by subject: each appends what it finds.
namespace checks {

using Hallazgos = std::vector<Hallazgo>;

/// Names, destinations, outfalls, circles, what nothing drains into.
void RevisaEnlaces(const model::Red& red, Hallazgos& l);

/// What a run refuses of a UEH, a reach, a Represa, a Lago.
void RevisaComponentes(const model::Red& red, std::int16_t PasoQ, Hallazgos& l);

/// Tables and outflow functions of the Represas and Lagos.
void RevisaTablas(const model::Red& red, Hallazgos& l);

/// Values outside their usual ranges, each with its source; Muskingum's window for an output step [min].
void RevisaRangos(const model::Red& red, std::int16_t PasoQ, Hallazgos& l);

/// What a run said that no rule has found before it.
void TraduceDichos(const model::Red& red, const engine::Calculo& corrida, Hallazgos& l);

/// A box's text without its line breaks.
std::string EnUnaLinea(std::string_view texto);

}  // namespace checks
