// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "checks/Hallazgo.h"
#include "model/Anfitrion.h"
#include "model/Red.h"
#include "model/SiroDeclarado.h"

// The check of a project as its files are, on a state of its own: what the program has in memory stays as it
// is, and no box opens.
namespace checks {

/// A host that makes findings of what it is told while a project is opened and loaded, each once, and says
/// Yes.
model::Anfitrion Oyente(std::vector<Hallazgo>& hallazgos);

/// Brings everything into memory that a run reads of the project in hand. The readers tell their faults.
void CargaEntera(model::Siro& s);

/// The project in hand as a run would read it under the storm and the steps in memory, in `otra`, a state
/// apart that writes nothing and opens no box; `dibujo`: components that aren't saved, which take the place
/// of those of the files, nullptr: there are none. What the readers tell is added to `hallazgos`. Returns
/// false where loading doesn't come to its end.
bool CargaAparte(const model::Siro& s, const model::Colecciones* dibujo, model::Siro& otra,
                 std::vector<Hallazgo>& hallazgos);

/// Checks the project in hand under the storm and the steps in memory, the most severe findings first.
/// `dibujo`: components that aren't saved, which take the place of those of the files; nullptr: there are
/// none. `areaCuenca`: the basin as it was measured [ha]; 0: not known. Reads the project's files, writes
/// none.
std::vector<Hallazgo> RevisaAbierto(const model::Siro& s, const model::Colecciones* dibujo = nullptr,
                                    double areaCuenca = 0);

}  // namespace checks
