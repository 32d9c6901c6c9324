// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Philox.h"

namespace study {
namespace {

constexpr int Vueltas = 10, Media = 32;
constexpr std::uint64_t Factor0 = 0xD2511F53, Factor1 = 0xCD9E8D57;
constexpr std::uint32_t Suma0 = 0x9E3779B9, Suma1 = 0xBB67AE85;

constexpr std::uint32_t Alta(std::uint64_t x)
{
    return static_cast<std::uint32_t>(x >> Media);
}

constexpr std::uint32_t Baja(std::uint64_t x)
{
    return static_cast<std::uint32_t>(x);
}

}  // namespace

std::array<std::uint32_t, 4> Philox4x32(std::array<std::uint32_t, 4> c, std::array<std::uint32_t, 2> clave)
{
    for (int vuelta = 0; vuelta < Vueltas; ++vuelta) {
        const std::uint64_t p = Factor0 * c[0], q = Factor1 * c[2];
        c = {Alta(q) ^ c[1] ^ clave[0], Baja(q), Alta(p) ^ c[3] ^ clave[1], Baja(p)};
        clave[0] += Suma0;
        clave[1] += Suma1;
    }
    return c;
}

Sorteo::Sorteo(std::uint64_t semilla, std::uint64_t k)
    : clave{Baja(semilla), Alta(semilla)}, contador{Baja(k), Alta(k), 0, 0}
{
}

double Sorteo::Uniforme()
{
    if (usadas == palabras.size()) {
        palabras = Philox4x32(contador, clave);
        ++contador[2];
        usadas = 0;
    }
    constexpr double Rango = 4294967296.0;
    return (palabras[usadas++] + 0.5) / Rango;
}

}  // namespace study
