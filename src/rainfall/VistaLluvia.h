// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "forms/Grafico.h"
#include "forms/Grilla.h"

// The chart beside a table of rain.
namespace rainfall {

/// Columns and axes of the chart that stands beside a table of rain.
struct VistaDeTabla {
    int columnaX = 0;  ///< its texts are the categories
    int columnaY = 0;
    std::string_view ejeX{}, ejeY{};  ///< with units
};

/// The hyetograph of a table's cells as they stand, the one that is being typed included. What is no number
/// yet leaves a gap.
forms::Grafico GraficoDeTabla(const forms::Grilla& tabla, const VistaDeTabla& vista);

}  // namespace rainfall
