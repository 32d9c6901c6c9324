// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Bondad.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace frequency {
namespace {

double Correlacion(std::span<const double> x, std::span<const double> y)
{
    double mx = 0, my = 0, xy = 0, xx = 0, yy = 0;
    const auto n = static_cast<double>(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        mx += x[i] / n;
        my += y[i] / n;
    }
    for (std::size_t i = 0; i < x.size(); ++i) {
        xy += (x[i] - mx) * (y[i] - my);
        xx += (x[i] - mx) * (x[i] - mx);
        yy += (y[i] - my) * (y[i] - my);
    }
    return xx > 0 && yy > 0 ? xy / std::sqrt(xx * yy) : 0;
}

}  // namespace

int ClasesDe(std::size_t n)
{
    return std::clamp(static_cast<int>(n / 5), 5, 20);
}

Bondad BondadDe(const Ley& ley, const Parametros& p, std::span<const double> x, double bajos)
{
    constexpr double Menor = 1e-15;
    const std::size_t n = x.size();
    const auto m = static_cast<double>(n);
    std::vector<double> F(n), q(n);
    std::vector<double> clases(static_cast<std::size_t>(ClasesDe(n)));
    const auto cuantas = static_cast<double>(clases.size());
    Bondad b;
    for (std::size_t i = 0; i < n; ++i) {
        const auto j = static_cast<double>(i);
        F[i] = std::clamp((ley.probabilidad(p, x[i]) - bajos) / (1 - bajos), Menor, 1 - Menor);
        q[i] = ley.cuantil(p, bajos + (1 - bajos) * Posicion(i + 1, n, Cunnane));
        b.ks = std::max({b.ks, (j + 1) / m - F[i], F[i] - j / m});
        clases[static_cast<std::size_t>(F[i] * cuantas)] += 1;
    }
    for (std::size_t i = 0; i < n; ++i)
        b.ad -= static_cast<double>(2 * i + 1) * (std::log(F[i]) + std::log1p(-F[n - 1 - i])) / m;
    b.ad -= m;
    for (const double hay : clases)
        b.chi2 += (hay - m / cuantas) * (hay - m / cuantas) * cuantas / m;
    b.ppcc = Correlacion(x, q);
    return b;
}

Criterios CriteriosDe(const Ley& ley, const Parametros& p, std::span<const double> x)
{
    Criterios c;
    c.logVerosimilitud = ley.logVerosimilitud(p, x);
    const auto n = static_cast<double>(x.size()), k = static_cast<double>(ley.cuantos);
    c.aic = 2 * k - 2 * c.logVerosimilitud;
    c.aicc = c.aic + 2 * k * (k + 1) / (n - k - 1);
    c.bic = k * std::log(n) - 2 * c.logVerosimilitud;
    return c;
}

}  // namespace frequency
