// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grafico.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(EscalaDeCategorias, SeDuplicaYSeParteEnEnteros)
{
    EscalaCategorias escala;
    MasDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 2, 1, true}));
    MasDivisiones(escala);
    MasDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 8, 4, true}));
    escala.divisionesPorRotulo = 7;
    MenosDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 3, 1, true}));
    MenosDivisiones(escala);
    MenosDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 1, 0, true}));
    MasDivisiones(escala);
    EXPECT_EQ(escala, (EscalaCategorias{false, 2, 1, true}));
}

TEST(EscalaDeCategorias, NuncaDesborda)
{
    EscalaCategorias escala;
    for (int i = 0; i < 40; ++i)
        MasDivisiones(escala);
    EXPECT_EQ(escala.divisionesPorRotulo, 16384);
}

TEST(CeldasDeGrafico, SeGuardanComoTextoSeparadoPorComas)
{
    Grafico grafico;
    grafico.ejeX = "horas";
    grafico.categorias = {"0.16", "0.33"};
    grafico.series = {{TipoSerie::Linea2D, "Qsale", false, {1.5, 0.1F}},
                      {TipoSerie::Escalon2D, "la \"Pp\"", true, {20, 0}}};
    EXPECT_EQ(CeldasComoCsv(grafico),
              "\"horas\",\"Qsale\",\"la \"\"Pp\"\"\"\r\n0.16,1.5,20\r\n0.33,0.1,0\r\n");
    EXPECT_EQ(CeldasComoCsv({}), "\"\"\r\n");
}

TEST(CeldasDeGrafico, UnaVaciaNoDejaNadaYUnVolumenTodasSusCifras)
{
    Grafico grafico;
    grafico.categorias = {"60", "120"};
    grafico.series = {{TipoSerie::Linea2D, "10", false, {CeldaVacia, 1234567890}},
                      {TipoSerie::Linea2D, "25", false, {0.123456789, CeldaVacia}}};
    EXPECT_EQ(CeldasComoCsv(grafico), "\"\",\"10\",\"25\"\r\n60,,0.1234568\r\n120,1234567890,\r\n");
}

TEST(CeldasDeGrafico, LasVaciasSonIgualesEntreSiYANingunaOtra)
{
    const Serie vacia{TipoSerie::Linea2D, "10", false, {CeldaVacia, 1}};
    EXPECT_EQ(vacia, (Serie{TipoSerie::Linea2D, "10", false, {CeldaVacia, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", false, {0, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", false, {CeldaVacia, 2}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", false, {CeldaVacia}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "25", false, {CeldaVacia, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Linea2D, "10", true, {CeldaVacia, 1}}));
    EXPECT_NE(vacia, (Serie{TipoSerie::Escalon2D, "10", false, {CeldaVacia, 1}}));
}

}  // namespace
}  // namespace forms
