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
