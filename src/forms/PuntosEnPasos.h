// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

#include "forms/Grafico.h"

// Readings at any times on a chart whose rows are steps of a run.
namespace forms {

struct PuntoEnTiempo {
    double minuto = 0;  ///< since the storm's start
    double valor = 0;
    bool operator==(const PuntoEnTiempo&) const = default;
};

struct PuntosEnPasos {
    Serie serie{};          ///< dots
    std::size_t fuera = 0;  ///< readings that no row shows
};

/// Dots for rows at paso, 2 paso ... filas paso [min]: each reading stands in the row that is nearest to it,
/// of two in one row the nearer one.
PuntosEnPasos EnPasos(std::span<const PuntoEnTiempo> puntos, std::size_t filas, double paso);

}  // namespace forms
