// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/EscalaDeCaudal.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace results {
namespace {

TEST(EscalaDeCaudal, SuTopeEsElMenorRedondoQueAlcanza)
{
    struct Caso {
        double mayor, tope;
    };
    for (const Caso& c : std::initializer_list<Caso>{{0, 1},
                                                     {-4, 1},
                                                     {std::numeric_limits<double>::quiet_NaN(), 1},
                                                     {std::numeric_limits<double>::infinity(), 1},
                                                     {0.07, 0.08},
                                                     {0.7, 0.8},
                                                     {1, 1},
                                                     {1.01, 2},
                                                     {2.5, 3},
                                                     {7, 8},
                                                     {8.001, 10},
                                                     {100, 100},
                                                     {101, 200},
                                                     {1000, 1000},
                                                     {36000, 40000}})
        EXPECT_DOUBLE_EQ(EscalaHasta(c.mayor).tope, c.tope) << c.mayor;
}

TEST(EscalaDeCaudal, ElLugarEsLaRaizDelCaudalSobreElTope)
{
    const EscalaDeCaudal escala{100};
    EXPECT_EQ(escala.Parte(25), 0.5);
    EXPECT_EQ(escala.Parte(1), 0.1);
    EXPECT_EQ(escala.Parte(100), 1);
    EXPECT_EQ(escala.Parte(400), 1);
    EXPECT_EQ(escala.Parte(0), 0);
    EXPECT_EQ(escala.Parte(-3), 0);
    EXPECT_EQ(escala.Parte(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(escala.Marcas(), (std::array<double, 5>{0, 10, 25, 50, 100}));
}

// Viridis as published, at 0, 1/4, 1/2, 3/4 and 1 from its light end: #FDE725, #5EC962, #21918C, #3B528B,
// #440154. Halfway between the first two: (253 + 94) / 2 = 173.5, (231 + 201) / 2 = 216, (37 + 98) / 2
// = 67.5.
TEST(EscalaDeCaudal, LosColoresPasanPorLosHitosDeViridis)
{
    EXPECT_EQ(Color(0), (ColorDeCaudal{253, 231, 37}));
    EXPECT_EQ(Color(0.25), (ColorDeCaudal{94, 201, 98}));
    EXPECT_EQ(Color(0.5), (ColorDeCaudal{33, 145, 140}));
    EXPECT_EQ(Color(0.75), (ColorDeCaudal{59, 82, 139}));
    EXPECT_EQ(Color(1), (ColorDeCaudal{68, 1, 84}));
    EXPECT_EQ(Color(0.125), (ColorDeCaudal{174, 216, 68}));
    EXPECT_EQ(Color(-1), Color(0));
    EXPECT_EQ(Color(2), Color(1));
}

/// Lightness L* of CIE 1976, 0 to 100, of linear sRGB.
double Claridad(const std::array<double, 3>& lineal)
{
    const double y = 0.2126 * lineal[0] + 0.7152 * lineal[1] + 0.0722 * lineal[2];
    return 116 * std::cbrt(y) - 16;
}

double Lineal(int canal)
{
    const double c = canal / 255.;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

/// What a deuteranope sees, Viénot, Brettel and Mollon 1999.
std::array<double, 3> SinVerde(const std::array<double, 3>& c)
{
    const double rojoVerde = 0.29275 * c[0] + 0.70725 * c[1];
    return {rojoVerde, rojoVerde, -0.02234 * c[0] + 0.02234 * c[1] + c[2]};
}

TEST(EscalaDeCaudal, CadaDecimoEsMasOscuroTambienParaQuienNoVeElVerde)
{
    double antes = 101, antesSinVerde = 101;
    for (int i = 0; i <= 10; ++i) {
        const ColorDeCaudal color = Color(i / 10.);
        const std::array<double, 3> lineal{Lineal(color.rojo), Lineal(color.verde), Lineal(color.azul)};
        const double claridad = Claridad(lineal), sinVerde = Claridad(SinVerde(lineal));
        EXPECT_LT(claridad, antes - 5) << i;
        EXPECT_LT(sinVerde, antesSinVerde - 5) << i;
        antes = claridad;
        antesSinVerde = sinVerde;
    }
    EXPECT_LT(antes, 20);
}

TEST(EscalaDeCaudal, LosTamanosCrecenConElLugar)
{
    EXPECT_EQ(AnchoDeCauce(0), 2);
    EXPECT_EQ(AnchoDeCauce(0.5), 8);
    EXPECT_EQ(AnchoDeCauce(1), 14);
    EXPECT_EQ(LadoDeSimbolo(0), 9);
    EXPECT_EQ(LadoDeSimbolo(0.5), 18);
    EXPECT_EQ(LadoDeSimbolo(1), 27);
}

TEST(EscalaDeCaudal, LosCaudalesSeEscribenConTresCifras)
{
    EXPECT_EQ(TextoDeCaudal(1234.6), "1235");
    EXPECT_EQ(TextoDeCaudal(123.4), "123");
    EXPECT_EQ(TextoDeCaudal(12.34), "12.3");
    EXPECT_EQ(TextoDeCaudal(1.234), "1.23");
    EXPECT_EQ(TextoDeCaudal(0.1234), "0.123");
    EXPECT_EQ(TextoDeCaudal(0), "0");
}

TEST(EscalaDeCaudal, ElTiempoVaEnHorasYMinutos)
{
    EXPECT_EQ(TextoDeTiempo(0), "0:00");
    EXPECT_EQ(TextoDeTiempo(65), "1:05");
    EXPECT_EQ(TextoDeTiempo(320), "5:20");
    EXPECT_EQ(TextoDeTiempo(1500), "25:00");
}

}  // namespace
}  // namespace results
