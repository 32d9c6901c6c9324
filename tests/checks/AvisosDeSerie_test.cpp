// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/AvisosDeSerie.h"

#include <gtest/gtest.h>

#include <string>

#include "checks/CorridaDePrueba.h"
#include "engine/mdlSeriePDR.h"
#include "results/CorridaDeMuestra.h"

namespace checks {
namespace {

using pruebas::Busca;
using pruebas::Lista;

class LaSerie : public testing::Test, public pruebas::CorridaDePrueba {
  protected:
    LaSerie()
    {
        s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
        s.Configuracion.CheckD.fill(1);
        s.Configuracion.CheckR.fill(1);
        LlenaTablas();
    }
    void PonTormentas(const std::vector<std::array<int, 3>>& pdr)
    {
        const auto n = static_cast<int>(pdr.size());
        s.Serie.NroSeriePDR = static_cast<std::int16_t>(n);
        s.Serie.SerieP.Dimensiona(n);
        s.Serie.SerieD.Dimensiona(n);
        s.Serie.SerieR.Dimensiona(n);
        for (int k = 1; k <= n; ++k) {
            const auto& fila = pdr[static_cast<std::size_t>(k) - 1];
            s.Serie.SerieP(k) = static_cast<float>(fila[0]);
            s.Serie.SerieD(k) = static_cast<std::int16_t>(fila[1]);
            s.Serie.SerieR(k) = static_cast<std::int16_t>(fila[2]);
        }
    }
};

TEST_F(LaSerie, SinNadaMaloNoDaNinguno)
{
    PonTormentas({{60, 60, 10}, {80, 60, 50}, {90, 120, 100}});
    EXPECT_EQ(Lista(AvisosDeSerie(s, 2)), "");
}

TEST_F(LaSerie, DiceQueTormentasSalteaYPorQue)
{
    s.Configuracion.CheckR[1] = 0;                             // 5 years
    s.Configuracion.CheckD[model::Duraciones.size() - 1] = 0;  // 2880 min
    PonTormentas({{20, 5, 10}, {60, 60, 5}, {60, 60, 10}, {70, 2880, 10}, {0, 60, 10}, {60, 60, 10}});
    const Seleccionadas elegidas = TormentasDeSerie(s);
    EXPECT_EQ(elegidas.numeros, std::vector<int>{3});
    ASSERT_EQ(elegidas.avisos.size(), 4U) << Lista(elegidas.avisos);
    EXPECT_EQ(elegidas.avisos[0].numero, 122);
    EXPECT_EQ(elegidas.avisos[0].cuanto, "1: 1");
    EXPECT_NE(elegidas.avisos[1].que.find("duraciones sin tildar"), std::string::npos);
    EXPECT_EQ(elegidas.avisos[1].cuanto, "1: 4");
    EXPECT_NE(elegidas.avisos[2].que.find("recurrencias sin tildar"), std::string::npos);
    EXPECT_EQ(elegidas.avisos[2].cuanto, "1: 2");
    EXPECT_EQ(elegidas.avisos[3].numero, 124);
    EXPECT_EQ(elegidas.avisos[3].cuanto, "2: 5, 6");
}

TEST_F(LaSerie, JuntaLoDeVariasTormentasEnLaPeor)
{
    s.Red.ColUEHs.Item(1).RetensionZ = 70;
    PonTormentas({{60, 60, 10}, {50, 60, 5}, {80, 60, 50}});
    const auto avisos = AvisosDeSerie(s, 1);
    const Hallazgo* h = Busca(avisos, 115, "u-1");
    ASSERT_NE(h, nullptr) << Lista(avisos);
    EXPECT_EQ(h->cuanto,
              "llueven 50 mm, retiene 70 mm en la tormenta 2 (P=50 mm, D=60 min, R=5 años); en 2 de 3 "
              "tormentas");
}

TEST_F(LaSerie, LoDeLaRedSeDiceUnaVezYSinTormenta)
{
    s.Red.ColCauces.Item(1).LongCauce = 300;
    PonTormentas({{60, 60, 10}, {50, 60, 5}});
    const auto avisos = AvisosDeSerie(s, 1);
    ASSERT_NE(Busca(avisos, 108, "c-1"), nullptr) << Lista(avisos);
    EXPECT_EQ(Busca(avisos, 108, "c-1")->cuanto, "viaje 5 min, paso 10 min");
}

// One of the storms is looked at twice, one isn't: what counts is what stands of each.
TEST_F(LaSerie, QuienMiroLasTormentasDiceLoMismo)
{
    s.Red.ColUEHs.Item(1).RetensionZ = 70;
    PonTormentas({{60, 60, 10}, {50, 60, 5}, {80, 60, 50}});
    VigiaDeSerie vigia(s);
    const auto mira = vigia.Ojo();
    for (const int numero : {1, 2, 3}) {
        model::Tormenta t = s.Tormenta;
        model::TomaTormenta(t, s.Serie, numero);
        const engine::Calculo calculo = engine::Calcula(s.Red, t, s.Pasos);
        mira(numero, &calculo);
    }
    mira(2, nullptr);
    EXPECT_EQ(vigia.Avisos(1), AvisosDeSerie(s, 1));
    EXPECT_NE(Busca(vigia.Avisos(2), 115, "u-1"), nullptr);
}

// A storm that was seen isn't run again: what was seen of it, however odd, is what is told.
TEST_F(LaSerie, LoQueSeVioNoSeVuelveACorrer)
{
    PonTormentas({{60, 60, 10}});
    model::Tormenta t = s.Tormenta;
    model::TomaTormenta(t, s.Serie, 1);
    engine::Calculo calculo = engine::Calcula(s.Red, t, s.Pasos);
    EXPECT_EQ(Lista(AvisosDeSerie(s, 1)), "");
    calculo.fin = engine::FinCalculo::Rechazado;
    calculo.avisos.push_back({{"Falta algo"}});
    VigiaDeSerie vigia(s);
    vigia.Ojo()(1, &calculo);
    EXPECT_NE(Lista(vigia.Avisos(1)), "");
}

TEST_F(LaSerie, ElTiempoAgregadoQueDiceAlcanzaParaTodas)
{
    Muskingum(s.Red.ColCauces.Item(1), 120, 0);
    s.Red.ColCauces.Item(1).Cauce_aa = "c-2";
    Muskingum(Directo("c-2", "0"), 120, 0);
    s.Pasos.N0Dur = 10;
    PonTormentas({{60, 60, 10}, {60, 180, 10}, {60, 30, 5}});
    const auto avisos = AvisosDeSerie(s, 3);
    const Hallazgo* h = Busca(avisos, 101, "c-2");
    ASSERT_NE(h, nullptr) << Lista(avisos);
    EXPECT_EQ(avisos, AvisosDeSerie(s, 1));
    const std::string texto = "Ponga en ";
    ASSERT_EQ(h->remedio.find(texto), 0U) << h->remedio;
    const auto minutos = static_cast<float>(std::stoi(h->remedio.substr(texto.size())));
    s.Pasos.N0Dur = minutos - 10;
    EXPECT_NE(Busca(AvisosDeSerie(s, 2), 101, "c-2"), nullptr);
    s.Pasos.N0Dur = minutos;
    EXPECT_EQ(Busca(AvisosDeSerie(s, 2), 101, "c-2"), nullptr);
}

// Level pools of several storms are routed without their heights, unless somebody looks.
TEST(AvisosDeSerie, VistosMientrasCorreOCorridosOtraVezSonLosMismos)
{
    model::Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    s.Anfitrion = anfitrion.Puerta();
    pruebas::CorridaDeMuestra muestra(s);
    muestra.Serie();
    VigiaDeSerie vigia(s);
    ASSERT_EQ(engine::CorreSeriePDR(s, 1, vigia.Ojo()), engine::FinSerie::Completa);
    EXPECT_EQ(Lista(vigia.Avisos(1)), Lista(AvisosDeSerie(s, 1)));
}

}  // namespace
}  // namespace checks
