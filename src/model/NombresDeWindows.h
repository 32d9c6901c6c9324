// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// What Windows makes of a path, as far as its text tells. The functions know no platform.
// Source: "Naming Files, Paths, and Namespaces", documentation of the Windows API.
namespace model {

/// Why Windows has no file of such a path, or takes it for another one: a device (CON, NUL, COM1 ...), a
/// letter that no name may hold, a blank or point at the end of a name, too many letters. Empty where it has.
std::string_view MotivoDeWindows(std::string_view ruta);

/// Whether a path begins at a drive's root, "C:\", or at another machine, "\\machine".
bool EsAbsolutaEnWindows(std::string_view ruta);

/// A path with the backslash in the place of the slash, which Windows takes as well.
std::string ConBarrasInversas(std::string_view ruta);

}  // namespace model
