// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

// Points that fill a cube evenly: I. M. Sobol' (1967), USSR Comput. Math. Math. Phys. 7(4), 86-112.
namespace calibration {

/// The first coordinates of a point are of Sobol's sequence; those beyond are drawn.
inline constexpr std::size_t DimensionesDeSobol = 64;

class SucesionDeSobol {
  public:
    /// The seed moves the whole sequence by the same words in base 2: any 2^m of its points that begin at a
    /// multiple of 2^m stay as even as they were.
    SucesionDeSobol(std::size_t dimensiones, std::uint64_t semilla);
    /// Coordinate `dimension` of point k, in the middle of its cell of 2^-32: strictly between 0 and 1.
    [[nodiscard]] double operator()(std::uint32_t k, std::size_t dimension) const;

  private:
    static constexpr std::size_t Bits = 32;
    std::uint64_t semilla;
    std::vector<std::array<std::uint32_t, Bits>> direcciones{};  ///< by dimension, the highest bit's first
    std::vector<std::uint32_t> corrimientos{};
};

}  // namespace calibration
