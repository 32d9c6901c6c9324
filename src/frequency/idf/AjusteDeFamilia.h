// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <vector>

#include "frequency/idf/Familias.h"

// A family's coefficients from intensities, by least squares.
namespace frequency::idf {

/// An intensity that curves are fitted to.
struct Punto {
    double duracion = 0;     ///< [min]
    double recurrencia = 0;  ///< [years]
    double intensidad = 0;   ///< [mm/h], above 0
};

/// Coefficients of one recurrence [years]; of all of them where it is 0.
struct CoeficientesDeT {
    double recurrencia = 0;
    Coeficientes c{};
};

/// How far curves lie from the points.
struct Calidad {
    double r2 = 0;           ///< 1 - sum of squares left / around the mean, of the intensities
    double errorMedio = 0;   ///< root of the mean square of i fitted / i - 1
    double errorMaximo = 0;  ///< the farthest i fitted / i - 1, with its sign
    std::size_t donde = 0;   ///< the point where it is
};

struct AjusteDeFamilia {
    const Familia* familia = nullptr;
    std::vector<CoeficientesDeT> coeficientes{};  ///< by recurrence; none: no fit
    std::vector<double> ajustadas{};              ///< intensity at each point [mm/h]
    Calidad calidad{};
    std::string nota{};  ///< why there is none, or what is to be known of it: a sentence; empty: nothing
};

/// What a fit makes small: the sum of squares of ln(i fitted / i), or of i fitted / i - 1.
enum class Criterio { Logaritmos, Relativo };

/// By Levenberg's and Marquardt's method (Marquardt 1963) from several starts, within the coefficients'
/// bounds.
AjusteDeFamilia Ajusta(const Familia& familia, std::span<const Punto> puntos, Criterio criterio);

/// Intensity [mm/h] of a curve. Between the recurrences of a family that has its own coefficients for each,
/// its logarithm is a line over that of T; not a number beyond them.
double IntensidadDe(const Familia& familia, std::span<const CoeficientesDeT> coeficientes, double duracion,
                    double recurrencia);

}  // namespace frequency::idf
