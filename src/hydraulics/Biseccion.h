// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <optional>

#include "model/Numeros.h"

namespace hydraulics {

/// Rounds after which a bisection is given up: 32-bit floats then no longer halve the bracket.
inline constexpr int MaxVueltasBiseccion = 1000;

/// Width of the bracket at which the height for an outflow is found [m]; a 32-bit constant.
inline constexpr float ToleranciaAltura = 0.001F;

/// The last midpoint of the bisection for the height [m] at which `Q(height)` passes q [m3/s]: a bracket
/// that is within the tolerance from the start gives 0. Q must rise with the height; where it falls, one side
/// of the fall is settled on. Returns nothing past MaxVueltasBiseccion rounds.
/// Throws Falla 6 where the width of the bracket is outside a 32-bit float.
template <typename Descarga>
std::optional<float> BisecaAltura(float minimo, float maximo, float q, Descarga&& Q)
{
    float lo = minimo;
    float hi = maximo;
    float mid = 0;
    for (int vueltas = 1; std::fabs(model::Simple(double{1} * hi - lo)) > ToleranciaAltura; ++vueltas) {
        if (vueltas > MaxVueltasBiseccion) return std::nullopt;
        mid = model::Simple((double{1} * hi - lo) / 2 + lo);
        if (Q(mid) > q)
            hi = mid;
        else
            lo = mid;
    }
    return mid;
}

}  // namespace hydraulics
