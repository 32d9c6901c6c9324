// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Calendar time of recorded storms, to the minute. Years before the Gregorian calendar count by its rules too
// (proleptic), so that every date of a storm has its place, 01/01/0001 being the first.
namespace forms {

/// A moment as minutes since 01/01/0001 00:00.
using Instante = std::int64_t;

inline constexpr Instante MinutosPorHora = 60;
inline constexpr Instante MinutosPorDia = 1440;

/// Moment at which a day begins; nothing for a day that the calendar lacks, or a year outside 1..9999.
std::optional<Instante> ComienzoDelDia(int dia, int mes, int anno);

/// The same of the text d/m/yyyy, with one or two digits for day and month and up to four for the year.
std::optional<Instante> FechaDeTexto(std::string_view texto);

/// Minutes since midnight of the text h:mm, hours 0 to 23, minutes 0 to 59; nothing for any other text.
std::optional<Instante> HoraDeTexto(std::string_view texto);

/// Moment of a date and a time as a form holds them. Throws Falla 13 where either is none.
Instante InstanteDeTextos(std::string_view fecha, std::string_view hora);

/// "dd/mm/yyyy" and "hh:mm" of a moment; one before the first day is shown as that.
std::string TextoFecha(Instante t);
std::string TextoHora(Instante t);

// As the fields of a recorded storm hold them.
inline constexpr std::string_view SinFecha = "01/01/1001";
inline constexpr std::string_view FechaBorrada = "01/01/0001";
inline constexpr std::string_view SinHora = "00:00";

/// Returns true on a bad date. A date of eight digits gets its bars; no date is "01/01/1001".
bool controlMiFecha(std::string& texto);
/// Returns true on a bad time. A time of four digits gets its colon; no time is "00:00".
bool controlMiHora(std::string& texto);

}  // namespace forms
