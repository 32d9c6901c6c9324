// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <optional>

#include "model/Numeros.h"

// Bisection over heights.
namespace hydraulics {

/// Rounds after which a bisection is given up: 32-bit floats then no longer halve the bracket.
inline constexpr int MaxVueltasBiseccion = 1000;

/// The middle of a bracket of heights, a 32-bit float.
inline float PuntoMedio(float hi, float lo)
{
    return static_cast<float>((double{hi} - lo) / 2 + lo);
}

/// Whether a bracket of heights is still wider than `ancho`, a 32-bit float [m].
inline bool SigueAbierto(float hi, float lo, float ancho)
{
    return std::fabs(static_cast<float>(double{hi} - lo)) > ancho;
}

/// The last midpoint of a bisection of the heights between two [m], until the bracket is no wider than
/// `ancho`: `pasa(height)` tells that it is above the one looked for. It must go on being so for all heights
/// above; where it doesn't, one side is settled on. A bracket as narrow from the start gives 0 and asks
/// nothing. Returns nothing past MaxVueltasBiseccion rounds. Throws Falla 6 where the width of the bracket is
/// outside a 32-bit float.
template <typename Pasa>
std::optional<float> BisecaAltura(float minimo, float maximo, float ancho, Pasa&& pasa)
{
    (void)model::Simple(double{maximo} - minimo);  // it only gets narrower
    float lo = minimo, hi = maximo, mid = 0;
    for (int vueltas = 1; SigueAbierto(hi, lo, ancho); ++vueltas) {
        if (vueltas > MaxVueltasBiseccion) return std::nullopt;
        mid = PuntoMedio(hi, lo);
        if (pasa(mid))
            hi = mid;
        else
            lo = mid;
    }
    return mid;
}

}  // namespace hydraulics
