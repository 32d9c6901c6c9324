// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"

namespace batch {

/// Spreads a storm over time and writes it as text, JSON or CSV to Estandar; where it was told to, into a
/// personal distribution or a table of storms too, which must be empty unless they may be replaced. What is
/// wrong goes to Errores, a line each. Returns 0; 1 where there is no storm or it can't be written; 2 for a
/// key that there isn't. A build without Boost.Math and NLopt says so and returns 1.
int MuestraTormenta(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

}  // namespace batch
