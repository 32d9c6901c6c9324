// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"
#include "engine/Totales.h"
#include "model/Siro.h"

namespace engine {

/// Adds the summary of the component at row `fila`: its volumes as VolEntra and VolSale hold them, and its
/// peak. Throws Falla 9 where the peak isn't there. The empty line behind it is the caller's.
void EscribeResumen(Corrida& c, int fila);

/// The outflow at step k becomes the component's peak in the storm in hand, if it is above the one so far.
/// Throws Falla 9.
inline void SubePico(model::Siro& s, int fila, int k)
{
    const float q = s.Resultados.QSale(fila, k);
    float& pico = s.Resultados.QMax(fila, s.Serie.IndSerie);
    if (q > pico) pico = q;
}

/// Peak of the component over `tramo` into QMax, unchecked. Requires that the results reach.
void SubePico(model::Siro& s, int fila, Tramo tramo);

/// The same and, where they are wanted, its volumes into VolEntra and VolSale. Returns false, and does
/// nothing, where a statement that sums it up step by step could be at fault.
bool Resume(Corrida& c, int fila, Tramo tramo);

}  // namespace engine
