// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Muestra.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace frequency {

MomentosL MomentosLDe(std::span<const double> x)
{
    const auto n = static_cast<double>(x.size());
    std::array<double, 4> b{};
    for (std::size_t k = 0; k < x.size(); ++k) {
        const auto i = static_cast<double>(k);
        double peso = 1;
        for (std::size_t r = 0; r < b.size(); ++r) {
            b[r] += peso * x[k];
            const auto s = static_cast<double>(r);
            peso *= (i - s) / (n - 1 - s);
        }
    }
    for (double& bi : b)
        bi /= n;
    MomentosL m;
    m.l1 = b[0];
    m.l2 = 2 * b[1] - b[0];
    if (m.l2 > 0) {
        m.t3 = (6 * b[2] - 6 * b[1] + b[0]) / m.l2;
        m.t4 = (20 * b[3] - 30 * b[2] + 12 * b[1] - b[0]) / m.l2;
    }
    return m;
}

Momentos MomentosDe(std::span<const double> x)
{
    const auto n = static_cast<double>(x.size());
    double suma = 0, cuadrados = 0, cubos = 0;
    for (const double xi : x)
        suma += xi;
    const double media = suma / n;
    for (const double xi : x) {
        const double d = xi - media;
        cuadrados += d * d;
        cubos += d * d * d;
    }
    Momentos m;
    m.media = media;
    m.desvio = std::sqrt(cuadrados / (n - 1));
    if (m.desvio > 0) m.asimetria = n * cubos / ((n - 1) * (n - 2) * m.desvio * m.desvio * m.desvio);
    return m;
}

Tratamiento TratamientoDe(std::string_view bajos, std::optional<double> asimetria, double ecm)
{
    Tratamiento t;
    if (!bajos.empty()) t.bajos = bajos == "17b" ? Bajos::Boletin17B : Bajos::Boletin17C;
    if (asimetria) t.regional = {*asimetria, ecm};
    return t;
}

Muestra HazMuestra(std::vector<double> x)
{
    Muestra m;
    m.x = std::move(x);
    m.secos = std::erase(m.x, 0.0);
    std::sort(m.x.begin(), m.x.end());
    m.directos = {MomentosDe(m.x), MomentosLDe(m.x)};
    m.positiva = !m.x.empty() && m.x.front() > 0;
    if (m.positiva) {
        std::vector<double> y(m.x.size());
        std::transform(m.x.begin(), m.x.end(), y.begin(), [](double v) { return std::log10(v); });
        m.decimales = {MomentosDe(y), MomentosLDe(y)};
    }
    return m;
}

double Posicion(std::size_t i, std::size_t n, double a)
{
    return (static_cast<double>(i) - a) / (static_cast<double>(n) + 1 - 2 * a);
}

}  // namespace frequency
