// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

// Runs side by side on the command line.
namespace batch {

/// Runs what is compared and writes the comparison to standard output. Returns the exit status.
int MuestraComparacion(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
