// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

// A record of rain, such as a rain gauge's logger writes it.
//
// The record is text with a reading per line: date and time, in one field or two, and the depth fallen since
// the reading before; a number of the reading may stand ahead. Fields are parted by semicolons, tabs, commas
// or blanks, whichever makes most readings of the first 10,000 lines with text, and may stand in double
// quotes. Dates are dd/mm/yyyy, dd/mm/yy (1950 to 2049) or yyyy-mm-dd, times hh:mm or hh:mm:ss, with AM or
// PM; fractions of a second and a time zone are passed over. What stands ahead of the first reading is a
// heading; further fields and empty lines are passed over.
namespace forms {

struct LecturaLluvia {
    std::int64_t segundo = 0;  ///< since 01/01/0001 00:00
    double lamina = 0;         ///< fallen since the reading before [mm]
    bool operator==(const LecturaLluvia&) const = default;
};

/// A line that is no reading but looks like one, or one that the user should look at.
struct RenglonDudoso {
    int nro = 0;  ///< of the line, from 1
    std::string texto{};
    std::string hecho{};  ///< what is doubtful, and what is made of it
    bool operator==(const RenglonDudoso&) const = default;
};

struct RegistroLluvia {
    std::vector<LecturaLluvia> lecturas{};
    std::vector<RenglonDudoso> dudosos{};
    std::size_t masDudosos = 0;  ///< that aren't kept
    std::string motivo{};        ///< why the text is no record, with the line; empty: it is one
};

/// How a record is read.
struct FormaDeLectura {
    bool soloFecha = false;  ///< a date may stand without a time: the reading is that of the whole day
    std::size_t maximoDudosos = std::numeric_limits<std::size_t>::max();  ///< kept; the rest is counted
    /// Bytes read of all. Returns whether it goes on.
    std::function<bool(std::size_t hechos, std::size_t total)> avance{};
};

/// Reads the bytes of a record: UTF-8, Windows-1252 or UTF-16, with the line ends of any platform. Readings
/// must not go back in time nor be below 0; where one is at fault there are none. Stopped, it has none and
/// says so.
RegistroLluvia LeeRegistroLluvia(std::string_view bytes, const FormaDeLectura& forma = {});

/// What there is to be said of a text without any reading.
inline constexpr std::string_view SinLecturas =
    "El archivo no tiene ningún renglón con fecha, hora y lámina.";
/// The same where a date is enough.
inline constexpr std::string_view SinLecturasDelDia =
    "El archivo no tiene ningún renglón con fecha y lámina.";
inline constexpr std::string_view LecturaCancelada = "La lectura se canceló.";

/// Most frequent time between two readings, the shortest of several, in whole minutes, at least 1; 10 where
/// there is a single reading [min].
std::int16_t PasoHabitual(const std::vector<LecturaLluvia>& lecturas);

}  // namespace forms
