// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/casos/Familias.h"

#include <array>

#include "frequency/casos/Filas.h"

namespace frequency {

std::span<const checks::casos::Familia> Familias()
{
    static constexpr std::array<checks::casos::Familia, 4> Todas{
        casos::FilasDeLeyes, casos::FilasDePruebas, casos::FilasDePatrones, casos::FilasDeIntensidades};
    return Todas;
}

}  // namespace frequency
