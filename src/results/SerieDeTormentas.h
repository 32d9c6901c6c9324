// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "model/Siro.h"

// What the windows of a series' results share.
namespace results {

/// Takes storm IndSerie of the series as the storm in hand and tells whether the windows leave it out: a
/// duration below PasoPp, or a duration or recurrence whose box in the configuration isn't ticked. A value
/// without a box passes. Excluida keeps its value for a storm of depth or duration 0. Throws Falla 9 for a
/// storm outside the series.
///
/// The boxes as they stand decide here, the flags in a run: the two may differ for R 500 and R 5000.
void FiltroTormenta(model::Siro& s, bool& Excluida);

/// The storm in hand has no depth or no duration.
bool TormentaNula(const model::Siro& s);

/// Path of the project's configuration file.
std::string ArchivoDeProyecto(const model::Siro& s);

/// An element of a result array; nothing where the run left none, since another table or project may have
/// been read after it.
template <typename T>
std::optional<T> Resultado(const model::Matriz<T>& matriz, int fila, int tormenta)
{
    if (fila < matriz.PrimeraFila() || fila > matriz.UltimaFila()) return {};
    if (tormenta < 0 || tormenta > matriz.TopeColumna()) return {};
    return matriz(fila, tormenta);
}

template <typename T>
std::optional<T> Resultado(const model::Arreglo<T>& arreglo, int tormenta)
{
    if (tormenta < 0 || tormenta > arreglo.Tope()) return {};
    return arreglo(tormenta);
}

}  // namespace results
