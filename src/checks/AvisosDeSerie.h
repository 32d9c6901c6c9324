// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "checks/Hallazgo.h"
#include "model/SiroDeclarado.h"

namespace checks {

/// The storms that a series in memory runs, by number, and the findings 122 to 124 about those that it
/// doesn't: shorter than a model step, deselected by the configuration, behind one of depth or duration 0.
struct Seleccionadas {
    std::vector<int> numeros{};
    std::vector<Hallazgo> avisos{};
};
Seleccionadas TormentasDeSerie(const model::Siro& s);

/// The findings of a series: those of each of its storms, and of the storms that were skipped. What several
/// storms have in common is one finding: that of the worst, which it names, and in how many of them. `s`:
/// network, configuration, steps, series and tables of rain as the series' run leaves them. The storms are
/// run again, on `hilos` threads (0: all cores), since a series keeps no hydrographs; the findings don't
/// depend on how many.
std::vector<Hallazgo> AvisosDeSerie(const model::Siro& s, int hilos);

}  // namespace checks
