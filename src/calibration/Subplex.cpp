// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlopt.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

#include "calibration/Busqueda.h"
#include "calibration/Ensayo.h"

namespace calibration {
namespace {

constexpr double PrimerPaso = 0.1, Tolerancia = 1e-3;  // of the range
constexpr double SinValor = 1e300;                     // NLopt takes no infinity
constexpr std::size_t Frentes = 2;                     // descents at a time
constexpr std::size_t PuntosPorDimension = 10, ParteDePuntos = 5;

using Buscador = std::unique_ptr<nlopt_opt_s, decltype(&nlopt_destroy)>;

struct Bajada {
    Ensayo& ensayo;
    nlopt_opt opt;
};

double Mide(unsigned n, const double* x, double* /*gradiente*/, void* datos)
{
    Bajada& b = *static_cast<Bajada*>(datos);
    const double costo = b.ensayo.Mide({x, n});
    if (!b.ensayo.Sigue()) nlopt_force_stop(b.opt);
    return std::fmin(costo, SinValor);
}

/// From a point down to where no step of the tolerance leads on.
void Baja(std::vector<double> punto, Ensayo& ensayo)
{
    const Buscador opt(nlopt_create(NLOPT_LN_SBPLX, static_cast<unsigned>(punto.size())), nlopt_destroy);
    Bajada bajada{ensayo, opt.get()};
    nlopt_set_min_objective(opt.get(), Mide, &bajada);
    nlopt_set_lower_bounds1(opt.get(), 0);
    nlopt_set_upper_bounds1(opt.get(), 1);
    nlopt_set_initial_step1(opt.get(), PrimerPaso);
    nlopt_set_xtol_abs1(opt.get(), Tolerancia);
    double costo = 0;
    nlopt_optimize(opt.get(), punto.data(), &costo);  // however it ends, what it measured is kept
}

}  // namespace

Busqueda BuscaSubplex(const PedidoDeBusqueda& p, const Reparto& reparto)
{
    Marcha marcha(p, reparto);
    const std::size_t cuantos =
        std::max<std::size_t>(std::min(p.corridas / ParteDePuntos, PuntosPorDimension * p.dimensiones), 1);
    for (std::size_t vuelta = 0; marcha.Sigue(); ++vuelta) {
        study::Sorteo sorteo = SorteoDe(p.semilla, vuelta, 0);
        auto puntos = HipercuboLatino(cuantos, p.dimensiones, sorteo);
        if (p.inicio && vuelta == 0) puntos.front() = *p.inicio;
        std::vector<Evaluacion> inicios = marcha.Mide(puntos);
        Ordena(inicios);
        inicios.resize(std::min(inicios.size(), 2 * Frentes));
        for (std::size_t i = 0; i < inicios.size() && marcha.Sigue(); i += Frentes)
            marcha.Reparte(std::min(Frentes, inicios.size() - i), p.corridas,
                           [&](std::size_t k, Ensayo& e) { Baja(inicios[i + k].punto, e); });
    }
    return marcha.Fin(false);
}

}  // namespace calibration
