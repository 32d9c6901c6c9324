// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

// What a form's controls hold, as values, for whoever keeps it while it isn't applied.
namespace forms {

/// A field, a list with what is picked in it, or a tick, "1" or "0".
struct CampoEscrito {
    std::string control{};  ///< object name
    std::string leyenda{};  ///< what a reader of the screen says of it
    std::string valor{};
    bool operator==(const CampoEscrito&) const = default;
};

/// A grid's cells, the titles of its columns in the first row.
struct TablaEscrita {
    std::string control{};
    std::string leyenda{};
    std::vector<std::vector<std::string>> filas{};
    bool operator==(const TablaEscrita&) const = default;
};

struct Contenido {
    std::string ventana{};  ///< object name
    std::string titulo{};
    std::vector<CampoEscrito> campos{};
    std::vector<TablaEscrita> tablas{};
    bool operator==(const Contenido&) const = default;
};

/// To be read and to be pasted into a spreadsheet: the title, a line for each field that holds something,
/// then the tables, tabs between their cells. Lines end in a line feed.
std::string ComoTexto(const Contenido& contenido);

}  // namespace forms
