// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "calibration/Incertidumbre.h"
#include "forms/Grafico.h"
#include "runs/Cuantiles.h"
#include "study/Ajuste.h"

namespace calibration {

/// The hydrograph's median and its band from P5 to P95, step by step, with what was observed.
forms::Grafico GraficoDeBanda(const Conjunto& c, const std::vector<study::Punto>& observados);

/// How a measure is spread over the members: the share of them in equal parts of what there is between its
/// extremes. `base` is added to its numbers.
forms::Grafico GraficoDeMedida(const runs::Cuantiles& d, double base, const std::string& nombre);

}  // namespace calibration
