// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace rainfall {

/// A control of a form by its object name, its caption (of a field: that of the label beside it), the hint
/// shown under the pointer, and what a reader of the screen says where that is neither of them.
struct Leyenda {
    std::string_view nombre;
    std::string_view leyenda;
    std::string_view ayuda = {};
    std::string_view lector = {};
};

/// The row of a control; an empty one where the table has none.
template <typename Tabla>
constexpr Leyenda LeyendaDe(const Tabla& tabla, std::string_view nombre)
{
    for (const Leyenda& fila : tabla)
        if (fila.nombre == nombre) return fila;
    return {};
}

}  // namespace rainfall
