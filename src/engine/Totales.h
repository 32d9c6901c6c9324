// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

#include "model/Arreglo.h"

namespace engine {

/// Output steps, both ends included.
struct Tramo {
    int desde = 0;
    int hasta = 0;
};

/// The greatest of row[desde..hasta]; 0 where none is above 0.
float Mayor(const float* fila, int desde, int hasta);

/// The greatest absolute value of row[desde..hasta].
float MayorAbsoluto(const float* fila, int desde, int hasta);

/// Whether the volume of a hydrograph of `pasos` steps stays far below the largest 32-bit float.
bool VolumenSeguro(const float* fila, int pasos, std::int16_t PasoQ);

/// Volumes [m3] of several hydrographs [m3/s], each a 32-bit sum of PasoQ·Q·60 in the order of the steps.
/// The sum is a chain of roundings: eight hydrographs at a time hide its latency.
void SumaVolumenes(std::span<const float* const> filas, Tramo tramo, std::int16_t PasoQ,
                   std::span<float> volumenes);

/// The volume [m3] of one hydrograph, worked out the same way.
float Volumen(const float* fila, Tramo tramo, std::int16_t PasoQ);

/// Whether both rows hold the steps 1..pasos and no sum of two of their flows can leave the type.
bool SumaSegura(const model::Matriz<float>& destino, int filaDestino, const model::Matriz<float>& origen,
                int filaOrigen, int pasos);

/// destino[p] += sumando[p], each sum rounded to 32 bits. The rows are different ones.
void SumaFila(float* destino, const float* sumando, Tramo tramo);

}  // namespace engine
