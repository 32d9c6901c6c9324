// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Sello.h"

#include <gtest/gtest.h>

#include "checks/CorridaDePrueba.h"
#include "checks/UltimaCorrida.h"

namespace checks {
namespace {

class ElSello : public testing::Test, public pruebas::CorridaDePrueba {
  protected:
    ElSello()
    {
        s.Proyecto.DirProyecto = "Proyectos";
        s.Proyecto.NombreProyecto = "Quelmar";
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 90;
        s.Tormenta.RecTormenta = 25;
        s.Tormenta.DistriPp = 1;
        s.Pasos.PasoPp = 10;
        s.Pasos.PasoQ = 5;
        antes = SelloDe(s);
    }
    [[nodiscard]] std::string Difiere(Alcance alcance = Alcance::Corrida) const
    {
        return QueDifiere(antes, SelloDe(s), alcance);
    }
    Sello antes{};
};

constexpr const char* EraOtra =
    "la lluvia era otra (Tormenta: P 60 mm, D 90 min, R 25 años, López Cadenas, pasos 10/5 min)";

TEST_F(ElSello, NadaDifiereDeLoQueSigueComoEstaba)
{
    EXPECT_EQ(Difiere(), "");
    s.Red.ColUEHs.Item(1).IconoUEHx = 77;  // where it is drawn, which no run reads
    EXPECT_EQ(Difiere(), "");
}

TEST_F(ElSello, OtraTormentaDiceCualEra)
{
    s.Tormenta.PpTormenta = 61;
    EXPECT_EQ(Difiere(), EraOtra);
    EXPECT_EQ(Difiere(Alcance::Tormenta), EraOtra);
    EXPECT_EQ(Difiere(Alcance::Red), "");
}

TEST_F(ElSello, OtroTiempoAgregadoCambiaLaLluviaSinCambiarSusPalabras)
{
    s.Pasos.N0Dur += 30;
    EXPECT_EQ(Difiere(), "la lluvia ha cambiado");
}

TEST_F(ElSello, OtraRedSeDiceJuntoALaTormenta)
{
    s.Red.ColUEHs.Item(1).Area += 1;
    EXPECT_EQ(Difiere(), "la red ha cambiado");
    EXPECT_EQ(Difiere(Alcance::Tormenta), "");
    s.Tormenta.PpTormenta = 61;
    EXPECT_EQ(Difiere(), std::string(EraOtra) + "; la red ha cambiado");
}

TEST_F(ElSello, DeOtroProyectoNoSeDiceMas)
{
    s.Proyecto.NombreProyecto = "Otro";
    s.Tormenta.PpTormenta = 61;
    EXPECT_EQ(Difiere(), "es del proyecto Quelmar");
}

TEST_F(ElSello, LaTormentaEnManoSeDicePorSuForma)
{
    using model::FormaLluvia;
    s.Tormenta.FormaPp = FormaLluvia::DeLista;
    EXPECT_EQ(TormentaEnMano(s), "De la lista: P 60 mm, D 90 min, R 25 años, López Cadenas, pasos 10/5 min");
    s.Tormenta.FormaPp = FormaLluvia::Real;
    EXPECT_EQ(TormentaEnMano(s), "Tormenta real: P 60 mm, D 90 min, R 25 años, pasos 10/5 min");
    s.Tormenta.FormaPp = FormaLluvia::SeriePDR;
    s.Tormenta.TablaPDR = 2;
    EXPECT_EQ(TormentaEnMano(s), "Serie sin tormentas, López Cadenas, pasos 10/5 min");
    s.Serie.NroSeriePDR = 140;
    EXPECT_EQ(TormentaEnMano(s), "Serie de 140 tormentas, tabla 2, López Cadenas, pasos 10/5 min");
    s.Tormenta.FormaPp = FormaLluvia::Escrita;
    s.Tormenta.RecTormenta = 0;
    s.Tormenta.DistriPp = 12;
    EXPECT_EQ(TormentaEnMano(s), "Tormenta: P 60 mm, D 90 min, distribución 12, pasos 10/5 min");
    s.Tormenta.DurTormenta = 0;
    EXPECT_EQ(TormentaEnMano(s), "Sin tormenta");
}

TEST_F(ElSello, DeLaLluviaPorUEHSeDicenLaMenorYLaMayor)
{
    s.Tormenta.FormaPp = model::FormaLluvia::PorUEH;
    s.Tormenta.PpTormenta = 0;
    const int n = s.Red.NroUEHs();
    for (int i = 1; i <= n; ++i)
        s.Tormenta.PpUEH(i) = static_cast<float>(10 * i);
    EXPECT_EQ(TormentaEnMano(s), "Lluvia por UEH: P de 10 a " + std::to_string(10 * n) +
                                     " mm, D 90 min, López Cadenas, pasos 10/5 min");
}

TEST_F(ElSello, LaUltimaCorridaNoCambiaConLoQueVieneDespues)
{
    const model::Tormenta entrada = s.Tormenta;
    const engine::Calculo c = engine::Calcula(s.Red, entrada, s.Pasos, s.TablasDeLluvia);
    ASSERT_EQ(c.fin, engine::FinCalculo::Completo);
    s.Resultados = c.Resultados;
    const auto u = UltimaCorrida::DeUna(s, entrada, true);
    const std::string huella = u->huella;
    const float pico = u->r().QMax(1, 1);
    ASSERT_TRUE(u->balance);
    const double entra = u->balance->cuenca.entra;
    ASSERT_GT(entra, 0);
    s.Red = {};
    s.Resultados = {};
    s.Tormenta.PpTormenta = 1;
    EXPECT_EQ(BalanceDe(*u->corrido).cuenca.entra, entra);
    EXPECT_EQ(u->r().QMax(1, 1), pico);
    EXPECT_EQ(u->huella, huella);
    EXPECT_EQ(u->corrido->componentes.size(), u->balance->componentes.size());
}

TEST_F(ElSello, UnaCorridaQueNoLlegoAlFinNoTieneResultados)
{
    const auto u = UltimaCorrida::DeUna(s, s.Tormenta, false);
    EXPECT_EQ(u->calculo.fin, engine::FinCalculo::Rechazado);
    EXPECT_FALSE(u->balance);
    EXPECT_FALSE(u->avisos.empty());
}

}  // namespace
}  // namespace checks
