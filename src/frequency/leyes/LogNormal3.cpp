// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <limits>
#include <numbers>

#include "frequency/Especiales.h"
#include "frequency/Ley.h"

namespace frequency {
namespace {

constexpr std::string_view SinAsimetria =
    "La asimetría de la muestra no es positiva: la log-normal de 3 parámetros no la tiene";

double Cuantil(const Parametros& p, double F)
{
    return p[0] + std::exp(p[1] + p[2] * NormalCuantil(F));
}

double Probabilidad(const Parametros& p, double x)
{
    return x <= p[0] ? 0 : NormalProbabilidad((std::log(x - p[0]) - p[1]) / p[2]);
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    double suma = 0;
    for (const double xi : x) {
        if (xi <= p[0]) return -std::numeric_limits<double>::infinity();
        const double y = std::log(xi - p[0]), u = (y - p[1]) / p[2];
        suma -= u * u / 2 + y;
    }
    return suma - static_cast<double>(x.size()) * (std::log(p[2]) + std::log(2 * std::numbers::pi) / 2);
}

/// Skew g = c3 + 3c, c the coefficient of variation above the bound.
Estimado PorMomentos(const Muestra& m)
{
    const Momentos& d = m.directos.m;
    if (d.asimetria <= 0) return {{}, std::string(SinAsimetria)};
    const double c = 2 * std::sinh(std::asinh(d.asimetria / 2) / 3);
    const double s2 = std::log1p(c * c), sobre = d.desvio / c;
    return {Parametros{d.media - sobre, std::log(sobre) - s2 / 2, std::sqrt(s2)}, {}};
}

/// L-skew of a deviation of the logarithms; Hosking 1990, table 1, as an integral.
double AsimetriaL(double s)
{
    const double raiz3 = std::numbers::sqrt3;
    const double area =
        Integra([&](double t) { return std::erf(t / raiz3) * std::exp(-t * t); }, 0, s / 2, 1);
    return 6 * std::numbers::inv_sqrtpi * area / std::erf(s / 2);
}

/// The deviation comes from L-skew alone, then the bound from l1 and l2.
Estimado PorMomentosL(const Muestra& m)
{
    constexpr double Menor = 1e-6, Mayor = 8;
    const MomentosL& l = m.directos.l;
    if (l.t3 <= AsimetriaL(Menor)) return {{}, std::string(SinAsimetria)};
    if (l.t3 >= AsimetriaL(Mayor))
        return {{}, "La asimetría L de la muestra es demasiada para la log-normal"};
    const double s = Raiz([&](double q) { return AsimetriaL(q) - l.t3; }, Menor, Mayor);
    const double sobre = l.l2 / std::erf(s / 2);
    return {Parametros{l.l1 - sobre, std::log(sobre) - s * s / 2, s}, {}};
}

/// With the bound given, mean and deviation (n) of the logarithms are the best.
Parametros ConCota(std::span<const double> x, double z)
{
    const auto n = static_cast<double>(x.size());
    double suma = 0, cuadrados = 0;
    for (const double xi : x)
        suma += std::log(xi - z);
    const double media = suma / n;
    for (const double xi : x) {
        const double d = std::log(xi - z) - media;
        cuadrados += d * d;
    }
    return {z, media, std::sqrt(cuadrados / n)};
}

/// How the profile of the likelihood falls with the bound: 0 at its maximum (Cohen 1951).
double Pendiente(std::span<const double> x, double z)
{
    const Parametros p = ConCota(x, z);
    double inversos = 0, productos = 0;
    for (const double xi : x) {
        inversos += 1 / (xi - z);
        productos += (std::log(xi - z) - p[1]) / (xi - z);
    }
    return inversos + productos / (p[2] * p[2]);
}

/// The likelihood grows without end as the bound nears the least value; the maximum that counts is the local
/// one, where its slope changes sign farther away. A sample may have none.
Estimado PorVerosimilitud(const Ley& /*ley*/, const Muestra& m)
{
    Estimado inicio = PorMomentosL(m);
    if (!inicio.p) return inicio;
    constexpr int Pasos = 120;
    constexpr double Cerca = 0.02, Lejos = 2000;  // deviations below the least value
    const double desvio = m.directos.m.desvio, menor = m.x.front();
    const auto cota = [&](double w) { return menor - desvio * std::exp(w); };
    double w = std::log(Lejos);
    const double paso = (std::log(Lejos) - std::log(Cerca)) / Pasos;
    double antes = Pendiente(m.x, cota(w));
    for (int i = 0; i < Pasos; ++i, w -= paso) {
        const double despues = Pendiente(m.x, cota(w - paso));
        if (antes > 0 && despues <= 0) {
            const double raiz = Raiz([&](double q) { return Pendiente(m.x, cota(q)); }, w - paso, w);
            return {ConCota(m.x, cota(raiz)), {}};
        }
        antes = despues;
    }
    inicio.nota = "La máxima verosimilitud no tiene un máximo; se da el ajuste por momentos L";
    return inicio;
}

}  // namespace

const Ley LogNormal3{
    "ln3",
    "Log-normal de 3 parámetros",
    {{{"zeta", "cota inferior [mm]", Papel::Lugar},
      {"mu", "media de ln(x - zeta)", Papel::Lugar},
      {"sigma", "desvío de ln(x - zeta)", Papel::Escala}}},
    3,
    Cuantil,
    Probabilidad,
    LogVerosimilitud,
    PorMomentos,
    PorMomentosL,
    PorVerosimilitud,
    "x = zeta + exp(mu + sigma u)",
    "Sangal y Biswas 1970, Water Resour. Res. 6, 505-515; momentos L: Hosking y Wallis 1997, apéndice A.8; "
    "verosimilitud: Cohen 1951, J. Am. Stat. Assoc. 46, 206-212",
    "Sólo con asimetría positiva",
};

}  // namespace frequency
