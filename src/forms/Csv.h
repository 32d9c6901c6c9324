// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Texts as fields of a CSV file.
namespace forms {

/// Tells a spreadsheet that a file is UTF-8.
inline constexpr std::string_view MarcaUtf8 = "\xEF\xBB\xBF";

/// A text as a field of a file of fields parted by commas: in quotes, its own quotes doubled.
inline std::string CampoCsv(std::string_view texto)
{
    std::string campo = "\"";
    for (const char c : texto)
        campo.append(c == '"' ? 2 : 1, c);
    return campo += '"';
}

}  // namespace forms
