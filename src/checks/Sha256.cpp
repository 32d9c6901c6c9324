// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Sha256.h"

#include <algorithm>
#include <bit>

namespace checks {

namespace {

// clang-format off
constexpr std::array<std::uint32_t, 64> K{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};
// clang-format on

}  // namespace

void Sha256::Bloque(const unsigned char* b)
{
    std::array<std::uint32_t, 64> w{};
    for (std::size_t t = 0; t < 16; ++t)
        w[t] = std::uint32_t{b[4 * t]} << 24 | std::uint32_t{b[4 * t + 1]} << 16 |
               std::uint32_t{b[4 * t + 2]} << 8 | std::uint32_t{b[4 * t + 3]};
    for (std::size_t t = 16; t < 64; ++t) {
        const std::uint32_t a = w[t - 15], z = w[t - 2];
        w[t] = (std::rotr(z, 17) ^ std::rotr(z, 19) ^ z >> 10) + w[t - 7] +
               (std::rotr(a, 7) ^ std::rotr(a, 18) ^ a >> 3) + w[t - 16];
    }
    auto v = h;  // a..h
    for (std::size_t t = 0; t < 64; ++t) {
        const std::uint32_t e = v[4], a = v[0];
        const std::uint32_t t1 = v[7] + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                 ((e & v[5]) ^ (~e & v[6])) + K[t] + w[t];
        const std::uint32_t t2 = (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) +
                                 ((a & v[1]) ^ (a & v[2]) ^ (v[1] & v[2]));
        std::rotate(v.begin(), v.end() - 1, v.end());
        v[4] += t1;
        v[0] = t1 + t2;
    }
    for (std::size_t i = 0; i < 8; ++i)
        h[i] += v[i];
}

void Sha256::Agrega(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t lugar = largo % 64, n = std::min(64 - lugar, bytes.size());
        std::copy_n(bytes.begin(), n, resto.begin() + static_cast<std::ptrdiff_t>(lugar));
        bytes.remove_prefix(n);
        largo += n;
        if (lugar + n == 64) Bloque(resto.data());
    }
}

std::string Sha256::Cierra()
{
    const std::uint64_t bits = largo * 8;
    Agrega(std::string_view("\x80", 1));
    while (largo % 64 != 56)
        Agrega(std::string_view("\0", 1));
    for (int i = 56; i >= 0; i -= 8) {
        const char byte = static_cast<char>(bits >> i & 0xff);
        Agrega({&byte, 1});
    }
    constexpr std::string_view Cifras = "0123456789abcdef";
    std::string texto;
    for (const std::uint32_t palabra : h)
        for (int i = 28; i >= 0; i -= 4)
            texto += Cifras[palabra >> i & 0xf];
    return texto;
}

}  // namespace checks
