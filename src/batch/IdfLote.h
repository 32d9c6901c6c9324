// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Makes curves of intensity from annual maxima or coefficients and writes them as text, JSON or CSV to
/// Estandar; what is wrong with the data to Errores, a line each. Returns 0; 1 where there are no curves or
/// they can't be written; 2 for a key that there isn't. A build without Boost.Math and NLopt says so and
/// returns 1.
int MuestraIdf(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
