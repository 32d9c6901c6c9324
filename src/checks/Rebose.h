// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "checks/Corrido.h"

namespace checks {

/// Water above the table of a Represa or a Lago.
struct Rebose {
    int desde = 0;       ///< output step at which it begins
    double volumen = 0;  ///< the most that there is [m3], by what has entered and left
    double altura = 0;   ///< [m]: by the area of the top, or as the run has it
};

/// The water above the top of a component's table by more than `alturaMinima` [m]; nothing where there is
/// none, nor by Muskingum's method, which asks no table for its outflow. Requires results, a row and a table.
std::optional<Rebose> ReboseDe(const Corrido& c, const ComponenteCorrido& comp, double alturaMinima);

}  // namespace checks
