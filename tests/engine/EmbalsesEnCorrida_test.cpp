// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "apoyo/Compara.h"
#include "engine/EmbalseSolo.h"
#include "engine/mdlProceso1.h"

// Represas and Lagos inside whole runs: what one leaves for the next, and what a fault or a refusal in one
// means for the others.
namespace engine {
namespace {

using model::Icono;
using model::Mensaje;
using pruebas::RedAMano;
using pruebas::RenglonHASQ;

/// 30.72 ha of vertical walls: S = 307200·d [m3], Q = 1024·d [m3/s].
const std::vector<RenglonHASQ> Pileta = {{100, 30.72F, 0, 0}, {104, 30.72F, 1228800, 4096}};

/// The same walls without an outlet.
const std::vector<RenglonHASQ> SinSalida = {{100, 30.72F, 0, 0}, {104, 30.72F, 1228800, 0}};

/// A storm of three steps of 10 min that leaves no runoff, one more step behind it, and one UEH "u-1".
class EmbalsesEnCorrida : public testing::Test, public RedAMano {
  protected:
    EmbalsesEnCorrida()
    {
        s.Tormenta.PpTormenta = 30;
        s.Tormenta.DurTormenta = 30;
        s.Pasos.N0Dur = 10;
        s.Proyecto.DirTrabajo = "/trabajo";
        disco.PonDirectorio("/trabajo");
    }
    void PonUEHSeca(const std::string& destino)
    {
        PonUEH("u-1", destino);
        model::UEH& u = s.Red.UEHs(1);
        u.Area = 100;
        u.LongitudMax = 600;
        u.VelMedia = 1;
        u.KostiakovA = 1000;  // takes in all the rain
        u.KostiakovB = 1;
    }
    bool Corre()
    {
        CuentaComponentes();
        LlenaTablas();
        return ProcesoPrincipal(s, true);
    }
    [[nodiscard]] bool Dice(const std::string& texto) const
    {
        return s.Control.TextoPizarra.find(texto) != std::string::npos;
    }
};

TEST_F(EmbalsesEnCorrida, VacioYSinEntradaQuedaApenasSobreElFondo)
{
    PonUEHSeca("r-uno");
    PonRepresa("r-uno", "Piscina Nivelada", Pileta).HInicialEmb = 100;
    ASSERT_TRUE(Corre());
    ASSERT_EQ(s.Resultados.NroPasosQ, 4);
    EXPECT_EQ(s.Resultados.QSale(1, 2), 0) << "no runoff";
    for (int k = 1; k <= 4; ++k) {
        EXPECT_EQ(s.Resultados.HRepresa(1, k), 100 + 1 / 256.0F);
        EXPECT_EQ(s.Resultados.QSale(2, k), 4);
    }
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

// Two UEHs of one name: the second drains here, and what counts is the initial flow of the first, whose row
// it is.
TEST_F(EmbalsesEnCorrida, DeUnNombreRepetidoCuentaElCaudalInicialDeLaPrimera)
{
    PonUEHSeca("c-1");
    model::Cauce& tramo = PonCauce("c-1", "0");
    tramo.LongCauce = 600;
    tramo.VelMediaCauce = 1;
    tramo.optDirMusk = true;
    s.Red.ColUEHs.Agrega(s.Red.UEHs(1)).Cauce_aa = "r-uno";
    s.Red.ColUEHs.Item(1).Q0Recesion = 0.5F;
    s.Red.ColUEHs.Item(2).Q0Recesion = 0.25F;
    PonRepresa("r-uno", "Piscina Nivelada", Pileta).HInicialEmb = 100;
    s.Control.AvisoDescargasVisto = true;
    ASSERT_TRUE(Corre());
    ASSERT_EQ(s.Resultados.Secuencia[4], "r-uno");
    EXPECT_EQ(s.Resultados.QEntra(4, 0), 0.5F);
}

TEST_F(EmbalsesEnCorrida, LaPlanillaLlegaAlArchivoConLaPizarraApagada)
{
    PonUEHSeca("r-uno");
    PonRepresa("r-uno", "Piscina Nivelada", Pileta).HInicialEmb = 100;
    ASSERT_TRUE(Corre());
    const std::string archivo = disco.Bytes("/trabajo/SalePizarra1_tem.txt");
    // In Windows-1252 \xE1 is á and \xF3 is ó. Each step takes 2·4 m3/s off 2S/dt - Q.
    EXPECT_NE(
        archivo.find("\r\nPlanilla detallada de c\xE1lculo de propagaci\xF3n en Represa \r\nk - t[mi] - "),
        std::string::npos);
    EXPECT_NE(archivo.find("\r\n 4    40    0    0   -32    8         4   100.0039   1200"
                           "\r\n Fin detalle c\xE1lculo proaga en Represa \"\r\n"),
              std::string::npos);
    EXPECT_EQ(archivo.find("Per.k  t[min]  Qentra"), std::string::npos);
}

TEST_F(EmbalsesEnCorrida, MuskingumMuestraLaAlturaCeroEnLaPrimeraFila)
{
    s.Control.SalidaPizarra = true;
    PonUEHSeca("c-1");
    auto& tramo = PonCauce("c-1", "r-uno");
    tramo.LongCauce = 600;
    tramo.VelMediaCauce = 1;
    tramo.optDirMusk = true;
    auto& represa = PonRepresa("r-uno", "Muskingum", Pileta);
    represa.HInicialEmb = 103;
    represa.Represa_k_Musk = 15;
    represa.Cauce_aa = "c-2";
    auto& segundo = PonCauce("c-2", "l-uno");
    segundo.LongCauce = 600;
    segundo.VelMediaCauce = 1;
    segundo.optDirMusk = true;
    auto& lago = PonLago("l-uno", "Muskingum", Pileta);
    lago.HInicialEmb = 103;
    lago.Lago_k_Musk = 15;
    ASSERT_TRUE(Corre());
    const std::string primera = "\r\n 0      0      0          0            0         0         ";
    EXPECT_TRUE(
        Dice("Método de Propagación: Muskingum"
             "\r\nPer.k  t[min]  Qentra[m3/s] Qsale[m3/s]   H[m]     Vol.Alm.[m3]" +
             primera));
    EXPECT_TRUE(
        Dice("Método de Propagación: Muskingum"
             "\r\nPer.k  t[min]  Qentra[mm] Qsale[m3/s]   H[m]     Vol.Alm.[m3]" +
             primera));
    // From step 1 on Q = 0 is met 1/1024 m above the bottom.
    EXPECT_EQ(s.Resultados.HLago(1, 1), 100 + 1 / 1024.0F);
}

TEST_F(EmbalsesEnCorrida, ElAlmacenamientoDeLaCorridaAnteriorNoSeMuestra)
{
    PonUEHSeca("r-uno");
    PonRepresa("r-uno", "Runge Kutta", SinSalida).HInicialEmb = 101;
    for (int vez = 1; vez <= 2; ++vez) {
        s.Control.TextoPizarra.clear();
        ASSERT_TRUE(Corre());
        EXPECT_TRUE(Dice("\r\n 0    0    0    0    0    0         0   101   0\r\n 1")) << vez;
        EXPECT_EQ(s.Resultados.SRepresa(1, s.Resultados.NroPasosQ), 307200);
    }
}

TEST_F(EmbalsesEnCorrida, ElLagoMuestraElAlmacenamientoDeLaRepresaDeLaMismaCorrida)
{
    PonUEHSeca("r-uno");
    auto& represa = PonRepresa("r-uno", "Piscina Nivelada", Pileta);
    represa.HInicialEmb = 100;
    represa.Cauce_aa = "c-1";
    auto& tramo = PonCauce("c-1", "l-uno");
    tramo.LongCauce = 600;
    tramo.VelMediaCauce = 1;
    tramo.optDirMusk = true;
    PonLago("l-uno", "Runge Kutta", SinSalida).HInicialEmb = 101;
    ASSERT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.SRepresa(1, 4), 1200);  // 307200/256
    EXPECT_EQ(s.Resultados.SLago(1, 0), 1200);
    EXPECT_TRUE(Dice("\r\n 0    0    0    0    0    0         0   101   1200"));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EmbalsesEnCorrida, UnaRepresaSinMetodoDetieneATodasLasSiguientesYLaCorridaSigue)
{
    PonUEHSeca("r-a");
    PonRepresa("r-a", "", Pileta).Cauce_aa = "c-1";
    auto& tramo = PonCauce("c-1", "r-b");
    tramo.LongCauce = 600;
    tramo.VelMediaCauce = 1;
    tramo.optDirMusk = true;
    auto& otra = PonRepresa("r-b", "Piscina Nivelada", Pileta);
    otra.HInicialEmb = 102;
    otra.Cauce_aa = "c-2";
    auto& segundo = PonCauce("c-2", "l-uno");
    segundo.LongCauce = 600;
    segundo.VelMediaCauce = 1;
    segundo.optDirMusk = true;
    PonLago("l-uno", "Piscina Nivelada", Pileta).HInicialEmb = 102;
    ASSERT_TRUE(Corre());
    const Mensaje aviso{
        "Error, Seleccione el método de propagación de la represa en el formulario de Propiedadesr-a. ",
        "Advertencia !", Icono::Exclamacion};
    EXPECT_EQ(anfitrion->Avisos(), (std::vector<Mensaje>{aviso, aviso})) << "one for each Represa";
    EXPECT_EQ(s.Resultados.HRepresa(2, 0), 0) << "the second isn't routed";
    EXPECT_EQ(s.Resultados.HLago(1, 0), 102) << "the Lago is";
}

TEST_F(EmbalsesEnCorrida, UnaFallaTerminaEseComponenteYSigueElProximo)
{
    PonUEHSeca("r-uno");
    auto& represa =
        PonRepresa("r-uno", "Piscina Nivelada", {{100, 1, -2000000000, 0}, {104, 1, 2000000000, 9}});
    represa.HInicialEmb = 102;
    represa.Cauce_aa = "c-1";
    auto& tramo = PonCauce("c-1", "l-uno");
    tramo.LongCauce = 600;
    tramo.VelMediaCauce = 1;
    tramo.optDirMusk = true;
    PonLago("l-uno", "Piscina Nivelada", Pileta).HInicialEmb = 102;
    ASSERT_TRUE(Corre());
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno}}));
    EXPECT_FALSE(Dice("Componente: Represa"));
    EXPECT_EQ(s.Resultados.HLago(1, 0), 102);
    EXPECT_TRUE(Dice("\r\n Fin detalle cálculo proaga en Lago "));
}

TEST_F(EmbalsesEnCorrida, ElMaximoEmpiezaDeNuevoEnCadaTormenta)
{
    PonUEHSeca("l-uno");
    PonLago("l-uno", "Piscina Nivelada", Pileta).HInicialEmb = 102;
    ASSERT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.QMax(2, 1), 2048);
    s.Red.Lagos(1).HInicialEmb = 100;
    ASSERT_TRUE(Corre());
    EXPECT_EQ(s.Resultados.QMax(2, 1), 4);
}

TEST_F(EmbalsesEnCorrida, RespondidoNoTerminaLaCorridaSinEscribirElArchivo)
{
    anfitrion->respuestas = {false};
    PonUEHSeca("l-uno");
    PonLago("l-uno", "Piscina Nivelada", Pileta).HInicialEmb = 150;
    EXPECT_THROW(Corre(), model::FinDelPrograma);
    EXPECT_FALSE(disco.Esta("/trabajo/SalePizarra1_tem.txt"));
}

}  // namespace
}  // namespace engine
