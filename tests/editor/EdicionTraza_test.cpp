// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "apoyo/Compara.h"
#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"
#include "editor/MenuDibujo.h"

// Drawing a reach, and dividing one.
namespace {

using apoyo::Suceso;
using editor::Boton;
using editor::Punto;
using model::Icono;
using model::Mensaje;

struct EdicionTraza : EditorDePrueba {
    /// Clicks of a reach that runs to the right, x = 10, 20, ...
    void Traza(int clics, float y)
    {
        for (int i = 1; i <= clics; ++i)
            Clic(static_cast<float>(10 * i), y);
    }
    [[nodiscard]] std::size_t NroPeticiones() const
    {
        return anfitrion->Mensajes(Suceso::Clase::Peticion).size();
    }
};

TEST_F(EdicionTraza, ElPrimerClicEmpiezaUnCauceConUnVertice)
{
    PonModo(Boton::Cauce);
    Clic(100, 200);
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    EXPECT_EQ(s.Red.NroVertices(1), 1);
    EXPECT_EQ(Vertice(1, 1), (Punto{100, 200}));
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 0);
    EXPECT_EQ(NroPeticiones(), 0U);
    ASSERT_EQ(Con(editor::Papel::Cauce).size(), 1U);
    EXPECT_EQ(PuntosDe(Con(editor::Papel::Cauce)[0]), (std::vector<Punto>{{100, 200}}));
}

TEST_F(EdicionTraza, CadaClicAgregaUnVerticeYSeDibuja)
{
    PonModo(Boton::Cauce);
    Traza(3, 50);
    EXPECT_EQ(f.trazo.ClicsCauce, 3);
    EXPECT_EQ(s.Red.NroVertices(1), 3);
    ASSERT_EQ(Con(editor::Papel::Cauce).size(), 1U);
    EXPECT_EQ(PuntosDe(Con(editor::Papel::Cauce)[0]), (std::vector<Punto>{{10, 50}, {20, 50}, {30, 50}}));
}

TEST_F(EdicionTraza, EnterLoTerminaConSusValores)
{
    PonModo(Boton::Cauce);
    Traza(3, 50);
    Escribe({"Hondo"});
    Tecla(editor::Tecla::Enter);

    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    model::Cauce esperado;
    esperado.numCauce = 1;
    esperado.numVertices = 3;
    esperado.IndiceParInicial = 1;
    esperado.NombreCauce = "c-Hondo";
    esperado.Cauce_aa = "0";
    esperado.optDirMusk = true;
    EXPECT_EQ(s.Red.Cauces(1), esperado);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    ASSERT_EQ(NroPeticiones(), 1U);
    EXPECT_EQ(anfitrion->Mensajes(Suceso::Clase::Peticion)[0],
              (Mensaje{"Nombre del cauce ?", "Agrega un nuevo Cauce", Icono::Ninguno}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionTraza, ElIndiceDelSegundoSigueALosVerticesDelPrimero)
{
    PonModo(Boton::Cauce);
    Escribe({"a", "b", "c"});
    Traza(3, 50);
    Tecla(editor::Tecla::Enter);
    Traza(5, 150);
    Tecla(editor::Tecla::Enter);
    Traza(2, 250);
    Tecla(editor::Tecla::Enter);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 3);
    EXPECT_EQ(s.Red.Cauces(1).IndiceParInicial, 1);
    EXPECT_EQ(s.Red.Cauces(2).IndiceParInicial, 4);
    EXPECT_EQ(s.Red.Cauces(3).IndiceParInicial, 9);
    EXPECT_EQ(Vertice(1, 3), (Punto{30, 50}));  // the bound has grown and kept them
}

TEST_F(EdicionTraza, EnterConUnSoloClicNoTermina)
{
    PonModo(Boton::Cauce);
    Clic(10, 10);
    Tecla(editor::Tecla::Enter);
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 0);
}

TEST_F(EdicionTraza, ElDobleClicLoTermina)
{
    PonModo(Boton::Cauce);
    Escribe({"a"});
    Clic(10, 10);
    DobleClic(60, 10);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.Cauces(1).numVertices, 2);
    EXPECT_TRUE(f.Abajo(Boton::Selecciona));
}

TEST_F(EdicionTraza, VeinteClicsNoLoTerminan)
{
    PonModo(Boton::Cauce);
    Traza(20, 50);
    EXPECT_EQ(f.trazo.ClicsCauce, 20);
    EXPECT_EQ(s.Red.NroVertices(1), 20);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 0);
}

TEST_F(EdicionTraza, ElClic21LoTerminaYEsSuVertice21)
{
    PonModo(Boton::Cauce);
    Escribe({"largo"});
    Traza(21, 50);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-largo");
    EXPECT_EQ(s.Red.Cauces(1).numVertices, 21);
    EXPECT_EQ(s.Red.NroVertices(1), 21);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    EXPECT_EQ(Vertice(1, 20), (Punto{200, 50}));
    EXPECT_EQ(Vertice(1, 21), (Punto{210, 50}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionTraza, ElClic22EmpiezaOtroCauce)
{
    PonModo(Boton::Cauce);
    Escribe({"largo", "otro"});
    Traza(21, 50);
    Clic(10, 400);
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(s.Red.NroCauces(), 2);
    EXPECT_EQ(Vertice(2, 1), (Punto{10, 400}));
    Clic(20, 400);
    Tecla(editor::Tecla::Enter);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_EQ(s.Red.Cauces(2).IndiceParInicial, 22);
}

TEST_F(EdicionTraza, UnNombreEnUsoSeVuelveAPedir)
{
    red.Cauce("c-a", {{500, 500}, {600, 600}});
    Parte();
    PonModo(Boton::Cauce);
    Escribe({"a", "b"});
    Traza(2, 50);
    Tecla(editor::Tecla::Enter);
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-b");
    EXPECT_EQ(NroPeticiones(), 2U);
}

TEST_F(EdicionTraza, CancelarElNombreDejaElCauceSinNombreYNoGuarda)
{
    PonModo(Boton::Cauce);
    Escribe({""});
    Traza(4, 50);
    Tecla(editor::Tecla::Enter);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "");
    EXPECT_EQ(s.Red.Cauces(1).Cauce_aa, "0");
    EXPECT_TRUE(s.Red.Cauces(1).optDirMusk);
    EXPECT_EQ(s.Red.Cauces(1).numVertices, 4);
    EXPECT_EQ(f.trazo.marcaCauce, "borrarCauce");
    EXPECT_TRUE(Avisos().empty());
    EXPECT_FALSE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
}

TEST_F(EdicionTraza, LaMarcaImpideBorrarCualquierCauceHastaQueSeNombraOtro)
{
    red.Cauce("c-viejo", {{500, 500}, {600, 600}});
    Parte();
    PonModo(Boton::Cauce);
    Escribe({"", "nuevo"});
    Traza(2, 50);
    Tecla(editor::Tecla::Enter);

    PonModo(Boton::Selecciona);
    Clic(600, 600);
    ASSERT_EQ(s.Seleccion.CauceSel, 1);
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);
    EXPECT_TRUE(Avisos().empty());

    PonModo(Boton::Cauce);
    Traza(2, 150);
    Tecla(editor::Tecla::Enter);
    EXPECT_EQ(f.trazo.marcaCauce, "");
    PonModo(Boton::Selecciona);
    Clic(600, 600);
    Tecla(editor::Tecla::Suprimir);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 2);  // the one without a name and the new one
}

TEST_F(EdicionTraza, ElCauceSinNombreNoEsDestinoDeNadieYSeBorra)
{
    red.UEH("u-a", {300, 300});  // its destination is the empty text
    Parte();
    PonModo(Boton::Cauce);
    Escribe({"", "b"});
    Traza(2, 50);
    Tecla(editor::Tecla::Enter);
    Traza(2, 150);
    Tecla(editor::Tecla::Enter);
    PonModo(Boton::Selecciona);
    Clic(10, 50);
    ASSERT_EQ(s.Seleccion.CauceSel, 1);
    Tecla(editor::Tecla::Suprimir);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-b");
}

TEST_F(EdicionTraza, ElCauce71FallaAlPrimerClic)
{
    for (int i = 1; i <= 70; ++i)
        red.Cauce("c-" + std::to_string(i), {{5, static_cast<float>(i)}, {9, static_cast<float>(i)}});
    Parte();
    PonModo(Boton::Cauce);
    Clic(3, 3);
    EXPECT_EQ(s.Red.NroCauces(), 70);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    EXPECT_EQ(Avisos(),
              (Cajas{{"Error Nro. 9 ,El subíndice está fuera del intervaloVerifique", "", Icono::Ninguno}}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

// --- dividing ---

struct EdicionDivide : EditorDePrueba {
    EdicionDivide()
    {
        red.Cauce("c-bajo", {{700, 700}, {600, 600}});
        red.Cauce("c-x", {{600, 600}, {500, 600}, {400, 600}, {300, 600}}, "c-bajo");
        red.Cauce("c-alto", {{300, 600}, {300, 500}}, "c-x");
        red.UEH("u-a", {100, 100}, "c-x", {300, 600});
        s.Red.Cauces(2).LongCauce = 1200;
        Parte();
    }
    void Divide(int cauce, int vertice)
    {
        s.Seleccion.CauceSel = static_cast<std::int16_t>(cauce);
        s.Seleccion.VerticeSel = static_cast<std::int16_t>(vertice);
        editor::mnu_DivideCauce(f, s);
    }
};

TEST_F(EdicionDivide, ReparteLosVerticesYCadaParteTieneElDeCorte)
{
    Divide(2, 3);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 4);
    EXPECT_EQ(s.Red.NroCauces(), 4);
    EXPECT_EQ(s.Red.NroVertices(2), 3);
    EXPECT_EQ(Vertice(2, 1), (Punto{600, 600}));
    EXPECT_EQ(Vertice(2, 3), (Punto{400, 600}));
    EXPECT_EQ(s.Red.NroVertices(4), 2);
    EXPECT_EQ(Vertice(4, 1), (Punto{400, 600}));
    EXPECT_EQ(Vertice(4, 2), (Punto{300, 600}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionDivide, LaNuevaDrenaALaViejaQueConservaSuDestinoYSusDatos)
{
    Divide(2, 2);
    EXPECT_EQ(s.Red.Cauces(4).NombreCauce, "c-x-.-a");
    EXPECT_EQ(s.Red.Cauces(4).Cauce_aa, "c-x-.-b");
    EXPECT_EQ(s.Red.Cauces(4).LongCauce, 0);
    EXPECT_TRUE(s.Red.Cauces(4).optDirMusk);
    EXPECT_EQ(s.Red.Cauces(4).numVertices, 3);
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-x-.-b");
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-bajo");
    EXPECT_EQ(s.Red.Cauces(2).LongCauce, 1200);
    EXPECT_EQ(s.Red.Cauces(2).numVertices, 2);
}

TEST_F(EdicionDivide, LosIndicesSiguenALosVertices)
{
    Divide(2, 2);
    // vertices: 2, 2, 2, 3
    EXPECT_EQ(s.Red.Cauces(1).IndiceParInicial, 1);
    EXPECT_EQ(s.Red.Cauces(2).IndiceParInicial, 3);
    EXPECT_EQ(s.Red.Cauces(3).IndiceParInicial, 5);
    EXPECT_EQ(s.Red.Cauces(4).IndiceParInicial, 7);
}

TEST_F(EdicionDivide, LosTributariosQuedanConElNombreQueYaNoExiste)
{
    Divide(2, 2);
    EXPECT_EQ(s.Red.Cauces(3).Cauce_aa, "c-x");
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-x");
}

TEST_F(EdicionDivide, NoPreguntaNiGuardaYLimpiaLaSeleccion)
{
    s.Seleccion.CauceAnterior = 1;
    Divide(2, 2);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_EQ(s.Seleccion.CauceAnterior, 0);
    EXPECT_EQ(s.Seleccion.VerticeSel, 0);
    EXPECT_FALSE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
}

TEST_F(EdicionDivide, EnElPrimeroElUltimoONingunVerticeNoPasaNada)
{
    const auto antes = s.Red.ColCauces;
    for (const int vertice : {0, 1, 4, 5}) {
        Divide(2, vertice);
        EXPECT_EQ(s.Red.ColCauces, antes) << vertice;
        EXPECT_EQ(s.Red.NroVertices(2), 4) << vertice;
        EXPECT_EQ(s.Red.NroCauces(), 3) << vertice;
        EXPECT_EQ(s.Seleccion.CauceSel, 2) << vertice;
    }
}

TEST_F(EdicionDivide, LosNombresConSufijoNoSeCortan)
{
    s.Red.Cauces(2).NombreCauce = "c-abcdefghijklm";  // 15 letters
    Divide(2, 2);
    EXPECT_EQ(s.Red.Cauces(4).NombreCauce, "c-abcdefghijklm-.-a");
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-abcdefghijklm-.-b");
}

TEST_F(EdicionDivide, UnNombreEnUsoLlevaElSufijoOtraVez)
{
    red.Cauce("c-x-.-a", {{10, 10}, {20, 20}});
    red.Cauce("c-x-.-b", {{10, 30}, {20, 40}});
    red.Cauce("c-x-.-b-.-b", {{10, 50}, {20, 60}});
    Parte();
    Divide(2, 2);
    EXPECT_EQ(s.Red.Cauces(7).NombreCauce, "c-x-.-a-.-a");
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-x-.-b-.-b-.-b");
    EXPECT_EQ(s.Red.Cauces(7).Cauce_aa, "c-x-.-b-.-b-.-b");
}

TEST_F(EdicionDivide, PorElMenuConElVerticeTomadoDeUnClic)
{
    Clic(500, 600);  // selects the reach
    Clic(500, 600);  // grabs its vertex 2
    ASSERT_EQ(s.Seleccion.VerticeSel, 2);
    editor::mnu_DibujoSec_Click(f, s, "mnu_DivideCauce");
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 4);
}

TEST_F(EdicionDivide, DejaCaerElTrazoQueSeDibujaba)
{
    PonModo(Boton::Cauce);
    Clic(10, 10);
    Clic(20, 20);
    Divide(2, 2);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 4);
    EXPECT_EQ(Vertice(4, 1), (Punto{500, 600}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EdicionDivide, NombrarLasPartesQuitaLaMarcaDelCancelado)
{
    f.trazo.marcaCauce = "borrarCauce";
    Divide(2, 2);
    EXPECT_EQ(f.trazo.marcaCauce, "");
}

TEST_F(EdicionDivide, Con70CaucesEsUnaFallaYNadaCambia)
{
    for (int i = 4; i <= 70; ++i)
        red.Cauce("c-" + std::to_string(i), {{5, static_cast<float>(i)}, {9, static_cast<float>(i)}});
    Parte();
    s.Seleccion.CauceSel = 2;
    s.Seleccion.VerticeSel = 2;
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { editor::mnu_DivideCauce(f, s); }), 9);
    EXPECT_EQ(s.Red.Cauces(2).NombreCauce, "c-x");
    EXPECT_EQ(s.Red.NroVertices(2), 4);
}

TEST_F(EdicionDivide, LaRedDivididaSeGuardaYSeLeeIgual)
{
    Divide(2, 3);
    Guarda();
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 4);
    EXPECT_EQ(s.Red.Cauces(4).NombreCauce, "c-x-.-a");
    EXPECT_EQ(Vertice(4, 1), (Punto{400, 600}));
    EXPECT_EQ(Vertice(3, 2), (Punto{300, 500}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

}  // namespace
