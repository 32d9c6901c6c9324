// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace engine {

/// Bracket of heights at which the level pool's bisection ends [m], a 32-bit float.
inline constexpr float AnchoFinal = 0.005F;

}  // namespace engine
