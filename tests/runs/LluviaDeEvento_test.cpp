// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"
#include "runs/ModeloDe.h"

namespace runs {
namespace {

using model::FormaLluvia;

class LaLluviaDeUnEvento : public testing::Test {
  protected:
    LaLluviaDeUnEvento()
    {
        disco.PonDirectorio("/proy");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Proyecto.NombreProyecto = "A";
        s.Proyecto.DirProyecto = "/proy";
        s.Tormenta.PpTormenta = 60;
        s.Tormenta.DurTormenta = 120;
        s.Tormenta.DistriPp = 2;
        s.Pasos = {.PasoPp = 5, .PasoQ = 5, .N0Dur = 300};
    }
    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
    model::Siro s{};
};

TEST_F(LaLluviaDeUnEvento, EsLaQueHayEnMano)
{
    const LluviaPuesta p = LluviaDe(s, {.nombre = "Marzo"});
    EXPECT_EQ(p.motivo, "");
    EXPECT_EQ(p.lluvia.nombre, "Marzo");
    EXPECT_EQ(p.lluvia.tormenta.PpTormenta, 60);
    EXPECT_EQ(p.lluvia.tormenta.DistriPp, 2);
    EXPECT_EQ(p.lluvia.pasos.N0Dur, 300);
    s.Tormenta.DurTormenta = 0;
    EXPECT_EQ(LluviaDe(s, {.nombre = "Marzo"}).motivo,
              "El evento \"Marzo\": no hay ninguna tormenta en mano.");
}

TEST_F(LaLluviaDeUnEvento, OLaDeUnaLaminaConSuDuracionYSuDistribucion)
{
    study::Evento e{.nombre = "Marzo",
                    .lluvia = {.origen = "lamina", .lamina = 45.5, .duracion = 90, .distribucion = 3}};
    const model::Tormenta t = LluviaDe(s, e).lluvia.tormenta;
    EXPECT_EQ(t.PpTormenta, 45.5F);
    EXPECT_EQ(t.DurTormenta, 90);
    EXPECT_EQ(t.DistriPp, 3);
    EXPECT_EQ(t.FormaPp, FormaLluvia::Escrita);
    e.lluvia.duracion = 0;
    EXPECT_EQ(LluviaDe(s, e).motivo, "El evento \"Marzo\": la lluvia no tiene duración.");
}

TEST_F(LaLluviaDeUnEvento, OLaDeUnaTormentaRegistradaYLaDeEnManoQueda)
{
    s.Tormenta.NroPpReal = 3;
    s.Tormenta.PpReal.Redimensiona(3);
    for (int i = 1; i <= 3; ++i)
        s.Tormenta.PpReal(i) = static_cast<float>(10 * i);
    model::TormentaReal real{.nombre = "Crecida_pt.vlm",
                             .Notas = "n",
                             .PasoPpReal = 10,
                             .txtDateI = "04/03/2019",
                             .txtTimeI = "12:00",
                             .txtDateF = "04/03/2019",
                             .txtTimeF = "12:30"};
    model::GuardaPpReal(s, real);
    s.Tormenta.NroPpReal = 0;
    const study::Evento e{.nombre = "Marzo", .lluvia = {.origen = "registrada", .archivo = "Crecida_pt.vlm"}};
    const LluviaPuesta p = LluviaDe(s, e);
    EXPECT_EQ(p.motivo, "");
    EXPECT_EQ(p.lluvia.tormenta.FormaPp, FormaLluvia::Real);
    EXPECT_EQ(p.lluvia.tormenta.NroPpReal, 3);
    EXPECT_EQ(p.lluvia.tormenta.PpReal(2), 20);
    EXPECT_EQ(p.lluvia.tormenta.DurTormenta, 30);
    EXPECT_EQ(p.lluvia.tormenta.PpTormenta, 60);
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_EQ(s.Tormenta.DurTormenta, 120);
    study::Evento sin = e;
    sin.lluvia.archivo = "No_pt.vlm";
    EXPECT_EQ(LluviaDe(s, sin).motivo,
              "El evento \"Marzo\": la tormenta registrada No_pt.vlm no se pudo leer.");
    sin.lluvia.archivo = "";
    EXPECT_EQ(LluviaDe(s, sin).motivo, "El evento \"Marzo\": falta elegir la tormenta registrada.");
}

/// As the storm's window has it: by blocks and in the storm's step, which the output step has to divide.
TEST_F(LaLluviaDeUnEvento, UnaRegistradaVaPorSusBloquesYEnSuPaso)
{
    const study::Evento e{.nombre = "Marzo", .lluvia = {.origen = "registrada", .archivo = "Crecida_pt.vlm"}};
    for (const auto& [paso, q, esperado] :
         {std::array{15, 10, 5}, std::array{5, 10, 5}, std::array{60, 10, 10}, std::array{60, 45, 30}}) {
        s.Tormenta.NroPpReal = 1;
        s.Tormenta.PpReal.Redimensiona(1);
        model::TormentaReal real{.nombre = "Crecida_pt.vlm", .PasoPpReal = static_cast<std::int16_t>(paso)};
        model::GuardaPpReal(s, real);
        s.Pasos.PasoPp = 10;
        s.Pasos.PasoQ = static_cast<std::int16_t>(q);
        const LluviaPuesta p = LluviaDe(s, e);
        EXPECT_EQ(p.lluvia.tormenta.DistriPp, 7);
        EXPECT_EQ(p.lluvia.pasos.PasoPp, paso);
        EXPECT_EQ(p.lluvia.pasos.PasoQ, esperado);
        EXPECT_EQ(s.Pasos.PasoPp, 10);
    }
}

TEST_F(LaLluviaDeUnEvento, LaCorridaAlcanzaALoObservado)
{
    study::Evento e{.nombre = "Marzo"};
    e.observaciones = {{.componente = "u-1", .puntos = {{0, 1}, {700.5, 2}}}};
    EXPECT_EQ(LluviaDe(s, e).lluvia.pasos.N0Dur, 586);  // 701 + 5 - 120
    e.observaciones[0].puntos[1].minuto = 1e6;
    EXPECT_EQ(LluviaDe(s, e).lluvia.pasos.N0Dur, 29'880);
}

}  // namespace
}  // namespace runs
