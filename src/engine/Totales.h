// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

// Sums and greatest values over the steps of hydrographs.
namespace engine {

/// Output steps, both ends included.
struct Tramo {
    int desde = 0;
    int hasta = 0;
};

/// The greatest of row[desde..hasta]; 0 where none is above 0.
float Mayor(const float* fila, int desde, int hasta);

/// A volume [m3] and that of one more step of the flow Q [m3/s], 64 bits.
inline double SumaVolumen(float volumen, float Q, std::int16_t PasoQ)
{
    return double{1} * PasoQ * Q * 60 + volumen;
}

/// Volumes [m3] of several hydrographs [m3/s], each a 32-bit sum in the order of the steps, unchecked: one
/// that leaves the type isn't finite. The sum is a chain of roundings: eight hydrographs at a time hide its
/// latency.
void SumaVolumenes(std::span<const float* const> filas, Tramo tramo, std::int16_t PasoQ,
                   std::span<float> volumenes);

/// Whether the volume of a hydrograph of `pasos` steps stays far below the largest 32-bit float.
bool VolumenSeguro(const float* fila, int pasos, std::int16_t PasoQ);

/// destino[p] += sumando[p] for p = 1..pasos, each sum rounded to 32 bits. Returns false, and does nothing,
/// where a sum could leave the type. The rows are different ones.
bool SumaFila(float* destino, const float* sumando, int pasos);

}  // namespace engine
