// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace checks {

/// SHA-256 of bytes that come piece by piece (NIST FIPS 180-4, 2015, section 6.2).
class Sha256 {
  public:
    void Agrega(std::string_view bytes);
    /// The digest of all bytes so far as 64 hexadecimal digits in lower case. Nothing may be added behind it.
    std::string Cierra();

  private:
    void Bloque(const unsigned char* b);

    std::array<std::uint32_t, 8> h{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                   0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<unsigned char, 64> resto{};  ///< bytes of a block that isn't full yet
    std::uint64_t largo = 0;                ///< bytes so far
};

}  // namespace checks
