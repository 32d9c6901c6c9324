// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Lista.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

TEST(Lista, SeEligePorElTextoElPrimeroDeDosIguales)
{
    Lista lista{{"a", "b", "b"}};
    EXPECT_TRUE(lista.Elige("b"));
    EXPECT_EQ(lista.indice, 1);
    EXPECT_EQ(lista.Elegido(), "b");
}

TEST(Lista, LoQueNoEstaNoSeElige)
{
    Lista lista{{"a"}, 0};
    EXPECT_FALSE(lista.Elige("A"));
    EXPECT_EQ(lista.indice, -1);
    EXPECT_EQ(lista.Elegido(), "");
}

TEST(Lista, ConOtrosItemsElElegidoLoSigueSiendoMientrasEste)
{
    Lista lista{{"a", "b"}, 1};
    lista.PonItems({"b", "c"});
    EXPECT_EQ(lista, (Lista{{"b", "c"}, 0}));
    lista.PonItems({"c"});
    EXPECT_EQ(lista, (Lista{{"c"}, -1}));
    lista.PonItems({"b"});
    EXPECT_EQ(lista.indice, -1);
}

}  // namespace
}  // namespace forms
