// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/casos/Familias.h"

#include <array>

#include "frequency/casos/Filas.h"

namespace frequency {

std::span<const checks::casos::Familia> Familias()
{
    static constexpr std::array<checks::casos::Familia, 3> Todas{casos::FilasDeLeyes, casos::FilasDePruebas,
                                                                 casos::FilasDePatrones};
    return Todas;
}

}  // namespace frequency
