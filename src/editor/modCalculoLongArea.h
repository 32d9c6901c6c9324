// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/Dibujo.h"
#include "model/Siro.h"

// Length of a polyline, perimeter and area of a polygon, measured over the drawing or its background image.
// Nothing of it changes the network.
namespace editor {

struct frmUEHs;

/// A click with btn_toolbarLongArea down. Throws Falla 6 beyond 32767 points.
void AgregaPuntoMedida(frmUEHs& f, Punto p);

/// Asks whether the figure is to be closed, works out LongitudMedida and AreaMedida, shows them and forgets
/// the points. Without points nothing happens. The area bears the sign of the direction of drawing: trapezium
/// form of the shoelace sum.
void CalculaLongArea(frmUEHs& f, model::Siro& s);

}  // namespace editor
