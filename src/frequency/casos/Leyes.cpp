// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <limits>
#include <utility>
#include <vector>

#include "frequency/Ajuste.h"
#include "frequency/casos/Filas.h"
#include "frequency/casos/Muestras.h"

namespace frequency::casos {
namespace {

/// The fit of a sample; no parameters are no figures.
Parametros DeMuestra(const Ley& ley, const std::vector<double>& x, Metodo metodo)
{
    constexpr double Nada = std::numeric_limits<double>::quiet_NaN();
    const Estimado e = Ajusta(ley, HazMuestra(x), metodo);
    return e.p.value_or(Parametros{Nada, Nada, Nada});
}

/// Quantiles of some recurrences [years].
Comparacion Cuantiles(const Ley& ley, const Parametros& p, std::vector<double> T, std::vector<double> impreso)
{
    Comparacion c{std::move(T), std::move(impreso), {}};
    for (const double t : c.x)
        c.nuestro.push_back(ley.cuantil(p, 1 - 1 / t));
    return c;
}

constexpr std::string_view Coles =
    "S. Coles (2001), An Introduction to Statistical Modeling of Extreme Values, Springer, sección 3.4.1, "
    "páginas 59 y 60";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"GEV por máxima verosimilitud, Port Pirie", Coles,
     "65 niveles máximos anuales del mar, 1923 a 1987, del ejemplo 1.1", "nivel de retorno [m]",
     "recurrencia [años]", 0.005, "media unidad de la última cifra", false,
     [] {
         return Cuantiles(Gev, DeMuestra(Gev, PortPirie, Metodo::Verosimilitud), {10, 100}, {4.30, 4.69});
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDeLeyes()
{
    return Filas;
}

}  // namespace frequency::casos
