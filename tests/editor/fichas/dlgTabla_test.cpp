// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/dlgTabla.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"

namespace editor {
namespace {

using forms::Celda;
using model::Icono;
using model::Mensaje;

/// Two Represas and two Lagos; each table file has 3 rows for the first and 1 for the second.
class EditorDeTablas : public testing::Test {
  protected:
    EditorDeTablas()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Proyecto.DirProyecto = "/proy";
        disco.PonDirectorio("/proy");
        for (std::int16_t n = 1; n <= 2; ++n) {
            s.Red.ColRepresas.Agrega({.NombreRepresa = "r-" + std::to_string(n), .numRepresa = n});
            s.Red.ColLagos.Agrega({.NombreLAGO = "l-" + std::to_string(n), .numLAGO = n});
        }
        disco.Pon("/proy/Arroyo_RHAS.vlm", RHAS);
        disco.Pon("/proy/Arroyo_RHQ.vlm", "\"*r-1\",3\r\n0,0\r\n1.5,2.25\r\n3,8\r\n\"*r-2\",1\r\n4,5\r\n");
        disco.Pon("/proy/Arroyo_LHASQ.vlm",
                  "\"*l-1\",3,\"*\",\"*\"\r\n1,2,100,0\r\n2,3,200,0.5\r\n3,4,300,1\r\n"
                  "\"*l-2\",1,\"*\",\"*\"\r\n5,6,7,8\r\n");
    }
    void AbreTabla(TipoTabla tipo = TipoTabla::SHV) { Abre(f, s, tipo, "1", "r-1"); }
    [[nodiscard]] std::string T(int fila, int columna) const { return f.grilla.Texto({fila, columna}); }
    /// A row of cells, from the first data column on.
    void Fila(int fila, const std::vector<std::string>& celdas)
    {
        int columna = 0;
        for (const std::string& celda : celdas)
            f.grilla.Pon({fila, ++columna}, celda);
    }
    [[nodiscard]] std::string Archivo(std::string_view sufijo) const
    {
        return disco.Bytes("/proy/Arroyo" + std::string(sufijo));
    }
    [[nodiscard]] std::vector<std::string> Textos() const
    {
        std::vector<std::string> textos;
        for (const Mensaje& m : anfitrion->Avisos())
            textos.push_back(m.texto);
        return textos;
    }

    static constexpr std::string_view RHAS =
        "\"*r-1\",3,\"*\"\r\n10,1.5,1000\r\n11,2.5,2000\r\n12,2.5,3000\r\n\"*r-2\",1,\"*\"\r\n20,3,4000\r\n";
    apoyo::AnfitrionPrueba anfitrion;
    apoyo::DiscoPrueba disco;
    model::Siro s;
    dlgTabla f;
};

TEST_F(EditorDeTablas, LasFilasSeOrdenanPorAlturaSinAplicarlas)
{
    AbreTabla();
    Fila(1, {"12", "2.5", "3000"});
    Fila(2, {"10", "1.5", "1000"});
    Fila(3, {"10.0", "1.5", "1000"});  // the same numbers
    const std::string antes = Archivo("_RHAS.vlm");
    OrdenaPorAltura(f);
    EXPECT_EQ(f.txtNroFilas, "2");
    EXPECT_EQ(f.grilla.NroFilas(), 2);
    EXPECT_EQ(T(1, 0) + " " + T(1, 1) + " " + T(1, 3), "1 10 1000");
    EXPECT_EQ(T(2, 0) + " " + T(2, 1) + " " + T(2, 3), "2 12 3000");
    EXPECT_TRUE(SinAplicar(f));
    EXPECT_EQ(Archivo("_RHAS.vlm"), antes);
    Fila(1, {"14", "x", "3000"});
    OrdenaPorAltura(f);
    EXPECT_EQ(T(1, 1), "14") << "with a cell that is no number nothing moves";
}

TEST_F(EditorDeTablas, LosTitulosEncabezadosYNombresSonLosDados)
{
    const DescripcionTabla& shv = DescripcionDe(TipoTabla::SHV);
    EXPECT_EQ(shv.nombre, "dlgTablaSHV");
    EXPECT_EQ(shv.titulo, "Tabla Altura H[m]- Area A[has] - Almacenamiento S[m3], en Represa");
    EXPECT_EQ(shv.grilla.encabezado,
              "^Indice|>H [m]          |> Area A[has]          |> Almacenamiento S[m3]");
    EXPECT_EQ(shv.nombreGrilla, "MSFlexGridFQ");
    EXPECT_EQ(shv.nombreLblNro, "lblNroRepresa");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgTabla, "cmdAplicar").leyenda, "&Aplicar");
    EXPECT_EQ(forms::RotuloDe(RotulosDlgTabla, "cmdBorraTablaHQ").leyenda, "Borrar Tabla");
    const DescripcionTabla& fq = DescripcionDe(TipoTabla::FQ);
    EXPECT_EQ(fq.nombre, "dlgTablaFQ");
    EXPECT_EQ(fq.titulo, "Tabla Altura H[m]- Caudal Q[m3/s], en Represa");
    EXPECT_EQ(fq.grilla.encabezado, "^Indice|>H [m]          |> Q[m]          ");
    EXPECT_EQ(fq.nombreLblNombre, "lblNombreRepresa");
    const DescripcionTabla& shvq = DescripcionDe(TipoTabla::SHVQ);
    EXPECT_EQ(shvq.nombre, "dlgTablaSHVQ");
    EXPECT_EQ(
        shvq.titulo,
        "Tabla Altura H[m]- Area A[has]-Almacenamiento S[m3]- Caudal Q[m3/s] en Lago / Laguna / Mallin");
    EXPECT_EQ(shvq.grilla.encabezado,
              "^Indice|>H [m]          |> Area A[has]          |> Almacenamiento S[m3] |> Q[m3/s]          ");
    EXPECT_EQ(shvq.nombreGrilla, "MSFlexGridHSVQ");
    EXPECT_EQ(shvq.nombreLblNro, "lblNroLago");
    EXPECT_EQ(shvq.nombreLblNombre, "lblNombreLago");
}

// --- opening ---

TEST_F(EditorDeTablas, AbreConLaTablaDelComponenteElegido)
{
    s.Seleccion.RepresaSel = 1;
    AbreTabla();
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lblNro, "1");
    EXPECT_EQ(f.lblNombre, "r-1");
    EXPECT_EQ(f.txtNroFilas, "3");
    ASSERT_EQ(f.grilla.NroFilas(), 3);
    EXPECT_EQ(T(3, 0), "3");
    EXPECT_EQ(T(1, 1), "10");
    EXPECT_EQ(T(1, 2), "1.5");
    EXPECT_EQ(T(1, 3), "1000");
    EXPECT_EQ(s.Red.NroRepresas(), 2);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EditorDeTablas, CadaEditorMuestraSuTabla)
{
    s.Seleccion.RepresaSel = 2;
    AbreTabla(TipoTabla::FQ);
    ASSERT_EQ(f.grilla.NroFilas(), 1);
    EXPECT_EQ(T(1, 1), "4");
    EXPECT_EQ(T(1, 2), "5");
    s.Seleccion.LagoSel = 2;
    AbreTabla(TipoTabla::SHVQ);
    ASSERT_EQ(f.grilla.NroFilas(), 1);
    EXPECT_EQ(T(1, 1), "5");
    EXPECT_EQ(T(1, 4), "8");
    EXPECT_EQ(s.Red.NroLagos(), 2);
}

TEST_F(EditorDeTablas, SinSeleccionSeElijeElPrimero)
{
    AbreTabla();
    EXPECT_EQ(s.Seleccion.RepresaSel, 1);
    AbreTabla(TipoTabla::SHVQ);
    EXPECT_EQ(s.Seleccion.LagoSel, 1);
}

TEST_F(EditorDeTablas, SinComponentesQuedaVacioYAplicarNoHaceNada)
{
    s.Red.ColRepresas.Vacia();
    AbreTabla();
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.grilla.NroFilas(), 0);
    EXPECT_EQ(f.txtNroFilas, "");
    EXPECT_EQ(s.Seleccion.RepresaSel, 0);
    cmdAplicar(f, s);
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EditorDeTablas, AlAbrirSePierdeLaTablaSinGuardarDeOtroComponente)
{
    s.Seleccion.RepresaSel = 1;
    AbreTabla();
    s.Red.RepresaH(2, 1) = 99;
    AbreTabla();
    EXPECT_EQ(s.Red.RepresaH(2, 1), 20.0F);
}

// --- number of rows ---

TEST_F(EditorDeTablas, ElNumeroDeFilasVaDe0A999)
{
    AbreTabla();
    for (const std::int16_t n : {std::int16_t{999}, std::int16_t{998}, std::int16_t{1}, std::int16_t{0}}) {
        txtNroFilas_Change(f, s, std::to_string(n));
        EXPECT_EQ(f.NroFilas, n);
        EXPECT_EQ(f.grilla.NroFilas(), n);
    }
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EditorDeTablas, LoQueNoEsUnEnteroDe0A999SeRechazaYVuelveElTextoDeAntes)
{
    AbreTabla();
    for (const char* texto : {"1000", "-1", "2.5", "x", "3x", ""}) {
        anfitrion->sucesos.clear();
        f.foco = {};
        txtNroFilas_Change(f, s, texto);
        EXPECT_EQ(
            anfitrion->Avisos(),
            (std::vector<Mensaje>{{"Ingrese un valor numérico entero entre 0 y 999 ", "", Icono::Ninguno}}))
            << texto;
        EXPECT_EQ(f.txtNroFilas, "3");
        EXPECT_EQ(f.grilla.NroFilas(), 3);
        EXPECT_EQ(f.foco, (forms::Foco{"txtNroFilas", true}));
    }
    txtNroFilas_Change(f, s, "4");
    EXPECT_EQ(f.foco, forms::Foco{});
}

TEST_F(EditorDeTablas, LasFilasQueQuedanConservanSuTextoYLasNuevasSeNumeran)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "2");
    txtNroFilas_Change(f, s, "4");
    EXPECT_EQ(T(2, 1), "11");
    EXPECT_EQ(T(4, 0), "4");
    EXPECT_EQ(T(4, 1), "");
    EXPECT_EQ(f.txtNroFilas, "4");
}

TEST_F(EditorDeTablas, LasFilasCortadasVuelvenAlCrecerElNumero)
{
    AbreTabla();
    f.grilla.Pon({3, 2}, "2.75");
    for (const char* texto : {"1", "12", "0", "2", "3"})  // "12" is typed by way of "1"
        txtNroFilas_Change(f, s, texto);
    EXPECT_EQ(f.grilla.filas[1].celdas, (std::vector<std::string>{"2", "11", "2.5", "2000"}));
    EXPECT_EQ(f.grilla.filas[2].celdas, (std::vector<std::string>{"3", "12", "2.75", "3000"}));
    txtNroFilas_Change(f, s, "x");
    EXPECT_EQ(T(3, 2), "2.75");
}

TEST_F(EditorDeTablas, AplicadasLasFilasCortadasNoVuelven)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "2");
    Fila(1, {"12", "1", "1"});
    cmdAplicar(f, s);  // refused: the heights fall
    txtNroFilas_Change(f, s, "3");
    EXPECT_EQ(T(3, 3), "3000");
    txtNroFilas_Change(f, s, "2");
    Fila(1, {"10", "1", "1"});
    cmdAplicar(f, s);
    txtNroFilas_Change(f, s, "3");
    EXPECT_EQ(T(3, 0), "3");
    EXPECT_EQ(T(3, 3), "");
}

TEST_F(EditorDeTablas, BorrarTablaVaciaTambienLasFilasCortadas)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "1");
    cmdBorraTablaHQ(f);
    txtNroFilas_Change(f, s, "3");
    EXPECT_EQ(T(3, 3), "");
}

TEST_F(EditorDeTablas, BorrarTablaVaciaLosDatosYDejaLasFilas)
{
    AbreTabla();
    cmdBorraTablaHQ(f);
    EXPECT_EQ(f.grilla.NroFilas(), 3);
    EXPECT_EQ(T(2, 0), "2");
    for (int fila = 1; fila <= 3; ++fila)
        for (int columna = 1; columna <= 3; ++columna)
            EXPECT_EQ(T(fila, columna), "");
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
}

// --- applying ---

TEST_F(EditorDeTablas, AplicarEscribeLaTablaYLlevaElCursorAlComienzo)
{
    AbreTabla();
    Fila(2, {"11.25", "2.5", "2500"});
    forms::Mueve(f.grilla, {3, 3});
    cmdAplicar(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(f.grilla.actual, (Celda{1, 1}));
    EXPECT_EQ(s.Red.RepresaH(1, 2), 11.25F);
    EXPECT_EQ(s.Red.RepresaS(1, 2), 2500);
    EXPECT_TRUE(
        apoyo::MismoTexto("\"*r-1\",3,\"*\"\r\n10,1.5,1000\r\n11.25,2.5,2500\r\n12,2.5,3000\r\n"
                          "\"*r-2\",1,\"*\"\r\n20,3,4000\r\n",
                          Archivo("_RHAS.vlm")));
}

TEST_F(EditorDeTablas, LaTablaHQYLaDelLagoSeEscribenEnLosSuyos)
{
    AbreTabla(TipoTabla::FQ);
    Fila(3, {"3.5", "7"});
    cmdAplicar(f, s);
    EXPECT_TRUE(apoyo::MismoTexto("\"*r-1\",3\r\n0,0\r\n1.5,2.25\r\n3.5,7\r\n\"*r-2\",1\r\n4,5\r\n",
                                  Archivo("_RHQ.vlm")));
    s.Seleccion.LagoSel = 2;
    AbreTabla(TipoTabla::SHVQ);
    Fila(1, {"5.5", "6", "7", "9"});
    cmdAplicar(f, s);
    EXPECT_TRUE(
        apoyo::MismoTexto("\"*l-1\",3,\"*\",\"*\"\r\n1,2,100,0\r\n2,3,200,0.5\r\n3,4,300,1\r\n"
                          "\"*l-2\",1,\"*\",\"*\"\r\n5.5,6,7,9\r\n",
                          Archivo("_LHASQ.vlm")));
}

TEST_F(EditorDeTablas, UnaFilaSolaPasaTodasLasPruebasDeOrden)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "1");
    Fila(1, {"0", "0", "0"});
    cmdAplicar(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Red.RepresaFilasHAS(1), 1);
}

TEST_F(EditorDeTablas, DosAreasIgualesPasanDosAlturasODosVolumenesIgualesNo)
{
    AbreTabla();
    Fila(2, {"10", "1.5", "1000"});
    cmdAplicar(f, s);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Error, la altura H debe ser creciente, Verifique la fila 2",
                                     "Advertencia !", Icono::Exclamacion},
                                    {"Error, el Volumen V debe ser creciente, Verifique la fila 2",
                                     "Advertencia !", Icono::Exclamacion}}));
    EXPECT_EQ(f.grilla.actual, (Celda{2, 3}));
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
    EXPECT_EQ(s.Red.RepresaH(1, 2), 11.0F);
}

TEST_F(EditorDeTablas, UnAreaQueBajaSeRechaza)
{
    AbreTabla();
    Fila(2, {"11", "1.49", "2000"});
    cmdAplicar(f, s);
    EXPECT_EQ(Textos(),
              (std::vector<std::string>{"Error, la Superficie S debe ser creciente, Verifique la fila 2"}));
    EXPECT_EQ(f.grilla.actual, (Celda{2, 2}));
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
}

TEST_F(EditorDeTablas, CadaFilaEnFaltaDaSuMensajeYPorColumnas)
{
    AbreTabla();
    Fila(1, {"3", "3", "3"});
    Fila(2, {"2", "2", "2"});
    Fila(3, {"1", "1", "1"});
    cmdAplicar(f, s);
    EXPECT_EQ(Textos(),
              (std::vector<std::string>{"Error, la altura H debe ser creciente, Verifique la fila 2",
                                        "Error, la altura H debe ser creciente, Verifique la fila 3",
                                        "Error, la Superficie S debe ser creciente, Verifique la fila 2",
                                        "Error, la Superficie S debe ser creciente, Verifique la fila 3",
                                        "Error, el Volumen V debe ser creciente, Verifique la fila 2",
                                        "Error, el Volumen V debe ser creciente, Verifique la fila 3"}));
    EXPECT_EQ(f.grilla.actual, (Celda{3, 3}));
}

TEST_F(EditorDeTablas, ElCaudalNoSePrueba)
{
    AbreTabla(TipoTabla::FQ);
    Fila(1, {"0", "9"});
    Fila(2, {"1", "-5"});
    Fila(3, {"2", "-5"});
    cmdAplicar(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Red.RepresaQQ(1, 2), -5.0F);
    AbreTabla(TipoTabla::SHVQ);
    Fila(1, {"1", "2", "100", "9"});
    cmdAplicar(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Red.LagoQ(1, 1), 9.0F);
}

TEST_F(EditorDeTablas, ElOrdenSeMiraEnSimplePrecision)
{
    AbreTabla();
    Fila(1, {"10", "1", "16777216"});
    Fila(2, {"11", "1", "16777217"});
    Fila(3, {"11.0000001", "1", "16777218"});
    cmdAplicar(f, s);
    EXPECT_EQ(Textos(),
              (std::vector<std::string>{"Error, la altura H debe ser creciente, Verifique la fila 3",
                                        "Error, el Volumen V debe ser creciente, Verifique la fila 2"}));
}

TEST_F(EditorDeTablas, ElVolumenSeGuardaSinPasarPorSimplePrecision)
{
    AbreTabla();
    Fila(2, {"11", "2.5", "16777217.4"});
    Fila(3, {"12", "2.5", "16777221"});
    cmdAplicar(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Red.RepresaS(1, 2), 16777217);
    EXPECT_EQ(s.Red.RepresaS(1, 3), 16777221);
}

TEST_F(EditorDeTablas, UnaCeldaSinNumeroImpideGuardarSinDecirlo)
{
    AbreTabla(TipoTabla::FQ);
    Fila(1, {"0", ""});
    cmdAplicar(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(f.grilla.actual, (Celda{1, 2}));
    EXPECT_EQ(s.Red.RepresaQQ(1, 1), 0.0F);
    Fila(1, {"0", "4"});
    cmdAplicar(f, s);
    EXPECT_EQ(s.Red.RepresaQQ(1, 1), 4.0F);
}

TEST_F(EditorDeTablas, LasFilasAgregadasVaciasNoSeGuardan)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "4");
    cmdAplicar(f, s);
    // An empty cell is read as 0 by the tests of order.
    EXPECT_EQ(Textos(),
              (std::vector<std::string>{"Error, la altura H debe ser creciente, Verifique la fila 4",
                                        "Error, la Superficie S debe ser creciente, Verifique la fila 4",
                                        "Error, el Volumen V debe ser creciente, Verifique la fila 4"}));
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
    EXPECT_EQ(s.Red.RepresaFilasHAS(1), 3);
}

TEST_F(EditorDeTablas, MenosFilasAplicadasQuitanLasDeMas)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "2");
    cmdAplicar(f, s);
    EXPECT_TRUE(apoyo::MismoTexto(
        "\"*r-1\",2,\"*\"\r\n10,1.5,1000\r\n11,2.5,2000\r\n\"*r-2\",1,\"*\"\r\n20,3,4000\r\n",
        Archivo("_RHAS.vlm")));
}

TEST_F(EditorDeTablas, UnaTablaVaciaGuardaUnBloqueSinDatos)
{
    AbreTabla();
    txtNroFilas_Change(f, s, "0");
    cmdAplicar(f, s);
    EXPECT_TRUE(
        apoyo::MismoTexto("\"*r-1\",0,\"*\"\r\n\"*r-2\",1,\"*\"\r\n20,3,4000\r\n", Archivo("_RHAS.vlm")));
    // The heights that the initial level is checked against are still there to be looked at.
    EXPECT_GE(s.Red.RepresaH.TopeColumna(), 1);
}

TEST_F(EditorDeTablas, MasDeDiezFilasCabenYNadiePierdeLasSuyas)
{
    s.Seleccion.RepresaSel = 2;
    AbreTabla();
    txtNroFilas_Change(f, s, "40");
    for (int k = 1; k <= 40; ++k)
        Fila(k, {std::to_string(k), "1", std::to_string(100 * k)});
    cmdAplicar(f, s);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    s.Seleccion.RepresaSel = 1;
    AbreTabla();
    txtNroFilas_Change(f, s, "1");
    cmdAplicar(f, s);
    s.Seleccion.RepresaSel = 2;
    AbreTabla();
    EXPECT_EQ(f.NroFilas, 40);
    EXPECT_EQ(T(40, 3), "4000");
}

TEST_F(EditorDeTablas, UnNumeroFueraDelTipoSeDiceYNadaSeGuarda)
{
    AbreTabla();
    Fila(3, {"12", "2.5", "3000000000"});
    cmdAplicar(f, s);
    EXPECT_EQ(Textos(), (std::vector<std::string>{"Error Nro. 6 ,DesbordamientoVerifique"}));
    EXPECT_EQ(s.Red.RepresaS(1, 3), 3000);
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
}

// --- closing ---

// --- blocks that a rename has left behind ---

model::Mensaje SePierden(const std::string& archivo, const std::string& nombres)
{
    return {"Al escribir el archivo " + archivo + " se perderían las tablas de: " + nombres +
                ". ¿Desea aplicar igual ?",
            "Tablas que se perderían", Icono::Exclamacion};
}

TEST_F(EditorDeTablas, TrasUnCambioDeNombrePreguntaPorLasTablasQueElArchivoPerderia)
{
    // The reader misses the block of the first Represa and stops there: the second one's would go too.
    s.Red.ColRepresas.Item(1).NombreRepresa = "r-nueva";
    AbreTabla();
    txtNroFilas_Change(f, s, "1");
    Fila(1, {"5", "6", "7"});
    anfitrion->respuestas = {false};
    cmdAplicar(f, s);
    EXPECT_EQ(anfitrion->Preguntas(), (std::vector{SePierden("Arroyo_RHAS.vlm", "r-1, r-2")}));
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
    EXPECT_EQ(s.Red.RepresaFilasHAS(1), 0);
    EXPECT_EQ(T(1, 1), "5");
    anfitrion->respuestas = {true};
    cmdAplicar(f, s);
    EXPECT_EQ(Archivo("_RHAS.vlm"), "\"*r-nueva\",1,\"*\"\r\n5,6,7\r\n\"*r-2\",0,\"*\"\r\n");
    anfitrion->sucesos.clear();
    cmdAplicar(f, s);  // nothing more to lose
    EXPECT_EQ(anfitrion->Preguntas(), std::vector<Mensaje>{});
}

TEST_F(EditorDeTablas, ConNoAceptarNoCierraNiRecuerda)
{
    s.Red.ColLagos.Item(2).NombreLAGO = "l-otro";
    AbreTabla(TipoTabla::SHVQ);
    anfitrion->respuestas = {false};
    OKButton(f, s);
    EXPECT_EQ(anfitrion->Preguntas(), (std::vector{SePierden("Arroyo_LHASQ.vlm", "l-2")}));
    EXPECT_EQ(Textos(), std::vector<std::string>{});
    EXPECT_TRUE(f.abierta);
}

TEST_F(EditorDeTablas, SuPropiaTablaYLasVaciasNoSePreguntan)
{
    disco.Pon("/proy/Arroyo_RHQ.vlm", "\"*r-1\",1\r\n1,2\r\n\"*r-2\",1\r\n4,5\r\n\"*r-vieja\",0\r\n");
    AbreTabla(TipoTabla::FQ);
    txtNroFilas_Change(f, s, "0");
    cmdAplicar(f, s);
    EXPECT_EQ(anfitrion->sucesos, std::vector<apoyo::Suceso>{});
    EXPECT_EQ(Archivo("_RHQ.vlm"), "\"*r-1\",0\r\n\"*r-2\",1\r\n4,5\r\n");
}

TEST_F(EditorDeTablas, AceptarAplicaRecuerdaGuardarYCierra)
{
    AbreTabla();
    Fila(1, {"9", "1", "900"});
    OKButton(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Red.RepresaH(1, 1), 9.0F);
    EXPECT_EQ(anfitrion->Avisos(),
              (std::vector<Mensaje>{{"Asegurar los cambios producidos pulsando <Guardar> desde el formulario "
                                     "gráfico de de UEHs. De lo "
                                     "contrario se perderá la información cargada.",
                                     "", Icono::Exclamacion}}));
}

TEST_F(EditorDeTablas, AceptarNoCierraSiElDiscoRechazaLaTabla)
{
    AbreTabla();
    Fila(1, {"9", "1", "900"});
    disco.FallaEn(3, model::NumeroFalla::AccesoRuta);  // 1: what the file would lose, 2: the directory
    OKButton(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(Textos(),
              (std::vector<std::string>{"Error Nro. 75Error de acceso a la ruta o al archivo ,Verifique"}));
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
    EXPECT_EQ(T(1, 1), "9");
    OKButton(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_NE(Archivo("_RHAS.vlm"), RHAS);
}

TEST_F(EditorDeTablas, AceptarCierraAunqueLaTablaSeRechace)
{
    AbreTabla();
    Fila(2, {"10", "2", "2000"});
    OKButton(f, s);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(anfitrion->Avisos().size(), 2U);
    EXPECT_EQ(Archivo("_RHAS.vlm"), RHAS);
}

TEST_F(EditorDeTablas, CancelarDejaEscritoLoAplicado)
{
    AbreTabla();
    Fila(1, {"9", "1", "900"});
    cmdAplicar(f, s);
    Fila(1, {"8", "1", "800"});
    CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_NE(Archivo("_RHAS.vlm").find("9,1,900"), std::string::npos);
    EXPECT_EQ(Archivo("_RHAS.vlm").find("8,1,800"), std::string::npos);
}

// --- typing ---

TEST_F(EditorDeTablas, TecladaUnaTablaSeGuarda)
{
    AbreTabla(TipoTabla::FQ);
    txtNroFilas_Change(f, s, "2");
    cmdBorraTablaHQ(f);
    for (const std::string_view celda : {"0", "2,5"}) {
        for (const char c : celda)
            forms::Escribe(f.grilla, s, std::string_view(&c, 1));
        forms::Teclea(f.grilla, forms::Tecla::Enter);
    }
    forms::Mueve(f.grilla, {1, 2});
    forms::Pega(f.grilla, s, "0\n12,75");
    cmdAplicar(f, s);
    EXPECT_TRUE(
        apoyo::MismoTexto("\"*r-1\",2\r\n0,0\r\n2.5,12.75\r\n\"*r-2\",1\r\n4,5\r\n", Archivo("_RHQ.vlm")));
}

// --- plot ---

TEST_F(EditorDeTablas, LasCurvasTienenUnPuntoPorFilaConNumeros)
{
    AbreTabla();
    Fila(2, {"11", "", ""});
    const std::vector<CurvaTabla> curvas = Curvas(f);
    ASSERT_EQ(curvas.size(), 1U);
    EXPECT_EQ(curvas[0], (CurvaTabla{"H [m]", "S [m3]", {{10, 1000}, {12, 3000}}}));
}

TEST_F(EditorDeTablas, LaTablaHQTieneUnaCurvaYLaDelLagoDos)
{
    AbreTabla(TipoTabla::FQ);
    EXPECT_EQ(Curvas(f), (std::vector<CurvaTabla>{{"H [m]", "Q [m3/s]", {{0, 0}, {1.5, 2.25}, {3, 8}}}}));
    AbreTabla(TipoTabla::SHVQ);
    EXPECT_EQ(Curvas(f), (std::vector<CurvaTabla>{{"H [m]", "S [m3]", {{1, 100}, {2, 200}, {3, 300}}},
                                                  {"H [m]", "Q [m3/s]", {{1, 0}, {2, 0.5}, {3, 1}}}}));
}

TEST_F(EditorDeTablas, SinAbrirNoHayCurvas)
{
    EXPECT_TRUE(Curvas(f).empty());
}

}  // namespace
}  // namespace editor
