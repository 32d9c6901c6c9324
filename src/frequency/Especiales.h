// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

// The special functions that the laws stand on, from Boost.Math. Each throws std::exception outside its
// domain.
namespace frequency {

double NormalProbabilidad(double u);
double NormalCuantil(double F);     ///< 0 < F < 1
double ErrorInverso(double y);      ///< of the error function, -1 < y < 1
double GammaP(double a, double x);  ///< regularised lower incomplete gamma
double GammaQ(double a, double x);  ///< its complement
double GammaPInversa(double a, double p);
double GammaQInversa(double a, double q);
double LnGamma(double a);
long double LnGammaLarga(long double a);
double CocienteGamma(double a, double d);     ///< G(a) / G(a + d)
double BetaI(double a, double b, double x);   ///< regularised incomplete beta
double LambertMenos1(double z);               ///< the lower branch, -1/e <= z < 0
double StudentCola(double t, double grados);  ///< P(T > t)
/// The same of the non-central law.
double StudentColaNoCentral(double t, double grados, double noCentral);

/// Integral over [desde, hasta] by Gauss-Legendre's rule of 30 points on each of `tramos` equal pieces.
double Integra(const std::function<double(double)>& f, double desde, double hasta, int tramos);

/// The root between two points where f has different signs, to the last bits. Throws std::domain_error where
/// it hasn't.
double Raiz(const std::function<double(double)>& f, double desde, double hasta);

}  // namespace frequency
