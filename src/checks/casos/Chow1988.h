// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

// Worked examples of Ven Te Chow, David R. Maidment and Larry W. Mays, "Applied Hydrology", McGraw-Hill 1988,
// chapter 8: the figures as the book's tables give them, in feet and cubic feet per second.
namespace checks::casos::chow {

inline constexpr double Pie = 0.3048;                 // [m]
inline constexpr double PieCubico = Pie * Pie * Pie;  // [m3]
inline constexpr double Acre = 0.40468564224;         // [ha]
inline constexpr double PiesCuadradosPorAcre = 43560;

/// Table 8.2.1: outflow [cfs] of the 5-ft pipe for each half foot of water from 0 to 10 ft.
inline constexpr auto DescargaDelCano = std::to_array<double>(
    {0, 3, 8, 17, 30, 43, 60, 78, 97, 117, 137, 156, 173, 190, 205, 218, 231, 242, 253, 264, 275});

/// Inflow [cfs] each 10 min from 0, in both reservoir examples.
inline constexpr auto Crecida =
    std::to_array<double>({0, 60, 120, 180, 240, 300, 360, 320, 280, 240, 200, 160, 120, 80, 40, 0});

/// Example 8.2.1, table 8.2.2: outflow [cfs] by level pool routing.
inline constexpr auto SalePiscina = std::to_array<double>(
    {0, 2.4, 17.1, 61.1, 123.2, 182.2, 230.3, 259.3, 270.0, 267.4, 254.9, 235.2, 206.8, 168.5, 124.1, 79.8});

/// Example 8.3.1, table 8.3.2: depth [ft] and outflow [cfs] by the third-order Runge-Kutta scheme.
inline constexpr auto AlturaRungeKutta = std::to_array<double>(
    {0, 0.40, 1.53, 3.08, 4.69, 6.28, 7.98, 9.27, 9.75, 9.63, 9.06, 8.17, 7.05, 5.85, 4.66, 3.54});
inline constexpr auto SaleRungeKutta = std::to_array<double>(
    {0, 2.4, 17.9, 62.8, 124.5, 182.6, 230.4, 258.9, 269.5, 266.8, 254.3, 234.7, 206.4, 167.8, 123.5, 79.7});

/// Example 8.4.1, table 8.4.1: inflow and outflow [cfs] of a reach each hour from 1, with K = 2.3 h, X =
/// 0.15.
inline constexpr auto EntraMuskingum = std::to_array<double>(
    {93, 137, 208, 320, 442, 546, 630, 678, 691, 675, 634, 571, 477, 390, 329, 247, 184, 134, 108, 90});
inline constexpr auto SaleMuskingum = std::to_array<double>(
    {85, 91, 114, 159, 233, 324, 420, 509, 578, 623, 642, 635, 603, 546, 479, 413, 341, 274, 215, 170});
inline constexpr double PesoMuskingum = 0.15;
/// The book's C1, C2, C3.
inline constexpr auto CoeficientesMuskingum = std::to_array<double>({0.0631, 0.3442, 0.5927});

}  // namespace checks::casos::chow
