// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/Cauces.h"

#include <gtest/gtest.h>

#include "apoyo/Compara.h"

namespace editor {
namespace {

using Puntos = std::vector<Punto>;

TEST(LineaDeUnCauce, SePoneEnLugarDeLaQueEstaba)
{
    model::Red red;
    PonLinea(red, 2, {{1, 2}, {3, 4}, {5, 6}});
    EXPECT_EQ(red.NroVertices(2), 3);
    EXPECT_EQ(UltimoVertice(red, 2), (Punto{5, 6}));
    PonLinea(red, 2, {{7, 8}});
    EXPECT_EQ(Linea(red, 2), (Puntos{{7, 8}}));
    EXPECT_EQ(red.XVertice.TopeColumna(), 3) << "the bound of the vertices doesn't shrink";
    PonLinea(red, 2, {});
    EXPECT_EQ(Linea(red, 2), Puntos{});
}

TEST(LineaDeUnCauce, LlegaHastaDondeHayVerticesEnMemoria)
{
    model::Red red;
    PonLinea(red, 1, {{1, 2}, {3, 4}});
    red.NroVertices(1) = 9;
    EXPECT_EQ(Linea(red, 1), (Puntos{{1, 2}, {3, 4}}));
}

TEST(LineaDeUnCauce, DetrasDelUltimoCauceEsFalla9)
{
    model::Red red;
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { PonLinea(red, model::MaxNroVertices + 1, {}); }), 9);
}

}  // namespace
}  // namespace editor
