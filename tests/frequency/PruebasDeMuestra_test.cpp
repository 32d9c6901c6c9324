// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/PruebasDeMuestra.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "frequency/Muestra.h"

namespace {

using namespace frequency;

/// EPA QA/G-9S, "Data Quality Assessment: Statistical Methods for Practitioners", 2006, page 109: S = 22, its
/// variance with the two groups of ties 155.33, Z = 1.685.
TEST(PruebasDeMuestra, MannKendallDaElEjemploDeLaEpa)
{
    const std::vector<double> x{10, 10, 10, 5, 10, 20, 18, 17, 15, 24, 15};
    const Prueba p = MannKendall(x);
    EXPECT_EQ(p.estadistico, 22);
    EXPECT_NEAR(p.z, 1.685, 0.0005);
    EXPECT_NEAR(21 / p.z, std::sqrt(155.33), 0.001);
    EXPECT_FALSE(p.rechaza);
    EXPECT_NEAR(p.p, 0.092, 0.0005);  // of the normal table
}

TEST(PruebasDeMuestra, UnaTendenciaSeVe)
{
    std::vector<double> x(20);
    std::iota(x.begin(), x.end(), 50.0);
    const Prueba sube = MannKendall(x);
    EXPECT_EQ(sube.estadistico, 190);
    EXPECT_TRUE(sube.rechaza);
    EXPECT_EQ(sube.veredicto, "Los máximos crecen con los años.");
    EXPECT_FALSE(sube.remedio.empty());
    std::reverse(x.begin(), x.end());
    EXPECT_EQ(MannKendall(x).veredicto, "Los máximos decrecen con los años.");
    EXPECT_TRUE(WaldWolfowitz(x).rechaza);
    EXPECT_TRUE(MannWhitney(x).rechaza);
}

/// The mean and the variance of R over all orders of six values, counted one by one.
TEST(PruebasDeMuestra, WaldWolfowitzTieneLaMediaYLaVarianzaDeTodosLosOrdenes)
{
    std::vector<double> x{1, 2, 4, 7, 11, 20};
    double suma = 0, cuadrados = 0, sumaZ = 0, cuadradosZ = 0, cuantos = 0;
    do {
        const Prueba p = WaldWolfowitz(x);
        suma += p.estadistico;
        cuadrados += p.estadistico * p.estadistico;
        sumaZ += p.z;
        cuadradosZ += p.z * p.z;
        ++cuantos;
    } while (std::next_permutation(x.begin(), x.end()));
    EXPECT_EQ(cuantos, 720);
    EXPECT_GT(cuadrados / cuantos - std::pow(suma / cuantos, 2), 1);
    EXPECT_NEAR(sumaZ / cuantos, 0, 1e-12);
    EXPECT_NEAR(cuadradosZ / cuantos, 1, 1e-12);
}

/// The same of U, whose continuity takes half a unit off: over all orders of seven values with ties the
/// unshortened distances have the variance that the formula tells.
TEST(PruebasDeMuestra, MannWhitneyTieneLaVarianzaDeTodosLosOrdenes)
{
    std::vector<double> x{1, 2, 2, 5, 6, 6, 9};
    const double medio = 3 * 4 / 2.0;
    double cuadrados = 0, razones = 0, cuantos = 0, conRazon = 0;
    do {
        const Prueba p = MannWhitney(x);
        const double d = p.estadistico - medio;
        cuadrados += d * d;
        if (std::abs(d) > 0.5) {
            razones += std::pow((std::abs(d) - 0.5) / p.z, 2);  // the variance that was used
            ++conRazon;
        }
        ++cuantos;
    } while (std::next_permutation(x.begin(), x.end()));
    EXPECT_NEAR(razones / conRazon, cuadrados / cuantos, 1e-9);
}

/// Grubbs 1969, table 1, one-sided 10 %: n 10, 14, 16, 20. Printed with two decimals.
TEST(PruebasDeMuestra, GrubbsBeckTieneLosLimitesDeLaTabla)
{
    EXPECT_NEAR(KDeGrubbsBeck(10), 2.03, 0.011);
    EXPECT_NEAR(KDeGrubbsBeck(14), 2.21, 0.011);
    EXPECT_NEAR(KDeGrubbsBeck(16), 2.28, 0.011);
    EXPECT_NEAR(KDeGrubbsBeck(20), 2.38, 0.011);
}

TEST(PruebasDeMuestra, UnDatoLejanoSeNombra)
{
    std::vector<Maximo> maximos;
    for (int i = 0; i < 30; ++i)
        maximos.push_back({1980 + i, 50.0 + 7 * (i % 5)});
    EXPECT_FALSE(GrubbsBeck(maximos, true).rechaza);
    EXPECT_FALSE(GrubbsBeck(maximos, false).rechaza);
    maximos[12].valor = 400;
    maximos[20].valor = 6;
    const Prueba alto = GrubbsBeck(maximos, true), bajo = GrubbsBeck(maximos, false);
    EXPECT_EQ(alto.veredicto, "Anómalos: 1992.");
    EXPECT_EQ(bajo.veredicto, "Anómalos: 2000.");
    EXPECT_LT(alto.p, 0.05);
    EXPECT_GT(alto.p, 0);
}

/// Beyond the formula's 149 values Student's law gives the limit, and where they meet both agree.
TEST(PruebasDeMuestra, LasMuestrasLargasTienenSuLimite)
{
    for (const int n : {149, 150, 400}) {
        std::vector<Maximo> maximos;
        for (int i = 0; i < n; ++i)
            maximos.push_back({1600 + i, std::pow(10, 1.5 + 0.1 * ((i * 37) % n) / n)});
        EXPECT_FALSE(GrubbsBeck(maximos, true).rechaza);
        maximos[5].valor = std::pow(10, 1.55 + 0.18);
        EXPECT_TRUE(GrubbsBeck(maximos, true).rechaza) << n;
    }
}

}  // namespace
