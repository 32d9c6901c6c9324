// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include "frequency/Verosimilitud.h"
#include "frequency/leyes/Boletin17.h"
#include "frequency/leyes/Pearson.h"

namespace frequency {
namespace {

double Cuantil(const Parametros& p, double F)
{
    return std::pow(10.0, pearson::Cuantil(p, F));
}

double Probabilidad(const Parametros& p, double x)
{
    return x <= 0 ? 0 : pearson::Probabilidad(p, std::log10(x));
}

double LogVerosimilitud(const Parametros& p, std::span<const double> x)
{
    std::vector<double> y(x.size());
    double suma = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        if (x[i] <= 0) return -std::numeric_limits<double>::infinity();
        y[i] = std::log10(x[i]);
        suma += (y[i] + std::log10(std::numbers::ln10)) * std::numbers::ln10;
    }
    return pearson::LogVerosimilitud(p, y) - suma;
}

Estimado PorMomentos(const Muestra& m)
{
    if (!m.positiva) return {{}, "Hay valores que no son mayores que 0"};
    return boletin17::PorMomentos(m);
}

Estimado PorMomentosL(const Muestra& m)
{
    if (!m.positiva) return {{}, "Hay valores que no son mayores que 0"};
    return pearson::PorMomentosL(m.decimales.l);
}

}  // namespace

const Ley LogPearsonIII{
    "logpearson3",
    "Log-Pearson III",
    {{{"mu", "media de log10 x", Papel::Lugar},
      {"sigma", "desvío de log10 x", Papel::Escala},
      {"g", "asimetría de log10 x", Papel::Forma, -pearson::LimiteG, pearson::LimiteG}}},
    3,
    Cuantil,
    Probabilidad,
    LogVerosimilitud,
    PorMomentos,
    PorMomentosL,
    MaximaVerosimilitud,
    "log10 x = mu + sigma K(F, g)",
    "Interagency Advisory Committee on Water Data, Bulletin 17B, 1982; England y otros, Bulletin 17C, 2019",
    "La asimetría es la de la estación si no se da una regional; la cola alta es muy sensible a ella",
};

}  // namespace frequency
