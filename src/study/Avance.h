// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace study {

/// How far a piece of work has come, `hechos` of `total`. Returns whether it goes on. Asked on the thread of
/// whoever asked for the work, ahead of each piece that this thread does.
using Avance = std::function<bool(std::size_t hechos, std::size_t total)>;

/// The same on show beside a bar.
struct EstadoDeAvance {
    std::size_t hechos = 0, total = 0;
    std::string texto{};  ///< "37 %, quedan 12 s"
};
/// What is left is told once `segundos` of work are enough to judge by.
EstadoDeAvance AvanceDe(std::size_t hechos, std::size_t total, double segundos);

}  // namespace study
