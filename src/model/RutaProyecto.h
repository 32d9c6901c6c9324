// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// What the paths of a project's files are composed of, as far as it comes from files that anybody may have
// written.
namespace model {

/// Separator of directories, as this platform writes it.
#if defined(_WIN32)
inline constexpr char Separador = '\\';
#else
inline constexpr char Separador = '/';
#endif

/// Whether a project's name, as a file tells it, leads to files of the project's own directory: no separator
/// of any platform, no "..", no control character. The empty one passes.
bool SirveDeNombre(std::string_view nombre);

/// A path without repeated separators. Two at its beginning are a network path's and stay.
std::string RutaLlana(std::string_view ruta);

/// A text as it comes back from a file: what Windows-1252 can't hold is "?".
std::string ComoVuelve(std::string_view texto);

/// Drives exist where the backslash separates directories.
inline constexpr bool HayUnidades = Separador == '\\';
/// Drive of a path: its first two characters, the empty text on a platform without drives.
std::string UnidadDe(std::string_view ruta);
/// A path without its drive, on a platform without drives only where the second character is a colon.
std::string_view SinUnidad(std::string_view ruta);

}  // namespace model
