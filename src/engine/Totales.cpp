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

float MayorAbsoluto(const float* fila, int desde, int hasta)
{
    constexpr std::int32_t SinSigno = 0x7FFFFFFF;
    std::int32_t mayor = 0;
    for (int p = desde; p <= hasta; ++p)
        mayor = std::max(mayor, std::bit_cast<std::int32_t>(fila[p]) & SinSigno);
    return std::bit_cast<float>(mayor);
}

bool VolumenSeguro(const float* fila, int pasos, std::int16_t PasoQ)
{
    constexpr double Tope = 1e37;
    return (pasos + 1.0) * PasoQ * 60 * MayorAbsoluto(fila, 0, pasos) < Tope;
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
    if (!(MayorAbsoluto(destino, 1, pasos) < Moderado && MayorAbsoluto(sumando, 1, pasos) < Moderado))
        return false;
    float* __restrict d = destino;
    const float* __restrict q = sumando;
    for (int p = 1; p <= pasos; ++p)
        d[p] += q[p];
    return true;
}

}  // namespace engine
