// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"

namespace engine {

/// Proves that no statement of the model steps can be at fault with the data in hand: every index within its
/// bounds, every 16-bit product within 16 bits, every power defined, every float far from its limit.
bool PasosSeguros(Corrida& c);

/// The model steps without a check per statement, UEH by UEH. Requires PasosSeguros and no text per step.
void PasosRapidos(Corrida& c);

/// Rain of model step k for all UEHs, if the storm still lasts; statement by statement.
void LluviaDelPaso(Corrida& c, std::int16_t k);

/// Lengthens the run to output step p; the contents of the results stay.
void Alarga(Corrida& c, std::int16_t p);

/// Turns mm/min on hectares into m3/s; the constant, not 1/6.
inline constexpr double FactorCaudal = 0.166667;

}  // namespace engine
