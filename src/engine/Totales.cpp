// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Totales.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>

namespace engine {

// Floats that are no NaN stand in the order of their bits read as whole numbers, the negative ones all below
// 0: so the greatest is found by whole-number comparisons, which the compiler does several at a time.

float Mayor(const float* fila, int desde, int hasta)
{
    std::int32_t mayor = 0;
    for (int p = desde; p <= hasta; ++p)
        mayor = std::max(mayor, std::bit_cast<std::int32_t>(fila[p]));
    return std::bit_cast<float>(mayor);
}

namespace {

constexpr std::uint32_t SinSigno = 0x7FFFFFFF;

/// Has its highest bit set where |x| isn't below `limite`, a number above 0; a NaN isn't.
std::uint32_t Llega(float x, float limite)
{
    return (std::bit_cast<std::uint32_t>(x) & SinSigno) +
           (SinSigno + 1 - std::bit_cast<std::uint32_t>(limite));
}

}  // namespace

bool VolumenSeguro(const float* fila, int pasos, std::int16_t PasoQ)
{
    constexpr float Tope = 1e36F;
    const float limite = Tope / (static_cast<float>(pasos + 1) * static_cast<float>(PasoQ) * 60);
    std::uint32_t llega = 0;
    for (int p = 0; p <= pasos; ++p)
        llega |= Llega(fila[p], limite);
    return llega <= SinSigno;
}

void SumaVolumenes(std::span<const float* const> filas, Tramo tramo, std::int16_t PasoQ,
                   std::span<float> volumenes)
{
    constexpr std::size_t Juntas = 8;
    for (std::size_t primera = 0; primera < filas.size(); primera += Juntas) {
        const std::size_t cuantas = std::min(Juntas, filas.size() - primera);
        std::array<const float*, Juntas> q{};
        for (std::size_t i = 0; i < Juntas; ++i)
            q[i] = filas[primera + std::min(i, cuantas - 1)];
        std::array<float, Juntas> v{};
        for (int p = tramo.desde; p <= tramo.hasta; ++p)
            for (std::size_t i = 0; i < Juntas; ++i)
                v[i] = static_cast<float>(SumaVolumen(v[i], q[i][p], PasoQ));
        std::copy_n(v.begin(), cuantas, volumenes.begin() + static_cast<std::ptrdiff_t>(primera));
    }
}

bool SumaFila(float* destino, const float* sumando, int pasos)
{
    constexpr float Moderado = 1e36F;  // a few hundred such flows still add up to a 32-bit float
    std::uint32_t llega = 0;
    for (int p = 1; p <= pasos; ++p)
        llega |= Llega(destino[p], Moderado) | Llega(sumando[p], Moderado);
    if (llega > SinSigno) return false;
    float* __restrict d = destino;
    const float* __restrict q = sumando;
    for (int p = 1; p <= pasos; ++p)
        d[p] += q[p];
    return true;
}

}  // namespace engine
