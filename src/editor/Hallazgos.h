// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "checks/Lugares.h"
#include "model/Red.h"
#include "model/SiroDeclarado.h"

// What a list of findings asks of the editor: a component shown where it can be changed, and mends.
namespace editor {

struct frmUEHs;

/// Selects the component with a name and nothing else, moves the drawing so that it is well in sight, and
/// asks for the form in which the finding is seen. Returns false, with nothing done, where no component bears
/// the name.
bool VaA(frmUEHs& f, model::Siro& s, std::string_view nombre, checks::Lugar lugar);

/// Changes the network in memory, as one step that undo takes back.
void Aplica(frmUEHs& f, model::Siro& s, const std::function<void(model::Red&)>& cambio);

/// Does the mends of findings to the network in memory, as one step that undo takes back. Those of tables
/// aren't done here. Returns how many were done.
int Corrige(frmUEHs& f, model::Siro& s, const std::vector<checks::Hallazgo>& hallazgos);

}  // namespace editor
