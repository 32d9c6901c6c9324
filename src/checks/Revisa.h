// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "checks/Hallazgo.h"
#include "model/Anfitrion.h"
#include "model/SiroDeclarado.h"

// The check before a run: all that it would stop for or ask about, and what it would take without a word
// although it can't be meant, at once. Numbers 200 to 299.
namespace checks {

/// What is wrong with network, tables, storm and steps in memory. `areaCuenca`: the basin as it was measured
/// [ha]; 0: not known. Reads nothing from the disk, changes nothing, asks nothing.
std::vector<Hallazgo> Revisa(const model::Siro& s, double areaCuenca = 0);

/// A box or question while the project was opened and loaded, as a finding: an error where it tells a fault.
Hallazgo DeApertura(const model::Mensaje& mensaje);

/// Whether a run's results could be put down in DirTrabajo, as far as that shows without writing.
void RevisaDirTrabajo(const model::Siro& s, std::vector<Hallazgo>& hallazgos);

}  // namespace checks
