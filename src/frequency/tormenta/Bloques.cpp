// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <functional>

#include "frequency/tormenta/Patron.h"

namespace frequency {
namespace {

/// The increments of the curve in falling order: the largest in the middle, at the left one of the two where
/// they are an even number, the next at its right, the next at its left.
std::vector<double> Pesos(const PedidoDeTormenta& p, std::size_t n)
{
    std::vector<double> incrementos;
    double antes = 0;
    for (std::size_t i = 1; i <= n; ++i) {
        const double hasta = p.lamina(p.paso * static_cast<double>(i));
        incrementos.push_back(hasta - antes);
        antes = hasta;
    }
    std::stable_sort(incrementos.begin(), incrementos.end(), std::greater<>());
    std::vector<double> pesos(n);
    const std::size_t medio = (n - 1) / 2;
    for (std::size_t i = 0; i < n; ++i)
        pesos[i % 2 == 0 ? medio - i / 2 : medio + (i + 1) / 2] = incrementos[i];
    return pesos;
}

}  // namespace

const Patron BloquesAlternos{
    .clave = "bloques",
    .nombre = "Bloques alternos",
    .formula = "ΔP(i) = D(i·Δt) − D((i−1)·Δt), de mayor a menor: al medio, a la derecha, a la izquierda...",
    .fuente = "Chow, Maidment y Mays (1988), Applied Hydrology, sección 14.4, ejemplo 14.4.1",
    .limites =
        "Reúne en una sola tormenta las intensidades de todas las duraciones: es más severa que las "
        "observadas",
    .hechura = Hechura::Curvas,
    .pesos = Pesos};

}  // namespace frequency
