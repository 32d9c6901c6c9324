// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Renglon.h"

#include <gtest/gtest.h>

#include <string>

namespace engine {
namespace {

std::string Blancos(std::size_t n)
{
    return std::string(n, ' ');
}

TEST(Renglon, ALaIzquierdaConBlancosDetras)
{
    Renglon r;
    r.Izquierda(std::int32_t{12}, 5).Izquierda(-0.5F, 6).Izquierda(1.25, 4);
    EXPECT_EQ(r.Texto(), "12   -0.5  1.25");
}

TEST(Renglon, ALaDerechaConBlancosDelante)
{
    Renglon r;
    r.Derecha(std::int32_t{12}, 5).Derecha(-0.5F, 6).DerechaTexto("ñu", 4);
    EXPECT_EQ(r.Texto(), "   12  -0.5  ñu");
}

TEST(Renglon, LoMasLargoQueSuAnchoVaEntero)
{
    Renglon r;
    r.Izquierda(12345.5F, 3).Derecha(std::int32_t{-32768}, 2).DerechaTexto("presa", 3).Derecha(7.0, 0);
    EXPECT_EQ(r.Texto(), "12345.5-32768presa7");
}

TEST(Renglon, ElDetalleLlevaUnBlancoSalvoEnLosNegativos)
{
    Renglon r;
    r.Detalle(1.5F, 2).Detalle(-1.5F, 3).Detalle(std::int32_t{-4}, 0).Detalle(0.0, 1).Detalle(-0.0F, 0);
    EXPECT_EQ(r.Texto(), " 1.5  -1.5   -4 0  0");
}

// Blanks go by the word: fewer than one, one, and more.
TEST(Renglon, CualquierCantidadDeBlancos)
{
    for (std::size_t n = 0; n <= 50; ++n) {
        Renglon r;
        r.Pone("a").Blancos(n).Pone("b").Izquierda(std::int32_t{1}, n).Derecha(std::int32_t{2}, n);
        const std::string resto = n > 1 ? Blancos(n - 1) : "";
        EXPECT_EQ(r.Texto(), "a" + Blancos(n) + "b1" + resto + resto + "2");
    }
}

TEST(Renglon, CreceYSeVuelveAEmpezar)
{
    Renglon r;
    EXPECT_EQ(r.Texto(), "");
    std::string esperado;
    for (int i = 0; i < 1000; ++i) {
        r.Pone("columna").Derecha(std::int32_t{i % 10}, 2);
        esperado += "columna " + std::to_string(i % 10);
    }
    EXPECT_EQ(r.Texto(), esperado);
    r.Vacia();
    EXPECT_EQ(r.Texto(), "");
    EXPECT_EQ(r.Pone("otra").Texto(), "otra");
}

}  // namespace
}  // namespace engine
