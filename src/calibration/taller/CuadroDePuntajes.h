// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calibration/Puntajes.h"
#include "forms/Cuadro.h"

// All scores of a simulated hydrograph against an observed one, as pages show them beside its chart.
namespace calibration {

struct CuadroDePuntajes {
    forms::Cuadro tblPuntajes{};
    std::string lblPuntajes{};  ///< in words, and how many pairs: "Sobrestima el volumen 6 %. 48 pares."
};

/// `tema`: what is compared, a title of the table. Formulas and sources go along in what is copied.
void Pon(CuadroDePuntajes& c, const Emparejados& emparejados, const std::string& tema);
/// Nothing to compare; `motivo`: why, a sentence.
void Vacia(CuadroDePuntajes& c, const std::string& motivo);

/// Columns on show: score, value, unit, best value.
inline constexpr int ColumnasDePuntajes = 4;

}  // namespace calibration
