// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Draws the members of a set, runs them all, or a part of them, and writes the band of the hydrograph and
/// the distributions of peak, time, volume, level as text, JSON or CSV to Estandar; a part goes to its file.
/// The same bits on any number of threads and in any parts. What is wrong goes to Errores, a line each.
/// Returns 0; 1 where the task can't be done or something can't be read or written. A build without the
/// study's libraries says so and returns 1.
int MuestraConjunto(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

/// Puts the parts of a set together, in any order, and writes the same. Returns 1 where they are no whole.
int MuestraUnion(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
