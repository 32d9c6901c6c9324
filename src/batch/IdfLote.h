// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"
#include "study/Taller.h"

namespace batch {

/// What the command line names of curves and isn't there: "no hay una familia \"x\""; empty: all is.
std::string ClaveErronea(const Opciones& opciones);

/// A station with the maxima of the files that were named; none where one is wrong, which has been told.
std::optional<study::Estacion> EstacionDe(const Opciones& opciones, const Salidas& salidas);

/// Makes curves of intensity from annual maxima or coefficients and writes them as text, JSON or CSV to
/// Estandar; what is wrong with the data to Errores, a line each. Returns 0; 1 where there are no curves or
/// they can't be written; 2 for a key that there isn't. A build without Boost.Math and NLopt says so and
/// returns 1.
int MuestraIdf(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
