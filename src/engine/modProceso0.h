// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/SiroDeclarado.h"

// One storm over a project: its files are loaded, then it is run.
namespace engine {

/// Reloads everything that a run needs from the project's files: what the editor holds unsaved is dropped.
/// The readers report their own failures, and what stands is gone on with.
void CargaProyecto(model::Siro& s);

/// Runs the storm in hand: header of the Slate, load, hyetograph, main process. With P or D of 0 it ends
/// after the header and leaves earlier results as they are. Returns whether the run went to its end.
bool CorreUnaTormenta(model::Siro& s);

}  // namespace engine
