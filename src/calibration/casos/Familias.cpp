// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/casos/Familias.h"

#include <array>

#include "calibration/casos/Filas.h"

namespace calibration {

std::span<const checks::casos::Familia> Familias()
{
    static constexpr std::array<checks::casos::Familia, 3> Todas{
        casos::FilasDePuntajes, casos::FilasDeSensibilidad, casos::FilasDeBusqueda};
    return Todas;
}

}  // namespace calibration
