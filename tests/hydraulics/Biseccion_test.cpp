// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/Biseccion.h"

#include <gtest/gtest.h>

#include <vector>

#include "apoyo/Compara.h"

namespace hydraulics {
namespace {

TEST(Biseccion, PruebaLosPuntosMediosEnOrden)
{
    std::vector<float> alturas;
    const auto altura = BisecaAltura(0, 0.004F, 0.001F, [&](float h) {
        alturas.push_back(h);
        return alturas.size() == 1;  // above, then not
    });
    // 4 mm, 2 mm, 1 mm: 0.001 m isn't above the tolerance, so that two halvings are all there are
    ASSERT_EQ(alturas.size(), 2U);
    EXPECT_EQ(alturas[0], 0.002F);
    EXPECT_EQ(alturas[1], 0.001F);
    EXPECT_EQ(altura, 0.001F);
}

TEST(Biseccion, SeRindeDespuesDeMilVueltas)
{
    // Neighbouring 32-bit floats 0.0625 m apart: the midpoint is one of the two for ever.
    int vueltas = 0;
    const auto altura = BisecaAltura(1000000, 1000000.0625F, 0.001F, [&](float) {
        ++vueltas;
        return false;
    });
    EXPECT_EQ(altura, std::nullopt);
    EXPECT_EQ(vueltas, 1000);
}

TEST(Biseccion, UnAnchoYaAlcanzadoNoPreguntaNada)
{
    const auto altura = BisecaAltura(7, 7.5F, 0.5F, [](float) {
        ADD_FAILURE();
        return false;
    });
    EXPECT_EQ(altura, 0.0F);
}

TEST(Biseccion, LosLimitesAlRevesSeAcercanIgual)
{
    // From 4 "down" to 0 with nothing above: the lower bound, 4, comes to the upper one in halves.
    EXPECT_EQ(BisecaAltura(4, 0, 1, [](float) { return false; }), 1.0F);
}

TEST(Biseccion, ElAnchoFueraDe32BitsEsUnaFalla)
{
    EXPECT_EQ(apoyo::NumeroDeFalla([] { BisecaAltura(-3e38F, 3e38F, 1, [](float) { return false; }); }), 6);
}

}  // namespace
}  // namespace hydraulics
