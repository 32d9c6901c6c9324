// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cstddef>
#include <vector>

#include "frequency/Bondad.h"
#include "frequency/PruebasDeMuestra.h"
#include "frequency/casos/Filas.h"
#include "frequency/casos/Muestras.h"

namespace frequency::casos {
namespace {

/// Weights of twenty chicks against a normal law of mean 200 and deviation 35.
Bondad DePollos()
{
    const std::vector<double> gramos{156, 162, 168, 182, 186, 190, 190, 196, 202, 210,
                                     214, 220, 226, 230, 230, 236, 236, 242, 246, 270};
    return BondadDe(PearsonIII, {200, 35, 0}, gramos);
}

constexpr std::string_view DAgostino =
    "R. B. D'Agostino y M. A. Stephens (1986), Goodness-of-fit techniques, Marcel Dekker, capítulo 4";
constexpr std::string_view Pollos = "pesos de 20 pollos [g]; ley normal de media 200 y desvío 35";
constexpr std::string_view MediaUnidad = "media unidad de la última cifra";

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Mann-Kendall con empates, ejemplo de la EPA",
     "EPA (2006), Data Quality Assessment: Statistical Methods for Practitioners, EPA QA/G-9S, página 109",
     "10, 10, 10, 5, 10, 20, 18, 17, 15, 24, 15", "Z", "muestra", 0.0005, MediaUnidad, false,
     [] {
         const std::vector<double> x{10, 10, 10, 5, 10, 20, 18, 17, 15, 24, 15};
         return Comparacion{{1}, {1.685}, {MannKendall(x).z}};
     }},
    {"Wald-Wolfowitz, Port Pirie",
     "A. Wald y J. Wolfowitz (1943), An exact test for randomness in the non-parametric case based on serial "
     "correlation, Annals of Mathematical Statistics 14, con las sumas de potencias",
     "los 65 niveles de Coles por año", "z", "muestra", 5.1e-6, MediaUnidad, true,
     [] {
         return Comparacion{{1}, {-0.14620}, {WaldWolfowitz(PortPirie).z}};
     }},
    {"Mann-Whitney, nitrógeno en la lluvia",
     "D. R. Helsel y R. M. Hirsch (2002), Statistical Methods in Water Resources, U.S. Geological Survey, "
     "capítulo 5, ejemplo 1",
     "0.59, 0.87, 1.1, 1.1, 1.2, 1.3, 1.6, 1.7, 3.2, 4; 0.3, 0.36, 0.5, 0.7, 0.7, 0.9, 0.92, 1, 1.3, 9.7",
     "suma de rangos de la segunda mitad", "muestra", 0.05, MediaUnidad, false,
     [] {
         const std::vector<double> x{0.59, 0.87, 1.1, 1.1, 1.2, 1.3, 1.6,  1.7, 3.2, 4,
                                     0.3,  0.36, 0.5, 0.7, 0.7, 0.9, 0.92, 1,   1.3, 9.7};
         constexpr double Pares = 100, Menor = 55;  // 10 by 10; the sum of ranks 1 to 10
         return Comparacion{{1}, {78.5}, {Menor + Pares - MannWhitney(x).estadistico}};
     }},
    {"Grubbs-Beck, KN al 10 %",
     "Interagency Advisory Committee on Water Data (1982), Bulletin 17B, apéndice 4", "de 10 a 100 años",
     "KN", "años", 0.005, "la fórmula del programa sigue la tabla hasta 0,005", false,
     [] {
         Comparacion c{{10, 20, 30, 40, 50, 60, 70, 80, 90, 100},
                       {2.036, 2.385, 2.563, 2.682, 2.768, 2.837, 2.893, 2.940, 2.981, 3.017},
                       {}};
         for (const double n : c.x)
             c.nuestro.push_back(KDeGrubbsBeck(static_cast<std::size_t>(n)));
         return c;
     }},
    {"Kolmogorov-Smirnov, pesos de pollos", DAgostino, Pollos, "D", "muestra", 0.0005, MediaUnidad, false,
     [] {
         return Comparacion{{1}, {0.171}, {DePollos().ks}};
     }},
    {"Anderson-Darling, pesos de pollos", DAgostino, Pollos, "A2", "muestra", 0.0005, MediaUnidad, false,
     [] {
         return Comparacion{{1}, {1.017}, {DePollos().ad}};
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDePruebas()
{
    return Filas;
}

}  // namespace frequency::casos
