// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/GraficosDeFichas.h"

#include <gtest/gtest.h>

#include <limits>

namespace editor {
namespace {

CurvaTabla Curva(std::vector<PuntoCurva> puntos)
{
    return {"H [m]", "S [m3]", std::move(puntos)};
}

TEST(GraficosDeFichas, UnaTablaSeMuestreaEnNumerosRedondosConSusDosExtremos)
{
    // 8 m in steps of 0.1: the least round one of which no more than 80 fit.
    const forms::Grafico g = GraficoDe(Curva({{0, 0}, {2, 20}, {8, 80}}));
    ASSERT_EQ(g.categorias.size(), 81U);
    EXPECT_EQ(g.categorias.front(), "0");
    EXPECT_EQ(g.categorias[1], "0.1");
    EXPECT_EQ(g.categorias.back(), "8");
    EXPECT_EQ(g.series.size(), 1U);
    EXPECT_DOUBLE_EQ(g.series[0].celdas[0], 0);
    EXPECT_DOUBLE_EQ(g.series[0].celdas[5], 5);
    EXPECT_DOUBLE_EQ(g.series[0].celdas[80], 80);
    EXPECT_EQ(g.ejeX, "H [m]");
    EXPECT_EQ(g.ejeY, "S [m3]");
    EXPECT_EQ(g.escala.primeraFila, 0);
}

TEST(GraficosDeFichas, LasFilasDeUnaTablaQueNoEmpiezaEnCeroLlevanSuNumero)
{
    // 10 m in steps of 0.2 (0.125 wouldn't be round): 100.3 lies between rows 501 and 502 of the scale.
    const forms::Grafico g = GraficoDe(Curva({{100.3, 0}, {110.3, 10}}));
    EXPECT_EQ(g.categorias.front(), "100.4");
    EXPECT_EQ(g.categorias.back(), "110.2");
    EXPECT_EQ(g.escala.primeraFila, 502);
    EXPECT_NEAR(g.series[0].celdas.front(), 0.1, 1e-9);
}

TEST(GraficosDeFichas, UnPuntoQueNoSubeSeSalteaYLosDemasQuedan)
{
    const forms::Grafico g = GraficoDe(Curva({{0, 0}, {5, 50}, {5, 99}, {3, 99}, {10, 100}}));
    EXPECT_EQ(g.categorias.back(), "10");
    for (const double celda : g.series[0].celdas)
        EXPECT_LE(celda, 100);
    EXPECT_DOUBLE_EQ(g.series[0].celdas[g.categorias.size() / 2], 50);
}

TEST(GraficosDeFichas, LoQueNoCabeEn32BitsSeSaltea)
{
    const double enorme = 1e300;
    const forms::Grafico g = GraficoDe(Curva({{0, 0}, {1, enorme}, {2, 4}, {enorme, 1}}));
    EXPECT_EQ(g.categorias.back(), "2");
    EXPECT_DOUBLE_EQ(g.series[0].celdas.back(), 4);
}

TEST(GraficosDeFichas, UnaTablaSinPuntosTieneSoloEjesYUnaDeUnPuntoEsePunto)
{
    EXPECT_TRUE(GraficoDe(Curva({})).categorias.empty());
    const forms::Grafico g = GraficoDe(Curva({{7, 3}}));
    EXPECT_EQ(g.categorias, (std::vector<std::string>{"7"}));
    EXPECT_EQ(g.series[0].celdas, (std::vector<double>{3}));
}

TEST(GraficosDeFichas, LaInfiltracionMarcaDondeEmpiezaLaTormenta)
{
    // b = 1: a straight line. 180 min in steps of 2.5.
    const forms::Grafico g = GraficoDe(CurvaKostiakov(2, 1, 0));
    EXPECT_EQ(g.categorias.size(), 73U);
    EXPECT_EQ(g.categorias.back(), "180");
    EXPECT_NEAR(g.series[0].celdas.back(), 360, 1e-9);
    EXPECT_TRUE(g.marcas.empty());
    // 190 min in steps of 2.5 too; 10 min is row 4.
    const forms::Grafico mojado = GraficoDe(CurvaKostiakov(2, 1, 10));
    ASSERT_EQ(mojado.marcas.size(), 1U);
    EXPECT_EQ(mojado.marcas[0], (forms::Marca{0, 4, "T inicial", true}));
    EXPECT_EQ(mojado.categorias[4], "10");
}

TEST(GraficosDeFichas, SinCurvaDeInfiltracionQuedanLosEjes)
{
    const forms::Grafico g = GraficoDe(std::optional<CurvaInfiltracion>{});
    EXPECT_TRUE(g.categorias.empty());
    EXPECT_EQ(g.ejeX, "t [min]");
    EXPECT_EQ(g.ejeY, "I [mm]");
}

}  // namespace
}  // namespace editor
