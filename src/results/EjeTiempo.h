// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Axes of the charts of what happens in time.
namespace results {

inline constexpr std::string_view EjePrecipitacion = "Precipitación [mm]";
inline constexpr std::string_view EjeCaudal = "Caudal [m3/s]";

/// What the time axis shows, as the heading of a column names it; its title tells the unit alone.
inline constexpr std::string_view MagnitudEjeX = "t";

/// Title of the time axis.
std::string_view TituloEjeX(bool minutos);

/// Category of row i, the time at its end: i·paso in whole minutes, or in hours with two decimals, cut and
/// not rounded. Throws Falla 6 above 32767 min.
std::string Categoria(std::int16_t i, std::int16_t paso, bool minutos);

}  // namespace results
