// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/FormulasUEH.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/Falla.h"

namespace engine {
namespace {

TEST(FormulasUEH, LaRetencionSeLlenaYLuegoDejaPasar)
{
    float restante = 30, R = 0;
    for (const float retenida : {20.0F, 10.0F, 0.0F}) {
        Retiene(20, restante, R);
        EXPECT_EQ(R, retenida);
    }
    EXPECT_EQ(restante, 0);
}

TEST(FormulasUEH, UnaRetencionNegativaDaAgua)
{
    float restante = -5, R = 0;
    Retiene(0, restante, R);
    EXPECT_EQ(R, -5);
    EXPECT_EQ(restante, 0);
}

// a = 2, b = 0.5, 6 min gone by, steps of 10: the first step goes from the root of 6 to that of 16.
TEST(FormulasUEH, KostiakovEnTiempoCorrido)
{
    const Infiltracion I({.KostiakovA = 2, .KostiakovB = 0.5F, .KostiakovI = 6}, 10);
    EXPECT_FLOAT_EQ(I.Lamina(1), static_cast<float>(2 * (4 - std::sqrt(6.0))));
    EXPECT_FLOAT_EQ(I.Lamina(2), static_cast<float>(2 * (std::sqrt(26.0) - 4)));
    EXPECT_TRUE(I.EsModerada());
}

// Steps in order, out of order and twice; 0.1 and 1e-5 min are no whole number of the bits that the clock's
// time has.
TEST(FormulasUEH, LaPotenciaDelPasoAnteriorDaLosMismosBits)
{
    for (const float inicial : {0.0F, 6.0F, 0.1F, 1e-5F, 32767.7F}) {
        const Infiltracion I({.KostiakovA = 2.3F, .KostiakovB = 0.37F, .KostiakovI = inicial}, 10);
        Infiltracion::PotenciaDeT fin;
        for (const int reloj : {1, 2, 3, 4, 4, 7, 8, 2, 1, 3000, 3001})
            EXPECT_EQ(I.Lamina(reloj, fin), I.Lamina(reloj)) << inicial << " min, step " << reloj;
    }
}

TEST(FormulasUEH, UnaInfiltracionNegativaEsCeroYUnaBaseNegativaEsFalla)
{
    EXPECT_EQ(Infiltracion({.KostiakovA = -2, .KostiakovB = 0.5F}, 10).Lamina(1), 0);
    const Infiltracion antes({.KostiakovA = 2, .KostiakovB = 0.5F, .KostiakovI = -15}, 10);
    EXPECT_FALSE(antes.EsModerada());
    EXPECT_THROW((void)antes.Lamina(1), model::Falla);
}

// 20 mm in 10 min on 6 ha: 2 mm/min times 0.166667 times 6.
TEST(FormulasUEH, ElExcesoEnCaudal)
{
    EXPECT_FLOAT_EQ(static_cast<float>(CaudalDelExceso(20, 10, 6)), 2.000004F);
    EXPECT_THROW(CaudalDelExceso(20, 0, 6), model::Falla);
}

TEST(FormulasUEH, LaLaderaSubeEnLineaRecta)
{
    EXPECT_EQ(SubidaDeLadera(12, 30)(0), 0);
    EXPECT_EQ(SubidaDeLadera(12, 30)(10), 4);
    EXPECT_THROW(SubidaDeLadera(12, 0), model::Falla);
}

TEST(FormulasUEH, ElAbatimientoLlegaASuBaseAlCaboDeK)
{
    EXPECT_EQ(Abatimiento(2, 0), 1);
    EXPECT_DOUBLE_EQ(Abatimiento(2, 120), 1 / 2.7183);
}

// 0.125 m3/s are 7.5 m3 a minute, ties: 8, 15.5 -> 16, 23.5 -> 24.
TEST(FormulasUEH, ElVolumenDeBaseSeRedondeaEnCadaPaso)
{
    std::int32_t volumen = 0;
    for (const int esperado : {8, 16, 24}) {
        volumen = SumaBase(volumen, 0.125F, 1);
        EXPECT_EQ(volumen, esperado);
    }
    EXPECT_THROW(SumaBase(INT32_MAX, 1, 1), model::Falla);
}

}  // namespace
}  // namespace engine
