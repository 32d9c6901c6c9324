// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "study/Ajuste.h"

// How much a number depends on each of the parameters that it is made of. A method says which points it wants
// and what it makes of the numbers found there; whoever asks runs the points, in any order.
namespace calibration {

/// Where a parameter moves.
struct Rango {
    double minimo = 0, maximo = 1;  ///< minimo < maximo, both above 0 where it is logarithmic
    bool logaritmica = false;       ///< equal parts of the range are equal ratios
    double actual = 0.5;            ///< what it is while others move; may lie outside
};

/// The value at a part of the range, 0 its minimum, 1 its maximum, both exactly.
double EnRango(const Rango& rango, double parte);

/// The points that a method wants, each a value per parameter. Point k depends on k alone.
struct Plan {
    std::size_t cuantos = 0;
    std::function<std::vector<double>(std::size_t k)> punto{};
};

/// A column of a method's table, a number for each parameter.
struct Indice {
    std::string_view clave;   ///< "mu_estrella"
    std::string_view nombre;  ///< of the table's column
    std::string_view dice;    ///< what it means, a sentence
    char unidad;              ///< 'm': the measure's; '-': none
};

/// A method by its key. Rows of indices are by parameter, columns by `indices`; one that isn't defined is
/// NaN.
struct MetodoDeSensibilidad {
    std::string_view clave;  ///< tornado, morris, sobol
    std::string_view nombre;
    std::string_view dice;     ///< what it does and when to take it, a line
    std::string_view formula;  ///< a line
    std::string_view fuente;
    std::span<const Indice> indices;
    std::size_t importancia;  ///< the column that parameters are ranked by
    /// Why it can't be done so, a sentence; empty: it can.
    std::string (*reparo)(const study::Sensibilidad& s);
    Plan (*plan)(const std::vector<Rango>& rangos, const study::Sensibilidad& s);
    /// `valores`: those of the plan's points, NaN where there is none; what needs one that isn't there is
    /// left out.
    std::vector<std::vector<double>> (*calcula)(std::size_t parametros, const study::Sensibilidad& s,
                                                std::span<const double> valores);
};

/// One at a time, Morris, Sobol.
std::span<const MetodoDeSensibilidad> MetodosDeSensibilidad();
/// Null where there is none of that key.
const MetodoDeSensibilidad* MetodoDeSensibilidadDe(std::string_view clave);

/// The parameters by what they matter, those first whose index is largest.
std::vector<std::size_t> PorImportancia(const MetodoDeSensibilidad& metodo,
                                        std::span<const std::vector<double>> filas);

/// Those without effect: their index is 0 or less than a hundredth, of the largest one where it has a unit.
std::vector<std::size_t> SinEfecto(const MetodoDeSensibilidad& metodo,
                                   std::span<const std::vector<double>> filas);

}  // namespace calibration
