// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Corrida.h"

// The sheet of the UEHs: base recession, table, volumes and coefficients.
namespace engine {

/// Adds the base recession Q0·2.7183^(-t/K) to the hydrographs of the UEHs and sums their base volumes.
void SumaRecesion(Corrida& c);

/// Hydrographs at the foot of the UEHs: the table of the Slate's text, VolUEH and QMax.
void HidrogramasDeUEHs(Corrida& c);

/// Volumes and runoff coefficients of each UEH and of the basin, with their lines.
void VolumenesDeUEHs(Corrida& c);

}  // namespace engine
