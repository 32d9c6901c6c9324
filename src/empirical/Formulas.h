// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

// Empirical formulas of peak discharge and of time of concentration, a row each.
//
// `expresion` is what is computed, written to be drawn: ^{} holds an exponent. `ayuda` is the help that the
// user reads; it differs from what is computed here and there, and stays as it stands.
namespace empirical {

inline constexpr std::size_t NroFormulasQp = 18;
inline constexpr std::size_t NroFormulasTc = 3;

/// A peak discharge from the area of the basin.
struct FormulaQp {
    std::string_view control;      ///< box of the result
    std::string_view leyenda;      ///< its caption
    double (*caudal)(double S);    ///< S [km2], above 0; [m3/s]. Throws Falla 5, 6
    std::string_view expresion;    ///< the formula computed
    std::string_view ayuda;        ///< tooltip of the box
    std::string_view ayudaRotulo;  ///< tooltip of its label
    double minimoS = 0;            ///< smallest and largest S for which it holds [km2], both included
    double maximoS = std::numeric_limits<double>::infinity();

    [[nodiscard]] bool Vale(double S) const { return S >= minimoS && S <= maximoS; }
};

/// The eighteen, in the order of computation.
std::span<const FormulaQp, NroFormulasQp> FormulasQp();

/// What a time of concentration is worked out from.
struct DatosTc {
    double S = 0;  ///< area of the basin [km2]
    double L = 0;  ///< length of the main channel [km]
    double H = 0;  ///< greatest fall in the basin [m]
    double i = 0;  ///< mean slope of the longest channel [%]
};

/// A time of concentration.
struct FormulaTc {
    std::string_view control;
    std::string_view leyenda;
    double (*tiempo)(const DatosTc& datos);  ///< [min]. Throws Falla 5, 6, 11
    std::string_view expresion;
    std::string_view ayuda;      ///< tooltip of the result
    bool pidePendiente = false;  ///< works for i above 0 only
};

/// The three, in the order of computation.
std::span<const FormulaTc, NroFormulasTc> FormulasTc();

}  // namespace empirical
