// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/frmUEHs.h"

namespace editor {

/// What the reaches bear on the drawing: an arrow where their water goes, their names, and, while a reach is
/// being drawn, a mark where the mouth of one touches a head, a Represa or a Lago that it doesn't drain into.
void RotulaCauces(frmUEHs& f, const model::Red& red);

}  // namespace editor
