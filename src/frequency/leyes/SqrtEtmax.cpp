// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <limits>
#include <numbers>

#include "frequency/Especiales.h"
#include "frequency/Ley.h"
#include "frequency/Verosimilitud.h"

// F(x) = exp(-k (1 + u) e^-u), u = sqrt(alfa x): the greatest of a Poisson number of storms. What a fit looks
// for is ln k: k itself has 60 digits where the maxima vary little.
namespace frequency {
namespace {

constexpr double LnKMenor = -3, LnKMayor = 690;
constexpr double Nada = 41.4;  // -ln of what no sum of doubles notices

/// ln of k (1 + u) e^-u
double LnSucesos(double lnK, double u)
{
    return lnK + std::log1p(u) - u;
}

double Cuantil(const Parametros& p, double F)
{
    const double c = -std::log(F) / p[1];
    if (c >= 1) return 0;
    const double u = -1 - LambertMenos1(-c / std::numbers::e);
    return u <= 0 ? 0 : u * u / p[0];
}

double Probabilidad(const Parametros& p, double x)
{
    if (x < 0) return 0;
    return std::exp(-std::exp(LnSucesos(std::log(p[1]), std::sqrt(p[0] * x))));
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    const double lnK = std::log(p[1]);
    double suma = 0;
    for (const double xi : x) {
        if (xi <= 0) return -std::numeric_limits<double>::infinity();
        const double u = std::sqrt(p[0] * xi);
        suma -= u + std::exp(LnSucesos(lnK, u));
    }
    return suma + static_cast<double>(x.size()) * (lnK + std::log(p[0] / 2));
}

/// The u, 0 or more, beyond which ln of the expected events is below a number.
double HastaQue(double lnK, double ln)
{
    if (lnK <= ln) return 0;
    double u = lnK - ln;
    constexpr int Vueltas = 200;
    for (int i = 0; i < Vueltas; ++i) {
        const double nuevo = lnK - ln + std::log1p(u);
        if (std::abs(nuevo - u) < 1e-9) break;
        u = nuevo;
    }
    return u;
}

/// What a shape says of alfa x: mean, second moment, second L-moment.
struct Reducidos {
    double media = 0, cuadrado = 0, l2 = 0;
};

Reducidos ReducidosDe(double lnK)
{
    constexpr int Tramos = 16;
    const double desde = HastaQue(lnK, std::log(Nada)), hasta = HastaQue(lnK, -Nada);
    const auto falta = [&](double u) { return -std::expm1(-std::exp(LnSucesos(lnK, u))); };  // 1 - F
    Reducidos r;
    r.media = desde * desde + Integra([&](double u) { return falta(u) * 2 * u; }, desde, hasta, Tramos);
    r.cuadrado = std::pow(desde, 4) +
                 Integra([&](double u) { return falta(u) * 4 * u * u * u; }, desde, hasta, Tramos);
    r.l2 = Integra([&](double u) { return falta(u) * (1 - falta(u)) * 2 * u; }, desde, hasta, Tramos);
    return r;
}

/// `medida` falls with ln k.
template <typename F>
Estimado ConMedida(F medida, double muestra, double media)
{
    if (muestra <= medida(ReducidosDe(LnKMayor)))
        return {{}, "El coeficiente de variación es tan bajo que la SQRT-ETmax no tiene solución"};
    if (muestra >= medida(ReducidosDe(LnKMenor)))
        return {{}, "El coeficiente de variación es tan alto que la SQRT-ETmax no tiene solución"};
    const double lnK = Raiz([&](double q) { return medida(ReducidosDe(q)) - muestra; }, LnKMenor, LnKMayor);
    return {Parametros{ReducidosDe(lnK).media / media, std::exp(lnK), 0}, {}};
}

Estimado PorMomentos(const Muestra& m)
{
    if (!m.positiva) return {{}, "Hay valores que no son mayores que 0"};
    const auto cv = [](const Reducidos& r) { return std::sqrt(r.cuadrado - r.media * r.media) / r.media; };
    return ConMedida(cv, m.directos.m.desvio / m.directos.m.media, m.directos.m.media);
}

Estimado PorMomentosL(const Muestra& m)
{
    if (!m.positiva) return {{}, "Hay valores que no son mayores que 0"};
    const auto cv = [](const Reducidos& r) { return r.l2 / r.media; };
    return ConMedida(cv, m.directos.l.l2 / m.directos.l.l1, m.directos.l.l1);
}

}  // namespace

const Ley SqrtEtmax{
    "sqrt-etmax",
    "SQRT-ETmax",
    {{{"alfa", "escala [1/mm]", Papel::Escala}, {"k", "frecuencia", Papel::Escala}, {}}},
    2,
    Cuantil,
    Probabilidad,
    LogVerosimilitud,
    PorMomentos,
    PorMomentosL,
    MaximaVerosimilitud,
    "F = exp(-k (1 + u) e^(-u)), u = raíz(alfa x)",
    "Etoh, Murota y Nakanishi 1987, Hydrologic Frequency Modeling, Reidel, 253-264; Zorraquino 2004, Revista "
    "de Obras Públicas 3447, 33-37",
    "Para lluvias diarias máximas; da una probabilidad e^-k a la lluvia 0",
};

}  // namespace frequency
