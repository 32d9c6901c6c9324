// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Opens a project and settles its storm as a run would, checks it, and writes what was found to Estandar:
/// lines with their sum, or JSON. What opening and loading say is among it. Reads and writes what opening
/// does. Returns 0 without errors, 1 with.
int RevisaProyecto(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
