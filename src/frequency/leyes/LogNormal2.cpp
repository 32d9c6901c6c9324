// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <limits>
#include <numbers>

#include "frequency/Especiales.h"
#include "frequency/Ley.h"

namespace frequency {
namespace {

double Cuantil(const Parametros& p, double F)
{
    return std::exp(p[0] + p[1] * NormalCuantil(F));
}

double Probabilidad(const Parametros& p, double x)
{
    return x <= 0 ? 0 : NormalProbabilidad((std::log(x) - p[0]) / p[1]);
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    double suma = 0;
    for (const double xi : x) {
        if (xi <= 0) return -std::numeric_limits<double>::infinity();
        const double y = std::log(xi), u = (y - p[0]) / p[1];
        suma -= u * u / 2 + y;
    }
    return suma - static_cast<double>(x.size()) * (std::log(p[1]) + std::log(2 * std::numbers::pi) / 2);
}

Estimado NoPositiva()
{
    return {{}, "Hay valores que no son mayores que 0"};
}

Estimado PorMomentos(const Muestra& m)
{
    if (!m.positiva) return NoPositiva();
    const double cv = m.directos.m.desvio / m.directos.m.media, s2 = std::log1p(cv * cv);
    return {Parametros{std::log(m.directos.m.media) - s2 / 2, std::sqrt(s2), 0}, {}};
}

Estimado PorMomentosL(const Muestra& m)
{
    if (!m.positiva) return NoPositiva();
    const double s = 2 * ErrorInverso(m.directos.l.l2 / m.directos.l.l1);
    return {Parametros{std::log(m.directos.l.l1) - s * s / 2, s, 0}, {}};
}

/// In closed form: mean and deviation (n) of the logarithms.
Estimado PorVerosimilitud(const Ley& /*ley*/, const Muestra& m)
{
    if (!m.positiva) return NoPositiva();
    const auto n = static_cast<double>(m.x.size());
    const Momentos& y = m.decimales.m;
    return {
        Parametros{y.media * std::numbers::ln10, y.desvio * std::numbers::ln10 * std::sqrt((n - 1) / n), 0},
        {}};
}

}  // namespace

const Ley LogNormal2{
    "ln2",
    "Log-normal de 2 parámetros",
    {{{"mu", "media de ln x", Papel::Lugar}, {"sigma", "desvío de ln x", Papel::Escala}, {}}},
    2,
    Cuantil,
    Probabilidad,
    LogVerosimilitud,
    PorMomentos,
    PorMomentosL,
    PorVerosimilitud,
    "x = exp(mu + sigma u)",
    "Chow 1954, Proc. ASCE 80, separata 536; Chow, Maidment y Mays 1988, capítulo 11; momentos L: Hosking "
    "1990, J. R. Stat. Soc. B 52, 105-124",
    "No admite ceros; su asimetría es la que le da el coeficiente de variación",
};

}  // namespace frequency
