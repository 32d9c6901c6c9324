// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"

namespace {

using editor::Boton;
using editor::Punto;
using model::Icono;
using model::Mensaje;

const Mensaje Guardado = {
    "Los datos de componentes de Unidades Hidrológicas del proyecto se han guardado correctamente en el "
    "archivo /proy/Arroyo_VerCau.vlm",
    "", Icono::Ninguno};
const Mensaje VerifiqueRepresas = {
    "Se recomienda verificar los parámestros de carga del formulario Represas y sus Tablas", "",
    Icono::Exclamacion};

struct EdicionBorra : EditorDePrueba {
    EdicionBorra()
    {
        red.Cauce("c-1", {{300, 300}, {200, 200}});
        red.Cauce("c-2", {{700, 700}, {650, 650}, {600, 600}});
        red.Cauce("c-3", {{10, 20}, {30, 40}, {50, 60}, {70, 80}}, "c-1");
        red.UEH("u-1", {400, 100});
        red.UEH("u-2", {420, 100});
        red.UEH("u-3", {440, 100});
        red.Represa("r-1", {500, 100});
        red.Represa("r-2", {520, 100});
        red.Lago("l-1", {600, 100});
        red.Lago("l-2", {640, 100});
        s.Red.Cauces(3).LongCauce = 321;
        s.Red.UEHs(2).Area = 77;
        s.Red.Represas(2).HInicialEmb = 5;
        s.Red.Lagos(2).Referencia = "nota";
        Parte();
    }
    void BorraCauce(int n)
    {
        s.Seleccion.CauceSel = static_cast<std::int16_t>(n);
        Tecla(editor::Tecla::Suprimir);
    }
    [[nodiscard]] bool HayArchivo() const { return disco.Esta("/proy/Arroyo_UEHs.vlm"); }
};

TEST_F(EdicionBorra, ElCauceDelMedioYLosDeArribaBajanUnLugarConSusVertices)
{
    BorraCauce(2);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(s.Red.NroCauces(), 2);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-1");
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-3");
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-1");
    EXPECT_EQ(s.Red.Cauces(2).LongCauce, 321);
    EXPECT_TRUE(s.Red.Cauces(2).optDirMusk);
    EXPECT_EQ(s.Red.Cauces(2).numCauce, 2);
    EXPECT_EQ(s.Red.Cauces(2).IndiceParInicial, 3);
    EXPECT_EQ(s.Red.NroVertices(2), 4);
    EXPECT_EQ(Vertice(2, 4), (Punto{70, 80}));
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_EQ(Avisos(), Cajas{Guardado});
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionBorra, LoGuardadoEsLoQueQuedaEnMemoria)
{
    BorraCauce(2);
    // project, count, and the two reaches, each place with its own number
    const std::string archivo = disco.Bytes("/proy/Arroyo_UEHs.vlm");
    EXPECT_TRUE(archivo.starts_with("\"Arroyo\"\r\n2\r\n1\r\n\"c-1\"\r\n2\r\n1\r\n"));
    EXPECT_NE(archivo.find("2\r\n\"c-3\"\r\n4\r\n3\r\n\"c-1\"\r\n"), std::string::npos);
    const auto cauces = s.Red.ColCauces;
    model::LeeUEHs(s);
    EXPECT_EQ(s.Red.ColCauces, cauces);
    EXPECT_EQ(Vertice(2, 3), (Punto{50, 60}));
    EXPECT_FALSE(f.cambiada);
}

TEST_F(EdicionBorra, ElUltimoCauceNoMueveALosDemas)
{
    BorraCauce(3);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-2");
    EXPECT_EQ(Vertice(2, 3), (Punto{600, 600}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionBorra, UnCauceConTributarioSeRechazaYNadaCambia)
{
    const Mensaje rechazo = {
        "Para eliminar el Cauce <c-1> debe desacoplarse primero todo componente "
        "tributario (UEH o Cauce)",
        "Desacoplar el Cauce a eliminar", Icono::Exclamacion};
    const auto sueltos = [&] {
        s.Red.Cauces(3).Cauce_aa = "0";
        s.Red.UEHs(1).Cauce_aa = s.Red.Represas(1).Cauce_aa = s.Red.Lagos(1).Cauce_aa = "";
    };
    for (int caso = 0; caso < 4; ++caso) {
        sueltos();
        (caso == 0   ? s.Red.UEHs(1).Cauce_aa
         : caso == 1 ? s.Red.Cauces(3).Cauce_aa
         : caso == 2 ? s.Red.Lagos(1).Cauce_aa
                     : s.Red.Represas(1).Cauce_aa) = "c-1";
        const auto antes = s.Red.ColCauces;
        anfitrion->sucesos.clear();
        BorraCauce(1);
        EXPECT_EQ(Avisos(), Cajas{rechazo}) << caso;
        EXPECT_EQ(s.Red.ColCauces, antes) << caso;
        EXPECT_EQ(s.Seleccion.CauceSel, 1) << caso;
        EXPECT_FALSE(HayArchivo()) << caso;
    }
    sueltos();
    BorraCauce(1);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);
}

TEST_F(EdicionBorra, QuienDrenabaAOtroNoCambia)
{
    s.Red.UEHs(1).Cauce_aa = "c-3";
    s.Red.UEHs(1).XCauce = 70;
    BorraCauce(2);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-3");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 70);
}

TEST_F(EdicionBorra, BorrarUnCauceConservaElTrazoSinTerminar)
{
    PonModo(Boton::Cauce);
    Clic(5, 5);
    Clic(6, 6);
    BorraCauce(2);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_EQ(s.Red.NroCauces(), 3);
    EXPECT_EQ(Vertice(3, 2), (editor::Punto{6, 6}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionBorra, UnaUEHSeQuitaYLasDemasSeNumeranDeNuevo)
{
    s.Seleccion.UEHSel = 1;
    Tecla(editor::Tecla::Suprimir);
    ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_EQ(s.Red.NroUEHs(), 2);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-2");
    EXPECT_EQ(s.Red.UEHs(1).numUEH, 1);
    EXPECT_EQ(s.Red.UEHs(1).Area, 77);
    EXPECT_EQ(s.Red.UEHs(2).numUEH, 2);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(Avisos(), Cajas{Guardado});
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionBorra, UnaUEHAcopladaSeBorraIgual)
{
    s.Red.UEHs(2).Cauce_aa = "c-1";
    s.Seleccion.UEHSel = 2;
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
}

TEST_F(EdicionBorra, UnaRepresaSeQuitaYPideVerificarLasQueQuedan)
{
    s.Seleccion.RepresaSel = 1;
    Tecla(editor::Tecla::Suprimir);
    ASSERT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.Represas(1).NombreRepresa, "r-2");
    EXPECT_EQ(s.Red.Represas(1).numRepresa, 1);
    EXPECT_EQ(s.Red.Represas(1).HInicialEmb, 5);
    EXPECT_EQ(Avisos(), (Cajas{Guardado, VerifiqueRepresas}));
    EXPECT_EQ(f.pedidos, std::vector{editor::Pedido::FormaRepresa});

    anfitrion->sucesos.clear();
    f.pedidos.clear();
    s.Seleccion.RepresaSel = 1;
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.NroRepresas(), 0);
    EXPECT_EQ(Avisos(), Cajas{Guardado});
    EXPECT_TRUE(f.pedidos.empty());
}

TEST_F(EdicionBorra, UnaRepresaConTributarioSeRechaza)
{
    const Mensaje rechazo = {
        "Para eliminar el Represa <r-2> debe desacoplarse primero todo componente "
        "tributario (UEH o Cauce)",
        "Desacoplar el Represa a eliminar", Icono::Exclamacion};
    s.Red.UEHs(1).Cauce_aa = "r-2";
    s.Seleccion.RepresaSel = 2;
    Tecla(editor::Tecla::Suprimir);
    s.Red.UEHs(1).Cauce_aa = "";
    s.Red.Cauces(2).Cauce_aa = "r-2";
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(Avisos(), (Cajas{rechazo, rechazo}));
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 2);
    EXPECT_EQ(s.Seleccion.RepresaSel, 2);
    EXPECT_FALSE(HayArchivo());
    EXPECT_TRUE(f.pedidos.empty());
}

TEST_F(EdicionBorra, UnLagoSeQuitaSinMasAviso)
{
    s.Seleccion.LagoSel = 1;
    Tecla(editor::Tecla::Suprimir);
    ASSERT_EQ(s.Red.ColLagos.Cuenta(), 1);
    EXPECT_EQ(s.Red.Lagos(1).NombreLAGO, "l-2");
    EXPECT_EQ(s.Red.Lagos(1).Referencia, "nota");
    EXPECT_EQ(s.Red.Lagos(1).numLAGO, 1);
    EXPECT_EQ(Avisos(), Cajas{Guardado});
    EXPECT_TRUE(f.pedidos.empty());
}

TEST_F(EdicionBorra, UnLagoConTributarioSeRechaza)
{
    const Mensaje rechazo = {
        "Para eliminar el Lago <l-1> debe desacoplarse primero todo componente "
        "tributario (UEH o Cauce)",
        "Desacoplar el Lago a eliminar", Icono::Exclamacion};
    s.Red.Cauces(3).Cauce_aa = "l-1";
    s.Seleccion.LagoSel = 1;
    Tecla(editor::Tecla::Suprimir);
    s.Red.Cauces(3).Cauce_aa = "0";
    s.Red.UEHs(3).Cauce_aa = "l-1";
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(Avisos(), (Cajas{rechazo, rechazo}));
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 2);
}

TEST_F(EdicionBorra, UnEmbalseQueDrenaAOtroNoImpideBorrarlo)
{
    s.Red.Represas(1).Cauce_aa = "l-1";
    s.Red.Lagos(2).Cauce_aa = "r-2";
    s.Seleccion.LagoSel = 1;
    Tecla(editor::Tecla::Suprimir);
    s.Seleccion.RepresaSel = 2;
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "l-1");
}

TEST_F(EdicionBorra, LosElegidosALaVezSeBorranTodosCadaUnoPorSuRegla)
{
    s.Seleccion.CauceSel = 2;
    s.Seleccion.UEHSel = 3;
    s.Seleccion.RepresaSel = 2;
    s.Seleccion.LagoSel = 2;
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 1);
    EXPECT_EQ(Avisos(), (Cajas{Guardado, Guardado, Guardado, VerifiqueRepresas, Guardado}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionBorra, ElRechazoDeUnoNoDetieneALosSiguientes)
{
    s.Seleccion.CauceSel = 1;  // c-3 drains into it
    s.Seleccion.UEHSel = 3;
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 3);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
}

TEST_F(EdicionBorra, SinNadaElegidoSuprimirNoHaceNada)
{
    Tecla(editor::Tecla::Suprimir);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_FALSE(HayArchivo());
}

TEST_F(EdicionBorra, SuprimirLevantaElBotonSUEH)
{
    f.Pon(Boton::SUEH, true);
    Tecla(editor::Tecla::Suprimir);
    EXPECT_FALSE(f.Abajo(Boton::SUEH));
}

TEST_F(EdicionBorra, ElUltimoComponenteSeLlevaLosArchivosSinMensaje)
{
    s.Red.ColCauces.Vacia();
    s.Red.ColUEHs.Vacia();
    s.Red.ColRepresas.Vacia();
    s.Red.ColLagos.Quita(2);
    Guarda();
    ASSERT_TRUE(HayArchivo());
    s.Seleccion.LagoSel = 1;
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.NroLagos(), 0);
    EXPECT_FALSE(HayArchivo());
    EXPECT_FALSE(disco.Esta("/proy/Arroyo_VerCau.vlm"));
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(EdicionBorra, BorrarTodoPreguntaVaciaYQuitaSoloLaTablaRHQ)
{
    Guarda();
    for (const std::string tabla : {"_RHQ.vlm", "_RHAS.vlm", "_LHASQ.vlm"})
        disco.Pon("/proy/Arroyo" + tabla, "x");
    Responde({true});
    PonModo(Boton::BorraTodo);
    EXPECT_EQ(
        Preguntas(),
        (Cajas{{"¿Desea borrar todos los componentes de UEHs ?:", "ADVERTENCIA ! ", Icono::Exclamacion}}));
    EXPECT_EQ(s.Red.ColCauces.Cuenta() + s.Red.ColUEHs.Cuenta() + s.Red.ColRepresas.Cuenta() +
                  s.Red.ColLagos.Cuenta(),
              0);
    EXPECT_EQ(s.Red.NroCauces() + s.Red.NroUEHs() + s.Red.NroRepresas() + s.Red.NroLagos(), 0);
    EXPECT_FALSE(disco.Esta("/proy/Arroyo_RHQ.vlm"));
    EXPECT_TRUE(disco.Esta("/proy/Arroyo_RHAS.vlm"));
    EXPECT_TRUE(disco.Esta("/proy/Arroyo_LHASQ.vlm"));
    EXPECT_TRUE(HayArchivo());  // until the next save
    EXPECT_TRUE(Avisos().empty());
    EXPECT_TRUE(f.cambiada);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});

    PonModo(Boton::GuardaUEHs);
    EXPECT_FALSE(HayArchivo());
}

TEST_F(EdicionBorra, BorrarTodoConNoNoTocaNada)
{
    disco.Pon("/proy/Arroyo_RHQ.vlm", "x");
    Responde({false});
    PonModo(Boton::BorraTodo);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 3);
    EXPECT_EQ(s.Red.NroUEHs(), 3);
    EXPECT_TRUE(disco.Esta("/proy/Arroyo_RHQ.vlm"));
}

TEST_F(EdicionBorra, BorrarTodoSinTablaRHQNoAvisa)
{
    Responde({true});
    PonModo(Boton::BorraTodo);
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(EdicionBorra, BorrarTodoConLaTablaProtegidaDaLaFallaYReponeLaRed)
{
    disco.Pon("/proy/Arroyo_RHQ.vlm", "x");
    disco.Protege("/proy/Arroyo_RHQ.vlm");
    Responde({true});
    PonModo(Boton::BorraTodo);
    EXPECT_EQ(
        Avisos(),
        (Cajas{{"Error Nro. 75 ,Error de acceso a la ruta o al archivoVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 3);
    EXPECT_EQ(s.Red.NroCauces(), 3);
}

TEST_F(EdicionBorra, BorrarTodoDejaCaerElTrazo)
{
    PonModo(Boton::Cauce);
    Clic(5, 5);
    Responde({true});
    PonModo(Boton::BorraTodo);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    EXPECT_EQ(s.Red.NroCauces(), 0);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});

    PonModo(Boton::Cauce);
    Clic(8, 9);
    EXPECT_EQ(s.Red.NroVertices(1), 1);
    EXPECT_EQ(Vertice(1, 1), (Punto{8, 9}));
}

}  // namespace
