// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"
#include "model/Numeros.h"

namespace engine {

/// Muskingum denominator and coefficients for K [min] and x, with dt = PasoQ [min], into the run's working
/// values. Returns false where the denominator is 0 or the three coefficients, each a 32-bit float, don't add
/// up to 1 exactly: kept although rounding alone can bring that about. `intenta` runs each statement.
template <typename Intenta>
bool CoeficientesMuskingum(Corrida& c, double K, double x, Intenta intenta)
{
    const double medioPaso = 0.5 * c.s.Pasos.PasoQ;
    intenta([&] { c.DenMusk = model::Simple(K - K * x + medioPaso); });
    if (c.DenMusk == 0) return false;
    intenta([&] { c.C0Musk = model::Simple((medioPaso - K * x) / c.DenMusk); });
    intenta([&] { c.C1Musk = model::Simple((K * x + medioPaso) / c.DenMusk); });
    intenta([&] { c.C2Musk = model::Simple((K - K * x - medioPaso) / c.DenMusk); });
    return static_cast<float>(double{c.C0Musk} + c.C1Musk + c.C2Musk) == 1;
}

/// Text of the box for a component whose Muskingum parameters are refused; no blank ahead of the name.
inline std::string TextoMuskingum(const std::string& nombre)
{
    return "Error, Los parámetros de Muskingum utilizados en el tramo de cauce" + nombre +
           " son erróneos. Verifique, o cambie a propagación Directa desde el Editor de UEHs ";
}

}  // namespace engine
