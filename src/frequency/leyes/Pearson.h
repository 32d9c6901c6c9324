// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "frequency/Ley.h"

// Pearson's law of type III by mean, deviation and skew, for itself and over logarithms.
namespace frequency::pearson {

inline constexpr double LimiteG = 1.95;  ///< of the skew in a search: beyond 2 the likelihood has no maximum

double Cuantil(const Parametros& p, double F);
double Probabilidad(const Parametros& p, double x);
double LogVerosimilitud(const Parametros& p, std::span<const double> x);
Estimado PorMomentos(const Momentos& m);
Estimado PorMomentosL(const MomentosL& l);

}  // namespace frequency::pearson
