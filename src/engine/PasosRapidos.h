// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "engine/Corrida.h"

namespace engine {

/// Proves that no statement of the model steps can be at fault with the data in hand: every index within its
/// bounds, every 16-bit product within 16 bits, every power defined, every float far from its limit.
bool PasosSeguros(Corrida& c);

/// The model steps without a check per statement, UEH by UEH. Requires PasosSeguros and no text per step.
void PasosRapidos(Corrida& c);

/// Translation on one slope. What an endless rain would bring to its foot rises for T minutes and then stays;
/// the excess of one model step brings that curve less the same curve a model step later: a trapezoid.
struct Ladera {
    int T = 0;                      ///< travel time [min]
    int puntos = 0;                 ///< output steps that the trapezoid lasts
    int subida = 0;                 ///< of these, the ones in which the curve still rises
    std::vector<double> minutos{};  ///< of each of these
    std::vector<float> curva{};     ///< room for the curve, behind a model step of zeros
};

/// The slopes of all UEHs, in their order. Requires PasosSeguros.
std::vector<Ladera> PreparaLaderas(Corrida& c);

/// Adds the trapezoid of model step k, whose excess flows with `caudal` [m3/s], to the hydrograph of UEH i
/// and lengthens the run where the trapezoid doesn't fit. Requires PasosSeguros.
void SumaTrapecioDelPaso(Corrida& c, Ladera& l, std::int16_t k, int i, float caudal);

/// Rain of model step k for all UEHs, if the storm still lasts; statement by statement.
void LluviaDelPaso(Corrida& c, std::int16_t k);

/// Lengthens the run to output step p; the contents of the results stay.
void Alarga(Corrida& c, std::int16_t p);

/// Turns mm/min on hectares into m3/s; the constant, not 1/6.
inline constexpr double FactorCaudal = 0.166667;

}  // namespace engine
