// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Totales.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace engine {

float Mayor(const float* fila, int desde, int hasta)
{
    float mayor = 0;
    for (int p = desde; p <= hasta; ++p)
        mayor = fila[p] > mayor ? fila[p] : mayor;
    return mayor;
}

float MayorAbsoluto(const float* fila, int desde, int hasta)
{
    float mayor = 0;
    for (int p = desde; p <= hasta; ++p) {
        const float x = std::fabs(fila[p]);
        mayor = x > mayor ? x : mayor;
    }
    return mayor;
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

void SumaFila(float* destino, const float* sumando, Tramo tramo)
{
    float* __restrict d = destino;
    const float* __restrict q = sumando;
    for (int p = tramo.desde; p <= tramo.hasta; ++p)
        d[p] += q[p];
}

}  // namespace engine
