// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "frequency/Ley.h"

namespace frequency {

/// How far a sample lies from a law.
struct Bondad {
    double ks = 0;    ///< Kolmogorov-Smirnov's greatest distance
    double ad = 0;    ///< Anderson-Darling's A2 = -n - mean of (2i-1)(ln F_i + ln(1 - F_(n+1-i)))
    double chi2 = 0;  ///< over classes of equal probability
    double ppcc = 0;  ///< correlation of the values with the quantiles of Cunnane's positions (Filliben 1975)
};

/// `x` in rising order. A value outside the law counts as the least probability that a double tells from 0
/// or 1. `bajos`: the part of the law below all of x, which is taken out of it.
Bondad BondadDe(const Ley& ley, const Parametros& p, std::span<const double> x, double bajos = 0);

/// Classes of chi2: a fifth of the values, 5 to 20.
int ClasesDe(std::size_t n);

/// What a law costs for what it explains, at the parameters given: where they aren't those of the greatest
/// likelihood the three are somewhat too high. Infinite where a value lies outside the law.
struct Criterios {
    double logVerosimilitud = 0, aic = 0, aicc = 0, bic = 0;
};
Criterios CriteriosDe(const Ley& ley, const Parametros& p, std::span<const double> x);

}  // namespace frequency
