// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "batch/Opciones.h"
#include "checks/AvisosDeSerie.h"
#include "model/SiroDeclarado.h"
#include "model/Tormenta.h"

namespace batch {

/// What `--avisos` writes about a run that is over: the findings, a line each, and how many of each severity;
/// of one storm the water balance of each component and of the basin, a line each; the run's hash as the last
/// line. With
/// `--json` one object: "avisos", an array of findings; "balance", an array, of one storm alone; "huella".
/// `entrada`: the storm in hand ahead of the run. `completa`: it went to its end. `vigia` has looked at a
/// series. UTF-8, LF.
std::string InformeDeAvisos(const model::Siro& s, const model::Tormenta& entrada, bool completa,
                            const Opciones& o, checks::VigiaDeSerie& vigia);

}  // namespace batch
