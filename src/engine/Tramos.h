// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"

namespace engine {

/// Routes the reach at row `fila` of Secuencia: gathers what drains into it and passes it on, Direct (a shift
/// in time) or by Muskingum's method (McCarthy 1938). Returns false where a bad parameter ends the run.
bool ProcesoEnCauce(Corrida& c, int fila);

}  // namespace engine
