// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "checks/casos/Familias.h"

namespace frequency::casos {

using checks::casos::Comparacion;
using checks::casos::FilaDeCaso;

std::span<const FilaDeCaso> FilasDeLeyes();     ///< parameters and quantiles of the books
std::span<const FilaDeCaso> FilasDePruebas();   ///< tests of a sample
std::span<const FilaDeCaso> FilasDePatrones();  ///< storms spread over time
std::span<const FilaDeCaso>
FilasDeIntensidades();  ///< curves of intensity, disaggregation, reduction by area

}  // namespace frequency::casos
