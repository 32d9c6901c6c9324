// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"

namespace engine {

/// What the Slate shows of one step of one UEH.
struct RenglonPaso {
    float Pp = 0;        ///< rainfall [mm]
    float R = 0;         ///< retained depth [mm]
    float I = 0;         ///< potential infiltration [mm]
    float CaudalPp = 0;  ///< flow of the excess [m3/s]
};

/// Its line, for model step k of UEH i, if the Slate is on.
void EscribePaso(Corrida& c, std::int16_t k, int i, const RenglonPaso& v);

/// The model steps without a check per statement, UEH by UEH; their lines after them. Returns false, and does
/// nothing, where a statement could be at fault with the data in hand: an index outside its bounds, minutes
/// beyond 16 bits, a power that isn't defined, a float near its limit.
bool PasosRapidos(Corrida& c);

/// Rain of model step k for all UEHs, if the storm still lasts; statement by statement.
void LluviaDelPaso(Corrida& c, std::int16_t k);

/// Lengthens the run to output step p; the contents of the results stay.
void Alarga(Corrida& c, std::int16_t p);

}  // namespace engine
