// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/dlgPpReal.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ProyectoDeLluvia.h"
#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "rainfall/dlgImportaTormenta.h"

namespace rainfall {
namespace {

using forms::Tecla;
using model::Icono;
using model::Mensaje;
using model::NumeroFalla;
using model::Siro;
using Textos = std::vector<std::string>;

const Mensaje FechaMala = {"Ingrese una fecha formato dd/mm/aaaa, Ej: 01/04/2004 ", "Advertencia !",
                           Icono::Exclamacion};
const Mensaje HoraMala = {"Ingrese una hora formato <hh:nn>, Ej:  <01:20>   ", "Advertencia !",
                          Icono::Exclamacion};
const Mensaje FinalAntes = {"El tiempo final ingresado es menor al inicial, Verifique", "Advertencia !",
                            Icono::Exclamacion};
const Mensaje NroMalo = {"Ingrese un valor numérico entero entre 0 y 999 ", "", Icono::Ninguno};
const Mensaje Desbordamiento = {"Error Nro. 6 ,DesbordamientoVerifique", "", Icono::Ninguno};
const std::string Llovizna =
    "\"Llovizna\"\r\n3,20\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"01:00\"\r\n5\r\n10\r\n2.5\r\n";
const std::string Protegida = "Ruvera 170276 _pt.vlm";

class DialogoPpReal : public testing::Test {
  protected:
    DialogoPpReal()
    {
        s.Anfitrion = anfitrion.Puerta();
        PonProyectoDeLluvia(s, disco);
        s.Configuracion.ListaDur = {0, 5, 10, 20, 60};
        s.Tormenta.FormaPp = 4;
        rainfall::Abre(pp, s);
    }
    void Abre()
    {
        rainfall::Abre(f, pp, s);
        AlActivarse(f, pp, s);
    }
    std::vector<Mensaje> Avisos() const { return anfitrion->Avisos(); }
    forms::Grilla& G() { return f.MSFlexGridTablaPpReal; }
    std::string Celda(int fila, int columna) { return G().Texto({fila, columna}); }
    Textos Columna(int columna)
    {
        Textos textos;
        for (int j = 1; j <= G().NroFilas(); ++j)
            textos.push_back(Celda(j, columna));
        return textos;
    }
    void Teclea(const std::string& teclas)
    {
        for (const char c : teclas)
            if (c == '\n')
                AlAsentar(f, s, forms::Teclea(G(), Tecla::Enter));
            else
                forms::Escribe(G(), s, std::string(1, c));
    }
    void PonNro(const std::string& n)
    {
        f.txtNroPpReal = n;
        EXPECT_TRUE(AlSalir(f, s, "txtNroPpReal"));
    }
    void EligePaso(const std::string& paso)
    {
        f.cmbPasot = paso;
        cmbPasot_Click(f, s);
    }
    std::string Bytes(const std::string& nombre) { return disco.Bytes("/proyectos/" + nombre); }

    Siro s;
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    dlgPp pp;
    dlgPpReal f;
};

// --- texts ---

TEST(TextosDeDlgPpReal, LasLeyendasEstanLetraPorLetra)
{
    const auto leyenda = [](const char* nombre) { return RotuloDe(LeyendasDlgPpReal, nombre); };
    EXPECT_EQ(TituloDlgPpReal, "Edición de Tormentas Reales (Pp-t)");
    EXPECT_EQ(leyenda("FilePpReal").ayuda, "Pulse en el cuadro de lista para seleccionar otra tormenta ");
    EXPECT_EQ(leyenda("lblMiFilePpReal").leyenda, "Tormenta:");
    EXPECT_EQ(leyenda("cmdNuevaPpReal").leyenda, "Agregar una  tormenta nueva");
    EXPECT_EQ(leyenda("txtNotas").leyenda, "Notas:");
    EXPECT_EQ(leyenda("txtDateI").leyenda, "Inicial:");
    EXPECT_EQ(leyenda("txtDateI").ayuda,
              "Formato dd/mm/aaaa  - Ingrese 0 ó nulo para \"01/01/1001\", se interpretará sin fecha válida");
    EXPECT_EQ(leyenda("txtTimeI").ayuda, "Formato hh:mm");
    EXPECT_EQ(leyenda("txtDateF").leyenda, "Final:");
    EXPECT_EQ(leyenda("txtDateF").ayuda, "Formato dd/mm/aaaa  ");
    EXPECT_EQ(leyenda("cmbPasot").leyenda, "Paso t [min]:");
    EXPECT_EQ(leyenda("cmbPasot").ayuda, "Elija un paso de tiempo adecuado [minutos]");
    EXPECT_EQ(leyenda("txtNroPpReal").leyenda, "Nro. de intervalos:");
    EXPECT_EQ(leyenda("optNroPpReal_0").leyenda,
              "Opción de fijar fecha y hora final (calcula nro. intervalos...)");
    EXPECT_EQ(leyenda("optNroPpReal_1").leyenda,
              "Opción fijar nro. intervalos (calcula fecha y hora final...)");
    EXPECT_EQ(leyenda("MSFlexGridTablaPpReal").leyenda, "Tormenta Pp[mm] - t [min]");
    EXPECT_EQ(leyenda("MSFlexGridTablaPpReal").ayuda,
              "Cargue los datos de precipitación siguiendo el orden de entradas (columna 3)");
    EXPECT_EQ(leyenda("cmdVerGrafico").leyenda, "Gráfico");
    EXPECT_EQ(leyenda("cmdBorraTablaDisPer").leyenda, "Borrar Tabla");
    EXPECT_EQ(leyenda("cmdAplicar").leyenda, "&Aplicar");
    EXPECT_EQ(leyenda("OKButton").leyenda, "Ce&rrar");
    EXPECT_EQ(leyenda("CancelButton").leyenda, "&Cancelar");
    EXPECT_EQ(leyenda("otro").control, "");
}

// --- opening ---

TEST_F(DialogoPpReal, AlAbrirTodosLosCamposSiguenAlArchivo)
{
    Abre();
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lblMiFilePpReal, "Velmir_pt.vlm");
    EXPECT_EQ(f.FilePpReal.items, Textos{"Velmir_pt.vlm"});
    EXPECT_EQ(f.FilePpReal.indice, 0);
    EXPECT_EQ(f.tormenta.Notas, "Llovizna");
    EXPECT_EQ(f.tormenta.txtTimeF, "01:00");
    EXPECT_EQ(f.cmbPasot, "20");
    EXPECT_EQ(f.itemsPasot, (Textos{"5", "10", "20", "60"}));
    EXPECT_EQ(f.txtNroPpReal, "3");
    EXPECT_EQ(f.optNroPpReal, 1);
    EXPECT_FALSE(f.FinalEditable());
    EXPECT_FALSE(f.Protegida);
    EXPECT_EQ(s.Tormenta.FormaPp, 4);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPpReal, LaTablaTieneTiempoMinutosParcialYAcumulada)
{
    Abre();
    Textos titulos;
    for (const auto& columna : G().columnas)
        titulos.push_back(columna.titulo);
    EXPECT_EQ(titulos, (Textos{"Nro.  ", "                    t [hs:min]  ", "  t [min] ", "Pp Parcial ",
                               "Pp Acumulada "}));
    EXPECT_EQ(Columna(0), (Textos{"1", "2", "3"}));
    EXPECT_EQ(Columna(1), (Textos{"01/01/1001 00:20", "01/01/1001 00:40", "01/01/1001 01:00"}));
    EXPECT_EQ(Columna(2), (Textos{"20", "40", "60"}));
    EXPECT_EQ(Columna(3), (Textos{"5", "10", "2.5"}));
    EXPECT_EQ(Columna(4), (Textos{"5", "15", "17.5"}));
    EXPECT_TRUE(G().columnas[3].editable);
    for (const std::size_t c : {0U, 1U, 2U, 4U})
        EXPECT_FALSE(G().columnas[c].editable);
    EXPECT_EQ(s.Tormenta.PpTormenta, 17.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
}

TEST_F(DialogoPpReal, SeAbreEnLaTormentaDeDlgPpOEnLaDeSiempre)
{
    PonTormenta(disco, "Alfa_pt.vlm", "a", 1, 10, "4\r\n");
    pp.lblMiFilePpReal = "Alfa_pt.vlm";
    Abre();
    EXPECT_EQ(f.tormenta.nombre, "Alfa_pt.vlm");
    EXPECT_EQ(f.FilePpReal.indice, 0);
    pp.lblMiFilePpReal = "debe cargar o recomponer un archivo tipo <nn_pt.vlm>";
    Abre();
    EXPECT_EQ(f.tormenta.nombre, "Velmir_pt.vlm");
    EXPECT_EQ(f.FilePpReal.indice, 1);
}

TEST_F(DialogoPpReal, SinArchivoQuedanLosValoresPorDefecto)
{
    disco.Quita("/proyectos/Velmir_pt.vlm");
    rainfall::Abre(f, pp, s);
    EXPECT_EQ(f.tormenta.nombre, "Velmir_pt.vlm");
    EXPECT_EQ(f.FilePpReal.indice, -1);
    EXPECT_EQ(f.tormenta.txtDateI, "01/01/1001");
    EXPECT_EQ(f.tormenta.txtTimeI, "00:00");
    EXPECT_EQ(f.tormenta.txtDateF, "01/01/1001");
    EXPECT_EQ(f.tormenta.txtTimeF, "00:00");
    EXPECT_EQ(f.cmbPasot, "10");
    EXPECT_EQ(f.txtNroPpReal, "0");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPpReal, ElPasoPorDefectoEsElSegundoOElUnicoODiez)
{
    disco.Quita("/proyectos/Velmir_pt.vlm");
    s.Configuracion.ListaDur = {0, 30};
    rainfall::Abre(f, pp, s);
    EXPECT_EQ(f.cmbPasot, "30");
    s.Configuracion.ListaDur = {0};
    rainfall::Abre(f, pp, s);
    EXPECT_TRUE(f.itemsPasot.empty());
    EXPECT_EQ(f.cmbPasot, "10");
    EXPECT_EQ(f.tormenta.PasoPpReal, 10);
}

TEST_F(DialogoPpReal, LosPasosSonDieciseisALoSumoYUnoAjenoSeMuestraComoTexto)
{
    s.Configuracion.ListaDur.assign(1, 0);
    for (std::int16_t d = 1; d <= 17; ++d)
        s.Configuracion.ListaDur.push_back(d);
    PonTormenta(disco, "Velmir_pt.vlm", "x", 1, 37, "4\r\n");
    Abre();
    EXPECT_EQ(f.itemsPasot.size(), 16U);
    EXPECT_EQ(f.itemsPasot.back(), "16");
    EXPECT_EQ(f.cmbPasot, "37");
    EXPECT_EQ(Celda(1, 2), "37");
}

TEST_F(DialogoPpReal, LaActivacionPoneLaFormaCuatroYLeeLaTormentaDeDlgPp)
{
    PonTormenta(disco, "Alfa_pt.vlm", "a", 1, 10, "4\r\n");
    Abre();
    f.FilePpReal.indice = 0;
    FilePpReal_Click(f, s);
    EXPECT_EQ(f.tormenta.nombre, "Alfa_pt.vlm");
    optformaPp_Click(pp, s, 0);
    AlActivarse(f, pp, s);
    EXPECT_EQ(s.Tormenta.FormaPp, 4);
    EXPECT_EQ(pp.optformaPp, 4);
    EXPECT_EQ(f.tormenta.nombre, "Velmir_pt.vlm");
    EXPECT_EQ(f.txtNroPpReal, "3");
}

// --- protected storms ---

class TormentaProtegida : public DialogoPpReal {
  protected:
    TormentaProtegida()
    {
        PonTormenta(disco, Protegida, "muestra", 2, 60, "7\r\n8\r\n");
        original = Bytes(Protegida);
        Abre();
        f.FilePpReal.indice = 0;
        FilePpReal_Click(f, s);
    }
    std::string original;
};

TEST_F(TormentaProtegida, EsLaDeNombreExactoYSuColumnaNoSeEdita)
{
    EXPECT_TRUE(f.Protegida);
    EXPECT_FALSE(G().columnas[3].editable);
    Teclea("9\n");
    EXPECT_EQ(Columna(3), (Textos{"7", "8"}));
    PonTormenta(disco, "Ruvera 170276_pt.vlm", "sin blanco", 1, 60, "7\r\n");
    AlActivarse(f, pp, s);
    f.FilePpReal.indice = 1;
    FilePpReal_Click(f, s);
    EXPECT_EQ(f.tormenta.nombre, "Ruvera 170276_pt.vlm");
    EXPECT_FALSE(f.Protegida);
    EXPECT_TRUE(G().columnas[3].editable);
}

TEST_F(TormentaProtegida, AplicarNoLaEscribeYCerrarSi)
{
    PonNro("1");
    f.tormenta.Notas = "otra";
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Bytes(Protegida), original);
    EXPECT_EQ(pp.lblMiFilePpReal, Protegida);
    EXPECT_TRUE(f.abierta);
    OKButton(f, pp, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(Bytes(Protegida),
              "\"otra\"\r\n1,60\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"01:00\"\r\n7\r\n");
}

TEST_F(TormentaProtegida, CancelarNoEscribe)
{
    f.tormenta.Notas = "otra";
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(Bytes(Protegida), original);
}

// --- number of intervals ---

TEST_F(DialogoPpReal, BajarYSubirElNumeroDevuelveLasLaminas)
{
    Abre();
    PonNro("1");
    EXPECT_EQ(Columna(3), Textos{"5"});
    EXPECT_EQ(f.tormenta.txtTimeF, "00:20");
    EXPECT_EQ(s.Tormenta.PpTormenta, 5.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 20);
    PonNro("5");
    EXPECT_EQ(Columna(3), (Textos{"5", "10", "2.5", "0", "0"}));
    EXPECT_EQ(f.tormenta.txtTimeF, "01:40");
    EXPECT_EQ(s.Tormenta.PpTormenta, 17.5F);
}

TEST_F(DialogoPpReal, EscribirCortaLasLaminasAlNumero)
{
    Abre();
    PonNro("1");
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"),
              "\"Llovizna\"\r\n1,20\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"00:20\"\r\n5\r\n");
    PonNro("3");
    EXPECT_EQ(Columna(3), (Textos{"5", "0", "0"}));
}

TEST_F(DialogoPpReal, ConCeroIntervalosSoloQuedaElEncabezado)
{
    Abre();
    PonNro("0");
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_EQ(s.Tormenta.PpTormenta, 0.0F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 0);
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"),
              "\"Llovizna\"\r\n0,20\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"00:00\"\r\n");
}

TEST_F(DialogoPpReal, ElNumeroEsEnteroDe0A999)
{
    Abre();
    for (const char* malo : {"-1", "1000", "2.5", "", "x", "3x"}) {
        anfitrion->sucesos.clear();
        f.txtNroPpReal = malo;
        EXPECT_FALSE(AlSalir(f, s, "txtNroPpReal")) << malo;
        EXPECT_EQ(Avisos(), std::vector<Mensaje>{NroMalo}) << malo;
        EXPECT_EQ(s.Tormenta.NroPpReal, 3);
    }
    anfitrion->sucesos.clear();
    PonNro("999");
    EXPECT_EQ(G().NroFilas(), 999);
    EXPECT_EQ(Celda(999, 2), "19980");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPpReal, UnaDuracionDeMasDe32767MinutosEsFallaSeis)
{
    Abre();
    PonNro("999");
    EligePaso("60");
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Desbordamiento});
    EXPECT_EQ(Celda(999, 2), "59940");
}

// --- end and number of intervals from one another ---

TEST_F(DialogoPpReal, ElPasoMueveElFinalCuandoSeFijaElNumero)
{
    Abre();
    EligePaso("60");
    EXPECT_EQ(f.tormenta.PasoPpReal, 60);
    EXPECT_EQ(f.txtNroPpReal, "3");
    EXPECT_EQ(f.tormenta.txtDateF, "01/01/1001");
    EXPECT_EQ(f.tormenta.txtTimeF, "03:00");
    EXPECT_EQ(Columna(2), (Textos{"60", "120", "180"}));
    EXPECT_EQ(s.Tormenta.DurTormenta, 180);
}

class FinalFijo : public DialogoPpReal {
  protected:
    FinalFijo()
    {
        Abre();
        optNroPpReal_Click(f, OpcionFijaFinal);
    }
    bool Final(const std::string& fecha, const std::string& hora)
    {
        f.tormenta.txtDateF = fecha;
        f.tormenta.txtTimeF = hora;
        return AlSalir(f, s, "txtTimeF");
    }
};

TEST_F(FinalFijo, ElNumeroSigueAlFinal)
{
    EXPECT_TRUE(f.FinalEditable());
    EXPECT_TRUE(Final("01/01/1001", "01:40"));
    EXPECT_EQ(f.txtNroPpReal, "5");
    EXPECT_EQ(G().NroFilas(), 5);
    EXPECT_EQ(s.Tormenta.DurTormenta, 100);
    f.tormenta.txtDateF = "02/01/1001";
    EXPECT_TRUE(AlSalir(f, s, "txtDateF"));
    EXPECT_EQ(f.txtNroPpReal, "77");  // 25 h 40 min
}

TEST_F(FinalFijo, UnaFraccionDePasoSeRedondeaAlPar)
{
    EXPECT_TRUE(Final("01/01/1001", "00:50"));  // 2.5 steps
    EXPECT_EQ(f.txtNroPpReal, "2");
    EXPECT_TRUE(Final("01/01/1001", "00:51"));
    EXPECT_EQ(f.txtNroPpReal, "3");
}

TEST_F(FinalFijo, ElPasoCambiaElNumeroYNoElFinal)
{
    EligePaso("10");
    EXPECT_EQ(f.txtNroPpReal, "6");
    EXPECT_EQ(f.tormenta.txtTimeF, "01:00");
    EXPECT_EQ(Columna(3), (Textos{"5", "10", "2.5", "0", "0", "0"}));
}

TEST_F(FinalFijo, UnFinalAnteriorAlComienzoDejaCeroIntervalos)
{
    f.tormenta.txtDateI = "02/01/1001";
    EXPECT_TRUE(AlSalir(f, s, "txtDateI"));
    EXPECT_TRUE(Final("01/01/1001", "01:00"));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{FinalAntes});
    EXPECT_EQ(f.txtNroPpReal, "0");
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_EQ(G().NroFilas(), 0);
}

TEST_F(FinalFijo, MasDe999IntervalosSeRechazan)
{
    EligePaso("60");
    anfitrion->sucesos.clear();
    EXPECT_TRUE(Final("11/02/1001", "15:00"));  // 41 days and 15 h: 999 h
    EXPECT_EQ(f.txtNroPpReal, "999");
    anfitrion->sucesos.clear();  // the duration is beyond its type
    EXPECT_FALSE(Final("11/02/1001", "16:00"));
    EXPECT_EQ(Avisos().front(), NroMalo);
    EXPECT_EQ(f.txtNroPpReal, "999");
    EXPECT_EQ(s.Tormenta.NroPpReal, 999);
}

TEST_F(FinalFijo, UnNumeroFueraDeSuTipoEsFallaYDejaElQueHabia)
{
    EXPECT_TRUE(Final("01/01/2099", "00:00"));
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Desbordamiento});
    EXPECT_EQ(f.txtNroPpReal, "3");
    EXPECT_EQ(s.Tormenta.NroPpReal, 3);
}

TEST_F(FinalFijo, SinPasoNoHayCociente)
{
    EligePaso("0");
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 11 ,División por ceroVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(s.Tormenta.NroPpReal, 3);
}

TEST_F(FinalFijo, LaMarcaDeTablaBorradaEsUnaFechaComoOtras)
{
    f.tormenta.txtDateI = "01/01/0001";
    EXPECT_TRUE(AlSalir(f, s, "txtDateI"));
    EXPECT_TRUE(Final("01/01/0001", "01:00"));
    EXPECT_EQ(f.txtNroPpReal, "3");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPpReal, LaTablaSigueAlComienzo)
{
    Abre();
    f.tormenta.txtDateI = "31121999";
    EXPECT_TRUE(AlSalir(f, s, "txtDateI"));
    EXPECT_EQ(f.tormenta.txtDateI, "31/12/1999");
    f.tormenta.txtTimeI = "2330";
    EXPECT_TRUE(AlSalir(f, s, "txtTimeI"));
    EXPECT_EQ(f.tormenta.txtTimeI, "23:30");
    EXPECT_EQ(Columna(1), (Textos{"31/12/1999 23:50", "01/01/2000 00:10", "01/01/2000 00:30"}));
    PonNro("2");
    EXPECT_EQ(f.tormenta.txtDateF, "01/01/2000");
    EXPECT_EQ(f.tormenta.txtTimeF, "00:10");
}

TEST_F(DialogoPpReal, UnArchivoSinFechasDejaSinHoraLaTabla)
{
    disco.Pon("/proyectos/Velmir_pt.vlm", "\"x\"\r\n2,20\r\n\"\",\"\"\r\n\"\",\"\"\r\n5\r\n10\r\n");
    Abre();
    EXPECT_EQ(Columna(1), (Textos{"", ""}));
    EXPECT_EQ(Columna(4), (Textos{"5", "15"}));
    PonNro("1");
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{{"Error Nro. 13 ,No coinciden los tiposVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(G().NroFilas(), 1);
}

// --- dates and times ---

struct CasoTexto {
    const char* antes;
    bool malo;
    const char* despues;
};

TEST(ControlDeFecha, AceptaReescribeYRechaza)
{
    for (const CasoTexto& caso : {CasoTexto{"01/04/2004", false, "01/04/2004"},
                                  {"01042004", false, "01/04/2004"},
                                  {"", false, "01/01/1001"},
                                  {"0", false, "01/01/1001"},
                                  {"00/00/0000", false, "01/01/1001"},
                                  {"00000000", false, "01/01/1001"},
                                  {"01/01/0001", false, "01/01/0001"},
                                  {"01/01/0100", false, "01/01/0100"},
                                  {"31/12/0099", true, "31/12/0099"},
                                  {"31/12/2099", false, "31/12/2099"},
                                  {"01/01/2100", true, "01/01/2100"},
                                  {"29/02/2000", false, "29/02/2000"},
                                  {"29/02/2001", true, "29/02/2001"},
                                  {"31/04/2004", true, "31/04/2004"},
                                  {"00/04/2004", true, "00/04/2004"},
                                  {"32/01/2004", true, "32/01/2004"},
                                  {"01/00/2004", true, "01/00/2004"},
                                  {"01/13/2004", true, "01/13/2004"},
                                  {"01-04-2004", true, "01-04-2004"},
                                  {"1/4/2004", true, ""},
                                  {"1/4/04", true, "1/4/04"},
                                  {"01/04/2004 ", true, "01/04/2004 "},
                                  {"abcdefghij", true, "abcdefghij"},
                                  {"ab/cd/efgh", true, "ab/cd/efgh"}}) {
        std::string texto = caso.antes;
        EXPECT_EQ(forms::controlMiFecha(texto), caso.malo) << caso.antes;
        if (!caso.malo) {
            EXPECT_EQ(texto, caso.despues) << caso.antes;
        }
    }
}

TEST(ControlDeHora, AceptaReescribeYRechaza)
{
    for (const CasoTexto& caso : {CasoTexto{"01:20", false, "01:20"},
                                  {"0120", false, "01:20"},
                                  {"", false, "00:00"},
                                  {"0", false, "00:00"},
                                  {"00/00", false, "00:00"},
                                  {"24:00", false, "00:00"},
                                  {"2400", false, "00:00"},
                                  {"00:00", false, "00:00"},
                                  {"23:59", false, "23:59"},
                                  {"23:60", true, ""},
                                  {"24:01", true, ""},
                                  {"1:20", true, ""},
                                  {"01.20", true, ""},
                                  {"01:20 ", true, ""},
                                  {"ab:cd", true, ""}}) {
        std::string texto = caso.antes;
        EXPECT_EQ(forms::controlMiHora(texto), caso.malo) << caso.antes;
        if (!caso.malo) {
            EXPECT_EQ(texto, caso.despues) << caso.antes;
        }
    }
}

TEST_F(DialogoPpReal, UnaFechaCeroYUnaHoraCeroQuedanSinFecha)
{
    Abre();
    f.tormenta.txtDateI = "0";
    EXPECT_TRUE(AlSalir(f, s, "txtDateI"));
    f.tormenta.txtTimeI = "0";
    EXPECT_TRUE(AlSalir(f, s, "txtTimeI"));
    EXPECT_EQ(f.tormenta.txtDateI, "01/01/1001");
    EXPECT_EQ(f.tormenta.txtTimeI, "00:00");
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(DialogoPpReal, UnaFechaMalaSeAvisaYQuedaEnElCampo)
{
    Abre();
    f.tormenta.txtDateI = "31/02/2004";
    EXPECT_FALSE(AlSalir(f, s, "txtDateI"));
    EXPECT_EQ(f.tormenta.txtDateI, "31/02/2004");
    f.tormenta.txtDateF = "x";
    EXPECT_FALSE(AlSalir(f, s, "txtDateF"));
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{FechaMala, FechaMala}));
}

TEST_F(DialogoPpReal, UnaHoraMalaSeAvisaYVuelveACero)
{
    Abre();
    f.tormenta.txtTimeI = "12:60";
    EXPECT_FALSE(AlSalir(f, s, "txtTimeI"));
    EXPECT_EQ(f.tormenta.txtTimeI, "00:00");
    f.tormenta.txtTimeF = "25:00";
    EXPECT_FALSE(AlSalir(f, s, "txtTimeF"));
    EXPECT_EQ(f.tormenta.txtTimeF, "00:00");
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{HoraMala, HoraMala}));
}

// --- table ---

TEST_F(DialogoPpReal, DejarUnaCeldaTomaLaLaminaYSuma)
{
    Abre();
    Teclea("7,25\n");
    EXPECT_EQ(s.Tormenta.PpReal(1), 7.25F);
    EXPECT_EQ(Columna(4), (Textos{"7.25", "17.25", "19.75"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 19.75F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 60);
    EXPECT_EQ(G().actual, (forms::Celda{2, 3}));
}

TEST_F(DialogoPpReal, EnterDaLaVueltaYPoneCeroDondeNoHayNumero)
{
    Abre();
    forms::Mueve(G(), {3, 3});
    forms::Teclea(G(), Tecla::Suprimir);
    EXPECT_EQ(Celda(3, 3), "");
    AlAsentar(f, s, forms::Mueve(G(), {2, 3}));
    EXPECT_EQ(s.Tormenta.PpReal(3), 0.0F);
    EXPECT_EQ(Celda(3, 4), "15");
    Teclea("\n");
    EXPECT_EQ(Celda(3, 3), "0");
    Teclea("\n");
    EXPECT_EQ(G().actual, (forms::Celda{1, 3}));
}

TEST_F(DialogoPpReal, UnTextoQueNoEsNumeroSeVacia)
{
    Abre();
    Teclea("4a");
    EXPECT_EQ(Celda(1, 3), "");
}

TEST_F(DialogoPpReal, LaSumaEsDe32Bits)
{
    // 2^24 has no room for the half.
    PonTormenta(disco, "Velmir_pt.vlm", "x", 2, 10, "16777216\r\n0.5\r\n");
    Abre();
    EXPECT_EQ(s.Tormenta.PpTormenta, 16777216.0F);
    EXPECT_EQ(Celda(2, 4), "1.677722E+07");
}

TEST_F(DialogoPpReal, LoQueSePegaDeUnaPlanillaSeToma)
{
    Abre();
    AlAsentar(f, s, forms::Pega(G(), s, "1,5\n2\n3\n"));
    EXPECT_EQ(Columna(4), (Textos{"1.5", "3.5", "6.5"}));
    EXPECT_EQ(s.Tormenta.PpReal(3), 3.0F);
}

TEST_F(DialogoPpReal, UnaLaminaFueraDeSuTipoEsFalla)
{
    Abre();
    G().Pon({1, 3}, "1E39");
    AlAsentar(f, s, forms::Efecto{{{1, 3}}, false});
    EXPECT_EQ(Avisos(), std::vector<Mensaje>{Desbordamiento});
}

// --- commands ---

TEST_F(DialogoPpReal, AplicarTomaLaCeldaQueSeEstaEscribiendo)
{
    Abre();
    Teclea("8");
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"),
              "\"Llovizna\"\r\n3,20\r\n\"01/01/1001\",\"00:00\"\r\n\"01/01/1001\",\"01:00\""
              "\r\n8\r\n10\r\n2.5\r\n");
}

TEST_F(DialogoPpReal, AplicarLlevaElNombreADlgPp)
{
    PonTormenta(disco, "Alfa_pt.vlm", "a", 1, 10, "4\r\n");
    rainfall::Abre(pp, s);
    Abre();
    f.FilePpReal.indice = 0;
    FilePpReal_Click(f, s);
    EXPECT_EQ(pp.lblMiFilePpReal, "Velmir_pt.vlm");
    cmdAplicar(f, pp, s);
    EXPECT_EQ(pp.lblMiFilePpReal, "Alfa_pt.vlm");
    EXPECT_EQ(pp.tormenta.nombre, "Alfa_pt.vlm");
    EXPECT_EQ(pp.FilePpReal.indice, 0);
    AlVolver(pp, s);
    EXPECT_EQ(pp.txtPp, "4");
    EXPECT_EQ(pp.txtDur, "10");
}

TEST_F(DialogoPpReal, CerrarEscribeDosVecesYAplicarUna)
{
    Abre();
    const auto escrituras = [&] {
        int n = 0;
        for (const auto& llamada : disco.Llamadas())
            if (llamada.clase == apoyo::DiscoPrueba::Clase::Reemplaza) ++n;
        return n;
    };
    disco.OlvidaLlamadas();
    cmdAplicar(f, pp, s);
    const int una = escrituras();
    EXPECT_GE(una, 1);
    disco.OlvidaLlamadas();
    OKButton(f, pp, s);
    EXPECT_EQ(escrituras(), 2 * una);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);
    EXPECT_FALSE(f.abierta);
}

TEST_F(DialogoPpReal, UnArchivoQueNoSeEncuentraSeAvisaYLaVentanaQueda)
{
    Abre();
    disco.FallaDesde(1, NumeroFalla::ArchivoNoEsta);
    const Mensaje noEsta = {"No se encuentra el archivo Velmir_pt.vlm", "Error...", Icono::Exclamacion};
    cmdAplicar(f, pp, s);
    OKButton(f, pp, s);
    EXPECT_EQ(Avisos(), (std::vector<Mensaje>{noEsta, noEsta}));
    EXPECT_TRUE(f.abierta);
}

TEST_F(DialogoPpReal, OtraFallaAlEscribirSeInforma)
{
    Abre();
    disco.Protege("/proyectos/Velmir_pt.vlm");
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Avisos(),
              (std::vector<Mensaje>{
                  {"Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique", "", Icono::Ninguno}}));
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);
}

TEST_F(DialogoPpReal, SinAplicarEstaLoQueElArchivoNoTiene)
{
    Abre();
    EXPECT_FALSE(SinAplicar(f));
    optNroPpReal_Click(f, OpcionFijaFinal);
    EXPECT_FALSE(SinAplicar(f));
    Teclea("9");
    EXPECT_TRUE(SinAplicar(f));
    cmdAplicar(f, pp, s);
    EXPECT_FALSE(SinAplicar(f));
    EligePaso("60");
    EXPECT_TRUE(SinAplicar(f));
    FilePpReal_Click(f, s);  // read anew
    EXPECT_FALSE(SinAplicar(f));
    f.txtNroPpReal = "7";
    EXPECT_TRUE(SinAplicar(f));
    anfitrion->textos = {"Otra"};
    cmdNuevaPpReal(f, s);
    EXPECT_FALSE(SinAplicar(f));
    f.tormenta.Notas = "otras";
    disco.FallaDesde(1, NumeroFalla::AccesoRuta);
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(SinAplicar(f));
    OKButton(f, pp, s);
    EXPECT_TRUE(SinAplicar(f));
    disco.DejaDeFallar();
    cmdBorraTablaDisPer(f, pp, s);
    EXPECT_FALSE(SinAplicar(f));
}

TEST_F(DialogoPpReal, EnUnaProtegidaAplicarNoEscribeYSigueSinAplicar)
{
    PonTormenta(disco, Protegida, "medida", 2, 10, "1\r\n2\r\n");
    pp.lblMiFilePpReal = Protegida;
    Abre();
    EXPECT_FALSE(SinAplicar(f));
    f.tormenta.Notas = "otras";
    cmdAplicar(f, pp, s);
    EXPECT_TRUE(SinAplicar(f));
}

TEST_F(DialogoPpReal, CancelarDejaLosArreglosComoSeEscribieron)
{
    Abre();
    Teclea("9\n");
    CancelButton(f);
    EXPECT_EQ(s.Tormenta.PpReal(1), 9.0F);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);
}

TEST_F(DialogoPpReal, UnaTormentaNuevaSeOfreceConElNumeroSiguiente)
{
    PonTormenta(disco, "Velmir7_pt.vlm", "x", 0, 10, "");
    Abre();
    anfitrion->aceptaDefecto = true;
    cmdNuevaPpReal(f, s);
    const auto& peticion = anfitrion->sucesos.front();
    EXPECT_EQ(peticion.mensaje.texto, "Ingrese un nombre de archivo para la nueva tormenta");
    EXPECT_EQ(peticion.mensaje.titulo, "Asignar un nombre de archivo para la tormenta a ingresar");
    EXPECT_EQ(f.tormenta.nombre, "Velmir8_pt.vlm");
    EXPECT_EQ(Bytes("Velmir8_pt.vlm"),
              "\"describa brevemente aqu\xED la tormenta \"\r\n0,10\r\n\"01/01/1001\","
              "\"00:00\"\r\n\"01/01/1001\",\"00:00\"\r\n");
    EXPECT_EQ(f.FilePpReal.items[static_cast<std::size_t>(f.FilePpReal.indice)], "Velmir8_pt.vlm");
    EXPECT_EQ(f.lblMiFilePpReal, "Velmir8_pt.vlm");
    EXPECT_EQ(f.txtNroPpReal, "0");
    EXPECT_EQ(G().NroFilas(), 0);
    PonNro("2");
    EXPECT_EQ(Columna(3), (Textos{"0", "0"}));  // nothing of the storm before
}

TEST_F(DialogoPpReal, LaPrimeraNuevaEsVelmir1YSinRespuestaNoHayNinguna)
{
    Abre();
    cmdNuevaPpReal(f, s);
    EXPECT_EQ(f.tormenta.nombre, "Velmir_pt.vlm");
    anfitrion->aceptaDefecto = true;
    cmdNuevaPpReal(f, s);
    EXPECT_EQ(f.tormenta.nombre, "Velmir1_pt.vlm");
}

TEST_F(DialogoPpReal, ElFinalDelNombreSeAgregaSiempre)
{
    Abre();
    anfitrion->textos = {"tormenta", "tormenta_pt.vlm"};
    cmdNuevaPpReal(f, s);
    EXPECT_TRUE(disco.Esta("/proyectos/tormenta_pt.vlm"));
    cmdNuevaPpReal(f, s);
    EXPECT_TRUE(disco.Esta("/proyectos/tormenta_pt.vlm_pt.vlm"));
}

TEST_F(DialogoPpReal, LoDeshechoVuelveALaTormentaYALaSuma)
{
    Abre();
    Teclea("9\n");
    EXPECT_EQ(s.Tormenta.PpReal(1), 9.0F);
    AlAsentar(f, s, forms::Deshace(G()));
    EXPECT_EQ(s.Tormenta.PpReal(1), 5.0F);
    EXPECT_EQ(Columna(4), (Textos{"5", "15", "17.5"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 17.5F);
}

TEST_F(DialogoPpReal, UnaNuevaQueNoSePuedeEscribirDejaTodoComoEstaba)
{
    Abre();
    PonNro("2");
    const dlgPpReal antes = f;
    anfitrion->textos = {"12/5/92"};
    anfitrion->sucesos.clear();
    cmdNuevaPpReal(f, s);
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(f.tormenta, antes.tormenta);
    EXPECT_EQ(f.lblMiFilePpReal, "Velmir_pt.vlm");
    EXPECT_EQ(f.txtNroPpReal, "2");
    EXPECT_EQ(G(), antes.MSFlexGridTablaPpReal);
    EXPECT_EQ(s.Tormenta.NroPpReal, 2);
    PonNro("3");
    EXPECT_EQ(Columna(3), (Textos{"5", "10", "2.5"}));
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);
}

TEST_F(DialogoPpReal, SinTormentaQueLeerLasFilasNuevasNoSonLasDelUltimoHietograma)
{
    disco.Quita("/proyectos/Velmir_pt.vlm");
    s.Tormenta.PpReal.Dimensiona(4);
    for (int j = 1; j <= 4; ++j)
        s.Tormenta.PpReal(j) = 9;
    Abre();
    PonNro("3");
    EXPECT_EQ(Columna(3), (Textos{"0", "0", "0"}));
    EXPECT_EQ(Columna(4), (Textos{"0", "0", "0"}));
}

TEST_F(DialogoPpReal, UnaNuevaConNombreUsadoPisaLaAnterior)
{
    Abre();
    anfitrion->textos = {"Velmir"};
    cmdNuevaPpReal(f, s);
    EXPECT_EQ(s.Tormenta.NroPpReal, 0);
    EXPECT_TRUE(Bytes("Velmir_pt.vlm").starts_with("\"describa"));
}

TEST_F(DialogoPpReal, BorrarSinEliminarEscribeLaTormentaVacia)
{
    Abre();
    anfitrion->respuestas = {false};
    cmdBorraTablaDisPer(f, pp, s);
    EXPECT_EQ(
        anfitrion->Preguntas(),
        (std::vector<Mensaje>{{"La Tabla ha sido borrada. ¿Desea borrar tambien el archivo Velmir_pt.vlm ?",
                               "¿Eliminar el archivo?", Icono::Pregunta}}));
    EXPECT_EQ(Bytes("Velmir_pt.vlm"),
              "\"\"\r\n0,10\r\n\"01/01/0001\",\"00:00\"\r\n\"01/01/0001\",\"00:00\"\r\n");
    EXPECT_EQ(G().NroFilas(), 0);
    EXPECT_EQ(f.txtNroPpReal, "0");
    EXPECT_EQ(f.cmbPasot, "10");
    EXPECT_EQ(f.tormenta.Notas, "");
}

TEST_F(DialogoPpReal, EliminarBorraElArchivoYVuelveAAbrirEnLaDeDlgPp)
{
    PonTormenta(disco, "Alfa_pt.vlm", "a", 1, 10, "4\r\n");
    Abre();
    f.FilePpReal.indice = 0;
    FilePpReal_Click(f, s);
    cmdBorraTablaDisPer(f, pp, s);
    EXPECT_FALSE(disco.Esta("/proyectos/Alfa_pt.vlm"));
    EXPECT_EQ(f.tormenta.nombre, "Velmir_pt.vlm");
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);  // read and written again
    EXPECT_EQ(f.FilePpReal.items, Textos{"Velmir_pt.vlm"});
    EXPECT_EQ(G().NroFilas(), 3);
    EXPECT_TRUE(f.abierta);
}

TEST_F(DialogoPpReal, EliminarLaDeDlgPpNoLaVuelveAEscribir)
{
    PonTormenta(disco, "Alfa_pt.vlm", "a", 1, 10, "4\r\n");
    pp.lblMiFilePpReal = "Alfa_pt.vlm";
    Abre();
    cmdBorraTablaDisPer(f, pp, s);
    EXPECT_FALSE(disco.Esta("/proyectos/Alfa_pt.vlm"));
    EXPECT_EQ(f.tormenta.nombre, "Velmir_pt.vlm");
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);
}

TEST_F(DialogoPpReal, ElGraficoRecibeBloquesPasoNotasLaminaYDuracion)
{
    Abre();
    Teclea("6");
    EXPECT_EQ(cmdVerGrafico(f, s), (PedidoHietograma{3, 20, "Llovizna", 18.5F, 60}));
}

TEST_F(DialogoPpReal, LaVistaSigueALaCeldaQueSeEscribe)
{
    Abre();
    Teclea("9");
    const forms::Grafico vista = Vista(f);
    EXPECT_EQ(vista.categorias, (Textos{"20", "40", "60"}));
    ASSERT_EQ(vista.series.size(), 1U);
    EXPECT_EQ(vista.series[0].celdas, (std::vector<double>{9, 10, 2.5}));
    EXPECT_EQ(vista.series[0].tipo, forms::TipoSerie::Escalon2D);
    EXPECT_EQ(vista.ejeX, "t [min]");
    EXPECT_EQ(vista.ejeY, "Pp [mm]");
    forms::Teclea(G(), Tecla::Suprimir);
    EXPECT_TRUE(forms::EstaVacia(Vista(f).series[0].celdas[0]));
}

TEST_F(DialogoPpReal, LaTormentaImportadaTomaLosCamposYNadaSeEscribe)
{
    Abre();
    TomaImportada(f, s, {"Importada de r.csv", 15, *forms::FechaDeTexto("29/02/1992") + 60, {1.5F, 0, 2}});
    EXPECT_EQ(f.tormenta.Notas, "Importada de r.csv");
    EXPECT_EQ(f.tormenta.txtDateI, "29/02/1992");
    EXPECT_EQ(f.tormenta.txtTimeI, "01:00");
    EXPECT_EQ(f.tormenta.txtTimeF, "01:45");
    EXPECT_EQ(f.cmbPasot, "15");
    EXPECT_EQ(f.txtNroPpReal, "3");
    EXPECT_EQ(Columna(3), (Textos{"1.5", "0", "2"}));
    EXPECT_EQ(s.Tormenta.PpTormenta, 3.5F);
    EXPECT_EQ(s.Tormenta.DurTormenta, 45);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"), Llovizna);
    cmdAplicar(f, pp, s);
    EXPECT_EQ(Bytes("Velmir_pt.vlm"),
              "\"Importada de r.csv\"\r\n3,15\r\n\"29/02/1992\",\"01:00\"\r\n\"29/02/1992\","
              "\"01:45\"\r\n1.5\r\n0\r\n2\r\n");
}

// What was imported stands in the form until it is written; the file is the old storm or the new one.
TEST_F(DialogoPpReal, AlImportarYAplicarCadaLlamadaQueFallaDejaLaTormentaViejaOLaNueva)
{
    disco.Pon("/datos/r.csv", "01/03/2004 00:10;1\n01/03/2004 00:20;2\n");
    int n = 0;
    for (bool hubo = true; hubo;) {
        ASSERT_LT(++n, 20);
        disco.Pon("/proyectos/Velmir_pt.vlm", Llovizna);
        Abre();
        anfitrion->sucesos.clear();
        anfitrion->elegidos = {"/datos/r.csv"};
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        dlgImportaTormenta importa;
        const bool leida = rainfall::Abre(importa, s);
        if (leida) {
            OKButton(importa);
            TomaImportada(f, s, importa.tormenta);
            cmdAplicar(f, pp, s);
        }
        hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        EXPECT_EQ(Avisos().size(), hubo ? 1U : 0U) << "call " << n;
        EXPECT_EQ(Bytes("Velmir_pt.vlm") == Llovizna, hubo) << "call " << n;
        EXPECT_EQ(f.txtNroPpReal, leida ? "2" : "3") << "call " << n;
        EXPECT_TRUE(!leida || Columna(3) == (Textos{"1", "2"})) << "call " << n;
        // The next attempt goes through.
        cmdAplicar(f, pp, s);
        EXPECT_EQ(Bytes("Velmir_pt.vlm") == Llovizna, !leida) << "call " << n;
    }
    EXPECT_EQ(n, 3);  // the record, the storm
}

}  // namespace
}  // namespace rainfall
