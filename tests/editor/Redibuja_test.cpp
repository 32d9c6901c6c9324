// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <string>
#include <vector>

#include "editor/EditorDePrueba.h"

namespace {

using editor::Boton;
using editor::Extension;
using editor::Papel;
using editor::Primitiva;
using editor::Punto;
using Puntos = std::vector<Punto>;
using Forma = Primitiva::Forma;

struct Redibuja : EditorDePrueba {
    void Dibuja() { editor::Redibuja(f, s); }
    /// Ends of the only line of a part.
    Puntos Enlace(Papel papel)
    {
        const auto lineas = Con(papel);
        EXPECT_EQ(lineas.size(), 1U);
        return lineas.empty() ? Puntos{} : PuntosDe(lineas.front());
    }
    std::vector<std::string> Textos(Papel papel)
    {
        std::vector<std::string> r;
        for (const auto& p : Con(papel))
            r.emplace_back(f.dibujo.Letras(p));
        return r;
    }
};

// --- steps 1 and 2 ---

TEST_F(Redibuja, LaCotaDeVerticesSubeHastaLaMayorYConservaLoQueHay)
{
    red.Cauce("c-1", {{1, 2}, {3, 4}});
    s.Red.NroVertices(1) = 5;
    Dibuja();
    EXPECT_EQ(s.Red.XVertice.TopeColumna(), 5);
    EXPECT_EQ(s.Red.YVertice.TopeColumna(), 5);
    EXPECT_EQ(Vertice(1, 2), (Punto{3, 4}));
    s.Red.NroVertices(1) = 2;
    Dibuja();
    EXPECT_EQ(s.Red.XVertice.TopeColumna(), 5);
}

TEST_F(Redibuja, LaDesembocaduraTomaElUltimoVerticeDelCauceReceptor)
{
    red.Cauce("c-1", {{100, 100}, {200, 50}, {300, 40}});
    red.Cauce("c-2", {{0, 0}, {500, 10}}, "c-1");
    Dibuja();
    EXPECT_EQ(Vertice(2, 1), (Punto{300, 40}));
    EXPECT_EQ(Vertice(2, 2), (Punto{500, 10}));
    EXPECT_EQ(Vertice(1, 1), (Punto{100, 100}));
    s.Red.XVertice(1, 3) = 310;
    Dibuja();
    EXPECT_EQ(Vertice(2, 1), (Punto{310, 40}));
}

TEST_F(Redibuja, UnDestinoQueNadieLlevaDejaElVertice1DondeEsta)
{
    red.Cauce("c-1", {{100, 100}, {200, 50}});
    red.Cauce("c-2", {{7, 8}, {500, 10}}, "c-nadie");
    red.Cauce("c-3", {{9, 10}, {600, 10}}, "");
    red.Cauce("", {{50, 60}, {70, 80}});  // a cancelled name is no destination
    Dibuja();
    EXPECT_EQ(Vertice(2, 1), (Punto{7, 8}));
    EXPECT_EQ(Vertice(3, 1), (Punto{9, 10}));
}

TEST_F(Redibuja, UnLagoOUnaRepresaComoDestinoNoMuevenVertices)
{
    red.Represa("r-1", {400, 300});
    red.Lago("l-1", {500, 300});
    red.Cauce("c-1", {{7, 8}, {500, 10}}, "r-1");
    red.Cauce("c-2", {{9, 10}, {600, 10}}, "l-1");
    Dibuja();
    EXPECT_EQ(Vertice(1, 1), (Punto{7, 8}));
    EXPECT_EQ(Vertice(2, 1), (Punto{9, 10}));
}

// --- steps 3 to 7 ---

TEST_F(Redibuja, LaExtensionAbarcaVerticesEIconosDeLasTresClases)
{
    red.Cauce("c-1", {{100, 110}, {200, 50}});
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = 200, .XMin = 100, .YMax = 110, .YMin = 50}));
    red.UEH("u-1", {-5, 60});
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = 200, .XMin = -5, .YMax = 110, .YMin = 50}));
    red.Represa("r-1", {120, 900});
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = 200, .XMin = -5, .YMax = 900, .YMin = 50}));
    red.Lago("l-1", {700, -30});
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = 700, .XMin = -5, .YMax = 900, .YMin = -30}));
}

TEST_F(Redibuja, SinNadaLaExtensionQuedaAlReves)
{
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = -99999, .XMin = 99999, .YMax = -99999, .YMin = 99999}));
    EXPECT_EQ(f.vista.origen, (Punto{0, 0}));
}

TEST_F(Redibuja, ReescalaConUnDecimoDeHolguraYTrunca)
{
    red.Cauce("c-1", {{0, 0}, {1003, 100}});  // 1003 * 1.1 / 800 * 100 = 137.9
    f.vista.reescala = true;
    Dibuja();
    EXPECT_EQ(f.vista.sldEscala, 137);
    EXPECT_FALSE(f.vista.reescala);
    EXPECT_EQ(editor::AnchoLogico(f.vista), 1096);  // 137 * 800 / 100
}

TEST_F(Redibuja, ReescalaPorElAltoCuandoExcedeAlAncho)
{
    red.Cauce("c-1", {{0, 0}, {100, 400}});  // 400 * 1.1 / 800 * 100 = 55
    f.vista.reescala = true;
    Dibuja();
    EXPECT_EQ(f.vista.sldEscala, 55);
}

TEST_F(Redibuja, SinBanderaNoReescala)
{
    red.Cauce("c-1", {{0, 0}, {100, 400}});
    Dibuja();
    EXPECT_EQ(f.vista.sldEscala, 100);
}

TEST_F(Redibuja, LaEscalaSeQuedaEntre1Y1000)
{
    red.Cauce("c-1", {{0, 0}, {1, 1}});  // 0.1375
    f.vista.reescala = true;
    Dibuja();
    EXPECT_EQ(f.vista.sldEscala, 1);
    s.Red.XVertice(1, 2) = 90000;
    f.vista.reescala = true;
    Dibuja();
    EXPECT_EQ(f.vista.sldEscala, 1000);
}

TEST_F(Redibuja, SinCaucesLaEscalaVuelveA100)
{
    red.UEH("u-1", {0, 0});
    red.UEH("u-2", {4000, 0});
    f.vista.sldEscala = 250;
    f.vista.reescala = true;
    Dibuja();
    EXPECT_EQ(f.vista.sldEscala, 100);
}

TEST_F(Redibuja, RecentraLaExtensionUnaSolaVez)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    f.vista.recentra = true;
    Dibuja();
    EXPECT_EQ(f.vista.origen, (Punto{-200, -300}));  // 100 - (800 - 200)/2, 50 - (800 - 100)/2
    EXPECT_FALSE(f.vista.recentra);
    s.Red.XVertice(1, 2) = 700;
    Dibuja();
    EXPECT_EQ(f.vista.origen, (Punto{-200, -300}));
}

TEST_F(Redibuja, MoverElDeslizadorRecentraSinReescalar)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    f.vista.reescala = true;
    editor::sldEscala_Mueve(f, s, 50);
    EXPECT_EQ(f.vista.sldEscala, 50);
    EXPECT_EQ(f.vista.origen, (Punto{0, -100}));  // 100 - (400 - 200)/2, 50 - (400 - 100)/2
}

TEST_F(Redibuja, ElDeslizadorVaDe1A1000)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    struct Fila {
        int pedido, queda;
    };
    for (const auto [pedido, queda] :
         std::vector<Fila>{{0, 1}, {-7, 1}, {1, 1}, {2, 2}, {999, 999}, {1000, 1000}, {1001, 1000}}) {
        editor::sldEscala_Mueve(f, s, pedido);
        EXPECT_EQ(f.vista.sldEscala, queda) << pedido;
    }
}

TEST_F(Redibuja, LasBarrasMuevenElOrigenSinRecentrarNiReescalar)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    editor::ScrEscalaHor_Mueve(f, s, 10);
    EXPECT_EQ(f.vista.origen, (Punto{80, 0}));  // a tenth of 800
    editor::ScrEscalaVer_Mueve(f, s, -25);
    EXPECT_EQ(f.vista.origen, (Punto{80, -200}));
    editor::ScrEscalaHor_Mueve(f, s, 5);
    EXPECT_EQ(f.vista.origen, (Punto{40, -200}));
    EXPECT_EQ(f.vista.sldEscala, 100);
    editor::ScrEscalaHor_Mueve(f, s, 500);
    EXPECT_EQ(f.vista.ScrEscalaHor, 100);
    EXPECT_EQ(f.vista.origen, (Punto{800, -200}));
}

TEST_F(Redibuja, UnMovimientoDeBarraVaAntesQueElRecentrado)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    f.vista.recentra = true;
    editor::ScrEscalaHor_Mueve(f, s, 10);
    EXPECT_EQ(f.vista.origen, (Punto{80, 0}));
    EXPECT_FALSE(f.vista.recentra);
}

TEST_F(Redibuja, AlRecentrarLasBarrasVuelvenAlMedio)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    editor::ScrEscalaHor_Mueve(f, s, 10);
    f.vista.recentra = true;
    Dibuja();
    EXPECT_EQ(f.vista.ScrEscalaHor, 0);
    EXPECT_EQ(f.vista.origen, (Punto{-200, -300}));
}

// --- wheel and pixels ---

TEST_F(Redibuja, LaRuedaAcercaYDejaElPuntoBajoElPuntero)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    Dibuja();
    const Punto bajoElPuntero{200, 600};  // pixels 200, 600
    editor::picDibujo_Rueda(f, s, 1, bajoElPuntero);
    EXPECT_EQ(f.vista.sldEscala, 91);  // 100 / 1.1
    const editor::Pixel p = editor::APixel(f.vista, bajoElPuntero);
    EXPECT_NEAR(p.x, 200, 1e-3);
    EXPECT_NEAR(p.y, 600, 1e-3);
    editor::picDibujo_Rueda(f, s, -3, bajoElPuntero);
    EXPECT_EQ(f.vista.sldEscala, 121);  // 91 * 1.331
    EXPECT_NEAR(editor::APixel(f.vista, bajoElPuntero).x, 200, 1e-3);
}

TEST_F(Redibuja, LaRuedaNoSeAtascaEnEscalasChicasNiSaleDeSusLimites)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    f.vista.sldEscala = 3;
    editor::picDibujo_Rueda(f, s, 1, {0, 0});
    EXPECT_EQ(f.vista.sldEscala, 2);
    editor::picDibujo_Rueda(f, s, 5, {0, 0});
    EXPECT_EQ(f.vista.sldEscala, 1);
    editor::picDibujo_Rueda(f, s, -1, {0, 0});
    EXPECT_EQ(f.vista.sldEscala, 2);
    editor::picDibujo_Rueda(f, s, -1000, {0, 0});
    EXPECT_EQ(f.vista.sldEscala, 1000);
    editor::picDibujo_Rueda(f, s, 0, {0, 0});
    EXPECT_EQ(f.vista.sldEscala, 1000);
}

TEST_F(Redibuja, SinCaucesLaRuedaNoHaceNada)
{
    editor::picDibujo_Rueda(f, s, 3, {100, 100});
    EXPECT_EQ(f.vista.sldEscala, 100);
    EXPECT_EQ(f.vista.origen, (Punto{0, 0}));
}

TEST_F(Redibuja, PixelesYPuntosSonInversosConLaEscalaDeCadaEje)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    f.vista.lienzo = {400, 200};
    f.vista.origen = {10, 20};
    f.vista.sldEscala = 50;  // 400 drawing units on both axes
    EXPECT_EQ(editor::DePixel(f.vista, 100, 100), (Punto{110, 220}));
    EXPECT_EQ(editor::APixel(f.vista, {110, 220}), (editor::Pixel{100, 100}));
}

TEST_F(Redibuja, ElBotonMedioArrastraElDibujoBajoElPuntero)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    const auto medio = editor::BotonRaton::Medio;
    const Punto p = editor::DePixel(f.vista, 100, 100);
    editor::picDibujo_MouseDown(f, s, medio, p);
    EXPECT_EQ(f.puntero, editor::Puntero::Mano);
    editor::picDibujo_MouseMove(f, s, editor::DePixel(f.vista, 150, 80), false);
    EXPECT_EQ(f.vista.origen, (Punto{-50, 20}));
    EXPECT_EQ(editor::APixel(f.vista, p), (editor::Pixel{150, 80}));
    editor::picDibujo_MouseMove(f, s, editor::DePixel(f.vista, 200, 80), false);
    EXPECT_EQ(editor::APixel(f.vista, p), (editor::Pixel{200, 80}));
    editor::picDibujo_MouseUp(f, s, medio, editor::DePixel(f.vista, 200, 80));
    editor::picDibujo_MouseMove(f, s, editor::DePixel(f.vista, 0, 0), false);
    EXPECT_EQ(f.vista.origen, (Punto{-100, 20}));
    EXPECT_EQ(f.puntero, editor::Puntero::Flecha);
}

// --- steps 8 to 11 ---

TEST_F(Redibuja, LaImagenVaPrimeroConSuAltoPor133333333)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    f.fondo.ImagenVisible = true;
    f.fondo.imagen = {640, 300};
    s.Configuracion.ImagenX0 = 12;
    s.Configuracion.ImagenY0 = -7;
    s.Configuracion.EscalaImagen = 0;
    Dibuja();
    const Primitiva imagen = f.dibujo.Primitivas().front();
    EXPECT_EQ(imagen.forma, Forma::Imagen);
    EXPECT_EQ(imagen.en, (Punto{12, -7}));
    EXPECT_FLOAT_EQ(imagen.tamano, 640);
    EXPECT_FLOAT_EQ(imagen.alto, 400);  // 300 * 1.33333333
    s.Configuracion.EscalaImagen = 50;
    Dibuja();
    EXPECT_FLOAT_EQ(f.dibujo.Primitivas().front().tamano, 320);
    EXPECT_FLOAT_EQ(f.dibujo.Primitivas().front().alto, 200);
    f.fondo.ImagenVisible = false;
    Dibuja();
    EXPECT_TRUE(Con(Papel::Imagen).empty());
}

TEST_F(Redibuja, SinCaucesLaImagenDaLaExtension)
{
    f.fondo.ImagenVisible = true;
    f.fondo.imagen = {640, 300};
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = 640, .XMin = 1, .YMax = 300, .YMin = 1}));
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    Dibuja();
    EXPECT_EQ(f.vista.extension, (Extension{.XMax = 300, .XMin = 100, .YMax = 150, .YMin = 50}));
}

TEST_F(Redibuja, LosCaucesSonPolilineasDesdeElVertice1ConElAnchoDeLinea)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}, {320, 170}});
    red.Cauce("c-2", {{5, 5}, {6, 6}});
    Dibuja();
    const auto cauces = Con(Papel::Cauce);
    ASSERT_EQ(cauces.size(), 2U);
    EXPECT_EQ(PuntosDe(cauces[0]), (Puntos{{100, 50}, {300, 150}, {320, 170}}));
    EXPECT_EQ(PuntosDe(cauces[1]), (Puntos{{5, 5}, {6, 6}}));
    EXPECT_EQ(cauces[0].ancho, 4);
}

TEST_F(Redibuja, ElCauceQueSeEstaDibujandoSeVeAunqueNoTengaObjeto)
{
    s.Red.ColCauces.Anuncia(1);
    s.Red.NroVertices(1) = 1;
    Dibuja();
    s.Red.XVertice(1, 1) = 30;
    s.Red.YVertice(1, 1) = 40;
    f.trazo.ClicsCauce = 1;
    Dibuja();
    ASSERT_EQ(Con(Papel::Cauce).size(), 1U);
    EXPECT_EQ(PuntosDe(Con(Papel::Cauce).front()), (Puntos{{30, 40}}));
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(editor::CaucesEnteros(s.Red), 0);
}

TEST_F(Redibuja, UnaLecturaQueSeLlevoElTrazoLoDaPorAbandonado)
{
    f.trazo.ClicsCauce = 3;
    Dibuja();
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
}

TEST_F(Redibuja, LosNombresVanBajoElIconoDeCadaClase)
{
    f.vista.TamIcono = 10;
    red.UEH("u-1", {100, 200});
    red.Represa("r-1", {300, 400});
    red.Lago("l-1", {500, 600});
    Dibuja();
    const auto nombres = Con(Papel::Nombre);
    EXPECT_EQ(Textos(Papel::Nombre), (std::vector<std::string>{"u-1", "r-1", "l-1"}));
    EXPECT_EQ(nombres[0].en, (Punto{105, 220}));
    EXPECT_EQ(nombres[1].en, (Punto{305, 420.5F}));
    EXPECT_EQ(nombres[2].en, (Punto{505, 620}));
}

TEST_F(Redibuja, CadaIconoOcupaSuLugarYSoloElElegidoCambiaDeColor)
{
    f.vista.TamIcono = 10;
    red.UEH("u-1", {100, 200});
    red.UEH("u-2", {150, 200});
    red.Represa("r-1", {300, 400});
    red.Lago("l-1", {500, 600});
    s.Seleccion.UEHSel = 2;
    Dibuja();
    const auto iconos = Con(Papel::Icono);
    ASSERT_EQ(iconos.size(), 4U);
    EXPECT_EQ(iconos[0].clase, editor::Clase::UEH);
    EXPECT_EQ(iconos[0].en, (Punto{100, 200}));
    EXPECT_EQ(iconos[0].tamano, 15);
    EXPECT_EQ(iconos[2].clase, editor::Clase::Represa);
    EXPECT_EQ(iconos[3].clase, editor::Clase::Lago);
    EXPECT_EQ(iconos[3].en, (Punto{490, 590}));
    EXPECT_EQ(iconos[3].tamano, 20);
    EXPECT_FALSE(iconos[0].seleccionado);
    EXPECT_TRUE(iconos[1].seleccionado);
    EXPECT_FALSE(iconos[2].seleccionado);
    EXPECT_FALSE(iconos[3].seleccionado);
    ASSERT_EQ(Con(Papel::Asa).size(), 1U);
    EXPECT_EQ(Con(Papel::Asa).front().en, (Punto{150, 235}));  // 3.5 s under the icon
    s.Seleccion.UEHSel = 0;
    s.Seleccion.RepresaSel = s.Seleccion.LagoSel = 1;
    Dibuja();
    EXPECT_FALSE(Con(Papel::Icono)[1].seleccionado);
    EXPECT_TRUE(Con(Papel::Icono)[2].seleccionado);
    EXPECT_TRUE(Con(Papel::Icono)[3].seleccionado);
}

TEST_F(Redibuja, LaLineaDeEnlaceVaDelIconoAlPuntoDeContacto)
{
    f.vista.TamIcono = 10;
    red.Cauce("c-1", {{0, 0}, {400, 40}});
    red.UEH("u-1", {100, 200}, "c-1", {400, 40});
    red.Represa("r-1", {300, 400}, "c-1", {401, 41});
    red.Lago("l-1", {500, 600}, "c-1", {402, 42});
    Dibuja();
    EXPECT_EQ(Enlace(Papel::EnlaceUEH), (Puntos{{107.5F, 207.5F}, {400, 40}}));
    EXPECT_EQ(Enlace(Papel::EnlaceRepresa), (Puntos{{307.5F, 407.5F}, {401, 41}}));
    EXPECT_EQ(Enlace(Papel::EnlaceLago), (Puntos{{500, 600}, {402, 42}}));
}

TEST_F(Redibuja, ConDestinoRepresaOLagoLaLineaTerminaEnSuIcono)
{
    f.vista.TamIcono = 10;
    red.Represa("r-1", {300, 400}, "l-1");
    red.Lago("l-1", {500, 600}, "r-1");
    red.UEH("u-1", {100, 200}, "r-1", {1, 1});
    Dibuja();
    EXPECT_EQ(Enlace(Papel::EnlaceUEH).back(), (Punto{307.5F, 407.5F}));
    EXPECT_EQ(Enlace(Papel::EnlaceRepresa).back(), (Punto{500, 600}));
    EXPECT_EQ(Enlace(Papel::EnlaceLago).back(), (Punto{307.5F, 407.5F}));
    s.Red.ColUEHs.Item(1).Cauce_aa = "l-1";
    Dibuja();
    EXPECT_EQ(Enlace(Papel::EnlaceUEH).back(), (Punto{500, 600}));
}

TEST_F(Redibuja, LoQueNoDrenaANadieNoTieneLinea)
{
    red.UEH("u-1", {100, 200});
    red.UEH("u-2", {130, 200}, "0");
    Dibuja();
    EXPECT_TRUE(Con(Papel::EnlaceUEH).empty());
    red.UEH("u-3", {160, 200}, "c-borrado", {9, 9});
    Dibuja();
    EXPECT_EQ(Enlace(Papel::EnlaceUEH).back(), (Punto{9, 9}));
}

TEST_F(Redibuja, ElCauceElegidoMuestraSusVerticesYElTomadoEnRojo)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}, {320, 170}});
    red.Cauce("c-2", {{5, 5}, {6, 6}});
    s.Seleccion.CauceSel = 1;
    Dibuja();
    EXPECT_EQ(Con(Papel::MarcaVertice).size(), 3U);
    s.Seleccion.VerticeSel = 2;
    Dibuja();
    EXPECT_EQ(Con(Papel::MarcaVertice).size(), 2U);
    ASSERT_EQ(Con(Papel::VerticeTomado).size(), 1U);
    EXPECT_EQ(Con(Papel::VerticeTomado).front().en, (Punto{300, 150}));
}

TEST_F(Redibuja, LosOrdenesVanALaIzquierdaDelVertice2)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    red.Cauce("c-2", {{5, 5}, {60, 60}, {90, 90}}, "c-1");
    red.Cauce("c-3", {{5, 5}, {400, 60}}, "c-1");
    f.vista.ToleranciaVertice = 16;
    editor::cmdOrdenCauce_Click(f, s);
    EXPECT_TRUE(f.vista.OrdenVisible);
    EXPECT_EQ(Textos(Papel::Orden), (std::vector<std::string>{"2", "1", "1"}));
    EXPECT_EQ(Con(Papel::Orden)[0].en, (Punto{276, 150}));
    EXPECT_EQ(Con(Papel::Orden)[1].en, (Punto{36, 60}));
    s.Red.ColCauces.Item(3).Cauce_aa = "0";
    editor::cmdOrdenCauce_Click(f, s);
    EXPECT_FALSE(f.vista.OrdenVisible);
    EXPECT_TRUE(Con(Papel::Orden).empty());
    EXPECT_EQ(s.Red.ColCauces.Item(1).OrdenCauce, 1);  // worked out anew before the flag is looked at
}

TEST_F(Redibuja, UnCauceDeUnSoloVerticeNoMuestraSuOrden)
{
    red.Cauce("c-1", {{100, 50}});
    editor::cmdOrdenCauce_Click(f, s);
    EXPECT_TRUE(Con(Papel::Orden).empty());
    EXPECT_TRUE(Avisos().empty());
}

TEST_F(Redibuja, CadaCauceMuestraSuNombreYElSentidoDelAgua)
{
    // 300 pixels long: its middle is 50 beyond the second vertex. The water runs to the mouth, at the left.
    red.Cauce("c-1", {{100, 300}, {200, 300}, {400, 300}});
    red.Cauce("c-corto", {{600, 600}, {610, 610}});
    Dibuja();
    ASSERT_EQ(Con(Papel::Sentido).size(), 1U);
    // The wings stand 5 out of a line of 4.
    EXPECT_EQ(PuntosDe(Con(Papel::Sentido)[0]), (Puntos{{255, 293}, {245, 300}, {255, 307}}));
    ASSERT_EQ(Con(Papel::NombreCauce).size(), 1U);
    EXPECT_EQ(f.dibujo.Letras(Con(Papel::NombreCauce)[0]), "c-1");
    EXPECT_EQ(Con(Papel::NombreCauce)[0].en, (Punto{260, 306}));
    editor::NombresDeCauces_Click(f, s);
    EXPECT_TRUE(Con(Papel::NombreCauce).empty());
    EXPECT_EQ(Con(Papel::Sentido).size(), 1U);
    editor::NombresDeCauces_Click(f, s);
    ASSERT_EQ(Con(Papel::NombreCauce).size(), 1U);
    red.Cauce("c-2", {{400, 500}, {200, 400}});  // down to the right: three letters left of its middle
    Dibuja();
    ASSERT_EQ(Con(Papel::NombreCauce).size(), 2U);
    EXPECT_EQ(Con(Papel::NombreCauce)[1].en, (Punto{270.5F, 456}));  // 300 - 10 - 3*6.5
}

TEST_F(Redibuja, MientrasSeDibujaSeMarcanLosExtremosQueSeTocanSinAcople)
{
    red.Cauce("c-1", {{100, 300}, {200, 300}});
    red.Cauce("c-2", {{205, 305}, {300, 300}});         // at the head of c-1, and not linked
    red.Cauce("c-3", {{200, 300}, {200, 100}}, "c-1");  // linked
    red.Cauce("c-4", {{220, 300}, {300, 500}});         // 20 away: beyond a fiftieth of 800
    red.Represa("r-1", {600, 600});
    red.Cauce("c-5", {{605, 605}, {700, 700}});
    red.Cauce("c-6", {{605, 605}, {700, 500}}, "r-1");
    Dibuja();
    EXPECT_TRUE(Con(Papel::SinAcople).empty());
    PonModo(editor::Boton::Cauce);
    ASSERT_EQ(Con(Papel::SinAcople).size(), 2U);
    EXPECT_EQ(Con(Papel::SinAcople)[0].en, (Punto{205, 305}));
    EXPECT_EQ(Con(Papel::SinAcople)[1].en, (Punto{605, 605}));
    EXPECT_EQ(f.lblIndicacion,
              "Clic: primer vértice, aguas abajo. Marca naranja: extremos que se tocan sin estar acoplados.");
    Clic(300, 300);  // the reach in hand too, at the head of c-2
    ASSERT_EQ(Con(Papel::SinAcople).size(), 3U);
    EXPECT_EQ(Con(Papel::SinAcople)[2].en, (Punto{300, 300}));
    PonModo(editor::Boton::Selecciona);
    EXPECT_TRUE(Con(Papel::SinAcople).empty());
}

TEST_F(Redibuja, LaMedicionTieneLaMitadMayorDelAncho)
{
    PonModo(Boton::LongArea);
    f.vista.AnchoLinea = 9;  // 9 - 4.5
    Clic(10, 20);
    ASSERT_EQ(Con(Papel::Medida).size(), 1U);
    EXPECT_EQ(PuntosDe(Con(Papel::Medida).front()), (Puntos{{10, 20}}));
    Clic(30, 40);
    EXPECT_EQ(PuntosDe(Con(Papel::Medida).front()), (Puntos{{10, 20}, {30, 40}}));
    EXPECT_EQ(Con(Papel::Medida).front().ancho, 4);
    f.vista.AnchoLinea = 4;
    Dibuja();
    EXPECT_EQ(Con(Papel::Medida).front().ancho, 2);
}

TEST_F(Redibuja, ElOrdenDePintadoEsImagenCaucesUEHsRepresasLagosMarcasYBanda)
{
    f.fondo.ImagenVisible = true;
    f.fondo.imagen = {10, 10};
    red.Lago("l-1", {500, 600});
    red.Represa("r-1", {300, 400});
    red.UEH("u-1", {100, 200});
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    s.Seleccion.CauceSel = 1;
    f.gesto.banda = {{1, 1}, {2, 2}};
    Dibuja();
    std::vector<Papel> papeles;
    for (const auto& p : f.dibujo.Primitivas())
        papeles.push_back(p.papel);
    EXPECT_EQ(papeles, (std::vector<Papel>{Papel::Imagen, Papel::Cauce, Papel::Icono, Papel::Nombre,
                                           Papel::Icono, Papel::Nombre, Papel::Icono, Papel::Nombre,
                                           Papel::Sentido, Papel::NombreCauce, Papel::MarcaVertice,
                                           Papel::MarcaVertice, Papel::Banda}));
    EXPECT_EQ(Con(Papel::Icono)[0].clase, editor::Clase::UEH);
    EXPECT_EQ(Con(Papel::Icono)[1].clase, editor::Clase::Represa);
    EXPECT_EQ(Con(Papel::Icono)[2].clase, editor::Clase::Lago);
}

TEST_F(Redibuja, EnLosLimitesConCienVerticesNadaFaltaYOtroDibujoEsElMismo)
{
    for (int i = 1; i <= model::MaxCauces; ++i) {
        std::vector<Punto> vertices;
        for (int j = 1; j <= 100; ++j)
            vertices.push_back({static_cast<float>(i * 10), static_cast<float>(j * 5)});
        red.Cauce("c-" + std::to_string(i), vertices, i > 1 ? "c-" + std::to_string(i - 1) : "0");
    }
    for (int i = 1; i <= model::MaxUEHs; ++i) {
        const Punto p{static_cast<float>(i * 9), 3};
        red.UEH("u-" + std::to_string(i), p, "c-" + std::to_string(i), {1, 1});
        red.Lago("l-" + std::to_string(i), p, "c-" + std::to_string(i), {1, 1});
    }
    for (int i = 1; i <= model::MaxRepresas; ++i)
        red.Represa("r-" + std::to_string(i), {static_cast<float>(i * 9), 90}, "c-1", {1, 1});
    s.Seleccion.CauceSel = 70;
    Dibuja();
    const auto antes = f.dibujo.Primitivas();
    Dibuja();
    EXPECT_EQ(f.dibujo.Primitivas(), antes);
    std::size_t puntos = 0;
    for (const auto& p : Con(Papel::Cauce))
        puntos += p.cuantos;
    EXPECT_EQ(puntos, 7000U);
    EXPECT_EQ(Con(Papel::Icono).size(), 160U);
    EXPECT_EQ(Con(Papel::Nombre).size(), 160U);
}

}  // namespace
