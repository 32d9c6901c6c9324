// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace frequency {

struct Maximo {
    int anio = 0;
    double valor = 0;  ///< [mm], 0 or more: 0 is a year without rain
};

/// Annual maxima as a file gives them. Texts are Spanish sentences with their full stop.
struct Serie {
    std::vector<Maximo> maximos{};       ///< by year
    std::vector<std::string> errores{};  ///< why it can't be fitted; empty: it can
    std::vector<std::string> avisos{};   ///< what is to be known of it
};

/// The least are years with rain.
inline constexpr std::size_t MinimoDeAnios = 10, MaximoDeAnios = 1000;

/// Reads rows of year and value, or of date and value (dd/mm/yyyy, yyyy-mm-dd): two columns with a semicolon,
/// a tabulator or, where the decimal sign is a point, a comma between them. A first row without numbers is
/// its title; a value that is missing (nothing, -, NA, s/d) is a gap. Says all that is wrong, each with its
/// line.
Serie LeeMaximos(std::string_view texto);

/// The same of maxima that are numbers already, in any order of years.
Serie RevisaMaximos(std::vector<Maximo> maximos);

}  // namespace frequency
