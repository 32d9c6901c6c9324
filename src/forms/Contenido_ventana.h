// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "forms/Contenido.h"

class QWidget;

namespace forms {

/// What the controls of a window hold: fields, lists, ticks, grids, in the order in which they were made.
Contenido TomaContenido(const QWidget& ventana);

/// The forms on show that hold what isn't applied, as their titles mark them.
std::vector<Contenido> ContenidosSinAplicar();
bool HaySinAplicar();

}  // namespace forms
