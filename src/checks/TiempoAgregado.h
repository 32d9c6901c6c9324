// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "checks/Corrido.h"

namespace checks {

/// Whether the outflow at a row of QSale reaches its greatest value at the last step and not before, or what
/// is on its way through a Direct reach will be greater still.
bool PicoAlFinal(const model::Resultados& r, int fila);

/// Whether that is so of any component.
bool HayPicoAlFinal(const model::Resultados& r);

/// A time added to a storm with which no component has its peak at the last step any more.
struct TiempoAgregado {
    bool alcanza = false;        ///< false: none up to the longest one does
    float minutos = 0;           ///< the time, a multiple of 10 [min]; else the longest one that was tried
    std::vector<float> picos{};  ///< peak outflow with it by row of Secuencia [m3/s]
};

/// Looks for such a time for a storm by running it with longer ones, each twice as long, up to what the
/// configuration lets through (30000 min) and 16-bit minutes hold; then cuts it down to one step behind the
/// last of the peaks, and proves that by a run. Runs on `pasos.N0Dur` where nothing is wrong with that.
/// Deterministic; some ten runs at most, the longest of them 16-bit minutes long.
TiempoAgregado TiempoQueAlcanza(const model::Red& red, const model::Tormenta& tormenta, model::Pasos pasos,
                                const model::TablasDeLluvia& tablas, engine::Memoria& memoria);

}  // namespace checks
