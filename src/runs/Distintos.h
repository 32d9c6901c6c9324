// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "runs/Comparacion.h"

// What went into compared runs: who is who among their components, what isn't alike.
namespace runs {

/// The components of all networks, kind by kind: UEHs, Cauces, Lagos, Represas, each in the order of the
/// first network that has it. Emparejado tells who is the same.
std::vector<Emparejado> Empareja(const Lados& lados);

/// Storm and steps, then component by component: which are missing or bear another name, fields, rows of
/// tables. What is drawn (icons, vertices, image) isn't compared; a destination under another name is none.
std::vector<Distinto> Distintos(const Lados& lados, const std::vector<Emparejado>& componentes);

}  // namespace runs
