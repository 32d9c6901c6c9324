// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

namespace study {

/// How far a piece of work has come, `hechos` of `total`. Returns whether it goes on. Asked on the thread of
/// whoever asked for the work, ahead of each piece that this thread does.
using Avance = std::function<bool(std::size_t hechos, std::size_t total)>;

}  // namespace study
