// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "checks/UltimaCorrida.h"

// What went into compared runs: who is who among their components, what isn't alike.
namespace runs {

/// A run that is compared, under the name that its column bears. The run is there.
struct Lado {
    std::string nombre{};
    std::shared_ptr<const checks::UltimaCorrida> corrida{};
};
using Lados = std::vector<Lado>;

/// A component of the compared networks: its name in each, empty where it isn't there. By name; one that is
/// only in some networks and has the same data, all but its destination, as the only such one of the others
/// is the same one under another name.
struct Emparejado {
    char clase = 'u';  ///< prefix: u, c, r, l
    std::vector<std::string> nombres{};
    /// Its name in the first network that has it.
    [[nodiscard]] const std::string& Nombre() const;
    bool operator==(const Emparejado&) const = default;
};

/// Something that went into the runs and isn't the same in all of them.
struct Distinto {
    std::string componente{};            ///< empty: the storm and the steps
    std::string nombre{};                ///< what it is
    std::string unidad{};                ///< "-" where it has none
    std::vector<std::string> valores{};  ///< by side; empty: it hasn't any
    bool seLee = true;                   ///< a run of at least one side reads it
    bool operator==(const Distinto&) const = default;
};

/// The components of all networks, kind by kind: UEHs, Cauces, Lagos, Represas, each in the order of the
/// first network that has it. Emparejado tells who is the same.
std::vector<Emparejado> Empareja(const Lados& lados);

/// Storm and steps, then component by component: which are missing or bear another name, fields, rows of
/// tables. What is drawn (icons, vertices, image) isn't compared; a destination under another name is none.
std::vector<Distinto> Distintos(const Lados& lados, const std::vector<Emparejado>& componentes);

}  // namespace runs
