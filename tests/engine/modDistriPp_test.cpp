// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/modDistriPp.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"

namespace engine {
namespace {

using model::Siro;

constexpr std::int16_t Real = 4;

class Hietograma : public testing::Test {
  protected:
    Hietograma()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.DirTrabajo = "/trabajo";
        s.Proyecto.DirProyecto = "/trabajo/Proyectos";
        disco.PonDirectorio(s.Proyecto.DirProyecto);
        s.Pasos.PasoPp = 10;
    }
    void Tormenta(float P, std::int16_t D, std::int16_t distribucion)
    {
        s.Tormenta.PpTormenta = P;
        s.Tormenta.DurTormenta = D;
        s.Tormenta.DistriPp = distribucion;
        ConstruyeHietograma(s);
    }
    /// Rain of the steps 1, 2, 3 ...
    std::vector<double> Pasos(int cuantos)
    {
        std::vector<double> pp;
        for (int k = 1; k <= cuantos; ++k)
            pp.push_back(PpDelPaso(s, static_cast<std::int16_t>(k)));
        return pp;
    }
    std::vector<float> Laminas()
    {
        std::vector<float> v;
        for (int j = 1; j <= s.Tormenta.NroPpReal; ++j)
            v.push_back(s.Tormenta.PpReal(j));
        return v;
    }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
};

TEST_F(Hietograma, IntensidadConstanteEsUnSoloBloque)
{
    Tormenta(60, 60, 0);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 1);
    EXPECT_EQ(s.Tormenta.NroPpReal, 1);
    EXPECT_EQ(s.Hietograma.PpAcum(1), 60);
    EXPECT_EQ(s.Hietograma.IntensidadPp(1), 1);  // 60 mm in 60 min
    EXPECT_EQ(s.Tormenta.PpReal(0), 0);
    EXPECT_EQ(s.Tormenta.PpReal(1), 60);
}

// --- López Cadenas: blocks by duration ---

struct CasoLopez {
    std::int16_t D;
    std::vector<float> laminas;  ///< of P = 100 mm: the percentages
};

class LopezCadenas : public Hietograma, public testing::WithParamInterface<CasoLopez> {};

TEST_P(LopezCadenas, BloquesPorDuracion)
{
    Tormenta(100, GetParam().D, 1);
    const std::vector<float> laminas = Laminas();
    ASSERT_EQ(laminas.size(), GetParam().laminas.size());
    for (std::size_t j = 0; j < laminas.size(); ++j)
        EXPECT_NEAR(laminas[j], GetParam().laminas[j], 2e-5)
            << "block " << j + 1;  // differences of 32-bit sums
}

// clang-format off
const std::vector<float> Tres = {20, 60, 20}, Cuatro = {12, 20, 55, 13}, Cinco = {9, 10, 53, 18, 10},
                         Seis = {8, 9, 11, 49, 15, 8},
                         Veinticuatro = {2.5F, 2.5F, 2.5F, 2.5F, 2.5F, 2.5F, 6, 7, 8, 37, 11, 6, 1, 1, 1, 1, 1, 1,
                                         0.6667F, 0.6667F, 0.6667F, 0.6667F, 0.6667F, 0.6667F};
INSTANTIATE_TEST_SUITE_P(Duraciones, LopezCadenas,
    testing::Values(CasoLopez{10, {100}}, CasoLopez{150, {100}}, CasoLopez{151, Tres}, CasoLopez{210, Tres},
                    CasoLopez{211, Cuatro}, CasoLopez{270, Cuatro}, CasoLopez{271, Cinco}, CasoLopez{330, Cinco},
                    CasoLopez{331, Seis}, CasoLopez{719, Seis}, CasoLopez{720, Veinticuatro},
                    CasoLopez{2880, Veinticuatro}),
    [](const auto& caso) { return "D" + std::to_string(caso.param.D); });
// clang-format on

TEST_F(Hietograma, LopezDe24BloquesSumaAlgoMasQueElTotal)
{
    // 6·2.5 + 75 + 6·1 + 6·0.6667 = 100.0002 %
    Tormenta(100, 1440, 1);
    EXPECT_NEAR(s.Hietograma.PpAcum(24), 100.0002, 1e-4);
    EXPECT_GT(s.Hietograma.PpAcum(24), 100);
}

TEST_F(Hietograma, LopezPorEncimaDe48HorasNoTieneTabla)
{
    Tormenta(100, 2881, 1);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 288);  // Int(2881/10)
    EXPECT_EQ(s.Tormenta.NroPpReal, 288);
    EXPECT_EQ(s.Hietograma.PpAcum(1), 0);
    EXPECT_EQ(s.Hietograma.IntensidadPp(288), 0);
}

TEST_F(Hietograma, SinTablaQuedaLoQueTeniaUnaTormentaAnterior)
{
    Tormenta(100, 60, 0);  // PpAcum(1) = 100 mm, IntensidadPp(1) = 100/60 mm/min
    Tormenta(50, 2881, 1);
    // What the arrays hold is taken for percentages: 50·100/100, and 50·(100/60)/(1/288)/2881/100.
    EXPECT_EQ(s.Hietograma.PpAcum(1), 50);
    EXPECT_NEAR(s.Hietograma.IntensidadPp(1), 50 * (100 / 60.0) * 288 / 2881 / 100, 1e-6);
}

// One minute less than 16 bits can count: each block is built, the last one too.
TEST_F(Hietograma, Los32767BloquesDeUnMinuto)
{
    s.Pasos.PasoPp = 1;
    Tormenta(100, 32767, 1);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 32767);
    EXPECT_EQ(s.Tormenta.NroPpReal, 32767);
}

// --- sample storms and out of range ---

struct CasoFijo {
    std::int16_t distribucion;
    std::vector<float> porcentajes;
};

class DistribucionFija : public Hietograma, public testing::WithParamInterface<CasoFijo> {};

TEST_P(DistribucionFija, BloquesEIntensidades)
{
    Tormenta(200, 1440, GetParam().distribucion);
    ASSERT_EQ(s.Tormenta.NroPpReal, 5);
    for (int j = 1; j <= 5; ++j) {
        const double porcentaje = GetParam().porcentajes[static_cast<std::size_t>(j) - 1];
        EXPECT_FLOAT_EQ(s.Tormenta.PpReal(j), static_cast<float>(2 * porcentaje)) << j;
        // depth of the block over its length of 1440/5 = 288 min
        EXPECT_FLOAT_EQ(s.Hietograma.IntensidadPp(j), static_cast<float>(2 * porcentaje / 288)) << j;
    }
}

INSTANTIATE_TEST_SUITE_P(Ruvera, DistribucionFija,
                         testing::Values(CasoFijo{2, {34, 31, 18, 9, 8}}, CasoFijo{3, {42, 26, 23, 7, 2}},
                                         CasoFijo{4, {6, 20, 18, 34, 22}}),
                         [](const auto& caso) { return "D" + std::to_string(caso.param.distribucion); });

TEST_F(Hietograma, DistribucionFueraDeRangoNoLlueve)
{
    Tormenta(60, 60, 9);
    EXPECT_EQ(Pasos(3), (std::vector<double>{0, 0, 0}));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

// --- personal tables ---

TEST_F(Hietograma, PersonalSeLeeJustoAntesDeUsarse)
{
    disco.Pon("/trabajo/distriPp_dpt.vlm",
              "2,0,0\r\n\"una\"\r\n0,0\r\n25\r\n75\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n");
    s.TablasDeLluvia.NroFilasTabla = {9, 9, 9, 9};  // as another reader left them
    Tormenta(80, 40, 5);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 2);
    EXPECT_EQ(Laminas(), (std::vector<float>{20, 60}));
    EXPECT_FLOAT_EQ(s.Hietograma.IntensidadPp(2), 3);  // 60 mm in 20 min
}

TEST_F(Hietograma, PersonalSinArchivoNoTieneBloquesYNoAvisa)
{
    Tormenta(80, 40, 6);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 0);
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Hietograma, PersonalVaciaEnUnaTormentaMasCortaQueElPasoFalla)
{
    // Int(5/10) = 0 blocks leave no element 1 to start the running sum in.
    Tormenta(80, 5, 5);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "Error Nro. 9 ,El subíndice está fuera del intervaloVerifique");
    EXPECT_EQ(anfitrion->Avisos()[0].titulo, "");
    EXPECT_EQ(anfitrion->Avisos()[0].icono, model::Icono::Ninguno);
}

// --- real storm ---

TEST_F(Hietograma, RealNoCambiaLasLaminasYSusBloquesSonElPaso)
{
    s.Tormenta.FormaPp = Real;
    s.Tormenta.PpReal.Dimensiona(3);
    s.Tormenta.PpReal(1) = 2;
    s.Tormenta.PpReal(2) = 6;
    s.Tormenta.PpReal(3) = 2;
    Tormenta(10, 30, 7);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 3);
    EXPECT_EQ(Laminas(), (std::vector<float>{2, 6, 2}));
    EXPECT_FLOAT_EQ(s.Hietograma.IntensidadPp(2), 0.6F);
    EXPECT_EQ(s.Hietograma.PpAcum(3), 10);
    EXPECT_TRUE(disco.Llamadas().empty());  // distribution 7 plays no part
    const std::vector<double> pp = Pasos(3);
    EXPECT_FLOAT_EQ(static_cast<float>(pp[0]), 2);
    EXPECT_FLOAT_EQ(static_cast<float>(pp[1]), 6);
    EXPECT_FLOAT_EQ(static_cast<float>(pp[2]), 2);
}

// --- rain by step ---

TEST_F(Hietograma, PasoDe10En25MinutosSirveElTramoFinal)
{
    Tormenta(25, 25, 0);
    EXPECT_EQ(Pasos(4), (std::vector<double>{1.0 / 25 * 25 * 10, 1.0 / 25 * 25 * 10, 1.0 / 25 * 25 * 5, 0}));
}

TEST_F(Hietograma, DuracionMultiploDelPasoNoLlueveDespuesDelFin)
{
    Tormenta(30, 30, 0);
    EXPECT_EQ(Pasos(4), (std::vector<double>{10, 10, 10, 0}));
}

TEST_F(Hietograma, LosPasosSumanLaTormentaAunqueNoCoincidanConLosBloques)
{
    // 3 blocks of 60 min against steps of 50: the fourth step is the last.
    s.Pasos.PasoPp = 50;
    Tormenta(100, 180, 1);
    const std::vector<double> pp = Pasos(4);
    // cumulative at 50 = 20·50/60; at 100 = 20 + 60·40/60; at 150 = 80 + 20·30/60; then up to 100
    EXPECT_NEAR(pp[0], 20 * 50 / 60.0, 1e-5);
    EXPECT_NEAR(pp[1], 60 - 20 * 50 / 60.0, 1e-5);
    EXPECT_NEAR(pp[2], 90 - 60, 1e-5);
    EXPECT_NEAR(pp[0] + pp[1] + pp[2] + pp[3], 100, 1e-4);
}

TEST_F(Hietograma, ElUltimoPasoNoPasaDelTotal)
{
    Tormenta(100, 1445, 1);  // the last cumulative value is 100.0002; step 145 is the last, and partial
    double suma = 0;
    for (const double pp : Pasos(145))
        suma += pp;
    EXPECT_NEAR(suma, 100, 1e-5);
}

TEST_F(Hietograma, ConUnMultiploDelPasoElExcesoDeLaTablaSeEntrega)
{
    Tormenta(100, 1440, 1);  // step 145 would be the one that is cut, and it is behind the storm's end
    double suma = 0;
    for (const double pp : Pasos(145))
        suma += pp;
    EXPECT_NEAR(suma, 100.0002, 3e-5);
}

TEST_F(Hietograma, CadaTormentaEmpiezaSinLluviaEntregada)
{
    Tormenta(30, 180, 1);
    Pasos(5);
    EXPECT_GT(s.Hietograma.PpAcumPrevia, 0);
    Tormenta(30, 180, 1);
    EXPECT_EQ(s.Hietograma.PpAcumPrevia, 0);
}

TEST_F(Hietograma, MinutosQueNoCabenEn16BitsFallan)
{
    Tormenta(30, 60, 0);
    s.Pasos.PasoPp = 200;
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { PpDelPaso(s, 200); }), 6);
}

// --- Slate ---

// 10 min a step, 30000 blocks in 15 min: minute 20 lies in block 10·30000·2/15 + 1 = 40001.
TEST_F(Hietograma, BloqueQueNoCabeEn16BitsFalla)
{
    s.Tormenta.DistriPp = 5;
    s.Pasos.PasoPp = 10;
    s.Tormenta.DurTormenta = 15;
    s.Hietograma.NroBloquesPp = 30000;
    s.Hietograma.PpAcum.Dimensiona(30000);
    s.Hietograma.IntensidadPp.Dimensiona(30000);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { PpDelPaso(s, 2); }), 6);
}

TEST_F(Hietograma, TextoDeLaPizarraALaLetra)
{
    s.Control.SalidaPizarra = true;
    Tormenta(10.126F, 180, 1);
    // blocks 20, 60, 20 %: 2.0252, 6.0756, 2.0252 mm; intensities over 60 min; all cut to two decimals
    EXPECT_TRUE(
        apoyo::MismoTexto("\r\nEntrada: PRECIPITACION"
                          "\r\nPp= 10.126 [mm]  180 [min]"
                          "\r\nDistribución temporal de la Pp:"
                          "\r\nPer.k t[min] Pp[mm]  Pp Acumulada[mm]  Intensidad de Pp[mm/min]"
                          "\r\n 1    10    2.02       2.02                     0.03"
                          "\r\n 2    20    6.07       8.1                      0.1"
                          "\r\n 3    30    2.02       10.12                    0.03",
                          anfitrion->pizarra));
}

TEST_F(Hietograma, LosMinutosDeLaLineaFallanAunqueNoSeEscriba)
{
    // PasoPp·j passes 32767 at j = 12: the line can't be built, and the routine ends there.
    s.Pasos.PasoPp = 2880;
    Tormenta(100, 2880, 1);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "Error Nro. 6 ,DesbordamientoVerifique");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 24);
    EXPECT_NEAR(s.Hietograma.PpAcum(12), 90,
                1e-4);  // turned into depths as far as it came, block 12 included
    EXPECT_NEAR(s.Hietograma.PpAcum(13), 91, 1e-4);  // still a percentage, and P is 100: the same figure
    EXPECT_NEAR(s.Tormenta.PpReal(13), 0, 0);
}

TEST_F(Hietograma, SinLaminaODuracionNoSeConstruyeNada)
{
    s.Control.SalidaPizarra = true;
    s.Tormenta.NroPpReal = 7;
    Tormenta(0, 60, 0);
    EXPECT_EQ(s.Hietograma.NroBloquesPp, 6);
    EXPECT_EQ(s.Tormenta.NroPpReal, 7);
    EXPECT_EQ(anfitrion->pizarra, "");
}

TEST_F(Hietograma, PasoCeroSeInforma)
{
    s.Pasos.PasoPp = 0;
    Tormenta(60, 60, 0);
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "Error Nro. 11 ,División por ceroVerifique");
}

// Minute 9619 of 10000 in 2021 blocks: 2021·9619 = 19439999 is odd and above 2^24, halfway between two 32-bit
// floats; the even one, 19440000, over 10000 is 1944. So the step falls in block 1945, by a clock that stands
// 1/2021 min before it: -1/2021 min at 100 mm/min. In 64 bits 1943.9999 is still block 1944, where it doesn't
// rain.
TEST_F(Hietograma, ElBloqueDeUnPasoSeBuscaEn32Bits)
{
    s.Pasos.PasoPp = 1;
    s.Tormenta.DistriPp = 5;
    s.Tormenta.DurTormenta = 10000;
    s.Hietograma.NroBloquesPp = 2021;
    s.Hietograma.PpAcum.Dimensiona(2021);
    s.Hietograma.IntensidadPp.Dimensiona(2021);
    s.Hietograma.IntensidadPp(1945) = 100;
    s.Hietograma.PpAcumPrevia = 0;
    EXPECT_NEAR(PpDelPaso(s, 9619), -100 / 2021.0, 1e-6);
}

}  // namespace
}  // namespace engine
