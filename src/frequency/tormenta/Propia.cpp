// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/tormenta/Patron.h"

namespace frequency {
namespace {

/// The storm at hand without its dimensions: an even rain within each of its periods.
std::vector<double> Pesos(const PedidoDeTormenta& p, std::size_t n)
{
    std::vector<double> acumulada{0};
    for (const double x : p.periodos)
        acumulada.push_back(acumulada.back() + x);
    return PesosDeTabla(n, acumulada);
}

}  // namespace

const Patron Propia{.clave = "propia",
                    .nombre = "Propia, por períodos",
                    .formula = "P(t) = la suma de los períodos idos, con lluvia pareja dentro de cada uno",
                    .fuente = "La del usuario",
                    .limites = "Vale para las duraciones de las que salió",
                    .hechura = Hechura::Periodos,
                    .pesos = Pesos};

const Patron Registrada{.clave = "registrada",
                        .nombre = "Tormenta registrada, adimensional",
                        .formula = "P(t)/P(Td) como en el registro, sobre t/Td",
                        .fuente = "El registro de una estación",
                        .limites = "Es una tormenta y no un promedio: conviene comparar con otras",
                        .hechura = Hechura::Periodos,
                        .pesos = Pesos};

}  // namespace frequency
