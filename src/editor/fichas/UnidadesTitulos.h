// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "forms/Grilla.h"

namespace editor {

/// Unit of the quantity that a column's title names in the tables of parameters, as tips show it: the titles
/// themselves have no room for it. Blanks at the ends of the title don't count. Empty where the quantity has
/// no unit, the title tells it, or the title is unknown.
std::string_view UnidadDeTitulo(std::string_view titulo);

/// Tip of a cell of a table of parameters: what its column holds there and in which unit, "Vel.Media [m/s]".
/// A grey row of titles above it gives the column another title. Empty where there is no title.
std::string AyudaDeCelda(const forms::Grilla& g, forms::Celda celda);

}  // namespace editor
