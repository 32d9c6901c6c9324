// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/leyes/Pearson.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "frequency/Especiales.h"
#include "frequency/Verosimilitud.h"

namespace frequency {
namespace pearson {
namespace {

constexpr double AGrande = 200;  // of a shape from which on two terms of Stirling's series are exact
constexpr double GNulo = 1e-6;   // nearer to 0 the normal law with one term of skew is exact to 12 digits

/// L-skew of a shape A = 4/g2.
double AsimetriaL(double A)
{
    return 6 * BetaI(A, 2 * A, 1.0 / 3) - 3;
}

}  // namespace

double Cuantil(const Parametros& p, double F)
{
    const double g = p[2];
    if (std::abs(g) < GNulo) {
        const double u = NormalCuantil(F);
        return p[0] + p[1] * (u + (u * u - 1) * g / 6);
    }
    const double A = 4 / (g * g);
    const double x = g > 0 ? GammaPInversa(A, F) : GammaQInversa(A, F);
    return p[0] + p[1] * (x - A) * g / 2;
}

double Probabilidad(const Parametros& p, double x)
{
    const double g = p[2], K = (x - p[0]) / p[1];
    if (std::abs(g) < GNulo) return NormalProbabilidad(K - (K * K - 1) * g / 6);
    const double A = 4 / (g * g), t = A + 2 * K / g;
    if (t <= 0) return g > 0 ? 0 : 1;
    return g > 0 ? GammaP(A, t) : GammaQ(A, t);
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    const double g = p[2];
    const auto n = static_cast<double>(x.size());
    double suma = 0;
    if (std::abs(g) < GNulo) {
        for (const double xi : x)
            suma -= (xi - p[0]) * (xi - p[0]) / (2 * p[1] * p[1]);
        return suma - n * (std::log(p[1]) + std::log(2 * std::numbers::pi) / 2);
    }
    const double A = 4 / (g * g);
    if (A > AGrande) {  // Stirling's series, whose great terms cancel on paper
        const double resto = 1 / (12 * A) - 1 / (360 * A * A * A);
        for (const double xi : x) {
            const double z = g / 2 * (xi - p[0]) / p[1];
            if (z <= -1) return -std::numeric_limits<double>::infinity();
            suma += (A - 1) * std::log1p(z) - A * z;
        }
        return suma - n * (std::log(2 * std::numbers::pi) / 2 + resto + std::log(p[1]));
    }
    for (const double xi : x) {
        const double t = A + 2 * (xi - p[0]) / (p[1] * g);
        if (t <= 0) return -std::numeric_limits<double>::infinity();
        suma += (A - 1) * std::log(t) - t;
    }
    return suma - n * (LnGamma(A) + std::log(p[1] * std::abs(g) / 2));
}

Estimado PorMomentos(const Momentos& m)
{
    return {Parametros{m.media, m.desvio, m.asimetria}, {}};
}

Estimado PorMomentosL(const MomentosL& l)
{
    constexpr double AMenor = 1e-3, AMayor = 1e6;
    const double t3 = std::abs(l.t3);
    double A = 0;
    if (t3 <= AsimetriaL(AMayor))
        A = 1 / (3 * std::numbers::pi * std::fmax(t3 * t3, 1e-18));
    else if (t3 >= AsimetriaL(AMenor))
        return {{}, "La asimetría L de la muestra no es de ninguna Pearson III"};
    else
        A = std::exp(
            Raiz([&](double q) { return AsimetriaL(std::exp(q)) - t3; }, std::log(AMenor), std::log(AMayor)));
    const double desvio = l.l2 * std::sqrt(std::numbers::pi * A) * CocienteGamma(A, 0.5);
    return {Parametros{l.l1, desvio, std::copysign(2 / std::sqrt(A), l.t3)}, {}};
}

}  // namespace pearson

const Ley PearsonIII{
    "pearson3",
    "Pearson III",
    {{{"mu", "media [mm]", Papel::Lugar},
      {"sigma", "desvío [mm]", Papel::Escala},
      {"g", "asimetría", Papel::Forma, -pearson::LimiteG, pearson::LimiteG}}},
    3,
    pearson::Cuantil,
    pearson::Probabilidad,
    pearson::LogVerosimilitud,
    [](const Muestra& m) { return pearson::PorMomentos(m.directos.m); },
    [](const Muestra& m) { return pearson::PorMomentosL(m.directos.l); },
    MaximaVerosimilitud,
    "x = mu + sigma (P^-1(4/g2, F) - 4/g2) g/2",
    "Foster 1924, Trans. ASCE 87, 142-173; momentos L: Hosking y Wallis 1997, apéndice A.9",
    "Con asimetría negativa tiene un tope",
};

}  // namespace frequency
