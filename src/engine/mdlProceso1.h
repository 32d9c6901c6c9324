// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Siro.h"

namespace engine {

/// Runs the storm in hand through the network in memory: rain to runoff on the UEHs, then the reaches, Lagos
/// and Represas in the order of computation. Fills the result arrays and TextoPizarra; with GuardaTexto the
/// text also goes to SalePizarra1_tem.txt. A check that fails shows its message and ends the run; a fault is
/// reported and the run goes on at the next statement. Returns false where a check ended the run.
bool ProcesoPrincipal(model::Siro& s, bool GuardaTexto);

}  // namespace engine
