// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Entorno_ventana.h"
#include "forms/Planilla.h"

class QMenu;

// The decimal sign of what is copied and saved as CSV, chosen once for all windows and remembered.
namespace forms {

/// A point, until the user chooses the desktop's.
SignoDecimal SignoElegido(Entorno& entorno);

/// A menu of the two, the one in use ticked.
void AgregaSignoDecimal(QMenu& menu, Entorno& entorno);

}  // namespace forms
