// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// In memory text is UTF-8; on disk it is Windows-1252. Widths count characters, not bytes.
namespace model {

/// Line break of the Slate and of every file.
inline constexpr std::string_view SaltoLinea = "\r\n";

/// Decodes Windows-1252. The five bytes that the code page leaves unassigned stand for themselves (U+0081
/// ...).
std::string DeWindows1252(std::string_view bytes);

/// Encodes UTF-8 as Windows-1252; a character that the code page lacks, and a byte that is no UTF-8, is '?'.
std::string AWindows1252(std::string_view texto);

/// Number of characters of a UTF-8 text.
std::size_t CuentaCaracteres(std::string_view texto);

/// The first characters of a UTF-8 text, `n` at most.
std::string PrimerosCaracteres(std::string_view texto, std::size_t n);

/// Pads on the right with blanks up to `ancho` characters; a longer text is left whole.
std::string AjustaIzquierda(std::string_view texto, std::size_t ancho);

/// Changes every comma into a point.
std::string ComasAPuntos(std::string_view texto);

}  // namespace model
