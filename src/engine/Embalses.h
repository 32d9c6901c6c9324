// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "engine/Corrida.h"

namespace engine {

/// How a Represa or a Lago names the first of its methods.
inline constexpr std::string_view MetodoMuskingum = "Muskingum";

/// Whether a run knows a method by this name.
bool MetodoConocido(std::string_view metodo);

/// Routes the Represa at row `fila` of Secuencia through the storm by the method that it names: Muskingum
/// with a weight of 0, level pool ("Piscina Nivelada": 2S/dt + Q by bisection on the height), or third-order
/// Runge-Kutta on dH/dt = (I - Q)/A (Chow, Maidment and Mays 1988, 8.2 and 8.3). Writes the detail sheet, the
/// table and the totals. Throws the fault that ends it; what was worked out before stays.
void Proceso_en_Represa(Corrida& c, int fila);

/// The same for the Lago at row `fila`.
void Proceso_en_Lago(Corrida& c, int fila);

}  // namespace engine
