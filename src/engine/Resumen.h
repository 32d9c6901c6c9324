// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"
#include "engine/Totales.h"

namespace engine {

/// Adds the summary of the component at row `fila`: its volumes as VolEntra and VolSale hold them, and its
/// peak. Throws Falla 9 where the peak isn't there. The empty line behind it is the caller's.
void EscribeResumen(Corrida& c, int fila);

/// No statement that sums up the component at row `fila` over the steps up to NroPasosQ can be at fault.
bool ResumenSeguro(const Corrida& c, int fila);

/// Peak of the component over `tramo` into QMax and, where they are wanted, its volumes into VolEntra and
/// VolSale, unchecked. Requires ResumenSeguro.
void Resume(Corrida& c, int fila, Tramo tramo);

}  // namespace engine
