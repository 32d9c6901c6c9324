// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

// Captions, hints and spoken names of controls, a row each.
namespace forms {

/// A control of a form by its object name, its caption (of a field: that of the label beside it), the hint
/// shown under the pointer, and what a reader of the screen says where no label says the caption.
struct FilaRotulo {
    std::string_view control;
    std::string_view leyenda;
    std::string_view ayuda = {};
    std::string_view lector = {};
};

/// Place of a control's row in a table, from 0; the number of rows where it has none.
constexpr std::size_t LugarDe(std::span<const FilaRotulo> tabla, std::string_view control)
{
    std::size_t i = 0;
    while (i < tabla.size() && tabla[i].control != control)
        ++i;
    return i;
}

/// The row of a control; an empty one where the table has none.
constexpr FilaRotulo RotuloDe(std::span<const FilaRotulo> tabla, std::string_view control)
{
    const std::size_t i = LugarDe(tabla, control);
    return i < tabla.size() ? tabla[i] : FilaRotulo{};
}

/// What stands behind a field: its unit in brackets where the caption doesn't tell one.
inline std::string UnidadAparte(std::string_view leyenda, std::string_view unidad)
{
    if (unidad.empty() || leyenda.find('[') != std::string_view::npos) return {};
    return "[" + std::string(unidad) + "]";
}

}  // namespace forms
