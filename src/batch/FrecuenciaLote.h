// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Reads annual maxima, fits the laws and writes the analysis as text, JSON or CSV to Estandar; what is wrong
/// with the file to Errores, a line each. Returns 0, or 1 where there is no analysis or it can't be written.
/// A build without Boost.Math and NLopt says so and returns 1.
int MuestraFrecuencia(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
