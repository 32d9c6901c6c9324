// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

#include "frequency/Ley.h"

// Log-Pearson III as the United States take it: Interagency Advisory Committee on Water Data, "Guidelines for
// determining flood flow frequency", Bulletin 17B, 1982; England and others, "Guidelines for determining
// flood flow frequency, Bulletin 17C", U.S. Geological Survey Techniques and Methods 4-B5, 2019.
namespace frequency::boletin17 {

/// Mean square error of the skew of n years: Bulletin 17B, equation 6.
double EcmDeAsimetria(std::size_t n, double g);

/// Skew of a station and of its region, each by the other's error: Bulletin 17B, equation 5.
double AsimetriaPonderada(double g, std::size_t n, const AsimetriaRegional& regional);

/// Probability that value k of n normal ones in rising order, k from 1, lies more than -eta deviations of
/// those above it below their mean: Cohn and others, Water Resources Research 49, 2013. Mean and deviation of
/// those above are taken for a normal and a chi variate of their first moments.
double ValorP(std::size_t n, std::size_t k, double eta);

/// How many of the years are low by the multiple test of Bulletin 17C, appendix 6: outwards from the median
/// at 0.5 %, inwards from the least at 10 %, and the years without rain. Where one is, the least don't stand
/// out from each other and there is no way inwards.
std::size_t BajosDe17C(std::span<const double> x, std::size_t secos);

/// By the moments of the logarithms, low values as `tratamiento` tells, the skew weighted where a region's is
/// given. Bulletin 17B: conditional probability adjustment of appendix 5; Bulletin 17C: expected moments
/// (Cohn, Lane and Baier, Water Resources Research 33, 1997), without historical floods.
Estimado PorMomentos(const Muestra& m);

}  // namespace frequency::boletin17
