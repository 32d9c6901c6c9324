// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Philox.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>

namespace {

using Palabras = std::array<std::uint32_t, 4>;
constexpr std::uint32_t Todos = std::numeric_limits<std::uint32_t>::max();

/// The known answers that its authors publish beside it: all bits 0, all bits 1, digits of pi.
TEST(Philox, DaLasRespuestasPublicadas)
{
    EXPECT_EQ(study::Philox4x32({0, 0, 0, 0}, {0, 0}),
              (Palabras{0x6627e8d5, 0xe169c58d, 0xbc57ac4c, 0x9b00dbd8}));
    EXPECT_EQ(study::Philox4x32({Todos, Todos, Todos, Todos}, {Todos, Todos}),
              (Palabras{0x408f276d, 0x41c83b0e, 0xa20bc7c6, 0x6d5451fd}));
    EXPECT_EQ(study::Philox4x32({0x243f6a88, 0x85a308d3, 0x13198a2e, 0x03707344}, {0xa4093822, 0x299f31d0}),
              (Palabras{0xd16cfe09, 0x94fdcceb, 0x5001e420, 0x24126ea1}));
}

TEST(Philox, UnSorteoEsSuSemillaYSuLugar)
{
    study::Sorteo uno(7, 3), otro(7, 3), deOtroLugar(7, 4), deOtraSemilla(8, 3);
    double suma = 0;
    constexpr int Cuantos = 4000;
    for (int i = 0; i < Cuantos; ++i) {
        const double u = uno.Uniforme();
        EXPECT_EQ(u, otro.Uniforme());
        EXPECT_NE(u, deOtroLugar.Uniforme());
        EXPECT_NE(u, deOtraSemilla.Uniforme());
        EXPECT_GT(u, 0);
        EXPECT_LT(u, 1);
        suma += u;
    }
    EXPECT_NEAR(suma / Cuantos, 0.5, 4 * 0.2887 / 63.2);  // four standard errors
}

TEST(Philox, ElPrimerNumeroEsLaPrimeraPalabra)
{
    EXPECT_EQ(study::Sorteo(0, 0).Uniforme(), (0x6627e8d5 + 0.5) / 4294967296.0);
}

}  // namespace
