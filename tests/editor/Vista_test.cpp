// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Vista.h"

#include <gtest/gtest.h>

namespace editor {
namespace {

/// 200 by 100 pixels of a drawing 400 wide, whose corner is at (10, 20).
Vista DeCuatrocientos()
{
    Vista v;
    v.lienzo = {200, 100};
    v.sldEscala = 50;
    v.origen = {10, 20};
    return v;
}

TEST(Vista, UnPixelEsUnPuntoDelDibujoYVuelve)
{
    const Vista v = DeCuatrocientos();
    EXPECT_EQ(AnchoLogico(v), 400);  // 50 % of 800
    EXPECT_EQ(DePixel(v, 50, 50), (Punto{110, 220}));
    EXPECT_EQ(APixel(v, {110, 220}), (Pixel{50, 50}));
    EXPECT_EQ(ToleranciaPresente(v), 8);  // 2 % of 400
}

TEST(Vista, LaEscalaYLasBarrasSeAcotan)
{
    Vista v;
    PonEscala(v, 0);
    EXPECT_EQ(v.sldEscala, EscalaMinima);
    EXPECT_TRUE(v.recentra);
    PonEscala(v, 2000);
    EXPECT_EQ(v.sldEscala, EscalaMaxima);
    MueveBarra(v.ScrEscalaHor, v.movidoHor, 150);
    MueveBarra(v.ScrEscalaHor, v.movidoHor, 30);
    EXPECT_EQ(v.ScrEscalaHor, 30);
    EXPECT_EQ(v.movidoHor, 30);  // 100 forth, 70 back
}

TEST(Vista, LaRuedaAcercaYDejaElPuntoBajoElPuntero)
{
    Vista v = DeCuatrocientos();
    Gira(v, 1, {110, 220});
    EXPECT_EQ(v.sldEscala, 45);  // 50 / 1.1, rounded
    EXPECT_NEAR(APixel(v, {110, 220}).x, 50, 1e-3);
    v.sldEscala = 2;
    Gira(v, 1, {});
    EXPECT_EQ(v.sldEscala, 1) << "a tenth would round to nothing";
}

}  // namespace
}  // namespace editor
