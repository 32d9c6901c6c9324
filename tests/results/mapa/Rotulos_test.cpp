// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/Rotulos.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace results {
namespace {

constexpr Caja Marco{0, 0, 100, 100};
const RotuloPedido EnElMedio{{50, 50}, 5, {{0, 0, 20, 10}}};

// A label of 20 by 10 that keeps 5 away from (50, 50): to the right it begins at x = 55 and is centred on
// y = 50, to the left it ends at 45, below it begins at y = 55, above it ends at 45.
TEST(Rotulos, BuscanLugarAlrededorDeLoSuyo)
{
    const auto puestos = ColocaRotulos({EnElMedio, EnElMedio, EnElMedio, EnElMedio}, Marco, {});
    ASSERT_EQ(puestos.size(), 4U);
    EXPECT_EQ(puestos[0], (RotuloPuesto{0, 0, {55, 45, 20, 10}}));
    EXPECT_EQ(puestos[1], (RotuloPuesto{1, 0, {25, 45, 20, 10}}));
    EXPECT_EQ(puestos[2], (RotuloPuesto{2, 0, {40, 55, 20, 10}}));
    EXPECT_EQ(puestos[3], (RotuloPuesto{3, 0, {40, 35, 20, 10}}));
}

// The corners begin where the sides end: (55, 55) is covered by the label below, 40 to 60 wide.
TEST(Rotulos, SinLugarQuedanAfuera)
{
    const auto puestos = ColocaRotulos({EnElMedio, EnElMedio, EnElMedio, EnElMedio, EnElMedio}, Marco, {});
    EXPECT_EQ(puestos.size(), 4U);
    EXPECT_TRUE(ColocaRotulos({EnElMedio}, {0, 0, 10, 10}, {}).empty());
}

TEST(Rotulos, UnObstaculoYElBordeLosCorren)
{
    EXPECT_EQ(ColocaRotulos({EnElMedio}, Marco, {{{60, 40, 5, 20}}}).at(0).caja, (Caja{25, 45, 20, 10}));
    EXPECT_EQ(ColocaRotulos({{{95, 50}, 5, {{0, 0, 20, 10}}}}, Marco, {}).at(0).caja, (Caja{70, 45, 20, 10}));
    // In the lower right corner: left of it there is no room below, so it goes up and left.
    EXPECT_EQ(ColocaRotulos({{{98, 98}, 5, {{0, 0, 20, 10}}}}, Marco, {}).at(0).caja, (Caja{73, 83, 20, 10}));
}

TEST(Rotulos, ElTextoMasLlenoQueCabe)
{
    const RotuloPedido conCorto{{50, 50}, 5, {{0, 0, 90, 30}, {0, 0, 20, 10}}};
    EXPECT_EQ(ColocaRotulos({conCorto}, Marco, {}).at(0), (RotuloPuesto{0, 0, {5, 55, 90, 30}}));
    EXPECT_EQ(ColocaRotulos({conCorto}, Marco, {{{0, 0, 100, 30}, {0, 70, 100, 30}}}).at(0),
              (RotuloPuesto{0, 1, {55, 45, 20, 10}}));
}

// Over a reach that takes the whole right side they go to the left; where it takes all, they lie on it.
TEST(Rotulos, DejanLibreElCauceSiPueden)
{
    EXPECT_EQ(ColocaRotulos({EnElMedio}, Marco, {{}, {{55, 0, 45, 100}}}).at(0).caja, (Caja{25, 45, 20, 10}));
    EXPECT_EQ(ColocaRotulos({EnElMedio}, Marco, {{}, {{0, 0, 100, 100}}}).at(0).caja, (Caja{55, 45, 20, 10}));
    // A shorter text that leaves it free goes before a fuller one that doesn't.
    const RotuloPedido conCorto{{50, 50}, 5, {{0, 0, 40, 30}, {0, 0, 20, 10}}};
    EXPECT_EQ(ColocaRotulos({conCorto}, Marco, {{}, {{0, 0, 100, 40}, {0, 60, 100, 40}}}).at(0).texto, 1U);
    // What has to lie on it covers as little of it as can be.
    EXPECT_EQ(ColocaRotulos({conCorto}, Marco, {{}, {{0, 0, 100, 100}}}).at(0),
              (RotuloPuesto{0, 1, {55, 45, 20, 10}}));
}

RC_GTEST_PROP(Rotulos, NingunoTapaAOtroNiSaleDelMarco, ())
{
    const auto numero = [](int desde, int hasta) { return double(*rc::gen::inRange(desde, hasta)); };
    std::vector<RotuloPedido> pedidos;
    const int cuantos = *rc::gen::inRange(0, 60);
    for (int i = 0; i < cuantos; ++i)
        pedidos.push_back({{numero(-20, 320), numero(-20, 220)},
                           numero(0, 15),
                           {{0, 0, numero(1, 90), numero(1, 40)}, {0, 0, numero(1, 40), numero(1, 20)}}});
    const Caja marco{0, 0, 300, 200}, obstaculo{100, 100, 40, 40};
    const auto puestos = ColocaRotulos(pedidos, marco, {{obstaculo}});
    for (std::size_t i = 0; i < puestos.size(); ++i) {
        RC_ASSERT(marco.Encierra(puestos[i].caja));
        RC_ASSERT(!obstaculo.Toca(puestos[i].caja));
        for (std::size_t j = 0; j < i; ++j)
            RC_ASSERT(!puestos[i].caja.Toca(puestos[j].caja));
    }
}

}  // namespace
}  // namespace results
