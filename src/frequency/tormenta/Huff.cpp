// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "frequency/tormenta/Patron.h"

namespace frequency {
namespace {

/// What has fallen [%] at each 5 % of the duration: the medians of storms at a point, a row for each quarter
/// of the duration that most of the rain falls in.
constexpr std::array<std::array<double, 21>, 4> Medianas{
    {{0, 16, 33, 43, 52, 60, 66, 71, 75, 79, 82, 84, 86, 88, 90, 92, 94, 96, 97, 98, 100},
     {0, 3, 8, 12, 16, 22, 29, 39, 51, 62, 70, 76, 81, 85, 88, 91, 93, 95, 97, 98, 100},
     {0, 3, 6, 9, 12, 15, 19, 23, 27, 32, 38, 45, 57, 70, 79, 85, 89, 92, 95, 97, 100},
     {0, 2, 5, 8, 10, 13, 16, 19, 22, 25, 28, 32, 35, 39, 45, 51, 59, 72, 84, 92, 100}}};

std::vector<double> Pesos(const PedidoDeTormenta& p, std::size_t n)
{
    return PesosDeTabla(n, Medianas.at(static_cast<std::size_t>(p.cuartil) - 1));
}

}  // namespace

const Patron Huff{.clave = "huff",
                  .nombre = "Huff, mediana de un cuartil",
                  .formula = "P(t)/P(Td) = la mediana tabulada del cuartil en que cae lo más de la lluvia",
                  .fuente =
                      "Huff (1990), Time distributions of heavy rainstorms in Illinois, Illinois State "
                      "Water Survey, Circular 173, tabla de medianas en un punto",
                  .limites =
                      "Tormentas de Illinois. Cuartil 1: hasta 6 h; 2: de 6 a 12 h; 3: de 12 a 24 h; 4: "
                      "más de 24 h. De las probabilidades sólo está la de 50 %",
                  .hechura = Hechura::Cuartil,
                  .pesos = Pesos};

}  // namespace frequency
