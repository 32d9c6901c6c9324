// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/mdlProceso1.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "engine/RedDeUEHs.h"
#include "engine/modDistriPp.h"
#include "model/Texto.h"

namespace engine {
namespace {

using model::Icono;
using model::Mensaje;

constexpr float Caudal = 2.000004F;  // of 20 mm in 10 min on 6 ha

class Proceso : public testing::Test, public pruebas::RedDeUEHs {
  protected:
    bool Corre(bool guarda = false)
    {
        ConstruyeHietograma(s);
        return ProcesoPrincipal(s, guarda);
    }
    [[nodiscard]] std::vector<float> Salida(int fila) const
    {
        std::vector<float> q;
        for (int p = 1; p <= s.Resultados.NroPasosQ; ++p)
            q.push_back(s.Resultados.QSale(fila, p));
        return q;
    }
    void EsperaRechazo(const std::string& texto)
    {
        EXPECT_FALSE(Corre());
        EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{{texto, "Advertencia !", Icono::Exclamacion}}));
    }
    void EsperaCaudales(int fila, const std::vector<float>& esperados) const
    {
        const std::vector<float> q = Salida(fila);
        ASSERT_EQ(q.size(), esperados.size());
        for (std::size_t p = 0; p < q.size(); ++p)
            EXPECT_NEAR(q[p], esperados[p], 1e-5) << "step " << p + 1;
    }
};

// --- UEHs ---

TEST_F(Proceso, UnaUEHAMano)
{
    PonUEH("u-1", "");
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.NroPasosQ, 5);  // (30 + 20)/10
    EXPECT_EQ(Salida(1), (std::vector<float>{Caudal, Caudal, Caudal, 0, 0}));
    EXPECT_EQ(s.Resultados.QMax(1, 1), Caudal);
    EXPECT_NEAR(s.Resultados.VolUEH(1), 3600.007, 0.01);  // 3·600·2.000004
    EXPECT_EQ(s.Resultados.EscUEH(1, 1), 3600);
    EXPECT_NEAR(s.Resultados.CoefEscUEH(1, 1), 100.0002, 1e-4);
    EXPECT_EQ(s.Resultados.EscTotal(1), 3600);
    EXPECT_EQ(s.Resultados.CoefEscTotal(1), 100);  // of the whole cubic metres
    EXPECT_EQ(s.Tormenta.PpUEH(1), 60);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Proceso, ElTextoDeUnaUEHYUnCauceALaLetra)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0");
    ConstruyeHietograma(s);  // with the Slate off, so that it writes nothing of its own
    s.Control.SalidaPizarra = true;
    anfitrion->pizarra = "ya estaba";
    EXPECT_TRUE(ProcesoPrincipal(s, false));
    const std::string doce(12, ' ');
    const std::string esperado =
        "ya estaba"
        "\r\n\r\nComponentes y Secuencia de cálculo\r\nNroUEH   Nombre UEH\r\n    1          u-1\r\n    2    "
        "      c-1"
        "\r\n\r\nI- SIMULACION EN UEHs"
        "\r\nPer.k  t[min]   UEH     Pp[mm]  Retensión Z[mm]   Infiltra I[mm]   CaudalPp[m3/s]"
        "\r\n    1    10     u-1        20            0                0                2"
        "\r\n    2    20     u-1        20            0                0                2"
        "\r\n    3    30     u-1        20            0                0                2"
        "\r\n    4    40     u-1         0            0                0                0"
        "\r\n\r\nCaudales propagados al pié de cada UEH:\r\n" +
        doce + "        u-1              \r\nPer.k  t[min]- Pp[mm] Q[m3/s] " +  //
        doce + "\r\n 1      10        20       2    " +                         //
        doce + "\r\n 2      20        20       2    " +                         //
        doce + "\r\n 3      30        20       2    " +                         //
        doce + "\r\n 4      40         0       0    " +                         //
        doce + "\r\n 5      50         0       0    " +
        "\r\nPrecipitación   UEH 1 u-1   60 mm"
        "\r\nCaudal Máximo   UEH 1 u-1   2 m3"
        "\r\nEscorrentía     UEH 1 u-1   3600 m3"
        "\r\nCoef.Escorrent. UEH 1 u-1   100 %"
        "\r\nVolumen de Base UEH 1 u-1   0 m3"
        "\r\n"
        "\r\nEscorrentía total[m3]    = 3600 m3"
        "\r\nEscorrentía total[mm]    = 60 mm"
        "\r\nCoef. Escorrentía        = 100 %"
        "\r\nVolumen de Base          = 0 m3"
        "\r\nSuma Pp UEHs             = 60 mm"
        "\r\n\r\nII- SIMULACION EN COMPONENTES RESTANTES"
        "\r\n    (Cauces, Lagos y Represas)"
        "\r\nVolumen Escurrido. Entra = 0 m3 ; Sale = 0 m3"
        "\r\nCaudal Máximo = 0 m3/s "
        "\r\n"
        "\r\nComponente: Tramo de Cauce c-1"
        "\r\nPer.k  t[min]  Qentra[m3/s] Qsale[m3/s] "
        "\r\n 1      10     2          0         "
        "\r\n 2      20     2          2         "
        "\r\n 3      30     2          2         "
        "\r\n 4      40     0          2         "
        "\r\n 5      50     0          0         "
        "\r\nVolumen Escurrido. Entra = 3600 m3 ; Sale = 3600 m3"
        "\r\nCaudal Máximo = 2 m3/s "
        "\r\n";
    EXPECT_TRUE(apoyo::MismoTexto(esperado, s.Control.TextoPizarra));
    EXPECT_TRUE(apoyo::MismoTexto(esperado, anfitrion->pizarra));
}

TEST_F(Proceso, SinRetencionTodaLaLluviaLlegaALaInfiltracion)
{
    model::UEH& u = PonUEH("u-1", "");
    u.KostiakovA = 0.5F;  // b = 1: 0.5 mm/min whatever the time, 5 mm a step
    u.KostiakovB = 1;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.PasosInfiltra(1), 4);  // the clock goes on in each step with rain
    EXPECT_NEAR(s.Resultados.QSale(1, 1), 15 / 10.0 * 0.166667 * 6, 1e-6);
}

TEST_F(Proceso, LaRetencionQueElPasoJustoLlenaDejaElRelojQuieto)
{
    model::UEH& u = PonUEH("u-1", "");
    u.RetensionZ = 20;  // the first step's rain, exactly
    u.KostiakovA = 0.5F;
    u.KostiakovB = 1;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.PasosInfiltra(1), 3);
    EXPECT_EQ(s.Resultados.QSale(1, 1), 0);
    EXPECT_NEAR(s.Resultados.QSale(1, 2), 1.5 * 0.166667 * 6, 1e-6);
}

TEST_F(Proceso, LaRetencionSeLlenaEnVariosPasos)
{
    PonUEH("u-1", "").RetensionZ = 30;
    EXPECT_TRUE(Corre());
    EsperaCaudales(1, {0, Caudal / 2, Caudal, 0, 0});
}

TEST_F(Proceso, KostiakovALaMano)
{
    model::UEH& u = PonUEH("u-1", "");
    u.KostiakovA = 2;
    u.KostiakovB = 0.5F;
    u.KostiakovI = 6;
    EXPECT_TRUE(Corre());
    // I of step n = 2·(sqrt(10n + 6) - sqrt(10n - 4))
    for (int n = 1; n <= 3; ++n) {
        const double I = 2 * (std::sqrt(10 * n + 6.0) - std::sqrt(10 * n - 4.0));
        EXPECT_NEAR(s.Resultados.QSale(1, n), (20 - I) / 10 * 0.166667 * 6, 1e-5) << n;
    }
}

TEST_F(Proceso, SinExcesoSoloHayRecesion)
{
    model::UEH& u = PonUEH("u-1", "");
    u.KostiakovA = 1000;
    u.KostiakovB = 1;
    u.Q0Recesion = 2;
    u.KRecesion = 1;
    EXPECT_TRUE(Corre());
    double base = 0;
    for (int p = 1; p <= 5; ++p) {
        const double Qb = 2 * std::pow(2.7183, -p * 10 / 60.0);
        EXPECT_NEAR(s.Resultados.QSale(1, p), Qb, 1e-6) << p;
        base = std::nearbyint(base + Qb * 600);
    }
    EXPECT_EQ(s.Resultados.VolBaseUEH(1), base);
    EXPECT_EQ(s.Resultados.EscUEH(1, 1), std::nearbyint(s.Resultados.VolUEH(1) - base));
}

// 0.125 m3/s are 7.5 m3 a minute, ties all: 8, 15.5 -> 16, 23.5 -> 24, 31.5 -> 32. The constant takes 1.7e-10
// of it a minute, which the 32-bit flow loses; as a 64-bit one it would leave 7.49 ... and 7, 14, 21, 28. The
// basin takes the shares by steps, 7.5 m3 and 1 m3 in turn: 8, 9; 16.5 -> 16, 17; 24.5 -> 24, 25; 32.5 ->
// 32, 33. By UEHs they would be 32 and 4 more.
TEST_F(Proceso, ElVolumenDeBaseSeRedondeaConCadaAporte)
{
    PonUEH("u-1", "").Q0Recesion = 0.125F;
    PonUEH("u-2", "").Q0Recesion = 1 / 60.0F;
    for (model::UEH& u : s.Red.ColUEHs) {
        u.KRecesion = 1e8F;
        u.KostiakovA = 1000;  // no excess
        u.KostiakovB = 1;
    }
    s.Pasos.PasoPp = s.Pasos.PasoQ = 1;
    s.Tormenta.DurTormenta = 2;
    s.Pasos.N0Dur = 2;
    s.Control.AvisoDescargasVisto = true;
    s.Control.SalidaPizarra = true;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.NroPasosQ, 4);
    EXPECT_EQ(s.Resultados.VolBaseUEH(1), 32);
    EXPECT_EQ(s.Resultados.VolBaseUEH(2), 4);
    EXPECT_NE(s.Control.TextoPizarra.find("Volumen de Base          = 33 m3"), std::string::npos);
}

TEST_F(Proceso, SinQ0OSinKNoHayRecesionNiAviso)
{
    PonUEH("u-1", "").Q0Recesion = 2;
    PonUEH("u-2", "").KRecesion = 2;
    s.Control.AvisoDescargasVisto = true;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.QSale(1, 5), 0);
    EXPECT_EQ(s.Resultados.QSale(2, 5), 0);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Proceso, UnaLaderaDeTiempoCeroConPasosIgualesNoDaCrecida)
{
    PonUEH("u-1", "").LongitudMax = 29;  // 29/60 min rounds to 0
    EXPECT_TRUE(Corre());
    EXPECT_EQ(Salida(1), (std::vector<float>(5, 0)));
}

TEST_F(Proceso, UnaLaderaDeTiempoCeroConPasosFinosPierdeElUltimoPunto)
{
    PonUEH("u-1", "").LongitudMax = 29;
    s.Pasos.PasoQ = 5;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.NroPasosQ, 10);
    EXPECT_EQ(Salida(1), (std::vector<float>{Caudal, 0, Caudal, 0, Caudal, 0, 0, 0, 0, 0}));
}

TEST_F(Proceso, ElTrapecioSubeSeQuedaYBaja)
{
    PonUEH("u-1", "").LongitudMax = 1800;  // T = 30 min, steps of 10: a third of the flow more at each point
    s.Tormenta.DurTormenta = 10;
    s.Tormenta.PpTormenta = 20;
    s.Pasos.N0Dur = 50;
    EXPECT_TRUE(Corre());
    // rising c/3·(1, 2), then the flow less the falling c/3·(t - 10)/10
    EsperaCaudales(1, {Caudal / 3, Caudal / 3, Caudal / 3, 0, 0, 0});
}

TEST_F(Proceso, UnaLaderaLargaAlargaLaCorridaYOtraLaAlargaMas)
{
    PonUEH("u-1", "").LongitudMax = 6000;   // T = 100 min: points up to 100 min after a step's start
    PonUEH("u-2", "").LongitudMax = 12000;  // T = 200 min
    s.Control.AvisoDescargasVisto = true;
    EXPECT_TRUE(Corre());
    // u-2 has 20 points a block. Block 1 takes the run from 5 by twos to 19, block 2 ends at step 21 and
    // makes it the last one, block 3 ends at 22, which is one beyond and stands there.
    EXPECT_EQ(s.Resultados.NroPasosQ, 21);
    EXPECT_EQ(s.Resultados.QSale.TopeColumna(), 22);
    EXPECT_EQ(s.Resultados.QEntra.TopeColumna(), 22);
    double volumen = 0;
    for (int p = 1; p <= 22; ++p)
        volumen += s.Resultados.QSale(2, p) * 600;
    EXPECT_NEAR(volumen, 3600, 0.5);  // nothing of the tail is lost
}

TEST_F(Proceso, ElUltimoPuntoPuedeQuedarFueraDelVolumen)
{
    // One block of rain, T = 30 min: points at steps 1 to 3; the run has 2 steps, and step 3 doesn't grow it.
    PonUEH("u-1", "").LongitudMax = 1800;
    s.Tormenta.DurTormenta = 10;
    s.Tormenta.PpTormenta = 20;
    s.Pasos.N0Dur = 10;
    for (const bool pizarra : {false, true}) {
        s.Control.SalidaPizarra = pizarra;
        EXPECT_TRUE(Corre());
        EXPECT_EQ(s.Resultados.NroPasosQ, 2);
        EXPECT_NEAR(s.Resultados.QSale(1, 3), Caudal / 3, 1e-6);
        EXPECT_NEAR(s.Resultados.VolUEH(1), 2 * 600 * Caudal / 3, 0.01);
    }
}

TEST_F(Proceso, SinTiempoAgregadoSePierdeLaLluviaDelUltimoPaso)
{
    PonUEH("u-1", "");
    s.Pasos.N0Dur = 0;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Tormenta.PpUEH(1), 40);  // steps 1 and 2 of three
    EsperaCaudales(1, {Caudal, Caudal, 0});
}

TEST_F(Proceso, LosVolumenesGrandesPierdenSusUltimasUnidades)
{
    PonUEH("u-1", "").Area = 60000;  // 20000.04 m3/s: 3.6e7 m3, above 2^24
    EXPECT_TRUE(Corre());
    const float paso = 20000.04F * 600;
    float suma = 0;
    for (int p = 1; p <= 3; ++p)
        suma = static_cast<float>(suma + double{10} * 20000.04F * 60);
    EXPECT_EQ(s.Resultados.VolUEH(1), suma);
    EXPECT_GT(paso, 0);
    EXPECT_EQ(std::fmod(s.Resultados.VolUEH(1), 4), 0);  // 32-bit floats above 2^25 go by fours
}

TEST_F(Proceso, EscorrentiaSinLluviaDivideporCero)
{
    model::UEH& u = PonUEH("u-1", "");
    u.RetensionZ = -5;  // gives water where no rain falls
    s.Tormenta.FormaPp = 3;
    s.Tormenta.PpUEH(1) = 0;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 11 ,División por ceroVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(s.Resultados.CoefEscTotal(1), 0);
}

TEST_F(Proceso, PorUEHCadaUnaTieneSuTormentaYQuedaLaUltima)
{
    PonUEH("u-1", "");
    PonUEH("u-2", "");
    s.Control.AvisoDescargasVisto = true;
    s.Tormenta.FormaPp = 3;
    s.Tormenta.PpUEH(1) = 30;
    s.Tormenta.PpUEH(2) = 90;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Tormenta.PpTormenta, 90);
    EXPECT_NEAR(s.Resultados.QSale(1, 1), Caudal / 2, 1e-6);
    EXPECT_NEAR(s.Resultados.QSale(2, 1), Caudal * 1.5, 1e-6);
    EXPECT_EQ(s.Tormenta.PpUEH(1), 30);
}

TEST_F(Proceso, LaConstanteDeLaRecesionSeQuedaHastaLaProximaCarga)
{
    PonUEH("u-1", "").KRecesion = 999999;
    s.Red.UEHs(1).Q0Recesion = 1;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Red.UEHs(1).KRecesion, 999999);
}

// --- checks ---

TEST_F(Proceso, SinUEHsSeRechaza)
{
    EsperaRechazo(
        "Debe haber al menos una Unidad de Estudios Hidrólógicos (UEH) Cargada en el sistema. (Ingresar UEHs "
        "desde el "
        "Menú Principal  \\Entradas\\Editor UEHs (Gráfico)...");
}

TEST_F(Proceso, SinAreaSeRechaza)
{
    PonUEH("u-1", "").Area = 0;
    PonUEH("u-2", "");
    EsperaRechazo(
        "Error en la carga de datos de UEHS, posiblemente no ha cargado correctamente las superficies y "
        "demás "
        "parámetros, ...");
}

TEST_F(Proceso, UnAreaCeroDetrasDeOtraPasa)
{
    PonUEH("u-1", "");
    PonUEH("u-2", "").Area = 0;
    s.Control.AvisoDescargasVisto = true;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.CoefUEH(2), 0);
}

TEST_F(Proceso, SinVelocidadSeRechazaConSuNumero)
{
    PonUEH("u-1", "");
    PonUEH("u-2", "").VelMedia = 0;
    EsperaRechazo(
        "Error en la carga de datos de UEHS Nro. 2. El dato de Velocidad media de la gota en ladera es "
        "incorrecto. "
        "Revise desde Menú Principal: Entradas\\Editor de UEHS...");
}

TEST_F(Proceso, SinLongitudSeRechazaConSuNumero)
{
    PonUEH("u-1", "").LongitudMax = 0;
    EsperaRechazo(
        "Error en la carga de datos de UEHS Nro. 1. El dato de Longitud máxima de la gota en ladera es "
        "incorrecto. "
        "Revise desde Menú Principal: Entradas\\Editor de UEHS...");
}

TEST_F(Proceso, PasosQueNoSonMultiplosSeRechazan)
{
    PonUEH("u-1", "");
    s.Pasos.PasoQ = 4;
    EsperaRechazo(
        "Error, el paso de salida (Q) debe ser múltiplo del paso de cálculo (Pp). Verifique la carga en "
        "\\Entradas\\Preicpitaciones...");
}

TEST_F(Proceso, UnaRedConErroresTerminaLaCorridaSinAtenderLaRespuesta)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0");
    PonCauce("c-2", "c-1");
    anfitrion->respuestaDeSiempre = false;
    EsperaRechazo(
        "Error en la carga de datos de UEHS. Revise desde Menú Principal: Entradas\\Editor de UEHS...");
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
}

TEST_F(Proceso, DesdeLaSegundaCorridaSePreguntaDosVeces)
{
    PonUEH("u-1", "c-1");
    PonCauce("c-1", "0");
    PonCauce("c-2", "c-1");
    Corre();
    EXPECT_EQ(s.Serie.NroSeriePDR, 1);
    anfitrion->sucesos.clear();
    Corre();
    EXPECT_EQ(anfitrion->Preguntas().size(), 2U);
}

TEST_F(Proceso, UnCicloTerminaLaCorrida)
{
    PonUEH("u-1", "c-1");
    PonUEH("u-2", "");
    PonCauce("c-1", "c-2");
    PonCauce("c-2", "c-1");
    PonCauce("c-3", "c-1");
    s.Red.UEHs(2).Cauce_aa = "c-3";
    PonUEH("u-3", "");
    EsperaRechazo(
        "Error en la carga de datos de UEHS. Revise desde Menú Principal: Entradas\\Editor de UEHS...");
}

// --- limits and faults ---

TEST_F(Proceso, LaUEH71FallaEnCadaAcceso)
{
    for (int i = 1; i <= 71; ++i)
        PonUEH("u-" + std::to_string(i), "");
    s.Control.AvisoDescargasVisto = true;
    s.Pasos.N0Dur = 0;
    s.Tormenta.DurTormenta = 20;  // one model step
    EXPECT_TRUE(Corre());
    const std::vector<Mensaje> avisos = anfitrion->Avisos();
    const auto subindice = static_cast<std::size_t>(std::count(
        avisos.begin(), avisos.end(),
        Mensaje{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", Icono::Ninguno}));
    EXPECT_EQ(subindice, avisos.size());
    EXPECT_GT(subindice, 61U);  // beside one for each outfall behind the tenth
    EXPECT_NEAR(s.Resultados.QSale(70, 1), 60 / 20.0 * 0.166667 * 6, 1e-5);  // the others are done
}

TEST_F(Proceso, LaUEH71FallaLasMismasVecesSinTexto)
{
    for (int i = 1; i <= 71; ++i)
        PonUEH("u-" + std::to_string(i), "");
    s.Control.AvisoDescargasVisto = true;
    std::vector<std::vector<Mensaje>> avisos;
    for (const bool conTexto : {true, false}) {
        s.Serie.NroSeriePDR = 0;
        anfitrion->sucesos.clear();
        ConstruyeHietograma(s);
        Memoria memoria;
        EXPECT_TRUE(ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = conTexto}, memoria));
        avisos.push_back(anfitrion->Avisos());
    }
    EXPECT_EQ(avisos[1], avisos[0]);
}

// Areas that nearly cancel out: each takes away the sum so far but for its last bit, 2^-24 of a power of two.
// 1e9, 64, 2^-18, 2^-42, 2^-66, 2^-90, 2^-114 ha are left, and 20 mm on 1e9 ha by that sum are no 32-bit
// float.
TEST_F(Proceso, UnaSuperficieTotalCasiNulaDesbordaLaLluviaMedia)
{
    float suma = 1e9F;
    PonUEH("u-1", "").Area = suma;
    for (int i = 2; i <= 7; ++i) {
        const float area = i == 2 ? 999999936.0F : std::nextafter(suma, 0.0F);
        PonUEH("u-" + std::to_string(i), "").Area = -area;
        suma -= area;
    }
    EXPECT_EQ(suma, std::ldexp(1.0F, -114));
    for (model::UEH& u : s.Red.ColUEHs)
        u.RetensionZ = 100;  // nothing runs off
    s.Control.AvisoDescargasVisto = true;
    EXPECT_TRUE(Corre());
    // three steps of rain, the two UEHs of 1e9 ha
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>(6, {"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno})));
}

TEST_F(Proceso, MinutosFueraDe16BitsSeInformanYLaCorridaSigue)
{
    PonUEH("u-1", "");
    s.Pasos.PasoPp = s.Pasos.PasoQ = 30;
    s.Pasos.N0Dur = 32758;  // 1093 steps: step 1093 stands at minute 32790
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.NroPasosQ, 1093);
    const Mensaje desborda{"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno};
    EXPECT_FALSE(anfitrion->Avisos().empty());
    for (const Mensaje& aviso : anfitrion->Avisos())
        EXPECT_EQ(aviso.texto.substr(0, 10), "Error Nro.");
    EXPECT_EQ(anfitrion->Avisos().front(), desborda);
    EXPECT_GT(s.Resultados.QSale(1, 1), 0);
}

// Columns 0..Int(32767/1 + 1): one more than 16 bits can count. The end of the rain is beyond them too, and
// its sum is at fault at each step; no index is.
TEST_F(Proceso, LaLluviaDe32767PasosTieneSuLugar)
{
    PonUEH("u-1", "");
    s.Pasos.PasoPp = s.Pasos.PasoQ = 1;
    s.Tormenta.DurTormenta = 32767;
    s.Pasos.N0Dur = -1;
    EXPECT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.PpUEHPaso.TopeColumna(), 32768);
    EXPECT_EQ(s.Resultados.NroPasosQ, 32766);
    std::map<std::string, int> avisos;
    for (const Mensaje& aviso : anfitrion->Avisos())
        ++avisos[aviso.texto];
    EXPECT_EQ(avisos.size(), 1U);
    EXPECT_EQ(avisos.begin()->first, "Error Nro. 6 ,DesbordamientoVerifique");
}

TEST_F(Proceso, UnaBaseNegativaDeKostiakovConservaLaInfiltracionAnterior)
{
    model::UEH& u = PonUEH("u-1", "");
    u.KostiakovA = 1;
    u.KostiakovB = 0.5F;
    u.KostiakovI = -15;  // the power of step 1 is that of -5
    EXPECT_TRUE(Corre());
    EXPECT_EQ(anfitrion->Avisos().size(), 2U);  // steps 1 and 2: -5, 5 and 5, -5
    EXPECT_EQ(anfitrion->Avisos()[0].texto,
              "Error Nro. 5 ,Argumento o llamada a procedimiento no válidosVerifique");
    EXPECT_NEAR(s.Resultados.QSale(1, 1), Caudal, 1e-6);  // I stayed at 0
    EXPECT_EQ(s.Resultados.PasosInfiltra(1), 4);          // and the clock went on
}

// --- fast way against the one step by step ---

// 10 mm of 20 infiltrate in 10 min, 5 mm of 10 in 5 min: in both steps the excess is 1 mm/min, half of the
// rain's flow. With the infiltration of the longer step nothing would be left of the shorter one.
TEST_F(Proceso, LoRecordadoDeUnPasoNoSirveParaOtro)
{
    model::UEH& u = PonUEH("u-1", "");
    u.KostiakovA = 1;
    u.KostiakovB = 1;
    u.Q0Recesion = 2;
    u.KRecesion = 1;
    Memoria memoria;
    for (const std::int16_t paso : {std::int16_t{10}, std::int16_t{5}}) {
        s.Pasos.PasoPp = s.Pasos.PasoQ = paso;
        ConstruyeHietograma(s);
        EXPECT_TRUE(ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = false}, memoria));
        const int p = 30 / paso;
        EXPECT_NEAR(s.Resultados.QSale(1, p), Caudal / 2 + 2 * std::pow(2.7183, -30 / 60.0), 1e-5) << paso;
    }
}

TEST_F(Proceso, ConPizarraOSinEllaLosResultadosSonLosMismosBits)
{
    for (int i = 1; i <= 6; ++i) {
        model::UEH& u = PonUEH("u-" + std::to_string(i), "c-" + std::to_string((i + 1) / 2));
        const auto x = static_cast<float>(i);
        u.Area = 13.7F * x;
        u.LongitudMax = 700 * x;
        u.KostiakovA = 1.7F;
        u.KostiakovB = 0.45F;
        u.KostiakovI = 3 * x;
        u.RetensionZ = x - 2;
        u.Q0Recesion = 0.1F * x;
        u.KRecesion = 2.5F;
    }
    PonCauce("c-1", "c-2");
    PonCauce("c-2", "c-3").optDirMusk = false;
    s.Red.Cauces(2).Cauce_k_Musk = 12;
    s.Red.Cauces(2).Cauce_n_Musk = 0.25F;
    PonCauce("c-3", "0");
    s.Pasos.PasoQ = 5;
    s.Tormenta.DistriPp = 2;
    s.Tormenta.DurTormenta = 55;
    model::Siro conPizarra = s;
    conPizarra.Control.SalidaPizarra = true;
    EXPECT_TRUE(Corre());
    ConstruyeHietograma(conPizarra);
    EXPECT_TRUE(ProcesoPrincipal(conPizarra, false));
    EXPECT_EQ(s.Resultados.QSale, conPizarra.Resultados.QSale);
    EXPECT_EQ(s.Resultados.QEntra, conPizarra.Resultados.QEntra);
    EXPECT_EQ(s.Resultados.QMax, conPizarra.Resultados.QMax);
    EXPECT_EQ(s.Resultados.VolUEH, conPizarra.Resultados.VolUEH);
    EXPECT_EQ(s.Resultados.PasosInfiltra, conPizarra.Resultados.PasosInfiltra);
    EXPECT_EQ(s.Resultados.EscTotal, conPizarra.Resultados.EscTotal);
    EXPECT_EQ(s.Resultados.VolEntra, conPizarra.Resultados.VolEntra);
    EXPECT_EQ(s.Resultados.VolSale, conPizarra.Resultados.VolSale);
    EXPECT_EQ(s.Resultados.NroPasosQ, conPizarra.Resultados.NroPasosQ);
}

// --- file ---

// A UEH that retains more than is taken for a moderate depth sends its run down the way that checks each
// point of each trapezoid; it gives no flow itself. Slopes of 0 to 7 h, so that some runs grow.
TEST_F(Proceso, ElTrapecioPuntoPorPuntoDaLosMismosBits)
{
    int crecidas = 0, alargadas = 0;
    for (const float longitud : {1.0F, 59.0F, 290.0F, 620.0F, 3141.0F, 9999.0F, 25000.0F}) {
        for (const int paso : {1, 2, 5, 10}) {
            for (const bool pizarra : {false, true}) {
                const auto corre = [&](float retencion) {
                    pruebas::RedDeUEHs red;
                    red.PonUEH("u-1", "").LongitudMax = longitud;
                    red.PonUEH("u-2", "").RetensionZ = retencion;
                    red.s.Tormenta.PpTormenta = 73.3F;
                    red.s.Pasos.PasoQ = static_cast<std::int16_t>(paso);
                    red.s.Control.SalidaPizarra = pizarra;
                    ConstruyeHietograma(red.s);
                    EXPECT_TRUE(ProcesoPrincipal(red.s, false));
                    return std::move(red.s);
                };
                const model::Siro rapida = corre(9e8F), comprobada = corre(2e9F);
                EXPECT_EQ(rapida.Resultados.QSale, comprobada.Resultados.QSale)
                    << longitud << " m, " << paso << " min";
                EXPECT_EQ(rapida.Resultados.NroPasosQ, comprobada.Resultados.NroPasosQ)
                    << longitud << " m, " << paso << " min";
                EXPECT_EQ(rapida.Resultados.QMax(2, 1), 0);
                crecidas += rapida.Resultados.QMax(1, 1) > 0 ? 1 : 0;
                alargadas += rapida.Resultados.NroPasosQ > 50 / paso ? 1 : 0;
            }
        }
    }
    EXPECT_EQ(crecidas, 54);  // of 56: a slope of 1 m gives none with equal steps
    // Of the last rain, from minute 20 on, 52, 167 and 417 min of travel and 10 of rain outlast the 50
    // simulated.
    EXPECT_EQ(alargadas, 24);
}

TEST_F(Proceso, ConLaPizarraApagadaElArchivoTieneSoloLaTabla)
{
    PonUEH("u-1", "");
    s.Tormenta.DurTormenta = 10;
    s.Tormenta.PpTormenta = 20;
    s.Pasos.N0Dur = 10;
    EXPECT_TRUE(Corre(true));
    const std::string doce(12, ' ');
    EXPECT_TRUE(apoyo::MismoTexto("\"        u-1       - Pp[mm] Q[m3/s] " + doce +
                                      "\r\n 1      10        20       2    " + doce +
                                      "\r\n 2      20         0       0    \"\r\n",
                                  disco.Bytes("/trabajo/SalePizarra1_tem.txt")));
    EXPECT_EQ(s.Proyecto.ArchivoTemp, "SalePizarra1_tem.txt");
}

TEST_F(Proceso, SinGuardarNoHayArchivoNiAviso)
{
    PonUEH("u-1", "");
    EXPECT_TRUE(Corre(false));
    EXPECT_FALSE(disco.Esta("/trabajo/SalePizarra1_tem.txt"));
}

class TextoLargo : public Proceso, public testing::WithParamInterface<int> {};

TEST_P(TextoLargo, MasDe60000CaracteresAvisan)
{
    PonUEH("u-1", "");
    s.Control.SalidaPizarra = true;
    Corre(false);
    // The rest of the text is as long as ever: what the box holds ahead of it makes up the length. Accented
    // letters take two bytes and count once.
    s.Serie.NroSeriePDR = 0;
    anfitrion->pizarra.clear();
    const std::string ahora = [&] {
        ProcesoPrincipal(s, false);
        return s.Control.TextoPizarra;
    }();
    const std::size_t largo = model::CuentaCaracteres(ahora);
    anfitrion->pizarra = std::string(static_cast<std::size_t>(GetParam()) - largo, 'x');
    anfitrion->sucesos.clear();
    s.Resultados.VolEntra = s.Resultados.VolSale = 0;
    EXPECT_TRUE(ProcesoPrincipal(s, true));
    ASSERT_EQ(model::CuentaCaracteres(s.Control.TextoPizarra), static_cast<std::size_t>(GetParam()));
    if (GetParam() <= 60000) {
        EXPECT_TRUE(anfitrion->sucesos.empty());
    } else {
        EXPECT_EQ(
            anfitrion->Avisos(),
            (std::vector<Mensaje>{
                {"La tabla de resultados es muy extensa para ser presentada completa en la Pizarra. Los "
                 "datos se "
                 "guardan completos en el archivo de texto <SalePizarra1_tem.txt> del directorio de trabajo. "
                 "Puede leer directamente este archivo con un editor de texto o bien importar archivo desde "
                 "Excel "
                 "como <delimitado>, con separador <espacio> y formato <general>",
                 "La tabla de resultados es muy extensa", Icono::Exclamacion}}));
    }
    EXPECT_EQ(disco.Bytes("/trabajo/SalePizarra1_tem.txt").size(), static_cast<std::size_t>(GetParam()) + 4);
}

INSTANTIATE_TEST_SUITE_P(Limite, TextoLargo, testing::Values(60000, 60001));

TEST_F(Proceso, UnaComillaEnElTextoNoSeEscapa)
{
    PonUEH("u-1\"x", "");
    EXPECT_TRUE(Corre(true));
    EXPECT_NE(disco.Bytes("/trabajo/SalePizarra1_tem.txt").find("u-1\"x"), std::string::npos);
}

TEST_F(Proceso, SinDirectorioDeTrabajoSeInformaYLosResultadosQuedan)
{
    PonUEH("u-1", "");
    s.Proyecto.DirTrabajo = "/no/esta";
    EXPECT_TRUE(Corre(true));
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{
                  {"Error Nro. 76 ,No se encontró la ruta de accesoVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(s.Resultados.QMax(1, 1), Caudal);
}

}  // namespace
}  // namespace engine
