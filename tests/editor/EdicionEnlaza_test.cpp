// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string_view>

#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"
#include "editor/MenuDibujo.h"

// Links by the pop-up menu.
namespace {

using editor::Punto;
using model::Icono;
using model::Mensaje;

struct EdicionEnlaza : EditorDePrueba {
    EdicionEnlaza()
    {
        red.Cauce("c-a", {{300, 300}, {250, 250}, {200, 200}});
        red.Cauce("c-b", {{700, 700}, {600, 600}});
        red.Cauce("c-c", {{700, 300}, {600, 300}});
        red.UEH("u-a", {400, 100});
        red.Represa("r-a", {500, 100});
        red.Lago("l-a", {600, 100});
        Parte();
    }
    void Menu(std::string_view entrada) { editor::mnu_DibujoSec_Click(f, s, entrada); }
    [[nodiscard]] bool SinSeleccion() const
    {
        return s.Seleccion.CauceSel == 0 && s.Seleccion.CauceAnterior == 0 && s.Seleccion.UEHSel == 0 &&
               s.Seleccion.RepresaSel == 0 && s.Seleccion.LagoSel == 0;
    }
    void Enlaza(int anterior, int elegido)
    {
        s.Seleccion.CauceAnterior = static_cast<std::int16_t>(anterior);
        s.Seleccion.CauceSel = static_cast<std::int16_t>(elegido);
        Menu("mnu_acoplaCauce1aCauce2");
    }
};

TEST_F(EdicionEnlaza, UEHACauceConDosClicsYElMenu)
{
    Clic(200, 200);
    Clic(405, 105);
    Responde({true});
    Menu("mnu_acoplaUEHaCauce");
    EXPECT_EQ(
        Preguntas(),
        (Cajas{{"Confirma el acople de la UEH <u-a> con el cauce <c-a>", "Consulta", Icono::Exclamacion}}));
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-a");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 200);
    EXPECT_EQ(s.Red.UEHs(1).YCauce, 200);
    EXPECT_TRUE(SinSeleccion());
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionEnlaza, RepresaYLagoACauce)
{
    s.Seleccion.CauceSel = s.Seleccion.RepresaSel = 1;
    Menu("mnu_acoplaRepresaaCauce");
    s.Seleccion.CauceSel = s.Seleccion.LagoSel = 1;
    Menu("mnu_acoplaLAGOaCauce");
    EXPECT_EQ(
        Preguntas(),
        (Cajas{{"Confirma el acople de la Represa <r-a> con el cauce <c-a>", "Consulta", Icono::Exclamacion},
               {"Confirma el acople de la LAGO <l-a> con el cauce <c-a>", "Consulta", Icono::Exclamacion}}));
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "c-a");
    EXPECT_EQ(s.Red.Represas(1).XCauce, 200);
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "c-a");  // the menu doesn't look for another link
    EXPECT_EQ(s.Red.Lagos(1).YCauce, 200);
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaza, ConNoNadaCambia)
{
    anfitrion->respuestaDeSiempre = false;
    s.Seleccion.CauceSel = s.Seleccion.UEHSel = 1;
    Menu("mnu_acoplaUEHaCauce");
    s.Seleccion.CauceSel = s.Seleccion.RepresaSel = 1;
    Menu("mnu_acoplaRepresaaCauce");
    s.Seleccion.CauceSel = s.Seleccion.LagoSel = 1;
    Menu("mnu_acoplaLAGOaCauce");
    EXPECT_EQ(Preguntas().size(), 3U);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "");
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "");
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 0);
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaza, YaAcopladosAvisaYNoPregunta)
{
    s.Red.UEHs(1).Cauce_aa = s.Red.Represas(1).Cauce_aa = s.Red.Lagos(1).Cauce_aa = "c-a";
    s.Seleccion.CauceSel = s.Seleccion.UEHSel = 1;
    Menu("mnu_acoplaUEHaCauce");
    s.Seleccion.CauceSel = s.Seleccion.RepresaSel = 1;
    Menu("mnu_acoplaRepresaaCauce");
    s.Seleccion.CauceSel = s.Seleccion.LagoSel = 1;
    Menu("mnu_acoplaLAGOaCauce");
    EXPECT_TRUE(Preguntas().empty());
    EXPECT_EQ(Avisos(), (Cajas{{"La UEH <u-a> ya está acoplada al cauce <c-a", "", Icono::Exclamacion},
                               {"La Represa <r-a> ya está acoplada al cauce <c-a", "", Icono::Exclamacion},
                               {"La LAGO <l-a> ya está acoplada al cauce <c-a", "", Icono::Exclamacion}}));
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 0);
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaza, UEHARepresaYALagoSinPregunta)
{
    s.Seleccion.UEHSel = s.Seleccion.RepresaSel = 1;
    Menu("mnu_acoplaUEHaRepresa");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "r-a");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 500);
    EXPECT_EQ(s.Red.UEHs(1).YCauce, 100);
    EXPECT_TRUE(SinSeleccion());
    s.Seleccion.UEHSel = s.Seleccion.LagoSel = 1;
    Menu("mnu_acoplaUEHaLago");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "l-a");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 600);
    EXPECT_TRUE(SinSeleccion());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EdicionEnlaza, CauceARepresaYALagoLlevaSuBocaAlIcono)
{
    s.Seleccion.CauceSel = s.Seleccion.RepresaSel = 1;
    Menu("mnu_acoplaCauceaRepresa");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "r-a");
    EXPECT_EQ(Vertice(1, 1), (Punto{500, 100}));
    EXPECT_EQ(Vertice(1, 2), (Punto{250, 250}));
    s.Seleccion.CauceSel = s.Seleccion.LagoSel = 1;
    Menu("mnu_acoplaCauceaLago");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "l-a");
    EXPECT_EQ(Vertice(1, 1), (Punto{600, 100}));
    EXPECT_TRUE(SinSeleccion());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EdicionEnlaza, ElCauceAnteriorDrenaAlElegidoYSuBocaVaASuCabecera)
{
    Clic(200, 200);
    Clic(600, 600);
    Menu("mnu_acoplaCauce1aCauce2");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-b");
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "0");
    EXPECT_EQ(Vertice(1, 1), (Punto{600, 600}));
    EXPECT_TRUE(SinSeleccion());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EdicionEnlaza, AABYLuegoBAASeRechaza)
{
    Enlaza(1, 2);
    Enlaza(2, 1);
    EXPECT_EQ(Avisos(), (Cajas{{"No se puede acoplar un componente a su tributario; quite primero el acople",
                                "Operación Inconsistente", Icono::Exclamacion}}));
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-b");
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "0");
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaza, AABYBACYCAANoSeRechaza)
{
    Enlaza(1, 2);
    Enlaza(2, 3);
    Enlaza(3, 1);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "c-b");
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-c");
    EXPECT_EQ(s.Red.Cauces(3).Cauce_aa, "c-a");
}

TEST_F(EdicionEnlaza, DesacoplarPoneDestino0YPuntoDeDrenaje0)
{
    s.Red.UEHs(1).Cauce_aa = s.Red.Represas(1).Cauce_aa = s.Red.Lagos(1).Cauce_aa = "c-a";
    s.Red.UEHs(1).XCauce = s.Red.Represas(1).YCauce = s.Red.Lagos(1).XCauce = 200;
    s.Seleccion.UEHSel = 1;
    Menu("mnu_desacoplaUEH");
    s.Seleccion.RepresaSel = 1;
    Menu("mnu_desacoplaRepresa");
    s.Seleccion.LagoSel = 1;
    Menu("mnu_desacoplaLAGO");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "0");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 0);
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "0");
    EXPECT_EQ(s.Red.Represas(1).YCauce, 0);
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "0");
    EXPECT_EQ(s.Red.Lagos(1).XCauce, 0);
    EXPECT_TRUE(SinSeleccion());
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EdicionEnlaza, DesacoplarUnCauceDejaSusVertices)
{
    Enlaza(1, 2);
    s.Seleccion.CauceSel = 1;
    Menu("mnu_desacoplaCauce");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "0");
    EXPECT_EQ(Vertice(1, 1), (Punto{600, 600}));
    EXPECT_TRUE(SinSeleccion());
}

}  // namespace
