// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/ArchivosTormenta.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/Numeros.h"

using namespace model;
using apoyo::NumeroDeFalla;

namespace {

const std::string Trabajo = "trabajo";
const std::string Proyecto = "proyectos";

/// A program whose two directories are there and empty.
struct ArchivosTormenta : ::testing::Test, MundoDeProyecto {
    ArchivosTormenta()
    {
        disco.PonDirectorio(Trabajo);
        disco.PonDirectorio(Proyecto);
        s.Proyecto.DirTrabajo = Trabajo;
        s.Proyecto.DirProyecto = Proyecto;
    }
    void PonTormenta(const std::string& nombre, const std::string& bytes)
    {
        disco.Pon(Ruta(Proyecto, nombre), bytes);
    }
    void PonDisPer(const std::string& bytes) { disco.Pon(Ruta(Trabajo, "distriPp_dpt.vlm"), bytes); }
    void PonPDRs(const std::string& bytes) { disco.Pon(Ruta(Trabajo, "TablasPDRs_pdr.vlm"), bytes); }
    void PonLista(const std::string& bytes) { disco.Pon(Ruta(Proyecto, "ListaPDR.vlm"), bytes); }
    std::string DisPer() { return disco.Bytes(Ruta(Trabajo, "distriPp_dpt.vlm")); }
    std::string PDRs() { return disco.Bytes(Ruta(Trabajo, "TablasPDRs_pdr.vlm")); }
    std::string Lista() { return disco.Bytes(Ruta(Proyecto, "ListaPDR.vlm")); }

    /// Reads a storm of that content by its own name.
    TormentaReal Lee(const std::string& bytes)
    {
        PonTormenta("x_pt.vlm", bytes);
        TormentaReal t{.nombre = "x_pt.vlm"};
        LeePpReal(s, t);
        return t;
    }
};

const std::string Cabecera = "\"nota\"\r\n2,30\r\n\"a\",\"b\"\r\n\"c\",\"d\"\r\n";

/// The box of the writers for a fault: number and description with nothing between them.
Mensaje CajaDeFalla(const std::string& numero, const std::string& descripcion)
{
    return {"Error Nro. " + numero + descripcion + " ,Verifique", "", Icono::Ninguno};
}
const Mensaje CajaAcceso = CajaDeFalla("75", "Error de acceso a la ruta o al archivo");
const Mensaje CajaSinRuta = CajaDeFalla("76", "No se encontró la ruta de acceso");
const Mensaje CajaSubindice = CajaDeFalla("9", "El subíndice está fuera del intervalo");
const Mensaje CajaDesborde = CajaDeFalla("6", "Desbordamiento");

// =======================================================================================================
// Real storms
// =======================================================================================================

const std::string TormentaDeCuatro =
    "\"Cuatro intervalos, del r\xEDo\"\r\n"
    "4,30\r\n"
    "\"10/05/1992\",\"14:00\"\r\n"
    "\"10/05/1992\",\"16:00\"\r\n"
    "1.5\r\n12.25\r\n0\r\n.25\r\n";

TEST_F(ArchivosTormenta, LaTormentaRealLlenaFormaYTormenta)
{
    const TormentaReal t = Lee(TormentaDeCuatro);
    EXPECT_EQ(t, (TormentaReal{"x_pt.vlm", "Cuatro intervalos, del río", 30, "10/05/1992", "14:00",
                               "10/05/1992", "16:00"}));
    EXPECT_EQ(s.Tormenta.NroPpReal, 4);
    EXPECT_EQ(s.Tormenta.PpReal.Tope(), 4);
    EXPECT_EQ((std::vector<float>{s.Tormenta.PpReal(0), s.Tormenta.PpReal(1), s.Tormenta.PpReal(2),
                                  s.Tormenta.PpReal(3), s.Tormenta.PpReal(4)}),
              (std::vector<float>{0, 1.5F, 12.25F, 0, 0.25F}));
    EXPECT_EQ(s.Tormenta.DurTormenta, 120);  // 4 x 30
    EXPECT_EQ(s.Tormenta.PpTormenta, 14.0F);
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Proyecto, "x_pt.vlm"));
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, TormentaSinIntervalosTerminaTrasElCuartoRenglonYDaCero)
{
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 60;
    s.Tormenta.NroPpReal = 5;
    const TormentaReal t =
        Lee("\"nueva\"\r\n0,10\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"00:00\"\r\n");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_EQ(s.Tormenta.PpTormenta, 0.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 0);
    EXPECT_EQ(t.Notas, "nueva");
    EXPECT_EQ(t.txtDateF, "01/01/1001");
    EXPECT_EQ(t.PasoPpReal, 10);
}

TEST_F(ArchivosTormenta, LaSumaSeRedondeaA32BitsEnCadaPaso)
{
    // Above 2^24 a 32-bit float holds even numbers only: 16777216 + 1 is a tie, goes back to 16777216, twice.
    // Added in 64 bits and rounded once it would be 16777218.
    Lee("\"\"\r\n3,10\r\n\"\",\"\"\r\n\"\",\"\"\r\n16777216\r\n1\r\n1\r\n");
    EXPECT_EQ(s.Tormenta.PpTormenta, 16777216.0F);
}

TEST_F(ArchivosTormenta, ComaYFinDeRenglonSonLoMismoAlLeer)
{
    const TormentaReal t = Lee("\"nota\",2\r\n30\r\n\"a\"\r\n\"b\",\"c\"\r\n\"d\",1,2");
    EXPECT_EQ(t, (TormentaReal{"x_pt.vlm", "nota", 30, "a", "b", "c", "d"}));
    EXPECT_EQ(s.Tormenta.NroPpReal, 2);
    EXPECT_EQ(s.Tormenta.PpTormenta, 3.0F);
}

TEST_F(ArchivosTormenta, LaCuentaYElPasoSeRedondeanAlEnteroYElEmpateAlPar)
{
    const TormentaReal t = Lee("\"\"\r\n2.5,29.5\r\n\"\",\"\"\r\n\"\",\"\"\r\n1\r\n1\r\n");
    EXPECT_EQ(s.Tormenta.NroPpReal, 2);
    EXPECT_EQ(t.PasoPpReal, 30);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
}

TEST_F(ArchivosTormenta, UnaTormentaMasLargaQue32767MinutosNoSeLee)
{
    s.Tormenta.DurTormenta = 77;
    s.Tormenta.PpTormenta = 7;
    Lee("\"\"\r\n2,16383\r\n\"\",\"\"\r\n\"\",\"\"\r\n1\r\n2\r\n");
    EXPECT_EQ(s.Tormenta.DurTormenta, 32766);
    EXPECT_EQ(s.Tormenta.NroPpReal, 2);
    Lee("\"\"\r\n2,16384\r\n\"\",\"\"\r\n\"\",\"\"\r\n10\r\n20\r\n");  // 32768
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_EQ(s.Tormenta.DurTormenta, 32766) << "the storm in hand stays";
    EXPECT_EQ(s.Tormenta.PpTormenta, 3.0F);
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaSumaFueraDelTipoDejaLaTormentaSinIntervalos)
{
    Lee("\"\"\r\n2,10\r\n\"\",\"\"\r\n\"\",\"\"\r\n3E38\r\n3E38\r\n");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaTormentaQueNoSePuedeLeerEsCalladaYQuedaSinIntervalos)
{
    struct Caso {
        const char* que;
        std::string bytes;
    };
    const std::string fechas = "\"\",\"\"\r\n\"\",\"\"\r\n";
    for (const Caso& caso : {
             Caso{"empty", ""},
             Caso{"fewer depths than told", Cabecera + "1\r\n"},
             Caso{"a lying count", "\"\"\r\n999,10\r\n" + fechas + "1\r\n2\r\n"},
             Caso{"a negative count", "\"\"\r\n-1,10\r\n" + fechas + "1\r\n"},
             Caso{"a count outside 16 bits", "\"\"\r\n32768,10\r\n" + fechas + "1\r\n"},
             Caso{"a step outside 16 bits", "\"\"\r\n1,-32769\r\n" + fechas + "1\r\n"},
             Caso{"a text for the count", "\"\"\r\n\"1\",10\r\n" + fechas + "1\r\n"},
             Caso{"a text for a depth", Cabecera + "1\r\ndos\r\n"},
             Caso{"a quoted depth", Cabecera + "1\r\n\"2\"\r\n"},
             Caso{"a boolean for a depth", Cabecera + "1\r\n#TRUE#\r\n"},
             Caso{"a depth outside 32 bits", Cabecera + "1\r\n1E39\r\n"},
             Caso{"a quote without an end", "\"nota\r\n1,10\r\n" + fechas + "1\r\n"},
             // the note ends at its inner quote; what stands behind the comma is taken for the count
             Caso{"a double quote and a comma in the note",
                  "\"un \"dique\", roto\"\r\n1,10\r\n" + fechas + "1\r\n"},
         }) {
        s.Tormenta.NroPpReal = 3;
        Lee(caso.bytes);
        EXPECT_EQ(s.Tormenta.NroPpReal, 0) << caso.que;
        EXPECT_TRUE(Cajas().empty()) << caso.que;
    }
}

TEST_F(ArchivosTormenta, UnaTormentaQueNoEstaEsCalladaYQuedaSinIntervalos)
{
    s.Tormenta.NroPpReal = 3;
    TormentaReal t{.nombre = "nada_pt.vlm"};
    LeePpReal(s, t);
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    s.Tormenta.NroPpReal = 3;
    s.Proyecto.DirProyecto = "no hay";
    LeePpReal(s, t);
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    s.Tormenta.NroPpReal = 3;
    s.Proyecto.DirProyecto = Proyecto;
    disco.FallaDesde(1, NumeroFalla::AccesoRuta);
    LeePpReal(s, t);
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaTormentaCortadaEnCadaByteSeLeeSoloSiLlegaAlUltimoIntervalo)
{
    const std::string bytes = Cabecera + "12.5\r\n3.25\r\n";
    const std::size_t ultimo = bytes.find("3.25");  // where the last of the fields begins
    for (std::size_t n = 0; n <= bytes.size(); ++n) {
        Lee(bytes.substr(0, n));
        EXPECT_EQ(s.Tormenta.NroPpReal, n > ultimo ? 2 : 0) << n << " bytes";
        EXPECT_TRUE(Cajas().empty()) << n << " bytes";
    }
}

TEST_F(ArchivosTormenta, ElNombrePorDefectoEsElMismoEnTodasPartes)
{
    struct Caso {
        const char* nombre;
        const char* espera;
    };
    for (const auto& [nombre, espera] :
         {Caso{"", "Velmir_pt.vlm"}, Caso{"x", "Velmir_pt.vlm"}, Caso{"lluvia.vlm", "Velmir_pt.vlm"},
          Caso{"pt.vlm", "Velmir_pt.vlm"}, Caso{"a_PT.vlm", "Velmir_pt.vlm"},
          Caso{"a_pt.vlm ", "Velmir_pt.vlm"}, Caso{"_pt.vlm", "_pt.vlm"}, Caso{"a_pt.vlm", "a_pt.vlm"},
          Caso{"a_pt.vlm_pt.vlm", "a_pt.vlm_pt.vlm"}}) {
        EXPECT_EQ(NombreTormenta(nombre), espera) << nombre;
        TormentaReal t{.nombre = nombre};
        s.Tormenta.NroPpReal = 0;
        GuardaPpReal(s, t);
        EXPECT_EQ(t.nombre, espera) << nombre;
        EXPECT_TRUE(disco.Esta(Ruta(Proyecto, espera))) << nombre;
        t.nombre = nombre;
        LeePpReal(s, t);
        EXPECT_EQ(t.nombre, espera) << nombre;
        EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Proyecto, espera)) << nombre;
        EXPECT_EQ(EtiquetaTormenta(s, nombre), espera) << nombre;
    }
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, GuardarEscribeLaTormentaRenglonPorRenglon)
{
    s.Tormenta.NroPpReal = 3;
    s.Tormenta.PpReal.Dimensiona(3);
    s.Tormenta.PpReal(1) = 12.5F;
    s.Tormenta.PpReal(2) = 0.05F;
    s.Tormenta.PpReal(3) = 12345678.0F;
    TormentaReal t{
        "río_pt.vlm", "creciente del río, \xE2\x82\xAC y \xCE\xB1", 10, "01/01/1001", "00:00", "fin", ""};
    GuardaPpReal(s, t);
    // Windows-1252: í is ED, the euro sign 80; it has no alpha.
    EXPECT_EQ(disco.Bytes(Ruta(Proyecto, "río_pt.vlm")),
              "\"creciente del r\xEDo, \x80 y ?\"\r\n3,10\r\n\"01/01/1001\",\"00:00\"\r\n\"fin\",\"\"\r\n"
              "12.5\r\n0.05\r\n1.234568E+07\r\n");
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaTormentaNuevaTerminaTrasElCuartoRenglon)
{
    s.Tormenta.NroPpReal = 0;
    TormentaReal t{"n_pt.vlm", "describa", 10, "01/01/1001", "00:00", "01/01/1001", "00:00"};
    GuardaPpReal(s, t);
    EXPECT_EQ(disco.Bytes(Ruta(Proyecto, "n_pt.vlm")),
              "\"describa\"\r\n0,10\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"00:00\"\r\n");
}

TEST_F(ArchivosTormenta, SiempreSeEscribenTantosIntervalosComoDiceLaCuenta)
{
    s.Tormenta.PpReal.Dimensiona(3);
    for (int j = 1; j <= 3; ++j)
        s.Tormenta.PpReal(j) = static_cast<float>(j);
    TormentaReal t{.nombre = "x_pt.vlm"};
    s.Tormenta.NroPpReal = 5;  // two more than there are: zeros
    GuardaPpReal(s, t);
    EXPECT_EQ(disco.Bytes(Ruta(Proyecto, "x_pt.vlm")),
              "\"\"\r\n5,0\r\n\"\",\"\"\r\n\"\",\"\"\r\n1\r\n2\r\n3\r\n0\r\n0\r\n");
    EXPECT_EQ(s.Tormenta.PpReal.Tope(), 5);
    s.Tormenta.NroPpReal = 1;
    GuardaPpReal(s, t);
    EXPECT_EQ(disco.Bytes(Ruta(Proyecto, "x_pt.vlm")), "\"\"\r\n1,0\r\n\"\",\"\"\r\n\"\",\"\"\r\n1\r\n");
    EXPECT_EQ(s.Tormenta.PpReal.Tope(), 1);
}

TEST_F(ArchivosTormenta, AlLeerLosIntervalosViejosNoQuedanALaVista)
{
    s.Tormenta.PpReal.Dimensiona(9);
    for (int j = 0; j <= 9; ++j)
        s.Tormenta.PpReal(j) = 99;
    Lee(Cabecera + "1\r\nmal\r\n");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_EQ(s.Tormenta.PpReal.Tope(), 2);
    EXPECT_EQ(s.Tormenta.PpReal(0), 0.0F);
    EXPECT_EQ(s.Tormenta.PpReal(1), 1.0F) << "what was read before the failure stays";
    EXPECT_EQ(s.Tormenta.PpReal(2), 0.0F) << "and what wasn't is zero";
}

TEST_F(ArchivosTormenta, GuardarLaTormentaEntregaLaFallaAQuienLoPide)
{
    TormentaReal t{.nombre = "x_pt.vlm", .Notas = "n", .PasoPpReal = 10};
    s.Tormenta.NroPpReal = 1;
    s.Proyecto.DirProyecto = "no hay";
    EXPECT_EQ(NumeroDeFalla([&] { GuardaPpReal(s, t); }), 76);
    s.Proyecto.DirProyecto = Proyecto;
    s.Tormenta.NroPpReal = -1;
    EXPECT_EQ(NumeroDeFalla([&] { GuardaPpReal(s, t); }), 9);
    EXPECT_FALSE(disco.Esta(Ruta(Proyecto, "x_pt.vlm"))) << "the file isn't touched then";
    s.Tormenta.NroPpReal = 1;
    for (const auto numero : {NumeroFalla::AccesoRuta, NumeroFalla::ArchivoNoEsta}) {
        disco.FallaDesde(1, numero);
        EXPECT_EQ(NumeroDeFalla([&] { GuardaPpReal(s, t); }), static_cast<int>(numero));
        EXPECT_EQ(s.Tormenta.NroPpReal, 1);
        EXPECT_EQ(t.Notas, "n");
    }
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, LasCuatroTormentasProtegidasSeComparanLetraPorLetra)
{
    for (const char* nombre :
         {"Ruvera 100592_pt.vlm", "Ruvera 170276 _pt.vlm", "Ruvera 230498_pt.vlm", "Ruvera 060402_pt.vlm"})
        EXPECT_TRUE(TormentaProtegida(nombre)) << nombre;
    for (const char* nombre : {"Ruvera 100592 EM_pt.vlm", "Ruvera 170276_pt.vlm", "ruvera 230498_pt.vlm",
                               "Ruvera 060402_pt.vlm ", "Ruvera 060402", ""})
        EXPECT_FALSE(TormentaProtegida(nombre)) << nombre;
}

TEST_F(ArchivosTormenta, LaListaDeTormentasTieneLasDelDirectorioDelProyecto)
{
    for (const char* nombre :
         {"b_pt.vlm", "a_pt.vlm", "a_PT.vlm", "a_pt.vlm.bak", "Quelmar_Conf.vlm", "_pt.vlm"})
        PonTormenta(nombre, "");
    disco.Pon(Ruta(Trabajo, "c_pt.vlm"), "");
    EXPECT_EQ(ListaTormentas(s), (std::vector<std::string>{"_pt.vlm", "a_pt.vlm", "b_pt.vlm"}));
    s.Proyecto.DirProyecto = "no hay";
    EXPECT_EQ(NumeroDeFalla([&] { ListaTormentas(s); }), 76);
}

TEST_F(ArchivosTormenta, UnNombreInadecuadoSeDiceYLaEtiquetaPideOtro)
{
    EXPECT_EQ(CompruebaTormenta(s, "a_pt.vlm"), "a_pt.vlm");
    EXPECT_TRUE(Cajas().empty());
    EXPECT_EQ(CompruebaTormenta(s, "lluvia.txt"), "debe cargar o recomponer un archivo tipo <nn_pt.vlm>");
    EXPECT_EQ(Cajas(), (std::vector<Mensaje>{
                           {"El archivo lluvia.txt no es un archivo de configuración válido. Los archivos de "
                            "configuración tienen el formato nn_pt.vlm, donde nn es el nombre del archivo",
                            "", Icono::Ninguno}}));
}

TEST_F(ArchivosTormenta, ElNombreDeUnaTormentaNuevaSigueAlMayor)
{
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir1");
    PonTormenta("Velmir_pt.vlm", "");
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir1") << "the default storm bears no number";
    PonTormenta("Velmir2_pt.vlm", "");
    PonTormenta("Velmir10_pt.vlm", "");
    PonTormenta("Velmir9_pt.vlm", "");
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir11") << "numbers are compared and not texts";
    PonTormenta("Velmir 14 b_pt.vlm", "");
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir15") << "the leading number of what stands before the _";
    PonTormenta("Velmir20_77_pt.vlm", "");
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir21") << "up to the first _";
    PonTormenta("velmir90_pt.vlm", "");
    PonTormenta("Otra90_pt.vlm", "");
    PonTormenta("Velmir90.txt", "");
    PonTormenta("Velmir-90_pt.vlm", "");
    PonTormenta("Velmirabc_pt.vlm", "");
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir21");
    PonTormenta("Velmir32766_pt.vlm", "");
    EXPECT_EQ(NombreTormentaNueva(s), "Velmir32767");
}

TEST_F(ArchivosTormenta, UnNumeroDeTormentaFueraDe16BitsEsFalla6)
{
    PonTormenta("Velmir32767_pt.vlm", "");
    EXPECT_EQ(NumeroDeFalla([&] { NombreTormentaNueva(s); }), 6) << "one more is outside";
    PonTormenta("Velmir40000_pt.vlm", "");
    EXPECT_EQ(NumeroDeFalla([&] { NombreTormentaNueva(s); }), 6);
}

TEST_F(ArchivosTormenta, LaTerminacionSeAgregaSiempreALoEscrito)
{
    EXPECT_EQ(ArchivoTormentaNueva("tormenta"), "tormenta_pt.vlm");
    EXPECT_EQ(ArchivoTormentaNueva("tormenta_pt.vlm"), "tormenta_pt.vlm_pt.vlm");
}

// =======================================================================================================
// Personal distributions
// =======================================================================================================

const std::string DosTablas =
    "2,0,3\r\n"
    "\"corta, 1 h\"\r\n30,60\r\n12.5\r\n87.5\r\n"
    "\"\"\r\n5,10\r\n"
    "\"tres\"\r\n60,1440\r\n33\r\n33.4\r\n33.6\r\n";

TEST_F(ArchivosTormenta, LasDistribucionesLlenanLasTresTablas)
{
    PonDisPer(DosTablas);
    s.TablasDeLluvia.NroFilasTabla[0] = 44;
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{44, 2, 0, 3}));
    EXPECT_EQ(s.TablasDeLluvia.NotasDisPer, (std::array<std::string, 4>{"", "corta, 1 h", "", "tres"}));
    EXPECT_EQ(s.TablasDeLluvia.DurMinPer, (std::array<std::int16_t, 4>{0, 30, 5, 60}));
    EXPECT_EQ(s.TablasDeLluvia.DurMaxPer, (std::array<std::int16_t, 4>{0, 60, 10, 1440}));
    EXPECT_EQ(s.TablasDeLluvia.DisPerso.PrimeraFila(), 0);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso.UltimaFila(), 3);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso.TopeColumna(), 4) << "one more than the largest count";
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Trabajo, "distriPp_dpt.vlm"));
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnPorcentajeConDecimalesVuelveEntero)
{
    PonDisPer(DosTablas);
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 1), 12.0F);  // a tie goes to the even one
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 2), 88.0F);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(3, 2), 33.0F);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(3, 3), 34.0F);
}

TEST_F(ArchivosTormenta, GuardarYLeerPierdeLosDecimalesYElCierre)
{
    PonDisPer("3,0,0\r\n\"\"\r\n0,0\r\n1\r\n1\r\n1\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n");
    LeeTablaDisTemPer(s);
    s.TablasDeLluvia.DisPerso(1, 1) = 33.3333F;
    s.TablasDeLluvia.DisPerso(1, 2) = 12.5F;
    s.TablasDeLluvia.DisPerso(1, 3) = 54.1667F;  // 100 in all
    GuardaTablaDisPer(s);
    EXPECT_EQ(DisPer(),
              "3,0,0\r\n\"\"\r\n0,0\r\n33.3333\r\n12.5\r\n54.1667\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n")
        << "the decimals are in the file";
    LeeTablaDisTemPer(s);
    EXPECT_EQ(
        s.TablasDeLluvia.DisPerso(1, 1) + s.TablasDeLluvia.DisPerso(1, 2) + s.TablasDeLluvia.DisPerso(1, 3),
        99.0F)
        << "33 + 12 + 54";
}

TEST_F(ArchivosTormenta, LasCasillasEnUsoSePonenEnCeroAntesDeLeer)
{
    PonDisPer(DosTablas);
    LeeTablaDisTemPer(s);
    PonDisPer("1,0,3\r\n\"otra\"\r\n1,2\r\nmal\r\n");
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{0, 0, 0, 0}));
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 1), 0.0F);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(3, 1), 0.0F);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(3, 3), 0.0F);
}

TEST_F(ArchivosTormenta, LoLeidoAntesDeLaFallaQuedaOcultoPorLasCuentas)
{
    PonDisPer(DosTablas.substr(0, DosTablas.find("33.4")));
    s.TablasDeLluvia.NroFilasTabla = {9, 9, 9, 9};
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{9, 0, 0, 0}));
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(1, 2), 88.0F);
    EXPECT_EQ(s.TablasDeLluvia.DisPerso(3, 1), 33.0F);
    EXPECT_EQ(s.TablasDeLluvia.NotasDisPer[3], "tres");
    EXPECT_EQ(s.TablasDeLluvia.DurMaxPer[3], 1440);
}

TEST_F(ArchivosTormenta, UnasDistribucionesQueNoSePuedenLeerSonCalladasYAnulanTresCuentas)
{
    struct Caso {
        const char* que;
        std::string bytes;
    };
    const std::string resto = DosTablas.substr(DosTablas.find('\n') + 1);
    for (const Caso& caso : {
             Caso{"empty", ""},
             Caso{"two counts", "2,0\r\n"},
             Caso{"a lying count", "2,0,900\r\n" + resto},
             Caso{"all counts negative", "-2,-3,-4\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n"},
             Caso{"the largest count has no room for one more", "2,0,32767\r\n" + resto},
             Caso{"a count outside 16 bits", "2,0,32768\r\n" + resto},
             Caso{"a quoted count", "2,\"0\",3\r\n" + resto},
             Caso{"a text for a duration",
                  "1,0,0\r\n\"\"\r\ntreinta,60\r\n100\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n"},
             Caso{"a percentage outside 16 bits",
                  "1,0,0\r\n\"\"\r\n1,2\r\n40000\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n"},
             Caso{"binary", std::string("\0\1\2\xFF\"", 5)},
         }) {
        PonDisPer(caso.bytes);
        s.TablasDeLluvia.NroFilasTabla = {5, 6, 7, 8};
        LeeTablaDisTemPer(s);
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{5, 0, 0, 0})) << caso.que;
        EXPECT_TRUE(Cajas().empty()) << caso.que;
    }
}

TEST_F(ArchivosTormenta, SinArchivoDeDistribucionesLasTresCuentasSonCero)
{
    for (const char* directorio : {"trabajo", "no hay"}) {
        s.Proyecto.DirTrabajo = directorio;
        s.TablasDeLluvia.NroFilasTabla = {5, 6, 7, 8};
        LeeTablaDisTemPer(s);
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{5, 0, 0, 0})) << directorio;
        EXPECT_TRUE(Cajas().empty());
    }
}

TEST_F(ArchivosTormenta, UnaFallaEnElRegistroDeDuracionesNoGuardaNingunaDeLasDos)
{
    PonDisPer("0,0,0\r\n\"\"\r\n30,mal\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n");
    s.TablasDeLluvia.DurMinPer[1] = 7;
    s.TablasDeLluvia.DurMaxPer[1] = 8;
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.DurMinPer[1], 7);
    EXPECT_EQ(s.TablasDeLluvia.DurMaxPer[1], 8);
}

TEST_F(ArchivosTormenta, UnasDistribucionesCortadasEnCadaByteAnulanLasCuentas)
{
    const std::size_t ultimo = DosTablas.find("33.6");
    for (std::size_t n = 0; n <= DosTablas.size(); ++n) {
        PonDisPer(DosTablas.substr(0, n));
        s.TablasDeLluvia.NroFilasTabla = {5, 6, 7, 8};
        LeeTablaDisTemPer(s);
        const std::int16_t tercera = n > ultimo ? 3 : 0;
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[0], 5) << n << " bytes";
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[3], tercera) << n << " bytes";
        EXPECT_TRUE(Cajas().empty()) << n << " bytes";
    }
}

TEST_F(ArchivosTormenta, UnaCuentaNegativaEntreOtrasNoLeeFilas)
{
    PonDisPer("1,-4,0\r\n\"\"\r\n1,2\r\n100\r\n\"b\"\r\n3,4\r\n\"c\"\r\n5,6\r\n");
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{0, 1, -4, 0}));
    EXPECT_EQ(s.TablasDeLluvia.NotasDisPer[3], "c");
}

TEST_F(ArchivosTormenta, GuardarLasDistribucionesEscribeLasTresTablas)
{
    s.TablasDeLluvia.NroFilasTabla = {44, 2, 0, 1};
    s.TablasDeLluvia.NotasDisPer = {"no se escribe", "del río", "", "tres"};
    s.TablasDeLluvia.DurMinPer = {0, 30, 5, 60};
    s.TablasDeLluvia.DurMaxPer = {0, 60, 10, 1440};
    s.TablasDeLluvia.DisPerso.Dimensiona(3, 3);
    s.TablasDeLluvia.DisPerso(1, 1) = 12.5F;
    s.TablasDeLluvia.DisPerso(1, 2) = 87.5F;
    s.TablasDeLluvia.DisPerso(3, 1) = 100;
    GuardaTablaDisPer(s);
    EXPECT_EQ(
        DisPer(),
        "2,0,1\r\n\"del r\xEDo\"\r\n30,60\r\n12.5\r\n87.5\r\n\"\"\r\n5,10\r\n\"tres\"\r\n60,1440\r\n100\r\n");
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Trabajo, "distriPp_dpt.vlm"));
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, LasDistribucionesPisanLasCuentasDeLasTablasPDR)
{
    PonPDRs("1,2,1,1\r\n\"\"\r\n1,1,1\r\n\"\"\r\n1,1,1\r\n1,1,1\r\n\"\"\r\n1,1,1\r\n\"\"\r\n1,1,1\r\n");
    PonDisPer(DosTablas);
    LeeTablaPDRs(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{1, 2, 1, 1}));
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{1, 2, 0, 3})) << "slot 0 remains";
    LeeTablaPDRs(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{1, 2, 1, 1}))
        << "until the next reading";
}

TEST_F(ArchivosTormenta, GuardarDistribucionesConLasCuentasDeLaOtraTablaSaleDelIntervalo)
{
    PonDisPer("1,0,0\r\n\"uno\"\r\n1,2\r\n100\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n");
    LeeTablaDisTemPer(s);
    s.TablasDeLluvia.NroFilasTabla = {0, 4, 0, 0};  // as the reader of the other file leaves them
    GuardaTablaDisPer(s);
    EXPECT_EQ(Cajas(), std::vector<Mensaje>{CajaSubindice}) << "one box, and the writing ends";
    // Columns 0 to 2 are there: the third period is at fault, and the file stays.
    EXPECT_EQ(DisPer(), "1,0,0\r\n\"uno\"\r\n1,2\r\n100\r\n\"\"\r\n0,0\r\n\"\"\r\n0,0\r\n");
}

// =======================================================================================================
// Tables of synthetic storms
// =======================================================================================================

const std::string CuatroTablas =
    "2,1,2,0\r\n"
    "\"Regi\xF3n\"\r\n20,10,2\r\n30,30,2\r\n"
    "\"una\"\r\n5,5,5\r\n"
    "\"dos, y m\xE1s\"\r\n12.7,60,10\r\n40,120,10\r\n"
    "\"\"\r\n";

TEST_F(ArchivosTormenta, LasTablasPDRLlenanLasCuatroYLaSerie)
{
    PonPDRs(CuatroTablas);
    s.Tormenta.TablaPDR = 2;
    LeeTablaPDRs(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{2, 1, 2, 0}));
    EXPECT_EQ(s.TablasDeLluvia.NotasPDR, (std::array<std::string, 4>{"Región", "una", "dos, y más", ""}));
    EXPECT_EQ(s.TablasDeLluvia.TablasP.UltimaFila(), 4);
    EXPECT_EQ(s.TablasDeLluvia.TablasD.TopeColumna(), 3);
    EXPECT_EQ(s.TablasDeLluvia.TablasR(0, 2), 2);
    EXPECT_EQ(s.TablasDeLluvia.TablasD(1, 1), 5);
    EXPECT_EQ(s.Serie.NroSeriePDR, 2);
    EXPECT_EQ(s.Serie.SerieP.Tope(), 2);
    EXPECT_EQ(s.Serie.SerieP(1), 13.0F) << "a depth is a whole number of millimetres";
    EXPECT_EQ(s.Serie.SerieP(2), 40.0F);
    EXPECT_EQ(s.Serie.SerieD(2), 120);
    EXPECT_EQ(s.Serie.SerieR(2), 10);
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Trabajo, "TablasPDRs_pdr.vlm"));
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaTablaElegidaFueraDe1A3EsLa0)
{
    PonPDRs(CuatroTablas);
    for (const int elegida : {-1, 0, 4, 99}) {
        s.Tormenta.TablaPDR = static_cast<std::int16_t>(elegida);
        LeeTablaPDRs(s);
        EXPECT_EQ(s.Tormenta.TablaPDR, 0) << elegida;
        EXPECT_EQ(s.Serie.SerieP(2), 30.0F) << elegida;
    }
    s.Tormenta.TablaPDR = 3;
    LeeTablaPDRs(s);
    EXPECT_EQ(s.Tormenta.TablaPDR, 3);
    EXPECT_EQ(s.Serie.NroSeriePDR, 0) << "an empty table is an empty series";
}

TEST_F(ArchivosTormenta, UnaLluviaDe12Coma7SeGuardaEntera)
{
    PonPDRs(CuatroTablas);
    LeeTablaPDRs(s);
    s.TablasDeLluvia.TablasP(1, 1) = Entero16(Val("12.7"));  // as the grid's text gets into the table
    GuardaTablaPDRs(s);
    EXPECT_EQ(PDRs(),
              "2,1,2,0\r\n\"Regi\xF3n\"\r\n20,10,2\r\n30,30,2\r\n\"una\"\r\n13,5,5\r\n"
              "\"dos, y m\xE1s\"\r\n13,60,10\r\n40,120,10\r\n\"\"\r\n");
}

TEST_F(ArchivosTormenta, LaTabla0VuelveSinCambiosAlEscribir)
{
    PonPDRs(CuatroTablas);
    LeeTablaPDRs(s);
    s.TablasDeLluvia.NroFilasTabla[1] = 0;
    s.TablasDeLluvia.NroFilasTabla[2] = 0;
    s.TablasDeLluvia.NotasPDR[1] = s.TablasDeLluvia.NotasPDR[2] = "";
    GuardaTablaPDRs(s);
    EXPECT_EQ(PDRs(), "2,0,0,0\r\n\"Regi\xF3n\"\r\n20,10,2\r\n30,30,2\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnasTablasPDRQueNoSePuedenLeerSonCalladasYDejanLaSerie)
{
    struct Caso {
        const char* que;
        std::string bytes;
        std::int16_t ranura0;
    };
    const std::string resto = CuatroTablas.substr(CuatroTablas.find('\n') + 1);
    for (const Caso& caso : {
             Caso{"empty", "", 5},
             Caso{"three counts", "2,1,2\r\n", 5},
             Caso{"a text for a count", "2,x,2,0\r\n" + resto, 5},
             Caso{"a lying count", "2,1,2,900\r\n" + resto, 2},
             Caso{"the largest count has no room for one more", "2,1,32767,0\r\n" + resto, 2},
             Caso{"the chosen table's count is negative",
                  "2,1,-2,0\r\n\"\"\r\n1,1,1\r\n2,2,2\r\n\"\"\r\n3,3,3\r\n\"\"\r\n\"\"\r\n", 2},
             Caso{"all negative", "-1,-1,-1,-1\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n", -1},
             Caso{"a duration outside 16 bits", "1,0,0,0\r\n\"\"\r\n1,32768,1\r\n\"\"\r\n\"\"\r\n\"\"\r\n",
                  1},
             Caso{"a quoted recurrence", "1,0,0,0\r\n\"\"\r\n1,1,\"1\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n", 1},
         }) {
        PonPDRs(caso.bytes);
        s.Tormenta.TablaPDR = 2;
        s.TablasDeLluvia.NroFilasTabla = {5, 6, 7, 8};
        s.Serie.NroSeriePDR = 1;
        s.Serie.SerieP.Dimensiona(1);
        s.Serie.SerieP(1) = 77;
        LeeTablaPDRs(s);
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{caso.ranura0, 0, 0, 0}))
            << caso.que;
        EXPECT_EQ(s.Serie.NroSeriePDR, 1) << caso.que;
        EXPECT_EQ(s.Serie.SerieP(1), 77.0F) << caso.que;
        EXPECT_EQ(s.Tormenta.TablaPDR, 2) << caso.que;
        EXPECT_TRUE(Cajas().empty()) << caso.que;
    }
}

TEST_F(ArchivosTormenta, SinArchivoDeTablasPDRLaRanura0QuedaComoEstaba)
{
    for (const char* directorio : {"trabajo", "no hay"}) {
        s.Proyecto.DirTrabajo = directorio;
        s.TablasDeLluvia.NroFilasTabla = {5, 6, 7, 8};
        LeeTablaPDRs(s);
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{5, 0, 0, 0})) << directorio;
        EXPECT_TRUE(Cajas().empty());
    }
}

TEST_F(ArchivosTormenta, UnasTablasPDRCortadasEnCadaByteAnulanLasCuentas)
{
    const std::string bytes = "1,0,0,1\r\n\"a\"\r\n20,10,2\r\n\"b\"\r\n\"c\"\r\n\"d\"\r\n30,30,5\r\n";
    const std::size_t ultimo = bytes.size() - 3;  // behind the last comma: an empty recurrence
    for (std::size_t n = 0; n <= bytes.size(); ++n) {
        PonPDRs(bytes.substr(0, n));
        s.Tormenta.TablaPDR = 3;
        s.TablasDeLluvia.NroFilasTabla = {5, 6, 7, 8};
        s.Serie.NroSeriePDR = 0;
        LeeTablaPDRs(s);
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[3], n >= ultimo ? 1 : 0) << n << " bytes";
        EXPECT_EQ(s.Serie.NroSeriePDR, n >= ultimo ? 1 : 0) << n << " bytes";
        EXPECT_TRUE(Cajas().empty()) << n << " bytes";
    }
}

TEST_F(ArchivosTormenta, UnaFilaConFallaNoGuardaNadaDeElla)
{
    PonPDRs("2,0,0,0\r\n\"\"\r\n1,2,3\r\n4,5,mal\r\n\"\"\r\n\"\"\r\n\"\"\r\n");
    LeeTablaPDRs(s);
    EXPECT_EQ(s.TablasDeLluvia.TablasP(0, 1), 1) << "what was read before stays";
    EXPECT_EQ(s.TablasDeLluvia.TablasP(0, 2), 0);
    EXPECT_EQ(s.TablasDeLluvia.TablasD(0, 2), 0);
}

// =======================================================================================================
// Failures of the three writers that show a box
// =======================================================================================================

struct Escritor {
    const char* que;
    std::function<void(Siro&)> guarda;
};

const std::vector<std::string> ListaDePrueba{TextoPDR("60", "60", "10"), TextoPDR("12.5", "30", "2")};

void GuardaLaLista(Siro& s)
{
    GuardaListaPDR(s, ListaDePrueba, {"60", "60", "10"});
}

const std::vector<Escritor> Escritores{
    {"distributions", GuardaTablaDisPer}, {"P-D-R tables", GuardaTablaPDRs}, {"list", GuardaLaLista}};

/// Everything that the three writers write from.
struct FallasAlGuardar : ArchivosTormenta {
    FallasAlGuardar()
    {
        PonDisPer(DosTablas);
        LeeTablaDisTemPer(s);
        PonPDRs(
            "2,2,0,2\r\n\"\"\r\n1,1,1\r\n1,1,1\r\n\"\"\r\n1,1,1\r\n1,1,1\r\n\"\"\r\n\"\"\r\n1,1,1\r\n1,1,"
            "1\r\n");
        LeeTablaPDRs(s);
        LeeTablaDisTemPer(s);
        s.Tormenta.PpTormenta = 77;
        s.Tormenta.DurTormenta = 88;
        s.Tormenta.RecTormenta = 99;
    }
    void EsperaMemoriaIntacta(const Siro& antes, const char* que)
    {
        EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, antes.TablasDeLluvia.NroFilasTabla) << que;
        EXPECT_EQ(s.TablasDeLluvia.DisPerso, antes.TablasDeLluvia.DisPerso) << que;
        EXPECT_EQ(s.TablasDeLluvia.TablasP, antes.TablasDeLluvia.TablasP) << que;
        EXPECT_EQ(s.TablasDeLluvia.NotasPDR, antes.TablasDeLluvia.NotasPDR) << que;
        EXPECT_EQ(s.Tormenta.PpTormenta, 77.0F) << que;
        EXPECT_EQ(s.Tormenta.DurTormenta, 88) << que;
        EXPECT_EQ(s.Tormenta.RecTormenta, 99) << que;
    }
};

TEST_F(FallasAlGuardar, UnArchivoQueNoSePuedeEscribirSeDiceUnaVezYLaMemoriaQueda)
{
    for (const Escritor& escritor : Escritores) {
        const Siro antes = s;
        disco.FallaDesde(1, NumeroFalla::AccesoRuta);
        escritor.guarda(s);
        disco.DejaDeFallar();
        EXPECT_EQ(TomaCajas(), std::vector<Mensaje>{CajaAcceso}) << escritor.que;
        EsperaMemoriaIntacta(antes, escritor.que);
    }
}

TEST_F(FallasAlGuardar, UnDirectorioQueNoEstaSeDiceUnaVez)
{
    s.Proyecto.DirTrabajo = s.Proyecto.DirProyecto = "no hay";
    for (const Escritor& escritor : Escritores) {
        const Siro antes = s;
        escritor.guarda(s);
        EXPECT_EQ(TomaCajas(), std::vector<Mensaje>{CajaSinRuta}) << escritor.que;
        EsperaMemoriaIntacta(antes, escritor.que);
    }
}

TEST_F(FallasAlGuardar, UnArchivoQueNoSeEncuentraSePasaPorAltoEnSilencio)
{
    for (const Escritor& escritor : Escritores) {
        disco.FallaDesde(1, NumeroFalla::ArchivoNoEsta);
        escritor.guarda(s);
        disco.DejaDeFallar();
        EXPECT_TRUE(TomaCajas().empty()) << escritor.que;
    }
    EXPECT_EQ(s.Tormenta.PpTormenta, 60.0F) << "the list's writer goes on to its last step";
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(s.Tormenta.RecTormenta, 10);
}

TEST_F(FallasAlGuardar, LaEnesimaLlamadaAlDiscoQueFallaDaUnaSolaCaja)
{
    for (const Escritor& escritor : Escritores) {
        const Siro antes = s;
        int fallidas = 0;
        for (int n = 1; n <= 50; ++n) {
            disco.FallaDesde(n, NumeroFalla::AccesoRuta);
            escritor.guarda(s);
            const bool fallo = disco.HuboFalla();
            disco.DejaDeFallar();
            EXPECT_EQ(TomaCajas(), fallo ? std::vector<Mensaje>{CajaAcceso} : std::vector<Mensaje>{})
                << escritor.que << ", call " << n;
            if (!fallo) break;
            EsperaMemoriaIntacta(antes, escritor.que);
            ++fallidas;
        }
        EXPECT_GE(fallidas, 1) << escritor.que;
        EXPECT_LT(fallidas, 50) << escritor.que;
        s.Tormenta.PpTormenta = 77;
        s.Tormenta.DurTormenta = 88;
        s.Tormenta.RecTormenta = 99;
    }
}

TEST_F(FallasAlGuardar, LosLectoresCallanEnCadaLlamadaAlDiscoQueFalla)
{
    disco.FallaDesde(1, NumeroFalla::AccesoRuta);
    LeeTablaDisTemPer(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{2, 0, 0, 0}));
    s.TablasDeLluvia.NroFilasTabla = {2, 2, 2, 2};
    LeeTablaPDRs(s);
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla, (std::array<std::int16_t, 4>{2, 0, 0, 0}));
    std::vector<std::string> cmbPDR{"vieja"};
    leeListaPpDurRec(s, cmbPDR);
    EXPECT_TRUE(cmbPDR.empty());
    EXPECT_TRUE(Cajas().empty());
}

// =======================================================================================================
// List of single storms
// =======================================================================================================

TEST_F(ArchivosTormenta, LaListaSeLeeEnItemsYLaUltimaTormentaQueda)
{
    PonLista("60,60,10\r\n12.5,1440,2\r\n105.25,30,100\r\n");
    std::vector<std::string> cmbPDR;
    leeListaPpDurRec(s, cmbPDR);
    EXPECT_EQ(cmbPDR,
              (std::vector<std::string>{"Pp= 60 - Dur = 60 - Rec = 10", "Pp= 12.5 - Dur = 1440 - Rec = 2",
                                        "Pp= 105.25 - Dur = 30 - Rec = 100"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 105.25F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 30);
    EXPECT_EQ(s.Tormenta.RecTormenta, 100);
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Proyecto, "ListaPDR.vlm"));
}

TEST_F(ArchivosTormenta, LaListaSeVaciaAntesDeCadaLecturaYNoSeDuplica)
{
    PonLista("60,60,10\r\n");
    std::vector<std::string> cmbPDR{"vieja"};
    leeListaPpDurRec(s, cmbPDR);
    leeListaPpDurRec(s, cmbPDR);
    EXPECT_EQ(cmbPDR, std::vector<std::string>{"Pp= 60 - Dur = 60 - Rec = 10"});
}

TEST_F(ArchivosTormenta, UnProyectoSinListaLaTieneVacia)
{
    std::vector<std::string> cmbPDR{"vieja"};
    s.Tormenta.PpTormenta = 7;
    leeListaPpDurRec(s, cmbPDR);
    EXPECT_TRUE(cmbPDR.empty());
    EXPECT_EQ(s.Tormenta.PpTormenta, 7.0F);
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaListaDanadaConservaLoLeidoHastaAhi)
{
    struct Caso {
        const char* que;
        std::string bytes;
    };
    for (const Caso& caso :
         {Caso{"cut", "60,60,10\r\n12.5,30"}, Caso{"a text", "60,60,10\r\n12.5,treinta,2\r\n1,1,1\r\n"},
          Caso{"outside 16 bits", "60,60,10\r\n12.5,32768,2\r\n1,1,1\r\n"},
          Caso{"outside 32 bits", "60,60,10\r\n1E39,30,2\r\n1,1,1\r\n"},
          Caso{"an empty line", "60,60,10\r\n\r\n"}}) {
        PonLista(caso.bytes);
        std::vector<std::string> cmbPDR;
        leeListaPpDurRec(s, cmbPDR);
        EXPECT_EQ(cmbPDR, std::vector<std::string>{"Pp= 60 - Dur = 60 - Rec = 10"}) << caso.que;
        EXPECT_EQ(s.Tormenta.PpTormenta, 60.0F) << caso.que << ": a trio is read whole or not at all";
        EXPECT_TRUE(Cajas().empty()) << caso.que;
    }
}

TEST_F(ArchivosTormenta, UnaListaCortadaEnCadaByteDaLosItemsEnteros)
{
    const std::string bytes = "60,60,10\r\n7,30,2\r\n";
    for (std::size_t n = 0; n <= bytes.size(); ++n) {
        PonLista(bytes.substr(0, n));
        std::vector<std::string> cmbPDR;
        leeListaPpDurRec(s, cmbPDR);
        // "60,60," has 6 bytes and three fields, the last one empty; the second line's last comma is byte 15
        EXPECT_EQ(cmbPDR.size(), n >= 15 ? 2U : n >= 6 ? 1U : 0U) << n << " bytes";
    }
}

TEST_F(ArchivosTormenta, GuardarLaListaEscribeLosItemsYTomaLaTormentaDeLosCampos)
{
    s.Tormenta.PpTormenta = 1;
    GuardaListaPDR(s, {"Pp= 60 - Dur = 60 - Rec = 10", "", "Pp= 12.5 - Dur = 1440 - Rec = 2"},
                   {"33.5", "45.5 min", "25"});
    EXPECT_EQ(Lista(), "60,60,10\r\n12.5,1440,2\r\n");
    EXPECT_EQ(s.Tormenta.PpTormenta, 33.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 46);  // the leading number, rounded to the even one
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
    EXPECT_EQ(s.Proyecto.ArchivoTemp, Ruta(Proyecto, "ListaPDR.vlm"));
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnaListaVaciaEscribeUnArchivoVacio)
{
    PonLista("60,60,10\r\n");
    GuardaListaPDR(s, {}, {"", "", ""});
    EXPECT_EQ(Lista(), "");
    EXPECT_EQ(s.Tormenta.PpTormenta, 0.0F) << "no number there: 0";
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnItemSinGuionDejaPYDComoEstabanYEscribeSuRenglon)
{
    s.Tormenta.PpTormenta = 9;
    s.Tormenta.DurTormenta = 8;
    GuardaListaPDR(s, {"sin guion", "Pp= 60 - Dur = 30 - Rec = 10", "Pp= 25 mm", "Pp= 7 - Dur = 45"},
                   {"1", "2", "3"});
    // 1: "guion" holds no number. 3: " the 25 is taken for R, P and D are those of the item before.
    // 4: the only "-" ends P; the 45 is taken for R.
    EXPECT_EQ(Lista(), "9,8,0\r\n60,30,10\r\n60,30,25\r\n7,30,45\r\n");
    EXPECT_TRUE(Cajas().empty());
}

TEST_F(ArchivosTormenta, UnItemQueNoCabeEnSuTipoSeDiceYLaTormentaQuedaComoEstaba)
{
    s.Tormenta.PpTormenta = 9;
    s.Tormenta.DurTormenta = 8;
    s.Tormenta.RecTormenta = 7;
    const std::string antes = "5,5,5\r\n";
    PonLista(antes);
    GuardaListaPDR(
        s, {"Pp= 60 - Dur = 30 - Rec = 10", "Pp= 61 - Dur = 32768 - Rec = 10", "Pp= 1 - Dur = 1 - Rec = 1"},
        {"1", "2", "3"});
    EXPECT_EQ(Cajas(), std::vector<Mensaje>{CajaDesborde});
    EXPECT_EQ(Lista(), antes) << "the list on the disk stays";
    EXPECT_EQ(s.Tormenta.PpTormenta, 9.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 8);
    EXPECT_EQ(s.Tormenta.RecTormenta, 7);
}

TEST_F(ArchivosTormenta, UnCampoQueNoCabeEnSuTipoSeDiceConLaListaYaEscrita)
{
    s.Tormenta.DurTormenta = 8;
    GuardaListaPDR(s, {"Pp= 60 - Dur = 30 - Rec = 10"}, {"1", "32768", "3"});
    EXPECT_EQ(Cajas(), std::vector<Mensaje>{CajaDesborde});
    EXPECT_EQ(Lista(), "60,30,10\r\n");
}

TEST_F(ArchivosTormenta, LaListaGuardadaVuelveIgual)
{
    const std::vector<std::string> antes{TextoPDR(60.0F, 60, 10), TextoPDR(0.05F, 1, 0),
                                         TextoPDR(1234567.0F, 32767, 1)};
    EXPECT_EQ(antes[2], "Pp= 1234567 - Dur = 32767 - Rec = 1");
    GuardaListaPDR(s, antes, {"1", "1", "1"});
    std::vector<std::string> despues;
    leeListaPpDurRec(s, despues);
    EXPECT_EQ(despues, antes);
}

TEST_F(ArchivosTormenta, ElItemSePartePorSusGuiones)
{
    struct Caso {
        const char* item;
        float p;
        std::int16_t d, r;
    };
    // P, D, R hold 1, 2, 3 before each. What is dropped: 4 characters, then the "-" and 7 more, twice.
    for (const Caso& caso : {
             Caso{"Pp= 60 - Dur = 45 - Rec = 10", 60, 45, 10},
             Caso{"Pp= 12.75 - Dur = 45 - Rec = 10 years", 12.75F, 45, 10},
             Caso{"Pp= 12,75 - Dur = 45,5 - Rec = 10,9", 12, 45, 10},  // a comma ends a number
             Caso{"Pp= 60 - Dur = 44.5 - Rec = 2.5", 60, 44, 2},       // rounded, ties to the even one
             Caso{"Pp=  - Dur =  - Rec = ", 0, 0, 0},                  // empty fields
             Caso{"Pp= x - Dur = y - Rec = z", 0, 0, 0},               // no numbers
             Caso{"Pp= 60- Dur = 45 - Rec = 10", 6, 45, 10},           // without the blank a digit goes
             Caso{"Pp= 1E-05 - Dur = 60 - Rec = 10", 1, 0, 10},        // the exponent's "-" ends P
             Caso{"Pp= 60 - Dur = 45", 60, 2, 45},                     // the second "-" is missing
             Caso{"Pp= 60 ", 1, 2, 60},                                // both are
             Caso{"60 - 45", 1, 2, 45},                                // its "-" is among the four
             Caso{"Pp= 60 -1234567845 -1234567810", 60, 845, 810},     // seven go, whatever they are
             Caso{"", 1, 2, 0},
             Caso{"Pp=", 1, 2, 0},
             Caso{"-", 1, 2, 0},
             Caso{"Pp= -", 0, 2, 0},
             Caso{"Pp= - - ", 0, 2, 0},
             Caso{"Pp= -5 - Dur = 60 - Rec = 10", 0, 0, 10},    // nothing stands before the first
             Caso{"ñú= 60 - ñúñ = 45 - áéí = 10", 60, 45, 10},  // characters, not bytes
         }) {
        s.Tormenta.PpTormenta = 1;
        s.Tormenta.DurTormenta = 2;
        s.Tormenta.RecTormenta = 3;
        ParsePDR(s, caso.item);
        EXPECT_EQ(s.Tormenta.PpTormenta, caso.p) << caso.item;
        EXPECT_EQ(s.Tormenta.DurTormenta, caso.d) << caso.item;
        EXPECT_EQ(s.Tormenta.RecTormenta, caso.r) << caso.item;
    }
}

}  // namespace
