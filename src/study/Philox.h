// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// Random numbers that depend on nothing but their place: member k of a set draws the same ones on any thread
// and in any order. Salmon, Moraes, Dror, Shaw, "Parallel random numbers: as easy as 1, 2, 3", SC11, 2011.
namespace study {

/// Philox4x32 with 10 rounds: four words for a counter under a key.
std::array<std::uint32_t, 4> Philox4x32(std::array<std::uint32_t, 4> contador,
                                        std::array<std::uint32_t, 2> clave);

/// The uniform numbers of member `k` under a seed.
class Sorteo {
  public:
    Sorteo(std::uint64_t semilla, std::uint64_t k);
    /// The next one, strictly between 0 and 1: (word + 1/2) / 2^32.
    double Uniforme();

  private:
    std::array<std::uint32_t, 2> clave;
    std::array<std::uint32_t, 4> contador;
    std::array<std::uint32_t, 4> palabras{};
    std::size_t usadas = 4;
};

}  // namespace study
