// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "calibration/Busqueda.h"
#include "calibration/Ensayo.h"

namespace calibration {
namespace {

/// A standard normal number. Box, Muller, "A note on the generation of random normal deviates", 1958.
double Normal(study::Sorteo& sorteo)
{
    const double radio = std::sqrt(-2 * std::log(sorteo.Uniforme()));
    return radio * std::cos(2 * std::numbers::pi * sorteo.Uniforme());
}

/// Moved by a normal; what leaves the range is reflected, and stays at the bound where that leaves it, too.
double Mueve(double x, study::Sorteo& sorteo)
{
    constexpr double Alcance = 0.2;
    const double y = x + Alcance * Normal(sorteo);
    if (y < 0) return -y > 1 ? 0 : -y;
    if (y > 1) return 2 - y < 0 ? 1 : 2 - y;
    return y;
}

void Busca(const PedidoDeBusqueda& p, Ensayo& ensayo)
{
    constexpr std::size_t MenosIniciales = 5, ParteInicial = 200;
    study::Sorteo sorteo = SorteoDe(p.semilla, 0, 0);
    Evaluacion mejor;
    const auto prueba = [&](const std::vector<double>& punto) {
        const double costo = ensayo.Mide(punto);
        if (mejor.punto.empty() || costo <= mejor.costo) mejor = {punto, costo};
    };
    std::vector<double> punto(p.dimensiones);
    const std::size_t iniciales = std::min(std::max(MenosIniciales, p.corridas / ParteInicial), p.corridas);
    for (std::size_t i = 0; i < iniciales; ++i) {
        for (double& x : punto)
            x = sorteo.Uniforme();
        prueba(i == 0 && p.inicio ? *p.inicio : punto);
    }
    const std::size_t pasos = p.corridas - iniciales;
    for (std::size_t i = 1; i <= pasos && ensayo.Sigue(); ++i) {
        const double parte =
            pasos > 1 ? 1 - std::log(static_cast<double>(i)) / std::log(static_cast<double>(pasos)) : 1;
        punto = mejor.punto;
        bool movido = false;
        for (double& x : punto)
            if (sorteo.Uniforme() < parte) {
                x = Mueve(x, sorteo);
                movido = true;
            }
        if (!movido) {
            double& x = punto[AlAzar(sorteo, punto.size())];
            x = Mueve(x, sorteo);
        }
        prueba(punto);
    }
}

}  // namespace

Busqueda BuscaDds(const PedidoDeBusqueda& p, const Reparto& reparto)
{
    Marcha marcha(p, reparto);
    marcha.Reparte(1, p.corridas, [&](std::size_t /*k*/, Ensayo& ensayo) { Busca(p, ensayo); });
    return marcha.Fin(false);
}

}  // namespace calibration
