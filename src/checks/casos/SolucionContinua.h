// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

// Written by tests/checks/solucion_continua.py, which tells what of.
namespace checks::casos::continua {

// clang-format off
/// Outflow [m3/s] each 20 min from 20.
inline constexpr auto Lineal = std::to_array<double>(
    {4.9865, 18.0084, 36.7879, 52.2134, 58.5417, 58.3516,
     53.4910, 45.2837, 34.6784, 24.8482, 17.8045, 12.7575});

/// The same over the weir.
inline constexpr auto Vertedero = std::to_array<double>(
    {0.5586, 4.3045, 13.6777, 25.5243, 34.0742, 38.4963,
     39.0381, 36.3676, 31.2633, 25.9074, 21.7082, 18.3697});
// clang-format on

}  // namespace checks::casos::continua
