// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "editor/Edicion.h"
#include "editor/EditorDePrueba.h"
#include "editor/EnMano.h"

// Dragging vertices, icons and links. The icons' size s is 10, ToleranciaVertice 16.
namespace {

using editor::Punto;
using model::Icono;
using model::Mensaje;

Mensaje Consulta(const std::string& texto)
{
    return {texto, "Consulta", Icono::Exclamacion};
}

struct EdicionArrastra : EditorDePrueba {
    [[nodiscard]] bool SinSeleccion() const
    {
        return s.Seleccion.CauceSel == 0 && s.Seleccion.UEHSel == 0 && s.Seleccion.RepresaSel == 0 &&
               s.Seleccion.LagoSel == 0 && s.Seleccion.VerticeSel == 0;
    }
    [[nodiscard]] std::vector<Punto> Banda() const
    {
        const auto bandas = Con(editor::Papel::Banda);
        return bandas.empty() ? std::vector<Punto>{} : PuntosDe(bandas[0]);
    }
};

// --- vertices ---

TEST_F(EdicionArrastra, UnVerticeQuedaDondeSeSueltaConBandaALosVecinos)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    Parte();
    Clic(200, 200);
    Aprieta(205, 200);
    Mueve(400, 410);
    EXPECT_EQ(Banda(), (std::vector<Punto>{{100, 100}, {400, 410}, {300, 100}}));
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    Suelta(420, 430);
    EXPECT_EQ(Vertice(1, 2), (Punto{420, 430}));
    EXPECT_TRUE(Banda().empty());
    EXPECT_EQ(s.Seleccion.VerticeSel, 2);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EdicionArrastra, LosVerticesExtremosTienenUnSoloVecino)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    Parte();
    s.Seleccion.CauceSel = 1;
    Aprieta(100, 100);
    Mueve(50, 60);
    EXPECT_EQ(Banda(), (std::vector<Punto>{{50, 60}, {200, 200}}));
    Suelta(50, 60);
    Aprieta(300, 100);
    Mueve(350, 60);
    EXPECT_EQ(Banda(), (std::vector<Punto>{{200, 200}, {350, 60}}));
    Suelta(350, 60);
    EXPECT_EQ(Vertice(1, 1), (Punto{50, 60}));
    EXPECT_EQ(Vertice(1, 3), (Punto{350, 60}));
}

TEST_F(EdicionArrastra, UnClicQueTomaUnVerticeNoLoMueve)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    Parte();
    Clic(200, 200);
    Arrastra({{210, 205}});  // the pointer doesn't move from there
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    EXPECT_EQ(s.Seleccion.VerticeSel, 2);
}

TEST_F(EdicionArrastra, UnArrastreEmpiezaALosTresPixeles)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}, {300, 100}});
    red.UEH("u-a", {400, 100});
    Parte();
    f.vista.lienzo = {1600, 1600};  // a unit is two pixels
    Clic(200, 200);
    Arrastra({{200, 200}, {201, 201}});  // 2.8 pixels
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 200}));
    Arrastra({{200, 200}, {201.5F, 200}, {201, 200}});  // 3, and then it follows however near
    EXPECT_EQ(Vertice(1, 2), (Punto{201, 200}));
    editor::LimpiaSeleccion(s);
    Arrastra({{405, 105}, {406, 105}});
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 400);
    Arrastra({{405, 105}, {407, 105}});
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 402);
}

const std::string PreguntaRedefinir =
    "El tramo de cauce c-b es tributario del tramo c-a , Desea redefinir el destino final del tramo ? ";

struct EdicionArrastraBoca : EdicionArrastra {
    EdicionArrastraBoca()
    {
        red.Cauce("c-a", {{100, 100}, {200, 200}});
        red.Cauce("c-b", {{200, 200}, {300, 100}}, "c-a");
        Parte();
        s.Seleccion.CauceSel = 2;
    }
};

TEST_F(EdicionArrastraBoca, LaBocaDeUnTributarioPreguntaAntesDeMoverse)
{
    Responde({true});
    Aprieta(200, 200);
    EXPECT_TRUE(Preguntas().empty());
    Mueve(250, 300);
    EXPECT_EQ(Preguntas(), Cajas{Consulta(PreguntaRedefinir)});
    Mueve(260, 300);
    Suelta(260, 300);
    EXPECT_EQ(Preguntas().size(), 1U);
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "0");
    EXPECT_EQ(Vertice(2, 1), (Punto{260, 300}));
}

TEST_F(EdicionArrastraBoca, ConNoSueltaLaSeleccionYNadaCambia)
{
    Responde({false});
    Arrastra({{200, 200}, {250, 300}, {260, 300}});
    EXPECT_EQ(Preguntas().size(), 1U);
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-a");
    EXPECT_EQ(Vertice(2, 1), (Punto{200, 200}));
    EXPECT_TRUE(SinSeleccion());
    EXPECT_TRUE(Banda().empty());
}

TEST_F(EdicionArrastraBoca, UnClicSobreLaBocaNoPregunta)
{
    Clic(200, 200);
    EXPECT_EQ(s.Seleccion.VerticeSel, 1);
    EXPECT_TRUE(Preguntas().empty());
}

TEST_F(EdicionArrastraBoca, SinDestinoNoPregunta)
{
    for (const std::string destino : {"", "0"}) {
        s.Red.Cauces(2).Cauce_aa = destino;
        s.Seleccion.CauceSel = 2;
        Arrastra({Vertice(2, 1), {500, 500}});
        EXPECT_TRUE(Preguntas().empty());
        EXPECT_EQ(Vertice(2, 1), (Punto{500, 500}));
    }
}

TEST_F(EdicionArrastraBoca, LosOtrosVerticesDelTributarioNoPreguntan)
{
    Arrastra({{300, 100}, {500, 500}});
    EXPECT_TRUE(Preguntas().empty());
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-a");
}

struct EdicionArrastraAOtro : EdicionArrastra {
    EdicionArrastraAOtro()
    {
        red.Cauce("c-a", {{100, 100}, {200, 200}});
        red.Cauce("c-b", {{400, 400}, {500, 400}});
        red.Cauce("c-c", {{100, 300}, {206, 200}});
        Parte();
        s.Seleccion.CauceSel = 2;
    }
};

TEST_F(EdicionArrastraAOtro, SoltarLaBocaEnLaCabeceraDeOtroPreguntaYAcopla)
{
    s.Red.ColCauces.Anuncia(2);  // only the first two
    s.Red.ColCauces.Quita(3);
    Responde({true});
    Arrastra({{400, 400}, {216, 184}});
    EXPECT_EQ(Preguntas(), Cajas{Consulta("¿El tramo de cauce c-b es tributario del tramo c-a ?")});
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-a");
    EXPECT_EQ(Vertice(2, 1), (Punto{200, 200}));
}

TEST_F(EdicionArrastraAOtro, ConNoQuedaDondeSeSoltoYPreguntaPorElSiguiente)
{
    Responde({false, false});
    Arrastra({{400, 400}, {203, 200}});
    EXPECT_EQ(Preguntas(), (Cajas{Consulta("¿El tramo de cauce c-b es tributario del tramo c-a ?"),
                                  Consulta("¿El tramo de cauce c-b es tributario del tramo c-c ?")}));
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "0");
    EXPECT_EQ(Vertice(2, 1), (Punto{203, 200}));
}

TEST_F(EdicionArrastraAOtro, ElPrimerSiYaNoPreguntaPorOtros)
{
    Responde({false, true});
    Arrastra({{400, 400}, {203, 200}});
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-c");
    EXPECT_EQ(Vertice(2, 1), (Punto{206, 200}));

    s.Red.Cauces(2).Cauce_aa = "0";
    anfitrion->sucesos.clear();
    s.Seleccion.CauceSel = 2;
    Responde({true});
    Arrastra({{206, 200}, {203, 200}});
    EXPECT_EQ(Preguntas().size(), 1U);
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-a");
}

TEST_F(EdicionArrastraAOtro, FueraDeLaToleranciaOSobreSuPropiaCabeceraNoPregunta)
{
    Arrastra({{400, 400}, {183.9F, 200}});
    EXPECT_TRUE(Preguntas().empty());
    s.Seleccion.CauceSel = 2;
    Arrastra({Vertice(2, 1), {500, 400}});
    EXPECT_TRUE(Preguntas().empty());
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "0");
}

TEST_F(EdicionArrastraAOtro, LaCabeceraSobreOtraCabeceraNoPregunta)
{
    Arrastra({{500, 400}, {200, 200}});
    EXPECT_TRUE(Preguntas().empty());
    EXPECT_EQ(Vertice(2, 2), (Punto{200, 200}));
}

TEST_F(EdicionArrastra, LaCabeceraLlevaConsigoASusTributarios)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.Cauce("c-b", {{200, 200}, {300, 100}}, "c-a");
    red.UEH("u-a", {400, 100}, "c-a", {200, 200});
    red.UEH("u-b", {450, 100}, "c-b", {300, 100});
    red.Represa("r-a", {500, 100}, "c-a", {200, 200});
    red.Lago("l-a", {600, 100}, "c-a", {200, 200});
    Parte();
    s.Seleccion.CauceSel = 1;
    Aprieta(200, 200);
    Mueve(220, 260);
    const auto drenan = [&](Punto p) {
        return Punto{s.Red.UEHs(1).XCauce, s.Red.UEHs(1).YCauce} == p &&
               Punto{s.Red.Represas(1).XCauce, s.Red.Represas(1).YCauce} == p &&
               Punto{s.Red.Lagos(1).XCauce, s.Red.Lagos(1).YCauce} == p;
    };
    EXPECT_TRUE(drenan({220, 260}));
    Suelta(230, 270);
    EXPECT_TRUE(drenan({230, 270}));
    EXPECT_EQ(Vertice(1, 2), (Punto{230, 270}));
    EXPECT_EQ(Vertice(2, 1), (Punto{230, 270}));  // the reach that drains into it
    EXPECT_EQ(s.Red.UEHs(2).XCauce, 300);
}

TEST_F(EdicionArrastra, OtroVerticeNoLlevaANadie)
{
    red.Cauce("c-a", {{100, 100}, {150, 150}, {200, 200}});
    red.UEH("u-a", {400, 100}, "c-a", {200, 200});
    Parte();
    s.Seleccion.CauceSel = 1;
    Arrastra({{150, 150}, {170, 100}});
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 200);
}

// --- icons ---

TEST_F(EdicionArrastra, UnaUEHSigueAlPunteroYSuPuntoDeDrenajeNo)
{
    red.UEH("u-a", {400, 100}, "0", {7, 8});
    Parte();
    Aprieta(405, 110);
    Mueve(305, 60);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 300);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHy, 50);
    Mueve(605, 710);  // however fast
    Suelta(605, 710);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 600);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHy, 700);
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 7);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
    ASSERT_EQ(Con(editor::Papel::Icono).size(), 1U);
    EXPECT_EQ(Con(editor::Papel::Icono)[0].en, (Punto{600, 700}));
}

TEST_F(EdicionArrastra, UnaUEHNoSeMueveSiHayOtraCosaElegida)
{
    red.UEH("u-a", {400, 100});
    red.Represa("r-a", {500, 100});
    Parte();
    Clic(505, 105);
    Arrastra({{405, 110}, {410, 120}});
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 400);
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaX, 500);
}

TEST_F(EdicionArrastra, NingunIconoSeMueveConUnCauceElegido)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {400, 100});
    red.Represa("r-a", {500, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    for (const Punto icono : {Punto{400, 100}, {500, 100}, {600, 100}}) {
        editor::LimpiaSeleccion(s);
        Clic(200, 200);
        Arrastra({{icono.X + 5, icono.Y + 5}, {icono.X + 15, icono.Y + 15}});
    }
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 400);
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaX, 500);
    EXPECT_EQ(s.Red.Lagos(1).IconoLAGOx, 600);
}

TEST_F(EdicionArrastra, UnaRepresaQuedaAtrasDeUnPunteroRapido)
{
    red.Represa("r-a", {400, 100});
    Parte();
    Aprieta(405, 105);
    Mueve(430, 130);  // 3 s from the icon
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaX, 425);
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaY, 125);
    Mueve(455.1F, 130);  // 30.1 from it
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaX, 425);
    Mueve(440, 130);  // and it is caught again
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaX, 435);
    Suelta(440, 130);
}

TEST_F(EdicionArrastra, UnLagoTambien)
{
    red.Lago("l-a", {400, 100});
    Parte();
    Aprieta(400, 110);
    Mueve(430, 110);
    EXPECT_EQ(s.Red.Lagos(1).IconoLAGOx, 430);
    EXPECT_EQ(s.Red.Lagos(1).IconoLAGOy, 100);
    Mueve(430, 131);
    EXPECT_EQ(s.Red.Lagos(1).IconoLAGOy, 100);
    Suelta(430, 131);
}

TEST_F(EdicionArrastra, UnIconoSoltadoFueraDelLienzoVuelveADondeEstaba)
{
    red.UEH("u-a", {400.3F, 100.7F});
    red.Represa("r-a", {790, 300});
    Parte();
    Aprieta(405, 110);
    Mueve(700, 700);
    Mueve(700, 801);  // the canvas ends at 800
    Suelta(700, 801);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 400.3F);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHy, 100.7F);
    EXPECT_EQ(Con(editor::Papel::Icono)[0].en, (Punto{400.3F, 100.7F}));
    EXPECT_FALSE(f.cambiada);
    EXPECT_TRUE(f.historia.anteriores.empty());
    editor::LimpiaSeleccion(s);
    Arrastra({{795, 305}, {805, 305}});
    EXPECT_EQ(s.Red.Represas(1).IconoRepresaX, 790);
    editor::LimpiaSeleccion(s);
    Arrastra({{405, 110}, {2, 798}});  // inside, however near the border
    EXPECT_NEAR(s.Red.UEHs(1).IconoUEHx, -2.7, 0.01);
}

// --- links ---

struct EdicionEnlaceArrastrado : EdicionArrastra {
    EdicionEnlaceArrastrado()
    {
        red.Cauce("c-a", {{300, 300}, {200, 200}});
        red.UEH("u-a", {400, 100});
        red.Represa("r-a", {500, 100});
        red.Lago("l-a", {600, 100});
        red.Represa("r-b", {500, 400});
        red.Lago("l-b", {600, 400});
        Parte();
    }
    /// Presses the handle of the component at a position.
    void TomaAsa(Punto icono)
    {
        Clic(icono.X + 5, icono.Y + 5);
        Aprieta(icono.X, icono.Y + 35);
    }
};

TEST_F(EdicionEnlaceArrastrado, LaBandaVaDesdeElIconoAlPuntero)
{
    TomaAsa({400, 100});
    Mueve(350, 250);
    EXPECT_EQ(Banda(), (std::vector<Punto>{{415, 102.5F}, {350, 250}}));
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 400);
    Suelta(350, 250);
    EXPECT_TRUE(Banda().empty());
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
}

TEST_F(EdicionEnlaceArrastrado, UnaUEHALaCabeceraDeUnCauce)
{
    TomaAsa({400, 100});
    Mueve(210.1F, 200);
    EXPECT_TRUE(Preguntas().empty());
    Mueve(210, 190);
    EXPECT_EQ(Preguntas(), Cajas{Consulta("Confirma el acople de la UEH <u-a> con el cauce <c-a>")});
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "c-a");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 200);
    EXPECT_EQ(s.Red.UEHs(1).YCauce, 200);
    EXPECT_TRUE(SinSeleccion());
    Mueve(200, 200);  // the drag is over
    Suelta(200, 200);
    EXPECT_EQ(Preguntas().size(), 1U);
}

TEST_F(EdicionEnlaceArrastrado, LaBocaDelCauceNoEsDestino)
{
    TomaAsa({400, 100});
    Mueve(300, 300);
    Suelta(300, 300);
    EXPECT_TRUE(Preguntas().empty());
}

TEST_F(EdicionEnlaceArrastrado, UnCauceSinVerticesNoTieneCabeceraEnNingunLado)
{
    red.Cauce("c-vacio", {});
    Parte();
    TomaAsa({400, 100});
    Mueve(0, 0);
    Suelta(0, 0);
    s.Seleccion.CauceSel = 1;
    Arrastra({{300, 300}, {1, 1}});
    EXPECT_TRUE(Preguntas().empty());
    EXPECT_EQ(Vertice(1, 1), (Punto{1, 1}));
}

TEST_F(EdicionEnlaceArrastrado, ConNoNadaCambiaYLaSeleccionSeSuelta)
{
    Responde({false});
    TomaAsa({400, 100});
    Mueve(200, 200);
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 0);
    EXPECT_TRUE(SinSeleccion());
    EXPECT_TRUE(Banda().empty());
    Suelta(200, 200);
    EXPECT_EQ(Preguntas().size(), 1U);
}

TEST_F(EdicionEnlaceArrastrado, UnaUEHALaCajaDeUnaRepresa)
{
    TomaAsa({400, 100});
    Mueve(515.1F, 410);
    EXPECT_TRUE(Preguntas().empty());
    Mueve(515, 410);
    EXPECT_EQ(Preguntas(), Cajas{Consulta("Confirma el acople de la UEH <u-a> con la Represa <r-b>")});
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "r-b");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 500);
    EXPECT_EQ(s.Red.UEHs(1).YCauce, 400);
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaceArrastrado, UnaUEHALaCajaDeUnLago)
{
    TomaAsa({400, 100});
    Mueve(590, 420);
    EXPECT_EQ(Preguntas(),
              Cajas{Consulta("Confirma el acople de la UEH <u-a> con la depresión lagunar <l-b>")});
    EXPECT_EQ(s.Red.UEHs(1).Cauce_aa, "l-b");
    EXPECT_EQ(s.Red.UEHs(1).XCauce, 600);
    EXPECT_EQ(s.Red.UEHs(1).YCauce, 400);
}

TEST_F(EdicionEnlaceArrastrado, UnaRepresaAUnCauce)
{
    TomaAsa({500, 100});
    Mueve(200, 205);
    EXPECT_EQ(Preguntas(), Cajas{Consulta("Confirma el acople de la Represa <r-a> con el cauce <c-a>")});
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "c-a");
    EXPECT_EQ(s.Red.Represas(1).XCauce, 200);
    EXPECT_EQ(s.Red.Represas(1).YCauce, 200);
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaceArrastrado, UnLagoAUnCauce)
{
    TomaAsa({600, 100});
    Mueve(200, 205);
    EXPECT_EQ(Preguntas(), Cajas{Consulta("Confirma el acople del LAGO <l-a> con el cauce <c-a>")});
    EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "c-a");
    EXPECT_EQ(s.Red.Lagos(1).XCauce, 200);
}

TEST_F(EdicionEnlaceArrastrado, UnaRepresaYUnLagoNoSeEnlazanConEmbalses)
{
    TomaAsa({500, 100});
    Mueve(505, 405);
    Mueve(600, 400);
    Suelta(600, 400);
    TomaAsa({600, 100});
    Mueve(505, 405);
    Mueve(600, 400);
    Suelta(600, 400);
    EXPECT_TRUE(Preguntas().empty());
}

TEST_F(EdicionEnlaceArrastrado, UnaRepresaNoSeAcoplaDondeYaDrenaOtra)
{
    s.Red.Represas(2).Cauce_aa = "c-a";
    TomaAsa({500, 100});
    Mueve(200, 200);
    EXPECT_EQ(Preguntas().size(), 1U);
    EXPECT_EQ(Avisos(), (Cajas{{"Ya existe otro acople a ese tramo de cauce. Revise el diagrama de conexión "
                                "de la represa r-a",
                                "", Icono::Ninguno}}));
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "");
    EXPECT_EQ(s.Red.Represas(1).XCauce, 0);
    EXPECT_TRUE(SinSeleccion());
}

TEST_F(EdicionEnlaceArrastrado, UnaRepresaNoSeAcoplaDondeYaDrenaUnLago)
{
    s.Red.Lagos(2).Cauce_aa = "c-a";
    TomaAsa({500, 100});
    Mueve(200, 200);
    EXPECT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(s.Red.Represas(1).Cauce_aa, "");
}

TEST_F(EdicionEnlaceArrastrado, UnLagoNoSeAcoplaDondeYaDrenaOtroEmbalse)
{
    for (int caso = 0; caso < 2; ++caso) {
        s.Red.Represas(1).Cauce_aa = caso == 0 ? "c-a" : "";
        s.Red.Lagos(2).Cauce_aa = caso == 1 ? "c-a" : "";
        anfitrion->sucesos.clear();
        TomaAsa({600, 100});
        Mueve(200, 200);
        Suelta(200, 200);
        EXPECT_EQ(Avisos(), (Cajas{{"Ya existe otro acople a ese tramo de cauce. Revise el diagrama de "
                                    "conexión del Lago",
                                    "", Icono::Ninguno}}));
        EXPECT_EQ(s.Red.Lagos(1).Cauce_aa, "");
    }
}

TEST_F(EdicionEnlaceArrastrado, ConNoNoSeMiraSiHayOtroAcople)
{
    s.Red.Represas(2).Cauce_aa = "c-a";
    Responde({false});
    TomaAsa({500, 100});
    Mueve(200, 200);
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(EdicionEnlaceArrastrado, SuPropioAcopleYElDeUnaUEHNoEstorban)
{
    s.Red.Represas(1).Cauce_aa = "c-a";
    s.Red.UEHs(1).Cauce_aa = "c-a";
    TomaAsa({500, 100});
    Mueve(200, 200);
    EXPECT_TRUE(Avisos().empty());
    EXPECT_EQ(s.Red.Represas(1).XCauce, 200);
}

}  // namespace
