// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The text of a logger's record as lines and fields, whoever wrote it.
namespace forms {

/// Text of a file's bytes: UTF-16 with or without a mark, UTF-8, else Windows-1252. What is no character is
/// "?".
std::string TextoDeBytes(std::string_view bytes);

/// Takes the first line off a text that isn't empty; LF, CR LF and CR end one.
std::string_view SacaRenglon(std::string_view& texto);

/// Whether a line holds nothing but blanks, separators and quotes.
bool EsVacio(std::string_view renglon);

/// A line with every "p. m." and its like, however it is written, joined as "pm" to the time ahead of it, and
/// with plain blanks.
std::string ConMeridianoPegado(std::string_view renglon);

/// Fields of a line without the blanks at their ends; a blank as separator may be several. A field may stand
/// in double quotes, which hold separators, and two of them for one.
std::vector<std::string> CamposDeRenglon(std::string_view renglon, char separador);

}  // namespace forms
