// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/AvisosDeCorrida.h"

#include <gtest/gtest.h>

#include <string>

#include "checks/CorridaDePrueba.h"

namespace checks {
namespace {

using pruebas::Busca;
using pruebas::CorridaDePrueba;
using pruebas::Lista;

TEST(AvisosDeCorrida, UnaCorridaSinNadaMaloNoDaNinguno)
{
    CorridaDePrueba p;
    EXPECT_EQ(Lista(p.Avisos()), "");
}

/// A rule: a project that it finds something in, one that just escapes it, and words that tell how much.
struct CasoDeAviso {
    const char* nombre;
    int numero;
    const char* componente;
    void (*lo_da)(CorridaDePrueba&);
    void (*no_lo_da)(CorridaDePrueba&);
    const char* cuanto;
};

class CadaAviso : public testing::TestWithParam<CasoDeAviso> {};

TEST_P(CadaAviso, LoDaUnProyectoYElVecinoNo)
{
    CorridaDePrueba malo, bueno;
    GetParam().lo_da(malo);
    GetParam().no_lo_da(bueno);
    const auto avisos = malo.Avisos();
    const Hallazgo* h = Busca(avisos, GetParam().numero, GetParam().componente);
    ASSERT_NE(h, nullptr) << Lista(avisos);
    EXPECT_NE(h->cuanto.find(GetParam().cuanto), std::string::npos) << h->cuanto;
    EXPECT_FALSE(h->que.empty());
    EXPECT_FALSE(h->remedio.empty());
    const auto otros = bueno.Avisos();
    EXPECT_EQ(Busca(otros, GetParam().numero, GetParam().componente), nullptr) << Lista(otros);
}

// Volumes: 60 mm on 100 ha are 60000 m3, by the constant of the run 60000.12.
const CasoDeAviso Casos[] = {
    // The flood comes to the foot of u-1 between the minutes 10 and 120 and is whole at minute 60; with a
    // delay of
    // 60 min it is so at the outlet at minute 120, step 12. Minute 120 is the last one: 60 min added; the
    // peak is
    // seen to be one with 70.
    {"PicoAlFinal", 101, "c-1",
     [](CorridaDePrueba& p) {
         p.s.Pasos.N0Dur = 60;
         p.s.Red.ColCauces.Item(1).LongCauce = 3600;
     },
     [](CorridaDePrueba& p) {
         p.s.Pasos.N0Dur = 70;
         p.s.Red.ColCauces.Item(1).LongCauce = 3600;
     },
     "16.67 m3/s; faltan 10 min: con ellos, 16.67 m3/s (0 % más)"},
    // With a delay of 120 min nothing has come out by minute 120.
    {"PicoDetrasDelFinal", 101, "c-1",
     [](CorridaDePrueba& p) {
         p.s.Pasos.N0Dur = 60;
         p.s.Red.ColCauces.Item(1).LongCauce = 7200;
     },
     [](CorridaDePrueba& p) {
         p.s.Pasos.N0Dur = 130;
         p.s.Red.ColCauces.Item(1).LongCauce = 7200;
     },
     "último caudal, 0 m3/s; faltan 70 min: con ellos, 16.67 m3/s"},
    // u-1 falls by 1/6 of 16.6667 a step from minute 70 to minute 110, the last ones 1/3, 1/6: 5.5556
    // and 2.7778
    // m3/s in the steps 10 and 11. With one step of delay and 11 steps the last one is cut off: 2.7778·600 =
    // 1667 m3, 2.8 %; with two steps the last two: 5000 m3, 8.3 %.
    {"AguaCortada", 102, "",
     [](CorridaDePrueba& p) {
         p.s.Pasos.N0Dur = 50;
         p.s.Red.ColCauces.Item(1).LongCauce = 1200;
     },
     [](CorridaDePrueba& p) { p.s.Pasos.N0Dur = 50; }, "5000 m3, el 8.3 % de lo que entra"},
    // 60000 m3 on 1 ha stand 6 m high; next to nothing runs out.
    {"PiscinaSobreElTope", 103, "r-1",
     [](CorridaDePrueba& p) { p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(1, 0.0001F, 5)); },
     [](CorridaDePrueba& p) { p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(1, 0.0001F, 7)); },
     "sobre el tope de 105 m"},
    {"RungeKuttaSobreElTope", 103, "r-1",
     [](CorridaDePrueba& p) { p.Represa("Runge Kutta", CorridaDePrueba::Prisma(1, 0.0001F, 5)); },
     [](CorridaDePrueba& p) { p.Represa("Runge Kutta", CorridaDePrueba::Prisma(1, 0.0001F, 7)); },
     "sobre el tope de 105 m"},
    {"SobreLasFunciones", 104, "r-1",
     [](CorridaDePrueba& p) {
         model::Represa& r = p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(1, 0, 7));
         r.optTabla = false;
         r.chkFQ[0] = 1;
         r.FQa[0] = 0.0001F;
         r.FQb[0] = 1;
         r.FQmin[0] = 100;
         r.FQMax[0] = 105;
     },
     [](CorridaDePrueba& p) {
         model::Represa& r = p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(1, 0, 7));
         r.optTabla = false;
         r.chkFQ[0] = 1;
         r.FQa[0] = 0.0001F;
         r.FQb[0] = 1;
         r.FQmin[0] = 100;
         r.FQMax[0] = 107;
     },
     "por encima de 105 m"},
    // By Muskingum a pool lets out what K says, whatever its table ends at: 16.67 m3/s at most.
    {"MuskingumSobreLaDescarga", 104, "r-1",
     [](CorridaDePrueba& p) {
         p.Represa("Muskingum", CorridaDePrueba::Prisma(1, 1, 10)).Represa_k_Musk = 10;
     },
     [](CorridaDePrueba& p) {
         p.Represa("Muskingum", CorridaDePrueba::Prisma(1, 1, 20)).Represa_k_Musk = 10;
     },
     "por encima de 10 m3/s"},
    // A slope gone down in less than half a minute loses the last point of each step's rain, here all of it.
    {"BalanceDeUEH", 105, "u-1", [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 20; },
     [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 40; },
     "faltan 60000 m3 (100 %): entran 60000 m3, salen 0 m3, se retienen o infiltran 0 m3"},
    {"BalanceDePiscina", 105, "r-1",
     [](CorridaDePrueba& p) { p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(1, 0.0001F, 5)); },
     [](CorridaDePrueba& p) { p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(1, 0.0001F, 7)); },
     "faltan"},
    {"BalanceDeCuenca", 106, "", [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 20; },
     [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 40; }, "faltan 60000 m3 (100 %)"},
    // 2Kx = 2·20·0.3 = 12 above the step of 10; 2·20·0.25 = 10 isn't.
    {"CoeficienteNegativo", 107, "c-1",
     [](CorridaDePrueba& p) { p.Muskingum(p.s.Red.ColCauces.Item(1), 20, 0.3F); },
     [](CorridaDePrueba& p) { p.Muskingum(p.s.Red.ColCauces.Item(1), 20, 0.25F); }, "2Kx = 12 min"},
    // C2 = (K - 5)/(K + 5) of a pool.
    {"CoeficienteNegativoDeEmbalse", 107, "r-1",
     [](CorridaDePrueba& p) { p.Represa("Muskingum", CorridaDePrueba::Prisma(1, 1, 20)).Represa_k_Musk = 4; },
     [](CorridaDePrueba& p) { p.Represa("Muskingum", CorridaDePrueba::Prisma(1, 1, 20)).Represa_k_Musk = 5; },
     "2K(1-x) = 8 min"},
    // 300 m at 1 m/s are 5 min, half a step, which goes to the even number of steps, none; 360 m are 6 min.
    {"ViajeCorto", 108, "c-1", [](CorridaDePrueba& p) { p.s.Red.ColCauces.Item(1).LongCauce = 300; },
     [](CorridaDePrueba& p) { p.s.Red.ColCauces.Item(1).LongCauce = 360; }, "viaje 5 min, paso 10 min"},
    // The flow rises for T at the foot of u-1, and comes 10 min later in c-1: up from step 1 (none) on.
    {"SubidaCorta", 109, "c-1", [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 2400; },
     [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 3000; }, "sube en 40 min, paso 10 min"},
    {"TrasladoCorto", 110, "u-1", [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 540; },
     [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).LongitudMax = 600; }, "traslado 9 min, paso 10 min"},
    {"VariasSalidas", 111, "",
     [](CorridaDePrueba& p) {
         p.UEH("u-2", "c-2");
         p.Directo("c-2", "0");
     },
     [](CorridaDePrueba& p) {
         p.UEH("u-2", "c-2");
         p.Directo("c-2", "c-1");
     },
     "2: c-1, c-2"},
    {"UEHSinEnlazar", 112, "u-2", [](CorridaDePrueba& p) { p.UEH("u-2", ""); },
     [](CorridaDePrueba& p) { p.UEH("u-2", "c-1"); }, "no drena a nada"},
    {"CauceADondeNoHay", 112, "c-1", [](CorridaDePrueba& p) { p.s.Red.ColCauces.Item(1).Cauce_aa = "c-9"; },
     [](CorridaDePrueba& p) { p.s.Red.ColCauces.Item(1).Cauce_aa = ""; }, "drena a c-9, que no está"},
    {"CauceQueNadieAlimenta", 112, "c-2", [](CorridaDePrueba& p) { p.Directo("c-2", "c-1"); },
     [](CorridaDePrueba& p) {
         p.Directo("c-2", "c-1");
         p.UEH("u-2", "c-2");
     },
     "nada drena a él"},
    {"EmbalseEnEmbalse", 113, "r-1",
     [](CorridaDePrueba& p) {
         p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)).Cauce_aa = "l-1";
         p.PonLago("l-1", "Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)).HInicialEmb = 100;
     },
     [](CorridaDePrueba& p) {
         p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)).Cauce_aa = "c-2";
         p.Directo("c-2", "l-1");
         p.PonLago("l-1", "Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)).HInicialEmb = 100;
     },
     "no llegan a l-1"},
    {"TablaSinUso", 114, "r-1",
     [](CorridaDePrueba& p) {
         p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)).chkFQ[2] = 1;
     },
     [](CorridaDePrueba& p) { p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)); },
     "sus funciones tildadas no se usan"},
    {"LluviaRetenida", 115, "u-1", [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).RetensionZ = 60.5F; },
     [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).RetensionZ = 59; }, "llueven 60 mm, retiene 60.5 mm"},
    {"AlmacenamientoNegativo", 116, "r-1",
     [](CorridaDePrueba& p) {
         auto tabla = CorridaDePrueba::Prisma(10, 5, 20);
         tabla[0].S = -1000;
         p.Represa("Piscina Nivelada", tabla);
     },
     [](CorridaDePrueba& p) { p.Represa("Piscina Nivelada", CorridaDePrueba::Prisma(10, 5, 20)); },
     "hasta -1000 m3"},
    // K = 32, x = 29/32: C0 = (5 - 29)/8 = -3, C1 = 34/8, C2 = -2/8. On inflows a, 2a the second outflow is
    // -6a + 4.25a - 0.25a = -2a, a = 16.6667/6.
    {"CaudalNegativo", 117, "c-1",
     [](CorridaDePrueba& p) { p.Muskingum(p.s.Red.ColCauces.Item(1), 32, 0.90625F); },
     [](CorridaDePrueba& p) { p.Muskingum(p.s.Red.ColCauces.Item(1), 20, 0.25F); }, "m3/s"},
    // In steps of 10 min the 3277th ends at minute 32770, beyond 16 bits.
    {"Desborde", 118, "", [](CorridaDePrueba& p) { p.s.Pasos.N0Dur = 32720; },
     [](CorridaDePrueba& p) { p.s.Pasos.N0Dur = 30000; }, "veces"},
    // 2^24 = 16777216 m3: 60 mm on 279 km2 are less, on 280 km2 more.
    {"VolumenEnorme", 119, "c-1", [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).Area = 28000; },
     [](CorridaDePrueba& p) { p.s.Red.ColUEHs.Item(1).Area = 27900; },
     "16800033 m3; el tipo distingue hasta 16777216 m3"},
    {"PreguntaDeTabla", 120, "",
     [](CorridaDePrueba& p) { p.Represa("Runge Kutta", CorridaDePrueba::Prisma(1, 0.0001F, 5)); },
     [](CorridaDePrueba& p) { p.Represa("Runge Kutta", CorridaDePrueba::Prisma(1, 0.0001F, 7)); },
     "supera el máximo de la Tabla"},
    {"SinTerminar", 121, "", [](CorridaDePrueba& p) { p.s.Red.ColCauces.Item(1).VelMediaCauce = 0; },
     [](CorridaDePrueba& p) { p.s.Red.ColCauces.Item(1).VelMediaCauce = 0.5F; },
     "Velocidad Media de propagación Directa"},
};

INSTANTIATE_TEST_SUITE_P(Reglas, CadaAviso, testing::ValuesIn(Casos),
                         [](const auto& caso) { return std::string(caso.param.nombre); });

// Two slow reaches of Muskingum, and the 10 min that a new project adds: the outlet rises to the end of the
// run.
TEST(AvisosDeCorrida, DelPicoFalsoALaCorridaCorregida)
{
    CorridaDePrueba p;
    p.Muskingum(p.s.Red.ColCauces.Item(1), 120, 0);
    p.s.Red.ColCauces.Item(1).Cauce_aa = "c-2";
    p.Muskingum(p.Directo("c-2", "0"), 120, 0);
    p.s.Pasos.N0Dur = 10;
    const engine::Calculo corto = p.Corre();
    ASSERT_EQ(corto.fin, engine::FinCalculo::Completo);
    ASSERT_TRUE(HayPicoAlFinal(corto.Resultados));
    const auto avisos = p.Avisos();
    ASSERT_NE(Busca(avisos, 101, "c-2"), nullptr) << Lista(avisos);
    engine::Memoria memoria;
    const TiempoAgregado t = TiempoQueAlcanza(p.s.Red, p.s.Tormenta, p.s.Pasos, p.s.TablasDeLluvia, memoria);
    ASSERT_TRUE(t.alcanza);
    EXPECT_NE(Busca(avisos, 101, "c-2")->remedio.find(model::NumeroATexto(t.minutos) + " min"),
              std::string::npos);

    p.s.Pasos.N0Dur = t.minutos - 10;  // the time is the shortest of its kind
    EXPECT_NE(Busca(p.Avisos(), 101, "c-2"), nullptr);
    p.s.Pasos.N0Dur = t.minutos;
    const engine::Calculo largo = p.Corre();
    EXPECT_EQ(Busca(p.Avisos(), 101, "c-2"), nullptr);
    const int fila = largo.Resultados.NroComponentes;
    EXPECT_GT(largo.Resultados.QMax(fila, 1), 1.05F * corto.Resultados.QMax(fila, 1));
    p.s.Pasos.N0Dur = 3000;  // and there is no higher peak further on
    EXPECT_EQ(p.Corre().Resultados.QMax(fila, 1), largo.Resultados.QMax(fila, 1));
    EXPECT_EQ(t.picos[static_cast<std::size_t>(fila)], largo.Resultados.QMax(fila, 1));
}

// A Lago that fills from a storm and lets out nothing below its table's end never stops rising.
TEST(AvisosDeCorrida, DondeNoAlcanzaNingunTiempoLoDice)
{
    CorridaDePrueba p;
    model::UEH& u = p.s.Red.ColUEHs.Item(1);
    u.Q0Recesion = 1;
    u.KRecesion = 1e9F;
    p.Represa("Runge Kutta", CorridaDePrueba::Prisma(1000, 0.1F, 40));
    const auto avisos = p.Avisos();
    const Hallazgo* h = Busca(avisos, 101, "r-1");
    ASSERT_NE(h, nullptr) << Lista(avisos);
    EXPECT_NE(h->remedio.find("Ni con 30000 min"), std::string::npos) << h->remedio;
}

TEST(AvisosDeCorrida, LosErroresVanPrimero)
{
    std::vector<Hallazgo> h{
        {Gravedad::Nota, 1}, {Gravedad::Aviso, 2}, {Gravedad::Error, 3}, {Gravedad::Aviso, 4}};
    OrdenaPorGravedad(h);
    EXPECT_EQ(h[0].numero, 3);
    EXPECT_EQ(h[1].numero, 2);
    EXPECT_EQ(h[2].numero, 4);
    EXPECT_EQ(h[3].numero, 1);
}

}  // namespace
}  // namespace checks
