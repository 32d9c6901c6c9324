// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "apoyo/Compara.h"
#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"

namespace {

using apoyo::Suceso;
using editor::Boton;
using model::Icono;
using model::Mensaje;

const Mensaje Guardado = {
    "Los datos de componentes de Unidades Hidrológicas del proyecto se han guardado correctamente en el "
    "archivo /proy/Arroyo_VerCau.vlm",
    "", Icono::Ninguno};
const Mensaje FueraDelArreglo = {"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "",
                                 Icono::Ninguno};

struct EdicionColoca : EditorDePrueba {
    /// What the user was asked to type, text and title.
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> Peticiones() const
    {
        std::vector<std::pair<std::string, std::string>> r;
        for (const Mensaje& m : anfitrion->Mensajes(Suceso::Clase::Peticion))
            r.emplace_back(m.texto, m.titulo);
        return r;
    }
};

using Pares = std::vector<std::pair<std::string, std::string>>;

TEST_F(EdicionColoca, UnaUEHNaceConSusValores)
{
    PonModo(Boton::UEH);
    Escribe({"alta"});
    Clic(120.5F, 80);

    ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 1);
    model::UEH esperada;
    esperada.NombreUEH = "u-alta";
    esperada.numUEH = 1;
    esperada.Metodo = "Directo";
    esperada.IconoUEHx = 120.5F;
    esperada.IconoUEHy = 80;
    EXPECT_EQ(s.Red.UEHs(1), esperada);
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_EQ(Peticiones(), (Pares{{"Nombre de la UEH ?", "Agregar una UEH"}}));
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(Con(editor::Papel::Icono).size(), 1U);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionColoca, UnaRepresaNaceConPiscinaNiveladaYTabla)
{
    PonModo(Boton::Represa);
    Escribe({"Dique"});
    Clic(10, 20);

    ASSERT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    model::Represa esperada;
    esperada.NombreRepresa = "r-Dique";
    esperada.numRepresa = 1;
    esperada.IconoRepresaX = 10;
    esperada.IconoRepresaY = 20;
    esperada.Metodo = "Piscina Nivelada";
    esperada.optTabla = true;
    EXPECT_EQ(s.Red.Represas(1), esperada);
    EXPECT_EQ(s.Red.NroRepresas(), 1);
    EXPECT_EQ(Peticiones(), (Pares{{"Nombre de la Represa ?", "Agregar una Represa"}}));
}

TEST_F(EdicionColoca, UnLagoNaceConMetodoDirecto)
{
    PonModo(Boton::LAGO);
    Escribe({"Azul"});
    Clic(30, 40);

    ASSERT_EQ(s.Red.ColLagos.Cuenta(), 1);
    model::Lago esperado;
    esperado.NombreLAGO = "l-Azul";
    esperado.numLAGO = 1;
    esperado.IconoLAGOx = 30;
    esperado.IconoLAGOy = 40;
    esperado.Metodo = "Directo";
    EXPECT_EQ(s.Red.Lagos(1), esperado);
    EXPECT_EQ(s.Red.NroLagos(), 1);
    EXPECT_EQ(Peticiones(),
              (Pares{{"Nombre de la depresión lagunar/lago/mallin ?", "Agregar una depresión lagunar"}}));
}

TEST_F(EdicionColoca, CadaClicColocaOtraYLasNumeraEnOrden)
{
    PonModo(Boton::UEH);
    Escribe({"a", "b", "c"});
    Clic(10, 10);
    Clic(20, 10);
    Clic(30, 10);
    ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 3);
    EXPECT_EQ(s.Red.UEHs(3).NombreUEH, "u-c");
    EXPECT_EQ(s.Red.UEHs(3).numUEH, 3);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionColoca, UnNombreDe13LetrasCabeEnteroYElDe14PierdeLaUltima)
{
    PonModo(Boton::UEH);
    Escribe({"abcdefghijklm", "nopqrstuvwxyzA"});
    Clic(10, 10);
    Clic(20, 10);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-abcdefghijklm");
    EXPECT_EQ(s.Red.UEHs(2).NombreUEH, "u-nopqrstuvwxyz");
}

TEST_F(EdicionColoca, ElCorteCuentaLetrasYNoBytes)
{
    PonModo(Boton::LAGO);
    Escribe({"ñññññññññññññá"});
    Clic(10, 10);
    EXPECT_EQ(s.Red.Lagos(1).NombreLAGO, "l-ñññññññññññññ");
}

TEST_F(EdicionColoca, DosNombresLargosQueDifierenAlFinalChocanYSeVuelveAPedir)
{
    PonModo(Boton::UEH);
    Escribe({"Cuenca alta este", "Cuenca alta este 2", "otra"});
    Clic(10, 10);
    Clic(20, 10);
    ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 2);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-Cuenca alta e");
    EXPECT_EQ(s.Red.UEHs(2).NombreUEH, "u-otra");
    // The box that asks again says why.
    EXPECT_EQ(
        Peticiones(),
        (Pares{{"Nombre de la UEH ?", "Agregar una UEH"},
               {"Nombre de la UEH ?", "Agregar una UEH"},
               {"Nombre de la UEH ?\nEl nombre «u-Cuenca alta e» ya está en uso.", "Agregar una UEH"}}));
}

TEST_F(EdicionColoca, ElNombreDeOtraClaseNoChoca)
{
    red.Represa("u-x", {500, 500});  // as a file may hold it
    Parte();
    PonModo(Boton::UEH);
    Escribe({"x"});
    Clic(10, 10);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-x");
    EXPECT_EQ(Peticiones().size(), 1U);
}

TEST_F(EdicionColoca, CancelarElNombreDeUnaUEHLaQuitaYGuardaLaRed)
{
    red.UEH("u-a", {300, 300});
    Parte();
    PonModo(Boton::UEH);
    Escribe({""});
    Clic(10, 10);

    ASSERT_EQ(s.Red.ColUEHs.Cuenta(), 1);
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-a");
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(Avisos(), Cajas{Guardado});
    EXPECT_NE(disco.Bytes("/proy/Arroyo_UEHs.vlm").find("\"u-a\""), std::string::npos);
    EXPECT_EQ(disco.Bytes("/proy/Arroyo_UEHs.vlm").find("borrar"), std::string::npos);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionColoca, CancelarLaUnicaUEHBorraLosArchivosSinMensaje)
{
    PonModo(Boton::UEH);
    Escribe({""});
    Clic(10, 10);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 0);
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_FALSE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
}

TEST_F(EdicionColoca, CancelarElNombreDeUnaRepresaSigueLaReglaDeSuBorrado)
{
    red.Represa("r-a", {300, 300});
    Parte();
    PonModo(Boton::Represa);
    Escribe({""});
    Clic(10, 10);

    ASSERT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.Represas(1).NombreRepresa, "r-a");
    EXPECT_EQ(Avisos(),
              (Cajas{Guardado,
                     {"Se recomienda verificar los parámestros de carga del formulario Represas y sus Tablas",
                      "", Icono::Exclamacion}}));
    EXPECT_EQ(f.pedidos, std::vector{editor::Pedido::FormaRepresa});
}

TEST_F(EdicionColoca, CancelarElNombreDeUnLagoLoQuita)
{
    red.Lago("l-a", {300, 300});
    Parte();
    PonModo(Boton::LAGO);
    Escribe({""});
    Clic(10, 10);
    ASSERT_EQ(s.Red.ColLagos.Cuenta(), 1);
    EXPECT_EQ(s.Red.Lagos(1).NombreLAGO, "l-a");
    EXPECT_EQ(Avisos(), Cajas{Guardado});
}

TEST_F(EdicionColoca, EnLaPosicionDeOtraDeSuClaseAvisaYNoPideNombre)
{
    red.UEH("u-a", {10, 20});
    red.Represa("r-a", {10, 20});
    red.Lago("l-a", {10, 20});
    Parte();
    PonModo(Boton::UEH);
    Clic(10, 20);
    PonModo(Boton::Represa);
    Clic(10, 20);
    PonModo(Boton::LAGO);
    Clic(10, 20);

    EXPECT_EQ(Avisos(),
              (Cajas{{"Ya existe la UEH <u-a> en esa posición. Cambie la posición con el mouse", "",
                      Icono::Exclamacion},
                     Guardado,
                     {"Ya existe la Represa <r-a> en esa posición. Cambie la posición con el mouse", "",
                      Icono::Exclamacion},
                     Guardado,
                     {"Se recomienda verificar los parámestros de carga del formulario Represas y sus Tablas",
                      "", Icono::Exclamacion},
                     {"Ya existe la Laguna <l-a> en esa posición. Cambie la posición con el mouse", "",
                      Icono::Exclamacion},
                     Guardado}));
    EXPECT_TRUE(Peticiones().empty());
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 1);
}

TEST_F(EdicionColoca, LaPosicionDeOtraClaseYLaVecinaEstanLibres)
{
    red.UEH("u-a", {10, 20});
    Parte();
    PonModo(Boton::Represa);
    Escribe({"x"});
    Clic(10, 20);
    PonModo(Boton::UEH);
    Escribe({"b"});
    Clic(10, 20.001F);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 2);
}

TEST_F(EdicionColoca, LaUEH71EsUnaFallaDeSubindiceYNoQuedaNada)
{
    for (int i = 1; i <= 70; ++i)
        red.UEH("u-" + std::to_string(i), {static_cast<float>(10 * i), 5});
    Parte();
    const auto antes = s.Red.ColUEHs;
    PonModo(Boton::UEH);
    Escribe({"x"});
    Clic(3, 3);
    EXPECT_EQ(s.Red.ColUEHs, antes);
    EXPECT_EQ(s.Red.NroUEHs(), 70);
    EXPECT_EQ(Avisos(), Cajas{FueraDelArreglo});
    EXPECT_TRUE(Peticiones().empty());
}

TEST_F(EdicionColoca, LaRepresa20EntraYLa21No)
{
    for (int i = 1; i <= 19; ++i)
        red.Represa("r-" + std::to_string(i), {static_cast<float>(10 * i), 5});
    Parte();
    PonModo(Boton::Represa);
    Escribe({"veinte", "x"});
    Clic(3, 3);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 20);
    EXPECT_TRUE(Avisos().empty());
    Clic(6, 6);
    EXPECT_EQ(s.Red.ColRepresas.Cuenta(), 20);
    EXPECT_EQ(Avisos(), Cajas{FueraDelArreglo});
}

TEST_F(EdicionColoca, ElLago71NoEntra)
{
    for (int i = 1; i <= 70; ++i)
        red.Lago("l-" + std::to_string(i), {static_cast<float>(10 * i), 5});
    Parte();
    PonModo(Boton::LAGO);
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { editor::Coloca(f, s, {3, 3}); }), 9);
    EXPECT_EQ(s.Red.ColLagos.Cuenta(), 70);
    EXPECT_EQ(s.Red.NroLagos(), 70);
}

}  // namespace
