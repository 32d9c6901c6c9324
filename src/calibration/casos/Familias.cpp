// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/casos/Familias.h"

#include <array>

#include "calibration/casos/Filas.h"

namespace calibration {

std::span<const checks::casos::Familia> Familias()
{
    static constexpr std::array<checks::casos::Familia, 2> Todas{casos::FilasDePuntajes,
                                                                 casos::FilasDeSensibilidad};
    return Todas;
}

}  // namespace calibration
