// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// How much a measure of a project's runs depends on what moves, as a table with its words, CSV or JSON.
/// Returns the exit status.
int MuestraSensibilidad(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
