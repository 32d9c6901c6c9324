// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Fits the active parameters of a task to its observed events and writes what was found as text, JSON or CSV
/// to Estandar, every run of the search as CSV to the file asked for; the bits of the workshop's. Returns 0;
/// 1 where the task can't be done, no run has a score, or something can't be read or written. A build without
/// its libraries says so and returns 1.
int AjustaProyecto(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
