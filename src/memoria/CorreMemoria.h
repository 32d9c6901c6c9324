// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/AnfitrionLote.h"
#include "memoria/OrdenMemoria.h"
#include "model/SiroDeclarado.h"
#include "report/Datos.h"

namespace memoria {

/// Opens the project twice at most, runs the storm and the series that were asked for, and gathers what the
/// memoria tells of them. Writes nothing anywhere. `s`: the project as it was opened. What keeps a run from
/// its end is told to Errores, a line each. Returns 0, or the exit status that says why not.
int Corre(const Orden& orden, const std::string& dirEjecutable, const batch::Salidas& salidas, model::Siro& s,
          report::Datos& datos);

/// "siro-memoria: text", a line of Errores.
void Dice(const batch::Salidas& salidas, const std::string& texto);

}  // namespace memoria
