// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace editor {

/// Unit of the quantity that a column's title names in the tables of parameters, as tips show it: the titles
/// themselves have no room for it. Blanks at the ends of the title don't count. Empty where the quantity has
/// no unit, the title tells it, or the title is unknown.
std::string_view UnidadDeTitulo(std::string_view titulo);

}  // namespace editor
