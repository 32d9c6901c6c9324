// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <limits>
#include <numbers>

#include "frequency/Especiales.h"
#include "frequency/Ley.h"
#include "frequency/Verosimilitud.h"

// The shape is Hosking's k; the xi of other books, Coles 2001 among them, is -k.
namespace frequency {
namespace {

constexpr double KNulo = 1e-9;   // nearer to 0 the law is Gumbel's to the last digit
constexpr double LimiteK = 0.5;  // of the search for the greatest likelihood
constexpr double KMayor = 40;    // at which L-skew is nearly -1
constexpr double KMenor = -0.999999;

double Cuantil(const Parametros& p, double F)
{
    const double y = std::log(-std::log(F));
    return std::abs(p[2]) < KNulo ? p[0] - p[1] * y : p[0] - p[1] * std::expm1(p[2] * y) / p[2];
}

/// Gumbel's variate of x; infinite outside the law.
double Reducida(const Parametros& p, double x)
{
    const double y = (x - p[0]) / p[1];
    if (std::abs(p[2]) < KNulo) return y;
    const double resto = -p[2] * y;
    if (resto <= -1)
        return p[2] > 0 ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
    return -std::log1p(resto) / p[2];
}

double Probabilidad(const Parametros& p, double x)
{
    return std::exp(-std::exp(-Reducida(p, x)));
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    double suma = 0;
    for (const double xi : x) {
        const double w = Reducida(p, xi);
        if (std::isinf(w)) return -std::numeric_limits<double>::infinity();
        suma -= (1 - p[2]) * w + std::exp(-w);
    }
    return suma - static_cast<double>(x.size()) * std::log(p[1]);
}

/// L-skew of a shape.
double AsimetriaL(double k)
{
    const double ln3 = std::log(3.0);
    if (std::abs(k) < KNulo) return 2 * ln3 / std::numbers::ln2 - 3;
    return 2 * std::expm1(-k * ln3) / std::expm1(-k * std::numbers::ln2) - 3;
}

/// ln G(1 + r k) - r ln G(1 + k)
long double Exceso(int r, double k)
{
    const long double a = k;
    return LnGammaLarga(1 + r * a) - r * LnGammaLarga(1 + a);
}

/// Skew of a shape above -1/3. Three gamma functions that nearly cancel near 0, where a chord is exact to
/// 1e-10.
double Asimetria(double k)
{
    constexpr double Cerca = 1e-5;
    if (std::abs(k) < Cerca) {
        const double izquierda = Asimetria(-Cerca), derecha = Asimetria(Cerca);
        return izquierda + (derecha - izquierda) * (k + Cerca) / (2 * Cerca);
    }
    const long double d2 = std::expm1(Exceso(2, k)), d3 = std::expm1(Exceso(3, k));
    const auto g = static_cast<double>((d3 - 3 * d2) / std::pow(d2, 1.5L));
    return k > 0 ? -g : g;
}

std::string NotaDeForma(double k)
{
    if (std::abs(k) <= LimiteK) return {};
    return "k fuera de -0.5 a 0.5: no es de una serie de lluvias; revise los datos";
}

Estimado ConForma(double k, double media, double l2oDesvio, bool porL)
{
    double a = 0, corrimiento = 0;
    if (std::abs(k) < KNulo) {
        a = porL ? l2oDesvio / std::numbers::ln2 : std::sqrt(6.0) * l2oDesvio / std::numbers::pi;
        corrimiento = std::numbers::egamma;
    } else {
        const double lnG = LnGamma(1 + k);
        const double unidad =
            porL ? -std::expm1(-k * std::numbers::ln2) * std::exp(lnG) / k
                 : std::exp(lnG) * std::sqrt(static_cast<double>(std::expm1(Exceso(2, k)))) / std::abs(k);
        a = l2oDesvio / unidad;
        corrimiento = -std::expm1(lnG) / k;
    }
    return {Parametros{media - a * corrimiento, a, k}, NotaDeForma(k)};
}

Estimado PorMomentos(const Muestra& m)
{
    constexpr double KMenorMomentos = -0.3333, KMayorMomentos = 20;
    const double g = m.directos.m.asimetria;
    if (g >= Asimetria(KMenorMomentos) || g <= Asimetria(KMayorMomentos))
        return {{}, "La asimetría de la muestra no es de ninguna GEV con tercer momento"};
    const double k = Raiz([&](double q) { return Asimetria(q) - g; }, KMenorMomentos, KMayorMomentos);
    return ConForma(k, m.directos.m.media, m.directos.m.desvio, false);
}

Estimado PorMomentosL(const Muestra& m)
{
    const MomentosL& l = m.directos.l;
    if (l.t3 >= AsimetriaL(KMenor) || l.t3 <= AsimetriaL(KMayor))
        return {{}, "La asimetría L de la muestra no es de ninguna GEV"};
    const double k = Raiz([&](double q) { return AsimetriaL(q) - l.t3; }, KMenor, KMayor);
    return ConForma(k, l.l1, l.l2, true);
}

}  // namespace

const Ley Gev{
    "gev",
    "GEV",
    {{{"xi", "posición [mm]", Papel::Lugar},
      {"alfa", "escala [mm]", Papel::Escala},
      {"k", "forma de Hosking; la de Coles es -k", Papel::Forma, -LimiteK, LimiteK}}},
    3,
    Cuantil,
    Probabilidad,
    LogVerosimilitud,
    PorMomentos,
    PorMomentosL,
    MaximaVerosimilitud,
    "x = xi + alfa (1 - (-ln F)^k) / k",
    "Jenkinson 1955, Q. J. R. Meteorol. Soc. 81, 158-171; momentos L: Hosking, Wallis y Wood 1985, "
    "Technometrics 27, 251-261; Coles 2001, capítulo 3",
    "Con k > 0 tiene un tope; con k < -0.33 no tiene asimetría. Con menos de 30 años k es poco seguro",
};

}  // namespace frequency
