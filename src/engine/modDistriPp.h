// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "model/SiroDeclarado.h"

// The hyetograph of a storm, and the rain of each model step.
namespace engine {

/// Where the tables of the personal distributions are taken from.
enum class TablasPersonales : std::uint8_t { DelDisco, EnMemoria };

/// Builds the hyetograph of the storm in hand: blocks of length D/N by the temporal distribution, or the
/// recorded depths (form 4), into PpAcum [mm], IntensidadPp [mm/min], PpReal [mm], NroBloquesPp, NroPpReal.
/// Elements beyond the blocks keep what they held. A fault is reported and ends the routine.
void ConstruyeHietograma(model::Siro& s, TablasPersonales tablas = TablasPersonales::DelDisco);

/// Rainfall of model step k [mm], k = 1, 2, 3 ... in order: it remembers what it has delivered. 0 beyond the
/// storm's end. Throws Falla 6, 9, 11.
double PpDelPaso(model::Siro& s, std::int16_t k);

}  // namespace engine
