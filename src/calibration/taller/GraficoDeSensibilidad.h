// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/AnalisisDeSensibilidad.h"
#include "forms/Grafico.h"

namespace calibration {

/// The bars of a tornado, the points of Morris, the bars of Sobol with their intervals; parameters bear the
/// numbers of the table, the first one that which matters most. Without a title.
forms::Grafico GraficoDe(const AnalisisDeSensibilidad& a);

}  // namespace calibration
