// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "forms/Calendario.h"

// Dates and times as loggers write them.
namespace forms {

/// Day of d/m/yyyy, d/m/yy (1950 to 2049) or yyyy-m-d, with either mark; nothing for any other text.
std::optional<Instante> DiaDeRegistro(std::string_view texto);

/// Seconds since midnight of h:mm or h:mm:ss, 24:00 being the end of the day, with "am" or "pm" right behind;
/// a fraction of a second and a time zone are passed over. Nothing for any other text.
std::optional<std::int64_t> HoraDeRegistro(std::string_view texto);

/// Both in one text, a blank or "T" between them, as seconds since 01/01/0001 00:00.
std::optional<std::int64_t> MomentoDeRegistro(std::string_view texto);

}  // namespace forms
