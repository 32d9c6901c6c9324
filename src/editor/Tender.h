// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/frmUEHs.h"

// Dragging a link from the handle of an icon to where the component shall drain.
namespace editor {

/// A step of the drag: the rubber band, and the question where the pointer has come to a destination; its
/// answer ends the drag. Does nothing while no link is dragged.
void TiendeEnlace(frmUEHs& f, model::Siro& s, Punto p);

/// Ends a drag before the button is released: clears the selection and redraws.
void AbandonaArrastre(frmUEHs& f, model::Siro& s);

}  // namespace editor
