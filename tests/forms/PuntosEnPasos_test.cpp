// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/PuntosEnPasos.h"

#include <gtest/gtest.h>

#include <vector>

namespace forms {
namespace {

TEST(PuntosEnPasos, CadaLecturaVaAlPasoMasCercanoYDeDosLaMasCercana)
{
    const std::vector<PuntoEnTiempo> puntos{{-5, 9},   {0, 8},  {6, 1},  {12, 2},
                                            {18.5, 3}, {21, 4}, {44, 5}, {60, 6}};
    const PuntosEnPasos p = EnPasos(puntos, 4, 10);
    EXPECT_EQ(p.serie.tipo, TipoSerie::Puntos2D);
    ASSERT_EQ(p.serie.celdas.size(), 4U);
    EXPECT_EQ(p.serie.celdas[0], 2);  // 12 is nearer to 10 than 6 is
    EXPECT_EQ(p.serie.celdas[1], 4);  // 21 nearer to 20 than 18.5
    EXPECT_TRUE(EstaVacia(p.serie.celdas[2]));
    EXPECT_EQ(p.serie.celdas[3], 5);
    EXPECT_EQ(p.fuera, 5U);
    EXPECT_EQ(EnPasos(puntos, 0, 10).fuera, 8U);
    EXPECT_EQ(EnPasos(puntos, 4, 0).fuera, 8U);
}

}  // namespace
}  // namespace forms
