// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/Kostiakov.h"

#include <gtest/gtest.h>

namespace editor {
namespace {

TEST(CurvaKostiakov, TieneSesentaTramosIgualesHastaTresHorasDeTormenta)
{
    const CurvaInfiltracion curva = CurvaKostiakov(2, 0.5, 60);  // 240 min in steps of 4
    ASSERT_EQ(curva.t.size(), 61U);
    ASSERT_EQ(curva.I.size(), 61U);
    EXPECT_EQ(curva.t.front(), 0);
    EXPECT_EQ(curva.t[1], 4);
    EXPECT_EQ(curva.t.back(), 240);
}

TEST(CurvaKostiakov, CadaPuntoEsAPorTALaB)
{
    const CurvaInfiltracion curva = CurvaKostiakov(2, 0.5, 60);
    EXPECT_EQ(curva.I[0], 0);
    EXPECT_DOUBLE_EQ(curva.I[1], 4);    // 2·√4
    EXPECT_DOUBLE_EQ(curva.I[4], 8);    // 2·√16
    EXPECT_DOUBLE_EQ(curva.I[25], 20);  // 2·√100
    for (std::size_t i = 1; i < curva.I.size(); ++i)
        EXPECT_GT(curva.I[i], curva.I[i - 1]) << i;
}

TEST(CurvaKostiakov, LaTormentaEmpiezaEnElTiempoInicial)
{
    const CurvaInfiltracion curva = CurvaKostiakov(3, 0.5, 25);
    EXPECT_EQ(curva.tInicial, 25);
    EXPECT_DOUBLE_EQ(curva.IInicial, 15);  // 3·√25
    EXPECT_EQ(CurvaKostiakov(3, 0.5, 0).IInicial, 0);
}

TEST(CurvaKostiakov, LosExtremosDeBSonUnaRectaYUnaConstante)
{
    const CurvaInfiltracion recta = CurvaKostiakov(2, 1, 0);  // steps of 3 min
    EXPECT_DOUBLE_EQ(recta.I[10], 60);
    EXPECT_DOUBLE_EQ(recta.I.back(), 360);
    const CurvaInfiltracion constante = CurvaKostiakov(7, 0, 0);
    for (const double I : constante.I)
        EXPECT_EQ(I, 7);
}

TEST(CurvaKostiakov, SinANoInfiltraNada)
{
    const CurvaInfiltracion curva = CurvaKostiakov(0, 0.5, 10);
    for (const double I : curva.I)
        EXPECT_EQ(I, 0);
    EXPECT_EQ(curva.IInicial, 0);
}

}  // namespace
}  // namespace editor
