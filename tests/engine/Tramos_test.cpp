// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Tramos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "engine/RedDeUEHs.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"

namespace engine {
namespace {

using model::Icono;
using model::Mensaje;

constexpr float Caudal = 2.000004F;  // of each of the three steps of rain

class Tramos : public testing::Test, public pruebas::RedDeUEHs {
  protected:
    bool Corre()
    {
        ConstruyeHietograma(s);
        return ProcesoPrincipal(s, true);
    }
    [[nodiscard]] std::vector<float> Salida(int fila) const
    {
        std::vector<float> q;
        for (int p = 1; p <= s.Resultados.NroPasosQ; ++p)
            q.push_back(s.Resultados.QSale(fila, p));
        return q;
    }
    /// One UEH into one Muskingum reach.
    model::Cauce& PonMuskingum(float K, float x)
    {
        PonUEH("u-1", "c-1");
        model::Cauce& c = PonCauce("c-1", "0");
        c.optDirMusk = false;
        c.Cauce_k_Musk = K;
        c.Cauce_n_Musk = x;
        return c;
    }
    void EsperaRechazo(const std::string& texto)
    {
        EXPECT_FALSE(Corre());
        EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{texto, "Advertencia !", Icono::Exclamacion}}));
        EXPECT_FALSE(disco.Esta("/trabajo/SalePizarra1_tem.txt"));  // the closing step isn't done
    }
};

const std::string MuskingumMalo =
    "Error, Los parámetros de Muskingum utilizados en el tramo de caucec-1 son erróneos. Verifique, o cambie "
    "a "
    "propagación Directa desde el Editor de UEHs ";

TEST_F(Tramos, DirectaDesplazaYEmpiezaConElCaudalInicialDeSusUEHs)
{
    PonUEH("u-1", "c-1").Q0Recesion = 0.5F;  // without a constant there is no recession, but there is a flow
    PonCauce("c-1", "0").LongCauce = 1200;   // 20 min: two steps
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(2), (std::vector<float>{0.5F, 0.5F, Caudal, Caudal, Caudal}));
    EXPECT_EQ(s.Resultados.QSale.TopeColumna(), 5 + 1 + 2);
    EXPECT_EQ(s.Resultados.NroPasosQ, 5);
    EXPECT_EQ(s.Resultados.QMax(2, 1), Caudal);
}

TEST_F(Tramos, AlimentadoSoloPorCaucesEmpiezaEnCero)
{
    PonUEH("u-1", "c-1").Q0Recesion = 0.5F;
    PonCauce("c-1", "c-2");
    PonCauce("c-2", "0");
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(3), (std::vector<float>{0, 0.5F, Caudal, Caudal, Caudal}));
}

// Two UEHs of one name give each the flow of the first one's row, but their own initial flow.
TEST_F(Tramos, CadaUEHDeNombreRepetidoTraeSuPropioCaudalInicial)
{
    PonUEH("u-1", "c-1").Q0Recesion = 0.5F;
    PonUEH("u-1", "c-2").Q0Recesion = 0.25F;
    PonCauce("c-1", "0").LongCauce = 1200;  // 20 min: two steps
    PonCauce("c-2", "0").LongCauce = 1200;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(3), (std::vector<float>{0.5F, 0.5F, Caudal, Caudal, Caudal}));
    EXPECT_EQ(Salida(4), (std::vector<float>{0.25F, 0.25F, Caudal, Caudal, Caudal}));
}

TEST_F(Tramos, ViajeMenorQueMedioPasoNoDemora)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").LongCauce = 240;  // 4 min of 10: 0.4 rounds to 0
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(2), (std::vector<float>{Caudal, Caudal, Caudal, 0, 0}));
}

TEST_F(Tramos, MedioPasoJustoVaAlPar)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").LongCauce = 900;  // 15 min are 1.5 steps: 2, the even one
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(2), (std::vector<float>{0, 0, Caudal, Caudal, Caudal}));
}

TEST_F(Tramos, DemoraMasLargaQueLaCorridaPierdeTodaLaCrecida)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").LongCauce = 6000;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(2), (std::vector<float>(5, 0)));
    EXPECT_NEAR(s.Resultados.VolEntra, 3600, 0.01);
    EXPECT_EQ(s.Resultados.VolSale, 0);
    EXPECT_EQ(s.Resultados.QSale(2, 11), Caudal);  // it stands in the array, and nobody reads it
}

TEST_F(Tramos, SinAfluentesTodoEsCero)
{
    // The validation stops such a network; the routine by itself goes on.
    PonCauce("c-1", "0");
    s.Resultados.NroComponentes = 1;
    s.Resultados.Secuencia = {"", "c-1"};
    s.Resultados.NroPasosQ = 4;
    s.Serie.IndSerie = 1;
    s.Resultados.QSale.Dimensiona(1, 5);
    s.Resultados.QEntra.Dimensiona(1, 2, 5);
    s.Resultados.QMax.Dimensiona(1, 1);
    Memoria memoria;
    Corrida c(s, memoria);
    const Aportes afluentes(s);
    c.Afluentes = &afluentes;
    EXPECT_TRUE(ProcesoEnCauce(c, 1));
    EXPECT_EQ(Salida(1), (std::vector<float>(4, 0)));
}

TEST_F(Tramos, MuskingumAMano)
{
    PonMuskingum(20, 0.25F);
    // denominator 20 - 5 + 5 = 20: C0 = (5 - 5)/20 = 0, C1 = 10/20, C2 = (15 - 5)/20 = 0.5
    EXPECT_TRUE(Corre());
    const std::vector<float> q = Salida(2);
    EXPECT_EQ(q[0], Caudal);  // the first step passes as it is
    EXPECT_FLOAT_EQ(q[1], Caudal);
    EXPECT_FLOAT_EQ(q[2], Caudal);
    EXPECT_FLOAT_EQ(q[3], Caudal);
    EXPECT_FLOAT_EQ(q[4], Caudal / 2);
}

TEST_F(Tramos, MuskingumConKCeroSigueLaFormula)
{
    PonMuskingum(0, 0.2F);  // C0 = 1, C1 = 1, C2 = -1
    EXPECT_TRUE(Corre());
    // O = I + I' - O'
    EXPECT_EQ(Salida(2), (std::vector<float>{Caudal, Caudal, Caudal, 0, 0}));
}

TEST_F(Tramos, MuskingumConDenominadorCero)
{
    PonMuskingum(10, 1.5F);  // 10 - 15 + 5
    EsperaRechazo(MuskingumMalo);
}

TEST_F(Tramos, MuskingumCuyaSumaNoDaUnoPorRedondeo)
{
    // Found by trying K from 1 on with x = 0.3: the first whose three 32-bit coefficients miss 1.
    float K = 0;
    const auto suma = [](double k, double x) {
        const auto den = static_cast<float>(k - k * x + 5);
        const auto C0 = static_cast<float>((5 - k * x) / den), C1 = static_cast<float>((k * x + 5) / den),
                   C2 = static_cast<float>((k - k * x - 5) / den);
        return static_cast<float>(double{C0} + C1 + C2);
    };
    while (suma(++K, 0.3F) == 1)
        ASSERT_LT(K, 1000);
    PonMuskingum(K, 0.3F);
    EsperaRechazo(MuskingumMalo);
}

TEST_F(Tramos, MuskingumQueDesbordaSeInformaYLaCorridaSigue)
{
    // K·(1 - x) just above -Δ/2 makes a tiny denominator: flows grow without bound and leave the type.
    PonMuskingum(10, 1.4375F);  // -4.375 + 5 = 0.625: C2 = -9.375/0.625 = -15
    s.Pasos.N0Dur = 600;
    EXPECT_TRUE(Corre());
    ASSERT_FALSE(anfitrion->Avisos().empty());
    EXPECT_EQ(anfitrion->Avisos()[0].texto, "Error Nro. 6 ,DesbordamientoVerifique");
}

TEST_F(Tramos, SinLongitudSeRechaza)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").LongCauce = 0;
    EsperaRechazo(
        "El parámetro de Longitud de Cauce del tramo c-1 es '0'. Debe asignar un valor correcto a este "
        "parámetro desde "
        "el Editor de UEHs ");
}

TEST_F(Tramos, SinVelocidadSeRechaza)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").VelMediaCauce = 0;
    EsperaRechazo(
        "El parámetro de Velocidad Media de propagación Directa en el tramo c-1 es '0'. Debe asignar un "
        "valor correcto "
        "a este parámetro desde el Editor de UEHs ");
}

TEST_F(Tramos, ElRechazoDejaLosComponentesHechosYElTextoHastaElUltimo)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "c-2");
    PonCauce("c-2", "0").VelMediaCauce = 0;
    s.Control.SalidaPizarra = true;
    EXPECT_FALSE(Corre());
    EXPECT_EQ(s.Resultados.QMax(2, 1), Caudal);
    EXPECT_EQ(s.Resultados.QMax(3, 1), 0);
    EXPECT_NE(anfitrion->pizarra.find("Tramo de Cauce c-1"), std::string::npos);
    EXPECT_EQ(anfitrion->pizarra.find("Tramo de Cauce c-2"), std::string::npos);
}

TEST_F(Tramos, UnaVelocidadNegativaFallaEnCadaPaso)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").VelMediaCauce = -1;  // a delay of -1 step: only step 1 would fall below the array
    EXPECT_TRUE(Corre());
    EXPECT_TRUE(anfitrion->sucesos.empty());  // step 1 falls on column 0, which is there
    EXPECT_EQ(Salida(2), (std::vector<float>{Caudal, Caudal, 0, 0, 0}));
}

TEST_F(Tramos, UnNombreSinPrefijoNoSeCalcula)
{
    PonUEH("u-1", "tramo");
    PonCauce("tramo", "0");
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.Secuencia[2], "tramo");
    EXPECT_EQ(Salida(2), (std::vector<float>(5, 0)));
}

TEST_F(Tramos, ElBloqueDelComienzoMuestraLoDeLaCorridaAnterior)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0");
    EXPECT_TRUE(Corre());
    s.Control.SalidaPizarra = true;
    EXPECT_TRUE(Corre());
    EXPECT_NE(s.Control.TextoPizarra.find(
                  "    (Cauces, Lagos y Represas)\r\nVolumen Escurrido. Entra = 3600 m3 ; Sale = 3600 "
                  "m3\r\nCaudal Máximo = 0 m3/s \r\n"),
              std::string::npos);
}

TEST_F(Tramos, DosCaucesDelMismoNombreSePropaganDosVeces)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0").LongCauce = 240;
    PonCauce("c-1", "0").LongCauce = 240;
    s.Control.AvisoDescargasVisto = true;
    EXPECT_TRUE(Corre());
    // Each row of that name walks both: the inflow is gathered twice, and the outflow adds up 1 + 2 times.
    EXPECT_FLOAT_EQ(s.Resultados.QEntra(2, 1), 2 * Caudal);
    EXPECT_FLOAT_EQ(s.Resultados.QSale(2, 1), 3 * Caudal);
}

}  // namespace
}  // namespace engine
