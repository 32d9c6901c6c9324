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
    const double paso = PasoQ;
    for (std::size_t primera = 0; primera < filas.size(); primera += Juntas) {
        const std::size_t cuantas = std::min(Juntas, filas.size() - primera);
        std::array<const float*, Juntas> q{};
        for (std::size_t i = 0; i < Juntas; ++i)
            q[i] = filas[primera + std::min(i, cuantas - 1)];
        std::array<float, Juntas> v{};
        for (int p = tramo.desde; p <= tramo.hasta; ++p)
            for (std::size_t i = 0; i < Juntas; ++i)
                v[i] = static_cast<float>(paso * q[i][p] * 60 + v[i]);
        std::copy_n(v.begin(), cuantas, volumenes.begin() + static_cast<std::ptrdiff_t>(primera));
    }
}

float Volumen(const float* fila, Tramo tramo, std::int16_t PasoQ)
{
    float v = 0;
    for (int p = tramo.desde; p <= tramo.hasta; ++p)
        v = static_cast<float>(double{1} * PasoQ * fila[p] * 60 + v);
    return v;
}

bool SumaSegura(const model::Matriz<float>& destino, int filaDestino, const model::Matriz<float>& origen,
                int filaOrigen, int pasos)
{
    constexpr float Moderado = 1e36F;  // a few hundred such flows still add up to a 32-bit float
    if (filaDestino < destino.PrimeraFila() || filaDestino > destino.UltimaFila()) return false;
    if (filaOrigen < origen.PrimeraFila() || filaOrigen > origen.UltimaFila()) return false;
    if (pasos < 1 || destino.TopeColumna() < pasos || origen.TopeColumna() < pasos) return false;
    return MayorAbsoluto(destino.Fila(filaDestino), 1, pasos) < Moderado &&
           MayorAbsoluto(origen.Fila(filaOrigen), 1, pasos) < Moderado;
}

void SumaFila(float* destino, const float* sumando, Tramo tramo)
{
    float* __restrict d = destino;
    const float* __restrict q = sumando;
    for (int p = tramo.desde; p <= tramo.hasta; ++p)
        d[p] += q[p];
}

}  // namespace engine
