// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "checks/Hallazgo.h"

namespace checks {

/// Where what a finding is about can be seen and changed.
enum class Lugar : std::uint8_t {
    Dibujo,         ///< in the drawing, selected: it is about who drains into whom
    Ficha,          ///< the component's form
    TablaHAS,       ///< the table of height, area and storage; of a Lago all of its table
    TablaHQ,        ///< the table of height and outflow of a Represa
    Editor,         ///< the drawing as a whole
    Tormenta,       ///< the storm dialog
    Configuracion,  ///< the project's configuration
};

/// The place of a finding of a check or of a run.
Lugar LugarDe(const Hallazgo& hallazgo);

}  // namespace checks
