// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Lists the kept runs of a project, the newest first, as text, JSON or CSV. Returns the exit status.
int MuestraCorridas(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
