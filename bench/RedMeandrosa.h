// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Siro.h"

namespace bench {

/// Width of its drawing [drawing units].
inline constexpr float AnchoDeMeandros = 1600;

/// The network at the limits as windows that draw it find it hardest: 70 UEHs, 70 reaches of 100 vertices
/// that wind over ten squares by seven, 70 Lagos, 20 Represas, names of 15 characters.
model::Siro RedMeandrosa();

}  // namespace bench
