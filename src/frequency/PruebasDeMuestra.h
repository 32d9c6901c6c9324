// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frequency/Maximos.h"

// Whether a sample is what a fit takes it for: independent values of one law.
namespace frequency {

/// A test and what it found; rejected at 5 %, two-sided but for the outliers.
struct Prueba {
    std::string_view clave, nombre, fuente;
    std::string_view simbolo;  ///< of the statistic
    double estadistico = 0;
    double z = 0;  ///< standardised; of the outliers, the distance in deviations
    double p = 1;
    bool rechaza = false;
    std::string veredicto{};  ///< a sentence with its full stop
    std::string remedio{};    ///< what to do; empty: nothing
};

/// Trend: S, variance with ties, z with continuity (Mann 1945; Kendall 1975). In the order of years, as all
/// below.
Prueba MannKendall(std::span<const double> x);
/// Serial independence: sum of products of neighbours, the last beside the first (Wald and Wolfowitz 1943).
Prueba WaldWolfowitz(std::span<const double> x);
/// Homogeneity: the first half against the second by U, with ties and continuity (Mann and Whitney 1947).
Prueba MannWhitney(std::span<const double> x);
/// Outliers at 10 %, one-sided, on logarithms: Bulletin 17B's K_N from 10 to 149 values, Student's beyond.
/// `p` bounds the probability of so far a value from above (Bonferroni).
Prueba GrubbsBeck(const std::vector<Maximo>& maximos, bool altos);

/// K_N = -0.9043 + 3.345 sqrt(log10 n) - 0.4046 log10 n
double KDeGrubbsBeck(std::size_t n);
/// The same up to 149 values, and from there on what Student's law leaves to 10 % of samples.
double LimiteDeGrubbsBeck(std::size_t n);

std::vector<Prueba> PruebasDe(const std::vector<Maximo>& maximos);

}  // namespace frequency
