// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "editor/RedEscrita.h"

// What the desktop that is going to be killed leaves of itself: a line for each state that its network went
// through, in a file that the system keeps whoever dies.
namespace e2e {

/// Milliseconds of a clock that all processes share.
inline long long Ahora()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

/// Tells one network from another; 0: none. What is kept of a reach that isn't being drawn any more plays no
/// part: no file holds it.
inline std::size_t Sena(const std::optional<editor::RedEscrita>& red)
{
    if (!red) return 0;
    const std::string trazo = red->trazo.starts_with("0\n") ? std::string{} : red->trazo;
    return std::hash<std::string>{}(red->uehs + '|' + red->verCau + '|' + trazo);
}

}  // namespace e2e
