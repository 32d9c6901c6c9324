// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "forms/Entorno_ventana.h"
#include "forms/Planilla.h"

namespace forms {

/// Prints a table whole on the default printer with no dialog: its titles on the first page, its headings on
/// each, below them the job's name and the number of the page. Letters are smaller where the columns wouldn't
/// fit into the width.
void ImprimePlanilla(Entorno& entorno, std::string_view nombre, const Planilla& planilla);

}  // namespace forms
