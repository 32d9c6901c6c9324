// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "checks/casos/Familias.h"

namespace calibration::casos {

using checks::casos::Comparacion;
using checks::casos::FilaDeCaso;

std::span<const FilaDeCaso> FilasDePuntajes();      ///< scores of published series
std::span<const FilaDeCaso> FilasDeSensibilidad();  ///< functions whose indices are known
std::span<const FilaDeCaso> FilasDeBusqueda();      ///< functions whose least value is known

}  // namespace calibration::casos
