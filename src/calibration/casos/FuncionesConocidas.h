// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <numbers>
#include <string_view>
#include <vector>

#include "calibration/Sensibilidad.h"
#include "study/Ajuste.h"

// Functions whose indices of sensitivity are known.
namespace calibration::casos {

/// A function and where its inputs move.
struct FuncionConocida {
    std::vector<Rango> rangos{};
    double (*f)(const std::vector<double>& x);
};

/// T. Ishigami and T. Homma (1990), with a = 7 and b = 0.1.
FuncionConocida Ishigami();
/// Sobol's g with a = 0, 1, 4.5, 9, 99, 99, 99, 99.
FuncionConocida FuncionG();
/// M. Morris (1991), section 4, of 20 inputs; coefficients that the paper draws are 0.
FuncionConocida FuncionDeMorris();

/// The table of a method over a function, a row per input.
std::vector<std::vector<double>> IndicesDe(std::string_view metodo, const FuncionConocida& funcion,
                                           const study::Sensibilidad& pedido);

}  // namespace calibration::casos
