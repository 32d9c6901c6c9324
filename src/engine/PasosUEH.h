// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"

namespace engine {

/// Model steps of all UEHs: rain, retention, infiltration, excess, and its translation to the foot of the
/// UEH; fills PpUEHPaso, PpUEH, SumaPp and rows 1..NroUEHs of QSale, and may lengthen the run.
///
/// Infiltration after Kostiakov (1932), F = a·t^b; translation as a trapezoid over the slope's travel time.
void PasosDeLasUEHs(Corrida& c);

}  // namespace engine
