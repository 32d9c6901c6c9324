// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/CorridaLote.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "batch/Lote.h"
#include "batch/ProyectoDePrueba.h"
#include "checks/ProyectoAparte.h"
#include "model/ArchivosTormenta.h"
#include "model/Siro.h"

namespace {

using batch::Opciones;
using model::Siro;
using prueba::CsvDeSesenta;
using prueba::ProyectoDePrueba;

/// What a command line gives back.
struct Respuesta {
    int estado = -1;
    std::string estandar;
    std::string errores;
};

Respuesta Lote(const std::vector<std::string>& palabras)
{
    std::vector<const char*> argv{"siro-lote"};
    for (const auto& palabra : palabras)
        argv.push_back(palabra.c_str());
    Respuesta r;
    r.estado = batch::Lote(
        static_cast<int>(argv.size()), argv.data(),
        {[&](std::string_view t) { r.estandar += t; }, [&](std::string_view t) { r.errores += t; }, false});
    return r;
}

class CorridaLote : public testing::Test {
  protected:
    /// `siro-lote orden CONF --trabajo DIR --resultados r.csv` and what else is told.
    [[nodiscard]] Respuesta Corre(const char* orden, const std::vector<std::string>& opciones = {}) const
    {
        std::vector<std::string> palabras{orden,          proyecto.Conf(), "--trabajo",
                                          proyecto.Dir(), "--resultados",  proyecto.Ruta("r.csv")};
        palabras.insert(palabras.end(), opciones.begin(), opciones.end());
        return Lote(palabras);
    }
    [[nodiscard]] Respuesta Una(const std::vector<std::string>& opciones = {}) const
    {
        return Corre("una", opciones);
    }
    [[nodiscard]] Respuesta Serie(const std::vector<std::string>& opciones = {}) const
    {
        return Corre("serie", opciones);
    }
    void Tablas(std::string_view cuentas, std::string_view tabla0) const
    {
        proyecto.Escribe("TablasPDRs_pdr.vlm", std::string(cuentas) + "\r\n\"\"\r\n" + std::string(tabla0) +
                                                   "\"\"\r\n\"\"\r\n\"\"\r\n");
    }

    ProyectoDePrueba proyecto;
};

bool Contiene(const std::string& texto, std::string_view trozo)
{
    return texto.find(trozo) != std::string::npos;
}

// --- command line ---

TEST(LineaDeOrdenes, ErroneaSaleConDosDiciendoPorQueYElUso)
{
    const Respuesta r = Lote({"una", "Rio_Conf.vlm", "--paso-q", "0"});
    EXPECT_EQ(r.estado, 2);
    EXPECT_EQ(r.estandar, "");
    EXPECT_TRUE(r.errores.starts_with("siro-lote: --paso-q: ")) << r.errores;
    EXPECT_TRUE(r.errores.ends_with(batch::Uso())) << r.errores;
}

TEST(LineaDeOrdenes, LaAyudaVaALaSalidaEstandarConEstadoCero)
{
    const Respuesta r = Lote({"--ayuda"});
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.estandar, batch::Uso());
    EXPECT_EQ(r.errores, "");
}

// --- opening ---

TEST_F(CorridaLote, AbrirTomaDirectorioNombreYConfiguracion)
{
    Siro s;
    checks::AbreProyecto(s, proyecto.Conf());
    EXPECT_EQ(s.Proyecto.DirProyecto, proyecto.Dir());
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Mio");
    EXPECT_EQ(s.Configuracion.TituloProyecto, "Titulo");
    EXPECT_EQ(s.Pasos.N0Dur, 10.0F);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 0);  // the components wait for the run
}

TEST_F(CorridaLote, UnaConfiguracionQueNoSePuedeAbrirEsUnaLineaConEstadoUno)
{
    const std::string ausente = proyecto.Ruta("Otro_Conf.vlm"), carpeta = proyecto.Ruta("Dir_Conf.vlm");
    std::filesystem::create_directory(carpeta);
    for (const std::string& conf : {ausente, carpeta})
        for (const char* orden : {"una", "serie"}) {
            const Respuesta r = Lote({orden, conf, "--trabajo", proyecto.Dir(), "--pizarra"});
            EXPECT_EQ(r.estado, 1);
            EXPECT_EQ(r.errores, "siro-lote: no se puede abrir " + conf + "\n");
            EXPECT_EQ(r.estandar, "");
        }
    EXPECT_FALSE(proyecto.Esta("SalePizarra1_tem.txt"));
}

TEST_F(CorridaLote, UnTextoDeResultadosQueNoSePuedeEscribirDaEstadoUno)
{
    Tablas("2,0,0,0", "60,60,10\r\n120,60,25\r\n");
    std::filesystem::create_directory(proyecto.Ruta("SalePizarra1_tem.txt"));
    const Respuesta una = Una();
    EXPECT_EQ(una.estado, 1);
    EXPECT_EQ(una.errores, "[SIRO] Error Nro. 75 ,Error de acceso a la ruta o al archivoVerifique\n");
    EXPECT_FALSE(proyecto.Esta("r.csv"));

    EXPECT_EQ(Serie().estado, 0) << "a series doesn't write that file";
    std::filesystem::remove(proyecto.Ruta("r.csv"));
    std::filesystem::remove(proyecto.Ruta("SaleTablasQDRs_tem.txt"));
    std::filesystem::create_directory(proyecto.Ruta("SaleTablasQDRs_tem.txt"));
    const Respuesta serie = Serie();
    EXPECT_EQ(serie.estado, 1);
    EXPECT_TRUE(Contiene(serie.errores, "<SaleTablasQDRs_tem.txt> ha fallado")) << serie.errores;
    EXPECT_FALSE(proyecto.Esta("r.csv"));
}

TEST_F(CorridaLote, AbrirNoTocaElPunteroDelEscritorio)
{
    EXPECT_EQ(Una().estado, 0);
    EXPECT_FALSE(proyecto.Esta("VelmirDir.vlm"));
    EXPECT_FALSE(proyecto.Esta("Proyectos"));
}

TEST_F(CorridaLote, UnProyectoMovidoSeReescribeYLoDiceUnaVez)
{
    proyecto.Cambia("Mio_Conf.vlm", "\"" + proyecto.Dir() + "\"", "\"/otro/lugar\"");
    const Respuesta r = Una();
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.errores,
              "[SIRO] Los datos de configuración del proyecto se han guardado correctamente en el archivo " +
                  proyecto.Conf() + "\n");
    EXPECT_TRUE(Contiene(proyecto.Lee("Mio_Conf.vlm"), proyecto.Dir()));
}

// --- the storm ---

TEST(FijaTormenta, FormaEscritaTomaLasOpciones)
{
    Siro s;
    Opciones o;
    o.forma = 1;
    o.pp = 33.5F;
    o.dur = 90;
    o.rec = 25;
    o.distribucion = 4;
    o.pasoPp = 30;
    o.pasoQ = 15;
    batch::FijaTormenta(s, o);
    EXPECT_EQ(s.Tormenta.FormaPp, 1);
    EXPECT_EQ(s.Tormenta.PpTormenta, 33.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 90);
    EXPECT_EQ(s.Tormenta.RecTormenta, 25);
    EXPECT_EQ(s.Tormenta.DistriPp, 4);
    EXPECT_EQ(s.Pasos.PasoPp, 30);
    EXPECT_EQ(s.Pasos.PasoQ, 15);
}

/// Steps as they were typed and as the run gets them.
struct CasoPasos {
    std::int16_t forma, dur, pasoPp, pasoQ, pasoPpCorre, pasoQCorre;
};

class PasosDeLaTormenta : public testing::TestWithParam<CasoPasos> {};

TEST_P(PasosDeLaTormenta, SeBajanALaDuracionYAlPasoDelModelo)
{
    Siro s;
    Opciones o;
    const CasoPasos& caso = GetParam();
    o.forma = caso.forma;
    o.dur = caso.dur;
    o.pasoPp = caso.pasoPp;
    o.pasoQ = caso.pasoQ;
    batch::FijaTormenta(s, o);
    EXPECT_EQ(s.Pasos.PasoPp, caso.pasoPpCorre);
    EXPECT_EQ(s.Pasos.PasoQ, caso.pasoQCorre);
}

INSTANTIATE_TEST_SUITE_P(Filas, PasosDeLaTormenta,
                         testing::Values(CasoPasos{0, 60, 10, 10, 10, 10},   // nothing to lower
                                         CasoPasos{0, 60, 60, 5, 60, 5},     // a step as long as the storm
                                         CasoPasos{0, 60, 61, 5, 60, 5},     // one minute longer
                                         CasoPasos{0, 60, 90, 90, 60, 60},   // both, one after the other
                                         CasoPasos{0, 60, 10, 11, 10, 10},   // output above the model's
                                         CasoPasos{1, 25, 30, 20, 25, 20},   // a storm of the list
                                         CasoPasos{3, 25, 30, 30, 25, 25},   // one depth per UEH
                                         CasoPasos{0, 0, 30, 20, 30, 20}));  // no storm: the run ends at once

TEST(FijaTormenta, EnUnaSerieElPasoNoSeBajaALaDuracion)
{
    Siro s;
    s.Disco.Lee = [](const std::string&) -> std::string {
        throw model::Falla{model::NumeroFalla::ArchivoNoEsta};
    };
    Opciones o;
    o.orden = Opciones::Orden::Serie;
    o.dur = 5;
    o.pasoPp = 30;
    o.pasoQ = 40;
    o.distribucion = 3;
    o.tabla = 2;
    o.forma = 3;
    batch::FijaTormenta(s, o);
    EXPECT_EQ(s.Tormenta.FormaPp, 2);
    EXPECT_EQ(s.Tormenta.TablaPDR, 2);
    EXPECT_EQ(s.Tormenta.DistriPp, 3);
    EXPECT_EQ(s.Pasos.PasoPp, 30);
    EXPECT_EQ(s.Pasos.PasoQ, 30);
    EXPECT_EQ(s.Serie.NroSeriePDR, 0);
}

TEST(FijaTormenta, LaminasPorUEHVanConDistribucionCeroYLaPrimeraMayorQueCero)
{
    Siro s;
    Opciones o;
    o.forma = 3;
    o.pp = 99;
    o.distribucion = 5;
    o.ppUEH = {0, 12.5F, 30};
    batch::FijaTormenta(s, o);
    EXPECT_EQ(s.Tormenta.FormaPp, 3);
    EXPECT_EQ(s.Tormenta.DistriPp, 0);
    EXPECT_EQ(s.Tormenta.PpTormenta, 12.5F);
    EXPECT_EQ(s.Tormenta.PpUEH(1), 0.0F);
    EXPECT_EQ(s.Tormenta.PpUEH(2), 12.5F);
    EXPECT_EQ(s.Tormenta.PpUEH(3), 30.0F);
    EXPECT_EQ(s.Tormenta.PpUEH(4), 0.0F);
}

TEST(FijaTormenta, SinLaminasPorUEHValeLaPrecipitacionEscrita)
{
    for (const std::vector<float>& laminas : {std::vector<float>{}, std::vector<float>{0, 0}}) {
        Siro s;
        Opciones o;
        o.forma = 3;
        o.pp = 99;
        o.ppUEH = laminas;
        batch::FijaTormenta(s, o);
        EXPECT_EQ(s.Tormenta.PpTormenta, 99.0F);
        for (int i = 0; i <= model::MaxUEHs; ++i)
            EXPECT_EQ(s.Tormenta.PpUEH(i), 0.0F) << i;
    }
}

constexpr std::string_view TormentaDeTres =
    "\"notas\"\r\n3,20\r\n\"01/01/2001\",\"10:00\"\r\n\"01/01/2001\",\"11:00\"\r\n1.5\r\n0\r\n4\r\n";

// 3 intervals of 20 min with 1.5 + 0 + 4 mm.
TEST_F(CorridaLote, UnaTormentaRealTraeLaminaDuracionYPaso)
{
    proyecto.Escribe("Vieja_pt.vlm", TormentaDeTres);
    Siro s;
    s.Proyecto.DirProyecto = proyecto.Dir();
    Opciones o;
    o.forma = 4;
    o.tormenta = "Vieja_pt.vlm";
    o.rec = 5;
    o.distribucion = 1;
    o.pasoPp = 7;
    o.pasoQ = 30;
    batch::FijaTormenta(s, o);
    EXPECT_EQ(s.Tormenta.FormaPp, 4);
    EXPECT_EQ(s.Tormenta.DistriPp, 7);
    EXPECT_EQ(s.Tormenta.PpTormenta, 5.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(s.Tormenta.RecTormenta, 5);
    EXPECT_EQ(s.Pasos.PasoPp, 20);
    EXPECT_EQ(s.Pasos.PasoQ, 20);
    ASSERT_EQ(s.Tormenta.NroPpReal, 3);
    EXPECT_EQ(s.Tormenta.PpReal(3), 4.0F);
}

TEST_F(CorridaLote, SinNombreLaTormentaRealEsLaPorDefecto)
{
    proyecto.Escribe(model::TormentaPorDefecto, TormentaDeTres);
    for (const char* nombre : {"", "Vieja.vlm"}) {
        Siro s;
        s.Proyecto.DirProyecto = proyecto.Dir();
        Opciones o;
        o.forma = 4;
        o.tormenta = nombre;
        batch::FijaTormenta(s, o);
        EXPECT_EQ(s.Tormenta.DurTormenta, 60) << nombre;
    }
}

TEST_F(CorridaLote, UnaTormentaRealQueNoSeLeeCuentaComoNinguna)
{
    // Missing; cut off behind its second value; without intervals.
    proyecto.Escribe("Corta_pt.vlm", TormentaDeTres.substr(0, TormentaDeTres.size() - 3));
    proyecto.Escribe("Nula_pt.vlm", "\"\"\r\n0,10\r\n\"\",\"\"\r\n\"\",\"\"\r\n");
    for (const char* nombre : {"Falta_pt.vlm", "Corta_pt.vlm", "Nula_pt.vlm"}) {
        Siro s;
        s.Proyecto.DirProyecto = proyecto.Dir();
        Opciones o;
        o.forma = 4;
        o.tormenta = nombre;
        batch::FijaTormenta(s, o);
        EXPECT_EQ(s.Tormenta.PpTormenta, 0.0F) << nombre;
        EXPECT_EQ(s.Tormenta.DurTormenta, 0) << nombre;
        const Respuesta r = Una({"--forma", "4", "--tormenta", nombre});
        EXPECT_EQ(r.estado, 1) << nombre;
        EXPECT_EQ(r.errores, "") << nombre;
        EXPECT_FALSE(proyecto.Esta("r.csv")) << nombre;
    }
}

// --- one storm: status, outputs ---

TEST_F(CorridaLote, UnaTormentaHastaElFinDaCeroYElCsv)
{
    const Respuesta r = Una();
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.estandar, "");
    EXPECT_EQ(r.errores, "");
    EXPECT_EQ(proyecto.Lee("r.csv"), CsvDeSesenta);
    EXPECT_TRUE(proyecto.Esta("SalePizarra1_tem.txt"));
}

// 60 mm fall as 10 mm a step on the only UEH, whatever the storm in hand says: the same hydrographs.
TEST_F(CorridaLote, UnaLaminaPorUEHCorreComoLaEscrita)
{
    EXPECT_EQ(Una({"--forma", "3", "--pp", "1", "--pp-ueh", "60"}).estado, 0);
    EXPECT_EQ(proyecto.Lee("r.csv"), CsvDeSesenta);
}

// 4 intervals of 10 mm in 10 min: their quarters of the depth are exact in 32 bits, so that they are the same
// storm as 40 mm of constant intensity in 40 min.
TEST_F(CorridaLote, UnaTormentaRealIgualALaEscritaDaLoMismo)
{
    proyecto.Escribe("Cuatro_pt.vlm", "\"\"\r\n4,10\r\n\"\",\"\"\r\n\"\",\"\"\r\n10\r\n10\r\n10\r\n10\r\n");
    EXPECT_EQ(Una({"--forma", "4", "--tormenta", "Cuatro_pt.vlm"}).estado, 0);
    const std::string real = proyecto.Lee("r.csv");
    EXPECT_EQ(Una({"--pp", "40", "--dur", "40"}).estado, 0);
    EXPECT_EQ(proyecto.Lee("r.csv"), real);
    EXPECT_TRUE(Contiene(real, "\nu-1,4,40,,16.6667,,\nu-1,5,50,,0,,\n")) << real;
}

TEST_F(CorridaLote, ConPizarraSuTextoSaleUnaVezConCrLf)
{
    const Respuesta r = Una({"--pizarra"});
    EXPECT_EQ(r.estado, 0);
    EXPECT_TRUE(
        r.estandar.starts_with("SIRO - Modelo de Simulación Hidrológica\r\n" + proyecto.Ruta("Mio") + "\r\n"))
        << r.estandar.substr(0, 200);
    EXPECT_TRUE(Contiene(r.estandar, "Entrada: PRECIPITACION"));
    EXPECT_TRUE(Contiene(r.estandar, "II- SIMULACION EN COMPONENTES RESTANTES"));
    EXPECT_EQ(r.estandar.find("SIRO - Modelo"), r.estandar.rfind("SIRO - Modelo"));
    const auto saltos = std::count(r.estandar.begin(), r.estandar.end(), '\n');
    EXPECT_EQ(saltos, std::count(r.estandar.begin(), r.estandar.end(), '\r'));
    EXPECT_EQ(r.errores, "");
    EXPECT_EQ(proyecto.Lee("r.csv"), CsvDeSesenta);
}

TEST_F(CorridaLote, SinLluviaOSinDuracionDaUnoTrasLaCabeza)
{
    for (const char* nula : {"--pp", "--dur"}) {
        const Respuesta r = Una({nula, "0", "--pizarra"});
        EXPECT_EQ(r.estado, 1) << nula;
        EXPECT_TRUE(r.estandar.ends_with("SIMULACION LLUVIA-CAUDAL PARA UNA TORMENTA\r\n")) << r.estandar;
        EXPECT_EQ(r.errores, "") << nula;
        EXPECT_FALSE(proyecto.Esta("r.csv")) << nula;
        EXPECT_FALSE(proyecto.Esta("SalePizarra1_tem.txt")) << nula;
    }
}

TEST_F(CorridaLote, UnControlQueTerminaLaCorridaDaUno)
{
    // The reach's velocity, a check of its routing: what stands on the Slate by then is shown.
    proyecto.Cambia("Mio_UEHs.vlm", "\"l-1\"\r\n1\r\n600", "\"l-1\"\r\n0\r\n600");
    const Respuesta r = Una({"--pizarra"});
    EXPECT_EQ(r.estado, 1);
    EXPECT_EQ(
        r.errores,
        "[Advertencia !] El parámetro de Velocidad Media de propagación Directa en el tramo c-1 es '0'. Debe "
        "asignar un valor correcto a este parámetro desde el Editor de UEHs \n");
    EXPECT_TRUE(Contiene(r.estandar, "I- SIMULACION EN UEHs"));
    EXPECT_FALSE(proyecto.Esta("r.csv"));
}

TEST_F(CorridaLote, PasosQueNoSonMultiplosDanUno)
{
    const Respuesta r = Una({"--paso-pp", "10", "--paso-q", "4"});
    EXPECT_EQ(r.estado, 1);
    EXPECT_TRUE(Contiene(r.errores, "debe ser múltiplo del paso de cálculo")) << r.errores;
}

// 58 fields: the project has no name any more, and nothing runs.
TEST_F(CorridaLote, UnaConfiguracionDaniadaImpideEmpezar)
{
    const std::string conf = proyecto.TextoConf();
    proyecto.Escribe("Mio_Conf.vlm", conf.substr(0, conf.size() - 3));
    for (const char* orden : {"una", "serie"}) {
        const Respuesta r = Corre(orden, {"--pizarra"});
        EXPECT_EQ(r.estado, 1) << orden;
        EXPECT_EQ(r.estandar, "") << orden;
        EXPECT_EQ(r.errores,
                  "[SIRO] Error Nro. 62 ,La entrada de datos sobrepasó el final del archivoVerifique. El "
                  "archivo de "
                  "configuración <Mio_Conf.vlm > está dañado. Corrija o elimine manualmente este archivo\n")
            << orden;
        EXPECT_FALSE(proyecto.Esta("r.csv")) << orden;
    }
}

// The lake starts below its table: each lookup asks, Yes goes on with 0, No ends the program.
TEST_F(CorridaLote, UnNoTerminaConTresSinTextoNiCsv)
{
    proyecto.Cambia("Mio_UEHs.vlm", "\r\n100.000\r\n", "\r\n99\r\n");
    const Respuesta no = Una({"--responde", "no", "--pizarra"});
    EXPECT_EQ(no.estado, 3);
    EXPECT_EQ(no.estandar, "");
    EXPECT_TRUE(no.errores.ends_with(" -> No\n")) << no.errores;
    EXPECT_EQ(std::count(no.errores.begin(), no.errores.end(), '\n'), 1);
    EXPECT_FALSE(proyecto.Esta("r.csv"));

    const Respuesta si = Una({"--responde", "si"});
    EXPECT_EQ(si.estado, 0);
    EXPECT_TRUE(Contiene(si.errores, " -> Sí\n"));
    EXPECT_FALSE(Contiene(si.errores, " -> No\n"));
    EXPECT_TRUE(proyecto.Esta("r.csv"));
}

TEST_F(CorridaLote, UnCsvQueNoSePuedeEscribirSeDiceYDaUno)
{
    const Respuesta r = Lote(
        {"una", proyecto.Conf(), "--trabajo", proyecto.Dir(), "--resultados", proyecto.Ruta("no-hay/r.csv")});
    EXPECT_EQ(r.estado, 1);
    EXPECT_EQ(r.errores, "[SIRO] Error Nro. 76No se encontró la ruta de acceso ,Verifique\n");
}

// --- series ---

// 60 mm in 60 min is the storm of the project's head; 5 min are shorter than the step and skipped; 120 mm in
// 60 min give twice the flow of the first.
TEST_F(CorridaLote, UnaSerieDaCeroYSuCsv)
{
    Tablas("3,0,0,0", "60,60,10\r\n7,5,2\r\n120,60,100\r\n");
    const Respuesta r = Serie();
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.estandar, "");
    // The closing box of the series is the only one.
    EXPECT_TRUE(
        r.errores.starts_with("[La tabla de resultados se guarda en archivo el temporal "
                              "<SaleTablasQDRs_tem.txt>] La tabla de resultados Q-D-R"))
        << r.errores;
    EXPECT_EQ(std::count(r.errores.begin(), r.errores.end(), '\n'), 1);
    EXPECT_TRUE(proyecto.Esta("SaleTablasQDRs_tem.txt"));
    // Volume: 6 steps of 10*60 s at 16.6667 m3/s; each partial sum 10000.02 n stored in 32 bits. 60000.12 m3
    // are 60000; over 100 ha and 60 mm, 100.0002 % as a 32-bit float. A storm later both double.
    const std::string csv = proyecto.Lee("r.csv");
    EXPECT_TRUE(
        csv.starts_with("componente,storm,p,d,r,qmax,esc,coef\nu-1,1,60,60,10,16.6667,60000,100.0002"))
        << csv;
    EXPECT_TRUE(Contiene(csv, "\nu-1,3,120,60,100,33.3334,120000,100.0002")) << csv;
    EXPECT_TRUE(Contiene(csv, "\nc-1,1,60,60,10,16.6667,,\nc-1,3,120,60,100,33.3334,,\n")) << csv;
    EXPECT_TRUE(Contiene(csv, "\nl-1,1,60,60,10,2.5,,\nl-1,3,120,60,100,2.5,,\n")) << csv;
    // The basin: its volume is a whole number, 60000 m3 over 100 ha and 60 mm are 100 %.
    EXPECT_TRUE(csv.ends_with("\n*,1,60,60,10,,60000,100\n*,3,120,60,100,,120000,100\n")) << csv;
    EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 1 + 4 * 2);
}

TEST_F(CorridaLote, LosHilosNoCambianElCsvDeUnaSerie)
{
    std::string filas;
    for (int p = 30; p < 70; ++p)
        filas += std::to_string(p) + ",60," + std::to_string(p) + "\r\n";
    Tablas("40,0,0,0", filas);
    EXPECT_EQ(Serie({"--hilos", "1"}).estado, 0);
    const std::string uno = proyecto.Lee("r.csv");
    EXPECT_EQ(Serie({"--hilos", "2"}).estado, 0);
    EXPECT_EQ(proyecto.Lee("r.csv"), uno);
    EXPECT_EQ(Serie().estado, 0);
    EXPECT_EQ(proyecto.Lee("r.csv"), uno);
    EXPECT_EQ(std::count(uno.begin(), uno.end(), '\n'), 1 + 4 * 40);
}

TEST_F(CorridaLote, LaTablaDeLaSerieSeElige)
{
    proyecto.Escribe("TablasPDRs_pdr.vlm",
                     "1,0,1,0\r\n\"\"\r\n60,60,3\r\n\"\"\r\n\"\"\r\n90,60,4\r\n\"\"\r\n");
    EXPECT_EQ(Serie({"--tabla", "2"}).estado, 0);
    EXPECT_TRUE(Contiene(proyecto.Lee("r.csv"), "*,1,90,60,4,")) << proyecto.Lee("r.csv");
}

TEST_F(CorridaLote, UnaTormentaNulaEnLaSerieDaUno)
{
    for (const char* nula : {"0,60,10\r\n", "60,0,10\r\n"}) {
        Tablas("2,0,0,0", "60,60,10\r\n" + std::string(nula));
        const Respuesta r = Serie();
        EXPECT_EQ(r.estado, 1) << nula;
        EXPECT_EQ(r.errores, "") << nula;
        EXPECT_FALSE(proyecto.Esta("r.csv")) << nula;
        EXPECT_FALSE(proyecto.Esta("SaleTablasQDRs_tem.txt")) << nula;
    }
}

TEST_F(CorridaLote, UnaTablaVaciaOAusenteDaUno)
{
    for (const bool esta : {false, true}) {
        if (esta) Tablas("0,0,0,0", "");
        const Respuesta r = Serie();
        EXPECT_EQ(r.estado, 1) << esta;
        EXPECT_TRUE(r.errores.starts_with("[Advertencia !] No se han cargado tormentas PDRs.")) << r.errores;
        EXPECT_FALSE(proyecto.Esta("r.csv")) << esta;
    }
}

// Every storm is refused by a check, the series goes on all the same; the results stay at 0.
TEST_F(CorridaLote, UnaSerieCuyasTormentasRechazaUnControlDaCero)
{
    Tablas("2,0,0,0", "60,60,10\r\n120,60,100\r\n");
    const Respuesta r = Serie({"--paso-pp", "10", "--paso-q", "4"});
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(std::count(r.errores.begin(), r.errores.end(), '\n'), 3);  // one per storm, and the closing box
    EXPECT_TRUE(Contiene(proyecto.Lee("r.csv"), "\n*,2,120,60,100,,0,0\n")) << proyecto.Lee("r.csv");
}

TEST_F(CorridaLote, UnNoEnUnaSerieDaTres)
{
    proyecto.Cambia("Mio_UEHs.vlm", "\r\n100.000\r\n", "\r\n99\r\n");
    Tablas("2,0,0,0", "60,60,10\r\n120,60,100\r\n");
    for (const char* hilos : {"1", "2"}) {
        const Respuesta r = Serie({"--responde", "no", "--hilos", hilos});
        EXPECT_EQ(r.estado, 3) << hilos;
        EXPECT_EQ(std::count(r.errores.begin(), r.errores.end(), '\n'), 1) << r.errores;
        EXPECT_FALSE(proyecto.Esta("r.csv")) << hilos;
    }
}

TEST_F(CorridaLote, UnaSerieNoMuestraPizarra)
{
    Tablas("1,0,0,0", "60,60,10\r\n");
    const Respuesta r = Serie({"--pizarra"});
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.estandar, "");
}

}  // namespace
