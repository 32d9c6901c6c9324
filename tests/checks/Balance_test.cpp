// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Balance.h"

#include <gtest/gtest.h>

#include "checks/CorridaDePrueba.h"

namespace checks {
namespace {

class ElBalance : public testing::Test, public pruebas::CorridaDePrueba {
  protected:
    void Balancea()
    {
        calculo = Corre();
        ASSERT_EQ(calculo.fin, engine::FinCalculo::Completo);
        balance = BalanceDe(Corrido(s.Red, s.Tormenta, s.Pasos, calculo));
    }
    /// UEHs, Cauces, Lagos, Represas in file order.
    [[nodiscard]] const RenglonBalance& De(std::size_t i) const { return balance.componentes[i]; }
    engine::Calculo calculo{};
    Balance balance{};
};

// 60 mm less 12 mm of retention on 100 ha: 60000 m3, 12000 lost, 48000 at the foot and, all of it, at the
// outlet.
TEST_F(ElBalance, DeUnaUEHYSuTramo)
{
    s.Red.ColUEHs.Item(1).RetensionZ = 12;
    Balancea();
    EXPECT_NEAR(De(0).entra, 60000, 0.1);
    EXPECT_NEAR(De(0).perdido, 12000, 0.1);
    EXPECT_NEAR(De(0).sale, 48000, 0.2);
    EXPECT_NEAR(De(1).entra, 48000, 0.2);
    EXPECT_NEAR(De(1).sale, 48000, 0.2);
    EXPECT_NEAR(balance.cuenca.Error(), 0, 0.5);
}

// Kostiakov a = 1.2 mm/min^0.5, b = 0.5: by minute 60 sqrt(60)·1.2 = 9.295 mm, less than the rain in every
// step.
TEST_F(ElBalance, DeLoQueInfiltra)
{
    s.Red.ColUEHs.Item(1).KostiakovA = 1.2F;
    s.Red.ColUEHs.Item(1).KostiakovB = 0.5F;
    Balancea();
    EXPECT_NEAR(De(0).perdido, 9295.2, 0.5);
    EXPECT_NEAR(De(0).PorCiento(), 0, 0.001);
}

// 1 m3/s for ever is 600 m3 a step, 18 steps. The reach's first step is the initial flow; its last inflow is
// cut.
TEST_F(ElBalance, DelCaudalDeBase)
{
    s.Red.ColUEHs.Item(1).Q0Recesion = 1;
    s.Red.ColUEHs.Item(1).KRecesion = 1e9F;
    Balancea();
    EXPECT_NEAR(De(0).entra, 60000 + 18 * 600, 1);
    EXPECT_NEAR(De(1).almacenado, -600, 0.1);
    EXPECT_NEAR(De(1).cortado, 600, 0.1);
    EXPECT_NEAR(De(1).Error(), 0, 0.1);
    EXPECT_NEAR(balance.cuenca.Error(), 0, 1);
}

// Each method of a pool, and Muskingum in a reach, cut off in the middle of the flood.
TEST_F(ElBalance, CierraConTodosLosMetodosAunqueLaCorridaCorteLaCreciente)
{
    s.Pasos.N0Dur = 30;
    Muskingum(s.Red.ColCauces.Item(1), 20, 0.25F);
    model::Represa& r = Represa("", Prisma(2, 4, 30));
    r.Represa_k_Musk = 20;
    for (const char* metodo : {"Piscina Nivelada", "Runge Kutta", "Muskingum"}) {
        r.Metodo = metodo;
        Balancea();
        EXPECT_GT(De(2).almacenado, 5000) << metodo;
        EXPECT_LT(std::fabs(De(1).PorCiento()), 0.01) << metodo;
        EXPECT_LT(std::fabs(De(2).Error()), 0.001 * De(2).entra + De(2).lectura) << metodo;
        EXPECT_LT(std::fabs(balance.cuenca.Error()), 0.001 * De(2).entra + De(2).lectura) << metodo;
    }
}

// Nothing runs out below 105 m; the balance's storage is what came in, by the trapezoid rule.
TEST_F(ElBalance, AlmacenadoPorBalanceSigueSobreElTope)
{
    Represa("Piscina Nivelada", Prisma(1, 0, 5));
    calculo = Corre();
    const Corrido c(s.Red, s.Tormenta, s.Pasos, calculo);
    const auto S = AlmacenadoPorBalance(c, c.componentes[2]);
    EXPECT_NEAR(S.back(), 60000, 100);
    EXPECT_EQ(S.size(), static_cast<std::size_t>(calculo.Resultados.NroPasosQ) + 1);
}

}  // namespace
}  // namespace checks
