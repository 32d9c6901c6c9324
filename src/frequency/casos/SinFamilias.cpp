// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/casos/Familias.h"

namespace frequency {

std::span<const checks::casos::Familia> Familias()
{
    return {};
}

}  // namespace frequency
