// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/SiroDeclarado.h"

// What a picture or a table says of itself once it has left the program.
namespace forms {

/// A text that is empty is left out.
struct Procedencia {
    std::string titulo{};      ///< of the window
    std::string tema{};        ///< component and storm
    std::string componente{};  ///< its name alone
    std::string proyecto{};    ///< name and title
    std::string fecha{};       ///< the day
    bool operator==(const Procedencia&) const = default;
};

/// The same with the project in hand and the day of today.
Procedencia DeHoy(const model::Siro& s, Procedencia procedencia);

/// Its lines, from title to date; the name of the component alone is none of them.
std::vector<std::string> Renglones(const Procedencia& procedencia);

/// Name proposed for a file, without its ending, and of a print job: title and component, with nothing that a
/// system in use refuses in a name.
std::string NombreDeArchivo(const Procedencia& procedencia);

/// The day of the present date and time, which stands before the first blank.
std::string FechaDelDia(const model::Siro& s);

}  // namespace forms
