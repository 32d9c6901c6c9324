// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <limits>

#include "frequency/Ley.h"

namespace frequency {
namespace {

double Cuantil(const Parametros& p, double F)
{
    return p[0] - p[1] * std::log1p(-F);
}

double Probabilidad(const Parametros& p, double x)
{
    return x <= p[0] ? 0 : -std::expm1(-(x - p[0]) / p[1]);
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    double suma = 0;
    for (const double xi : x) {
        if (xi < p[0]) return -std::numeric_limits<double>::infinity();
        suma -= (xi - p[0]) / p[1];
    }
    return suma - static_cast<double>(x.size()) * std::log(p[1]);
}

Estimado PorMomentos(const Muestra& m)
{
    return {Parametros{m.directos.m.media - m.directos.m.desvio, m.directos.m.desvio, 0}, {}};
}

Estimado PorMomentosL(const Muestra& m)
{
    const double a = 2 * m.directos.l.l2;
    return {Parametros{m.directos.l.l1 - a, a, 0}, {}};
}

/// In closed form: the least value, and how far the mean is from it.
Estimado PorVerosimilitud(const Ley& /*ley*/, const Muestra& m)
{
    return {Parametros{m.x.front(), m.directos.m.media - m.x.front(), 0}, {}};
}

}  // namespace

const Ley Exponencial{
    "exponencial",
    "Exponencial",
    {{{"xi", "mínimo [mm]", Papel::Lugar}, {"alfa", "escala [mm]", Papel::Escala}, {}}},
    2,
    Cuantil,
    Probabilidad,
    LogVerosimilitud,
    PorMomentos,
    PorMomentosL,
    PorVerosimilitud,
    "x = xi - alfa ln(1 - F)",
    "Hosking y Wallis 1997, apéndice A.2",
    "Es de excedencias sobre un umbral más que de máximos anuales: por debajo de xi no hay nada",
};

}  // namespace frequency
