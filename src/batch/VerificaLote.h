// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Runs the published cases and shows them as text, or as JSON. Returns 0, or 1 where one is out of tolerance
/// or they can't be written.
int MuestraCasos(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
