// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Sensibilidad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numeric>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/SucesionDeSobol.h"
#include "calibration/casos/FuncionesConocidas.h"
#include "study/Ajuste.h"

namespace {

using calibration::MetodoDeSensibilidad;
using calibration::Rango;
using study::Sensibilidad;
using Filas = std::vector<std::vector<double>>;

const MetodoDeSensibilidad& Metodo(std::string_view clave)
{
    return *calibration::MetodoDeSensibilidadDe(clave);
}

// --- ranges ---

TEST(Rango, ExtremosExactosYMedios)
{
    const Rango recta{.minimo = 0.1, .maximo = 0.7}, logaritmica{0.1, 1000, true};
    EXPECT_EQ(calibration::EnRango(recta, 0), 0.1);
    EXPECT_EQ(calibration::EnRango(recta, 1), 0.7);
    EXPECT_NEAR(calibration::EnRango(recta, 0.5), 0.4, 1e-15);
    EXPECT_EQ(calibration::EnRango(logaritmica, 0), 0.1);
    EXPECT_EQ(calibration::EnRango(logaritmica, 1), 1000);
    EXPECT_NEAR(calibration::EnRango(logaritmica, 0.5), 10, 1e-12);  // sqrt(0.1 * 1000)
}

// --- Sobol's sequence ---

/// The sequence without the seed's shift, which any two points share.
std::uint32_t Palabra(const calibration::SucesionDeSobol& s, std::uint32_t k, std::size_t dimension)
{
    const auto palabra = [&](std::uint32_t i) {
        return static_cast<std::uint32_t>(s(i, dimension) * 4294967296.0);
    };
    return palabra(k) ^ palabra(0);
}

// S. Joe and F. Kuo (2008), by the formula of their page with the first numbers of its table: in dimension 2
// v = 1/2, 3/4, 5/8; in 3 (m = 1, 3) 1/2, 3/4; in 4 (1, 3, 1) and 5 (1, 1, 1) 1/2, 3/4 and 1/2, 1/4. Points
// 1, 3 and 2 are v1, v1 + v2 without carry, v2.
TEST(SucesionDeSobol, PrimerosPuntosPublicados)
{
    constexpr std::array<std::uint32_t, 3> Orden{1, 3, 2};
    constexpr std::array<std::array<double, 5>, 3> Impresos{
        {{0.5, 0.5, 0.5, 0.5, 0.5}, {0.75, 0.25, 0.25, 0.25, 0.75}, {0.25, 0.75, 0.75, 0.75, 0.25}}};
    const calibration::SucesionDeSobol s(5, 7);
    for (std::size_t n = 0; n < Orden.size(); ++n)
        for (std::size_t d = 0; d < 5; ++d)
            EXPECT_EQ(Palabra(s, Orden[n], d) / 4294967296.0, Impresos[n][d]) << n << " " << d;
}

// Of any 2^m points each of 2^m equal parts of each side has one, with any seed.
TEST(SucesionDeSobol, CadaLadoQuedaRepartido)
{
    constexpr std::uint32_t N = 256;
    for (const std::uint64_t semilla : {1ULL, 99ULL << 40}) {
        const calibration::SucesionDeSobol s(calibration::DimensionesDeSobol, semilla);
        for (std::size_t d = 0; d < calibration::DimensionesDeSobol; ++d) {
            std::set<int> partes;
            for (std::uint32_t k = N; k < 2 * N; ++k)
                partes.insert(static_cast<int>(s(k, d) * N));
            EXPECT_EQ(partes.size(), N) << d;
        }
    }
}

// No two sides go together, nor does a side beyond the table with one of it: the square's quarters hold as
// many.
TEST(SucesionDeSobol, LosCuartosDeCadaParSonParejos)
{
    constexpr std::uint32_t N = 1024;
    const calibration::SucesionDeSobol s(calibration::DimensionesDeSobol + 2, 3);
    for (std::size_t d = 0; d + 1 < calibration::DimensionesDeSobol + 2; ++d) {
        int cuarto = 0;
        for (std::uint32_t k = 0; k < N; ++k)
            cuarto += s(k, d) < 0.5 && s(k, d + 1) < 0.5 ? 1 : 0;
        EXPECT_NEAR(cuarto, N / 4, 60) << d;  // four times sqrt(1024 * 1/4 * 3/4)
    }
}

// --- plans ---

TEST(Tornado, UnoPorVezDesdeLoActual)
{
    const std::vector<Rango> rangos{{1, 3, false, 2.5}, {10, 100, true, 500}};
    const calibration::Plan plan = Metodo("tornado").plan(rangos, {});
    ASSERT_EQ(plan.cuantos, 5);
    const Filas puntos{{2.5, 500}, {1, 500}, {3, 500}, {2.5, 10}, {2.5, 100}};
    std::vector<double> valores;
    for (std::size_t k = 0; k < plan.cuantos; ++k) {
        EXPECT_EQ(plan.punto(k), puntos[k]) << k;
        valores.push_back(10 * puntos[k][0] - puntos[k][1]);
    }
    const Filas esperadas{{-490, -470, 20}, {15, -75, 90}};
    EXPECT_EQ(Metodo("tornado").calcula(2, {}, valores), esperadas);
}

// Each trajectory changes each parameter once, by 2/3 of its range, from and to one of four levels.
TEST(Morris, LasTrayectoriasCambianCadaParametroUnaVez)
{
    constexpr std::size_t D = 5;
    const Sensibilidad s{.trayectorias = 40, .semilla = 11};
    const calibration::Plan plan = Metodo("morris").plan(std::vector<Rango>(D), s);
    ASSERT_EQ(plan.cuantos, 40 * (D + 1));
    std::set<std::vector<std::size_t>> ordenes;
    std::set<double> niveles;
    for (std::size_t t = 0; t < 40; ++t) {
        std::vector<std::size_t> orden;
        for (std::size_t i = 0; i < D; ++i) {
            const std::vector<double> a = plan.punto(t * (D + 1) + i), b = plan.punto(t * (D + 1) + i + 1);
            for (std::size_t j = 0; j < D; ++j) {
                niveles.insert(std::round(3 * a[j]) / 3);
                if (a[j] == b[j]) continue;
                orden.push_back(j);
                EXPECT_NEAR(std::abs(a[j] - b[j]), 2.0 / 3, 1e-15);
            }
        }
        EXPECT_EQ(std::set<std::size_t>(orden.begin(), orden.end()).size(), D);
        EXPECT_EQ(orden.size(), D);
        ordenes.insert(orden);
    }
    EXPECT_EQ(niveles.size(), 4);
    EXPECT_GT(ordenes.size(), 25);  // of the 120 that there are
}

// A linear function: its effects are its coefficients times the range, all alike.
TEST(Morris, DeUnaLinealDaSusCoeficientes)
{
    const calibration::casos::FuncionConocida lineal{
        {{0, 10}, {5, 6}, {1, 2}}, [](const std::vector<double>& x) { return 3 * x[0] - 7 * x[1]; }};
    const Filas filas = calibration::casos::IndicesDe("morris", lineal, {.trayectorias = 6, .niveles = 8});
    const Filas esperadas{{30, 30, 0, 6}, {7, -7, 0, 6}, {0, 0, 0, 6}};
    for (std::size_t i = 0; i < filas.size(); ++i)
        for (std::size_t j = 0; j < 4; ++j)
            EXPECT_NEAR(filas[i][j], esperadas[i][j], 1e-12) << i << " " << j;
}

// All 2 x 4^5 places of the grid in Python: mean without signs, mean, standard deviation.
TEST(Morris, FuncionDeVeinteEntradas)
{
    constexpr int Trayectorias = 1000;
    const Filas filas = calibration::casos::IndicesDe("morris", calibration::casos::FuncionDeMorris(),
                                                      {.trayectorias = Trayectorias, .semilla = 5});
    const Filas esperadas{
        {63.856415186988364, 12.698291965414423, 75.21044828670307},
        {63.856415186988364, 12.698291965414423, 75.21044828670307},
        {50.818520480522196, 23.284303307569285, 69.77818766502041},
        {63.856415186988364, 12.698291965414423, 75.21044828670307},
        {50.539371501017875, 23.284303307569285, 69.64832888279949},
        {43.269883988294325, 15.919732441471092, 51.97011263664191},
        {33.31103678929766, 33.31103678929766, 24.080267558528426},
    };
    const double error = 4 / std::sqrt(Trayectorias);  // four standard errors of a mean, in deviations
    for (std::size_t i = 0; i < esperadas.size(); ++i) {
        const double sigma = esperadas[i][2];
        EXPECT_NEAR(filas[i][0], esperadas[i][0], error * sigma) << i;
        EXPECT_NEAR(filas[i][1], esperadas[i][1], error * sigma) << i;
        EXPECT_NEAR(filas[i][2], sigma, 0.1 * sigma) << i;
    }
    // What the paper finds: inputs 8 to 10 matter and act alone, the last ten don't matter.
    for (std::size_t i = 7; i < 20; ++i) {
        EXPECT_NEAR(filas[i][0], i < 10 ? 40 : 0, 1e-9) << i;
        EXPECT_NEAR(filas[i][2], 0, 1e-9) << i;
    }
    const std::vector<std::size_t> sin = calibration::SinEfecto(Metodo("morris"), filas);
    EXPECT_EQ(sin, (std::vector<std::size_t>{10, 11, 12, 13, 14, 15, 16, 17, 18, 19}));
}

// --- Sobol ---

TEST(Sobol, CadaMuestraTomaUnParametroDeLaOtra)
{
    const calibration::Plan plan = Metodo("sobol").plan(std::vector<Rango>(3), {.base = 16, .semilla = 4});
    ASSERT_EQ(plan.cuantos, 16 * 5);
    for (std::size_t j = 0; j < 16; ++j) {
        const std::vector<double> A = plan.punto(5 * j), B = plan.punto(5 * j + 1);
        for (std::size_t i = 0; i < 3; ++i) {
            std::vector<double> esperado = A;
            esperado[i] = B[i];
            EXPECT_NE(A[i], B[i]);
            EXPECT_EQ(plan.punto(5 * j + 2 + i), esperado);
        }
    }
}

// Integrals of the sources' formulas: 0.3139, 0.4424, 0; total 0.5576, 0.4424, 0.2437.
TEST(Sobol, IshigamiConCualquierSemilla)
{
    const std::vector<double> primeros{0.3139051911478115, 0.4424111447900408, 0};
    const std::vector<double> totales{0.5575888552099592, 0.4424111447900408, 0.2436836640621477};
    for (const std::uint64_t semilla : {1U, 2U, 3U, 4U}) {
        const Filas filas = calibration::casos::IndicesDe("sobol", calibration::casos::Ishigami(),
                                                          {.base = 2048, .semilla = semilla});
        for (std::size_t i = 0; i < 3; ++i) {
            // A standard error of plain sampling, 1.09 and 1.50 by sqrt(2048) from a calculation in Python.
            EXPECT_NEAR(filas[i][0], primeros[i], 0.024) << i;
            EXPECT_NEAR(filas[i][3], totales[i], 0.033) << i;
            // The intervals hold the value, and so they do the truth.
            EXPECT_LT(filas[i][1], std::min(filas[i][0], primeros[i])) << i;
            EXPECT_GT(filas[i][2], std::max(filas[i][0], primeros[i])) << i;
            EXPECT_LT(filas[i][4], std::min(filas[i][3], totales[i])) << i;
            EXPECT_GT(filas[i][5], std::max(filas[i][3], totales[i])) << i;
            EXPECT_LT(filas[i][2] - filas[i][1], 0.2) << i;
        }
    }
}

// 9 x1 + 12 x2: parts 81/225 and 144/225 of the variance, alone and in all; the level of the function doesn't
// count, since samples are centred.
TEST(Sobol, UnaLinealLejosDeCero)
{
    const calibration::casos::FuncionConocida lineal{
        std::vector<Rango>(3), [](const std::vector<double>& x) { return 1e6 + 9 * x[0] + 12 * x[1]; }};
    const Filas filas = calibration::casos::IndicesDe("sobol", lineal, {.base = 1024});
    const std::vector<double> partes{81.0 / 225, 144.0 / 225, 0};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(filas[i][0], partes[i], 0.002) << i;
        EXPECT_NEAR(filas[i][3], partes[i], 0.002) << i;
    }
    EXPECT_EQ(calibration::PorImportancia(Metodo("sobol"), filas), (std::vector<std::size_t>{1, 0, 2}));
    EXPECT_EQ(calibration::SinEfecto(Metodo("sobol"), filas), (std::vector<std::size_t>{2}));
}

TEST(Sobol, LoQueNoVariaNoTieneIndices)
{
    const calibration::casos::FuncionConocida fija{std::vector<Rango>(2),
                                                   [](const std::vector<double>&) { return 3.0; }};
    for (const std::vector<double>& fila : calibration::casos::IndicesDe("sobol", fija, {.base = 16}))
        EXPECT_TRUE(std::ranges::all_of(fila, [](double x) { return std::isnan(x); }));
}

// --- all of them ---

// A run that failed takes with it what needs it, and no more.
TEST(Sensibilidad, LoFalladoQuedaAfuera)
{
    const calibration::casos::FuncionConocida g = calibration::casos::Ishigami();
    for (const MetodoDeSensibilidad& m : calibration::MetodosDeSensibilidad()) {
        const Sensibilidad s{.trayectorias = 50, .base = 1024};
        const calibration::Plan plan = m.plan(g.rangos, s);
        std::vector<double> valores;
        for (std::size_t k = 0; k < plan.cuantos; ++k)
            valores.push_back(g.f(plan.punto(k)));
        const Filas todas = m.calcula(3, s, valores);
        valores[5] = std::numeric_limits<double>::quiet_NaN();
        const Filas filas = m.calcula(3, s, valores);
        if (m.clave == "tornado") {
            EXPECT_TRUE(std::isnan(filas[2][0]) && std::isnan(filas[2][2]));
            EXPECT_EQ(filas[2][1], todas[2][1]);
            EXPECT_EQ(calibration::PorImportancia(m, filas).back(), 2);
        } else if (m.clave == "morris") {
            EXPECT_EQ(filas[0][3] + filas[1][3] + filas[2][3], 148);  // it ends an effect, begins another
        } else {
            for (std::size_t i = 0; i < 3; ++i)
                EXPECT_NEAR(filas[i][3], todas[i][3], 0.01);
        }
    }
}

TEST(Sensibilidad, LoQueNoSePuedePedirSeDice)
{
    EXPECT_EQ(Metodo("tornado").reparo({}), "");
    EXPECT_EQ(Metodo("morris").reparo({}), "");
    EXPECT_EQ(Metodo("sobol").reparo({}), "");
    EXPECT_EQ(Metodo("morris").reparo({.niveles = 5}), "Los niveles de Morris son un número par, 2 o más.");
    EXPECT_EQ(Metodo("morris").reparo({.trayectorias = 1}), "Las trayectorias de Morris son 2 o más.");
    for (const int base : {0, -4, 8, 1000, 1 << 21})
        EXPECT_EQ(Metodo("sobol").reparo({.base = base}),
                  "La base de Sobol es una potencia de dos, de 16 a 1048576.");
    EXPECT_EQ(calibration::MetodoDeSensibilidadDe("otro"), nullptr);
}

}  // namespace
