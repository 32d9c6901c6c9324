// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <vector>

#include "frequency/PruebasDeMuestra.h"
#include "frequency/casos/Filas.h"

namespace frequency::casos {
namespace {

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Mann-Kendall con empates, ejemplo de la EPA",
     "EPA (2006), Data Quality Assessment: Statistical Methods for Practitioners, EPA QA/G-9S, página 109",
     "10, 10, 10, 5, 10, 20, 18, 17, 15, 24, 15", "Z", "muestra", 0.0005, "media unidad de la última cifra",
     false,
     [] {
         const std::vector<double> x{10, 10, 10, 5, 10, 20, 18, 17, 15, 24, 15};
         return Comparacion{{1}, {1.685}, {MannKendall(x).z}};
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDePruebas()
{
    return Filas;
}

}  // namespace frequency::casos
