// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "study/Taller.h"

namespace frequency {

using study::Maximo;  // 0 is a year without rain

/// Annual maxima as a file gives them. Texts are Spanish sentences with their full stop.
struct Serie {
    std::vector<Maximo> maximos{};       ///< by year
    std::vector<std::string> errores{};  ///< why it can't be fitted; empty: it can
    std::vector<std::string> avisos{};   ///< what is to be known of it
};

/// The least are years with rain.
inline constexpr std::size_t MinimoDeAnios = 10, MaximoDeAnios = 1000;

/// Below that a year's maximum may have fallen while nobody measured [days].
inline constexpr int DiasDeUnAnioCompleto = 330;

/// Annual maxima of one duration or of several, side by side, as a file gives them.
struct Tabla {
    std::vector<study::SerieDeMaximos> series{};  ///< in the order of the columns, years in that of the rows
    std::vector<std::string> errores{};           ///< with their lines; empty: all of it is good
    std::vector<std::string> avisos{};
    bool conDuraciones = false;  ///< the file tells them
    bool repetidos = false;      ///< a year has two maxima: a record may look so
};

/// Reads rows of year and value, or of date and value (dd/mm/yyyy, yyyy-mm-dd), and, where they are known,
/// days of the year with record; with a semicolon, a tabulator or, where the decimal sign is a point, a comma
/// between them. A first row without a year is the title; one that gives a duration for each column, "5 min"
/// or "1 h", or plain minutes behind "Año", makes them columns of values of these durations. Else the values
/// are of a day. One that is missing (nothing, -, NA, s/d) is a gap. Says all that is wrong, each with its
/// line.
Tabla LeeTabla(std::string_view texto);

/// The same of one duration [min], which need not be told where the file has one alone.
Serie LeeMaximos(std::string_view texto, std::optional<double> duracion = {});

/// The same of maxima that are numbers already, in any order of years.
Serie RevisaMaximos(std::vector<Maximo> maximos);

}  // namespace frequency
