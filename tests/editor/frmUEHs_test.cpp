// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmUEHs.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "editor/EditorDePrueba.h"
#include "editor/EnMano.h"
#include "editor/Fondo.h"
#include "model/ArchivoConf.h"
#include "model/Disco.h"

namespace {

using editor::Boton;
using editor::Papel;
using editor::Pedido;
using editor::Puntero;
using editor::Punto;
using editor::Tamano;
using T = editor::Tecla;
using model::Icono;

const model::Mensaje PreguntaGuardar{"¿Desea guardar los cambios realizados en los componentes de UEHs ? ",
                                     "Resguardo de datos de componentes UEHs", Icono::Exclamacion};
const std::string TextoGuardado =
    "Los datos de componentes de Unidades Hidrológicas del proyecto se han guardado correctamente en el "
    "archivo "
    "/proy/Arroyo_VerCau.vlm";

model::Mensaje Falla(const std::string& texto)
{
    return {texto, "", Icono::Ninguno};
}

struct Editor : EditorDePrueba {
    /// One outfall and nothing to warn of.
    void RedSana()
    {
        red.Cauce("c-1", {{100, 300}, {200, 200}});
        red.UEH("u-1", {250, 150}, "c-1", {200, 200});
    }
    void EligeTodo()
    {
        s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
            s.Seleccion.LagoSel = s.Seleccion.VerticeSel = 1;
    }
    [[nodiscard]] std::vector<int> Seleccion() const
    {
        return {s.Seleccion.CauceSel,   s.Seleccion.CauceAnterior, s.Seleccion.UEHSel,
                s.Seleccion.RepresaSel, s.Seleccion.LagoSel,       s.Seleccion.VerticeSel};
    }
};
const std::vector<int> Nada(6, 0);

// --- opening ---

TEST_F(Editor, SeLlamaComoSeLlama)
{
    EXPECT_EQ(editor::TituloFrmUEHs, "Diagrama de Unidades Hidrológicas de Estudio y sus componentes");
}

TEST_F(Editor, AbreACuatroQuintosDeLaPantallaConSusValores)
{
    editor::frmUEHs otro;
    editor::Abre(otro, s, {1600, 1001});
    EXPECT_TRUE(otro.abierta);
    EXPECT_EQ(otro.ventana, (Tamano{1280, 800}));
    EXPECT_EQ(otro.vista.AnchoLinea, 4);
    EXPECT_EQ(otro.vista.TamIcono, 10);
    EXPECT_EQ(otro.vista.EscalaBase, 800);
    EXPECT_EQ(otro.vista.sldEscala, 100);
    EXPECT_EQ(editor::AnchoLogico(otro.vista), 800);
    EXPECT_EQ(otro.vista.ToleranciaVertice, 16);
    EXPECT_EQ(otro.fondo.cmdImagenUEHs, "Imágen");
    EXPECT_EQ(editor::Modo(otro), Boton::Selecciona);
    EXPECT_FALSE(otro.fondo.ImagenVisible);
    EXPECT_FALSE(otro.vista.OrdenVisible);
    EXPECT_FALSE(otro.cambiada);
}

TEST_F(Editor, AlReabrirElIconoSaleDelAnchoAnterior)
{
    editor::cmdAnchoLineaDib_Click(f, s);
    editor::cmdAnchoLineaDib_Click(f, s);  // 9
    Abre();
    EXPECT_FLOAT_EQ(f.vista.TamIcono, 20.8F);  // 1.2 * 9 + 10
    EXPECT_EQ(f.vista.AnchoLinea, 4);
    Abre();
    EXPECT_FLOAT_EQ(f.vista.TamIcono, 14.8F);
}

TEST_F(Editor, SinProyectoNoLeeNada)
{
    editor::frmUEHs otro;
    s.Proyecto.NombreProyecto.clear();
    disco.OlvidaLlamadas();
    editor::Abre(otro, s, {1000, 1000});
    EXPECT_TRUE(otro.abierta);
    EXPECT_EQ(otro.vista.AnchoLinea, 4);
    EXPECT_TRUE(otro.lblEstado.empty());
    EXPECT_TRUE(disco.Llamadas().empty());
}

TEST_F(Editor, LaLineaDeEstadoNombraElProyectoYSuConfiguracionSinGuion)
{
    EXPECT_EQ(f.lblEstado,
              "UEHs : Arroyo_UEHs.vlm     Proyecto: Arroyo     Dir: /proy   Config. : ArroyoConf.vlm");
}

TEST_F(Editor, LaEscalaBaseEsElAnchoMaximoYSinValorPositivoSon800)
{
    struct Fila {
        std::string texto;
        int base;
    };
    for (const auto& [texto, base] : std::vector<Fila>{
             {"1024", 1024}, {"1", 1}, {"0", 800}, {"-5", 800}, {"", 800}, {"x", 800}, {"640.4", 640}}) {
        s.frmConfigura.txtMaxUEHsPixel = texto;
        model::cmdAplicar(s);
        Abre();
        EXPECT_EQ(f.vista.EscalaBase, base) << texto;
    }
}

TEST_F(Editor, UnaEscalaBaseFueraDelTipoSeCuentaYSon800)
{
    s.frmConfigura.txtMaxUEHsPixel = "1E12";
    model::cmdAplicar(s);
    anfitrion->sucesos.clear();
    Abre();
    EXPECT_EQ(Avisos(), (Cajas{Falla("Error Nro. 6 ,DesbordamientoVerifique")}));
    EXPECT_EQ(f.vista.EscalaBase, 800);
}

TEST_F(Editor, AlAbrirLeeLosComponentesReescalaYCentra)
{
    red.Cauce("c-1", {{0, 0}, {1600, 400}});
    Guarda();
    s.Red.ColCauces.Vacia();
    Abre();
    ASSERT_EQ(s.Red.NroCauces(), 1);
    EXPECT_EQ(f.vista.sldEscala, 220);  // 1600 * 1.1 / 800
    EXPECT_EQ(f.vista.origen, (Punto{-80, -680}));
    EXPECT_EQ(Con(Papel::Cauce).size(), 1U);
    EXPECT_EQ(f.vista.ToleranciaVertice, 35);  // 0.02 * 1760
}

TEST_F(Editor, UnProyectoSinCaucesAbreAl100SinReescalar)
{
    red.UEH("u-1", {10, 10});
    red.UEH("u-2", {3000, 10});
    Guarda();
    Abre();
    EXPECT_EQ(s.Red.NroUEHs(), 2);
    EXPECT_EQ(f.vista.sldEscala, 100);
}

TEST_F(Editor, AlAbrirNadaQuedaElegido)
{
    EligeTodo();
    Abre();
    EXPECT_EQ(Seleccion(), Nada);
}

// --- window ---

TEST_F(Editor, ActivarseBorraLaMarcaDelAvisoYEscondeLaPrincipal)
{
    RedSana();
    s.Control.AvisoDescargasVisto = true;
    editor::AlActivarse(f, s);
    EXPECT_FALSE(s.Control.AvisoDescargasVisto);
    EXPECT_FALSE(f.principalVisible);
    EXPECT_EQ(Con(Papel::Icono).size(), 1U);
    editor::AlPerderFoco(f);
    EXPECT_TRUE(f.principalVisible);
}

TEST_F(Editor, ElLienzoEsLaVentanaMenosSusMargenesDesdeCiertoTamano)
{
    f.vista.lienzo = {1, 2};
    editor::Form_Resize(f, {113, 500});  // 1695 by 7500 units of the form
    EXPECT_EQ(f.vista.lienzo, (Tamano{1, 2}));
    editor::Form_Resize(f, {500, 60});  // 7500 by 900
    EXPECT_EQ(f.vista.lienzo, (Tamano{1, 2}));
    editor::Form_Resize(f, {114, 61});  // 1710 by 915
    EXPECT_EQ(f.vista.lienzo, (Tamano{14, 14}));
    editor::Form_Resize(f, {1000, 800});  // 15000 - 1500, 12000 - 700
    EXPECT_EQ(f.vista.lienzo, (Tamano{900, 753}));
}

// --- modes ---

TEST_F(Editor, CadaBotonDeModoLevantaLosOtrosYLimpiaLaSeleccion)
{
    RedSana();
    for (const Boton b :
         {Boton::UEH, Boton::Cauce, Boton::Represa, Boton::LAGO, Boton::LongArea, Boton::Selecciona}) {
        EligeTodo();
        PonModo(b);
        EXPECT_EQ(editor::Modo(f), b);
        EXPECT_EQ(Faltas(), std::vector<std::string>{});
        EXPECT_EQ(Seleccion(), Nada);
        EXPECT_EQ(f.puntero, b == Boton::Selecciona ? Puntero::Flecha : Puntero::Cruz);
        EXPECT_TRUE(Con(Papel::MarcaVertice).empty());
    }
}

TEST_F(Editor, LosDemasBotonesLimpianLaSeleccionYNoCambianElModo)
{
    RedSana();
    for (const Boton b : {Boton::BorraTodo, Boton::SUEH, Boton::GuardaUEHs}) {
        PonModo(Boton::Cauce);
        EligeTodo();
        anfitrion->respuestaDeSiempre = false;
        editor::ToolbarUEHs_ButtonClick(f, s, b);
        EXPECT_EQ(Seleccion(), Nada);
        EXPECT_EQ(editor::Modo(f), Boton::Cauce);
    }
}

TEST_F(Editor, SUEHBajaYLaLevantanLosBorrados)
{
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::SUEH);
    EXPECT_TRUE(f.Abajo(Boton::SUEH));
    Tecla(T::Suprimir);
    EXPECT_FALSE(f.Abajo(Boton::SUEH));
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::SUEH);
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::BorraTodo);
    EXPECT_FALSE(f.Abajo(Boton::SUEH));
}

TEST_F(Editor, GuardarEscribeLosArchivosYLevantaElBoton)
{
    RedSana();
    Parte();
    f.cambiada = true;
    std::optional<Puntero> alGuardar;
    auto avisa = s.Anfitrion.Avisa;
    s.Anfitrion.Avisa = [&, avisa](const model::Mensaje& m) {
        alGuardar = f.puntero;
        avisa(m);
    };
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::GuardaUEHs);
    EXPECT_EQ(Avisos(), (Cajas{Falla(TextoGuardado)}));
    EXPECT_EQ(alGuardar, Puntero::Espera);
    EXPECT_EQ(f.puntero, Puntero::Flecha);
    EXPECT_FALSE(f.Abajo(Boton::GuardaUEHs));
    EXPECT_TRUE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
    EXPECT_FALSE(f.cambiada);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(Editor, GuardarConservaElCauceQueSeEstaDibujando)
{
    RedSana();
    Parte();
    const int cauces = s.Red.ColCauces.Cuenta(), n = cauces + 1;
    PonModo(Boton::Cauce);
    Clic(700, 700);
    Clic(710, 690);
    Clic(720, 650);
    PonModo(Boton::GuardaUEHs);
    EXPECT_EQ(Avisos(), (Cajas{Falla(TextoGuardado)}));
    EXPECT_EQ(editor::Modo(f), Boton::Cauce);
    EXPECT_EQ(f.trazo.ClicsCauce, 3);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), cauces);
    ASSERT_EQ(s.Red.NroVertices(n), 3);
    EXPECT_EQ(Vertice(n, 1), (editor::Punto{700, 700}));
    EXPECT_EQ(Vertice(n, 3), (editor::Punto{720, 650}));
    EXPECT_TRUE(f.cambiada);  // the reach in hand isn't on disk
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
    Clic(730, 640);
    Escribe({"sigue"});
    Tecla(T::Enter);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), n);
    EXPECT_EQ(s.Red.Cauces(n).NombreCauce, "c-sigue");
    EXPECT_EQ(s.Red.NroVertices(n), 4);
}

TEST_F(Editor, ElPrimerCauceDeLaRedSigueEnManoTrasGuardar)
{
    PonModo(Boton::Cauce);
    Clic(100, 100);
    Clic(200, 50);
    PonModo(Boton::GuardaUEHs);
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    ASSERT_EQ(s.Red.NroVertices(1), 2);
    EXPECT_EQ(Vertice(1, 2), (editor::Punto{200, 50}));
}

TEST_F(Editor, BorrarUnaUEHTambienConservaElCauceEnMano)
{
    RedSana();
    red.UEH("u-sobra", {500, 700});
    Parte();
    const int n = s.Red.ColCauces.Cuenta() + 1;
    PonModo(Boton::Cauce);
    Clic(700, 700);
    Clic(710, 690);
    PonModo(Boton::UEH);
    Clic(600, 600);  // its name is cancelled: it is deleted, and the network saved
    EXPECT_EQ(f.trazo.ClicsCauce, 2);
    ASSERT_EQ(s.Red.NroVertices(n), 2);
    EXPECT_EQ(Vertice(n, 2), (editor::Punto{710, 690}));
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(Editor, UnaRedVaciaDicePorDondeEmpezarYComoSalir)
{
    PonModo(Boton::Selecciona);
    EXPECT_EQ(f.lblIndicacion,
              "La red está vacía: elija en la barra qué dibujar. Para salir, cierre la ventana (Alt+F4).");
}

TEST_F(Editor, CadaModoDiceLoQueHaraElProximoClic)
{
    red.Cauce("c-Bajo", {{500, 500}, {400, 400}});
    std::vector<std::string> textos;
    for (const Boton b :
         {Boton::Selecciona, Boton::UEH, Boton::Cauce, Boton::Represa, Boton::LAGO, Boton::LongArea}) {
        PonModo(b);
        textos.push_back(f.lblIndicacion);
    }
    EXPECT_EQ(textos, (std::vector<std::string>{
                          "Clic sobre un componente: lo elige; doble clic: edita sus propiedades.",
                          "Clic: agrega una UHE en ese punto.",
                          "Clic: primer vértice del cauce, en su extremo aguas abajo.",
                          "Clic: agrega una Represa en ese punto.",
                          "Clic: agrega un Lago/Laguna en ese punto.",
                          "Clic: primer punto de la línea que se mide.",
                      }));
    Clic(1, 1);
    EXPECT_EQ(f.lblIndicacion, "Clic: punto siguiente; doble clic: termina y calcula.");
    Clic(2, 2);
    Clic(3, 3);
    EXPECT_EQ(f.lblIndicacion, "Clic: punto siguiente; doble clic o Enter: termina y calcula.");
}

// --- line width, coordinates ---

TEST_F(Editor, ElAnchoDeLineaRecorreSuCiclo)
{
    std::vector<int> anchos;
    std::vector<float> iconos;
    for (int i = 0; i < 7; ++i) {
        editor::cmdAnchoLineaDib_Click(f, s);
        anchos.push_back(f.vista.AnchoLinea);
        iconos.push_back(f.vista.TamIcono);
    }
    EXPECT_EQ(anchos, (std::vector<int>{6, 9, 13, 2, 3, 4, 6}));
    EXPECT_EQ(iconos, (std::vector<float>{13, 17.5F, 23.5F, 7, 8.5F, 10, 13}));
}

TEST_F(Editor, LasCoordenadasBajoElPunteroSeVenEnUnidadesDelDibujo)
{
    editor::picDibujo_MouseMove(f, s, {123.456F, -7}, false);
    EXPECT_EQ(f.lblX, "123.5");
    EXPECT_EQ(f.lblY, "-7");
}

// --- keys and double click ---

TEST_F(Editor, F2YElBotonDerechoPidenElMenu)
{
    Tecla(T::F2);
    editor::picDibujo_MouseDown(f, s, editor::BotonRaton::Derecho, {5, 5});
    EXPECT_EQ(f.pedidos, (std::vector<Pedido>{Pedido::Menu, Pedido::Menu}));
}

TEST_F(Editor, ElBotonDerechoEligeLoQueHayDebajoSiNadaEstaElegido)
{
    red.Cauce("c-a", {{100, 100}, {200, 200}});
    red.UEH("u-a", {400, 100});
    red.Lago("l-a", {600, 100});
    Parte();
    const auto derecho = [this](float x, float y) {
        editor::picDibujo_MouseDown(f, s, editor::BotonRaton::Derecho, {x, y});
        editor::picDibujo_MouseUp(f, s, editor::BotonRaton::Derecho, {x, y});
    };
    derecho(405, 105);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
    EXPECT_EQ(f.pedidos, std::vector<Pedido>{Pedido::Menu});
    // What is selected stays: two ends of a link have been named with the left button.
    derecho(600, 100);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
    EXPECT_EQ(s.Seleccion.LagoSel, 0);
    editor::LimpiaSeleccion(s);
    derecho(200, 200);
    EXPECT_EQ(s.Seleccion.CauceSel, 1);
    EXPECT_EQ(s.Seleccion.VerticeSel, 0);
    Mueve(300, 300);  // nothing is dragged
    EXPECT_EQ(Vertice(1, 2), (editor::Punto{200, 200}));
    editor::LimpiaSeleccion(s);
    derecho(700, 700);
    EXPECT_EQ(s.Seleccion.CauceSel + s.Seleccion.UEHSel + s.Seleccion.LagoSel, 0);
    PonModo(Boton::Cauce);  // a click there would be a vertex, and a double click ends the reach
    derecho(405, 105);
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(f.pedidos.size(), 5U);
}

TEST_F(Editor, DeF3AF6AbrenSuFormaSoloSiHayDeEsaClase)
{
    for (const editor::Tecla t : {T::F3, T::F4, T::F5, T::F6})
        Tecla(t);
    EXPECT_TRUE(f.pedidos.empty());
    red.UEH("u-1", {1, 1});
    red.Cauce("c-1", {{1, 1}, {2, 2}});
    red.Represa("r-1", {1, 1});
    red.Lago("l-1", {1, 1});
    for (const editor::Tecla t : {T::F3, T::F4, T::F5, T::F6})
        Tecla(t);
    EXPECT_EQ(f.pedidos, (std::vector<Pedido>{Pedido::FormaUEH, Pedido::FormaCauce, Pedido::FormaRepresa,
                                              Pedido::FormaLago}));
}

TEST_F(Editor, InsertarAbreLaFormaDelCauceElegido)
{
    RedSana();
    Tecla(T::Insertar);
    EXPECT_TRUE(f.pedidos.empty());
    s.Seleccion.CauceSel = 1;
    Tecla(T::Insertar);
    EXPECT_EQ(f.pedidos, (std::vector<Pedido>{Pedido::FormaCauce}));
}

TEST_F(Editor, ElDobleClicAbrePrimeroCauceDespuesUEHLagoYRepresa)
{
    red.Cauce("c-1", {{1, 1}, {2, 2}});
    red.UEH("u-1", {1, 1});
    red.Lago("l-1", {1, 1});
    red.Represa("r-1", {1, 1});
    EligeTodo();
    editor::picDibujo_DblClick(f, s);
    s.Seleccion.CauceSel = 0;
    editor::picDibujo_DblClick(f, s);
    s.Seleccion.UEHSel = 0;
    editor::picDibujo_DblClick(f, s);
    s.Seleccion.LagoSel = 0;
    editor::picDibujo_DblClick(f, s);
    EXPECT_EQ(f.pedidos, (std::vector<Pedido>{Pedido::FormaCauce, Pedido::FormaUEH, Pedido::FormaLago,
                                              Pedido::FormaRepresa}));
}

TEST_F(Editor, ElDobleClicSinNadaElegidoVuelveASeleccionarYRecentra)
{
    red.Cauce("c-1", {{100, 50}, {300, 150}});
    Parte();
    f.botones.fill(false);
    f.Pon(Boton::LongArea, true);
    editor::picDibujo_DblClick(f, s);
    EXPECT_EQ(editor::Modo(f), Boton::Selecciona);
    EXPECT_FALSE(f.Abajo(Boton::LongArea));
    EXPECT_EQ(f.vista.origen, (Punto{-200, -300}));
}

// --- Enter ---

TEST_F(Editor, EnterColocaALaMitadDeLaExtensionYNoEnElCentro)
{
    red.Cauce("c-1", {{100, 50}, {300, 650}});
    Parte();
    Escribe({"una", "una", "una"});
    PonModo(Boton::UEH);
    Tecla(T::Enter);
    PonModo(Boton::Represa);
    Tecla(T::Enter);
    PonModo(Boton::LAGO);
    Tecla(T::Enter);
    ASSERT_EQ(s.Red.NroUEHs() + s.Red.NroRepresas() + s.Red.NroLagos(), 3);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHx, 100);  // (300 - 100)/2
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHy, 300);  // (650 - 50)/2
    EXPECT_EQ(s.Red.ColRepresas.Item(1).IconoRepresaX, 100);
    EXPECT_EQ(s.Red.ColLagos.Item(1).IconoLAGOy, 300);
}

TEST_F(Editor, EnterEnUnDibujoVacioColocaEnElMedioDeLoQueSeVe)
{
    Escribe({"una"});
    f.vista.origen = {1000, 2000};
    PonModo(Boton::UEH);
    Tecla(T::Enter);
    ASSERT_EQ(s.Red.NroUEHs(), 1);
    // The canvas of 800 by 800 shows the units from 1000 and from 2000 on.
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHx, 1400);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).IconoUEHy, 2400);
}

// --- the keyboard alone ---

struct EditorConTeclado : Editor {
    /// Moves the cross to a pixel with long and short steps, as far as steps of 5 lead.
    void Cruz(int x, int y)
    {
        if (!f.gesto.cruz) editor::picDibujo_Flecha(f, s, 1, 0, false);
        const auto va = [this](int cuanto, bool alLado) {
            for (; cuanto != 0;) {
                const bool largo = std::abs(cuanto) >= 50;
                const int signo = cuanto > 0 ? 1 : -1;
                editor::picDibujo_Flecha(f, s, alLado ? signo : 0, alLado ? 0 : signo, largo);
                cuanto -= signo * (largo ? 50 : 5);
            }
        };
        const editor::Pixel en = editor::APixel(f.vista, *f.gesto.cruz);
        va(x - static_cast<int>(std::lround(en.x)), true);
        va(y - static_cast<int>(std::lround(en.y)), false);
    }
};

TEST_F(EditorConTeclado, LasFlechasMuevenLaCruzDesdeElMedioDelLienzo)
{
    EXPECT_FALSE(f.gesto.cruz);
    editor::picDibujo_Flecha(f, s, 1, 0, false);
    EXPECT_EQ(f.gesto.cruz, (Punto{400, 400}));
    editor::picDibujo_Flecha(f, s, 1, 0, false);
    editor::picDibujo_Flecha(f, s, 0, -1, true);
    EXPECT_EQ(f.gesto.cruz, (Punto{405, 350}));
    EXPECT_EQ(f.lblX, "405");
    EXPECT_EQ(f.lblY, "350");
    Aprieta(10, 10);  // the mouse takes over
    EXPECT_FALSE(f.gesto.cruz);
}

TEST_F(EditorConTeclado, AlBordeElDibujoAcompana)
{
    Cruz(790, 400);
    editor::picDibujo_Flecha(f, s, 1, 0, true);
    EXPECT_EQ(f.gesto.cruz, (Punto{840, 400}));
    EXPECT_EQ(f.vista.origen, (Punto{40, 0}));
    EXPECT_EQ(editor::APixel(f.vista, *f.gesto.cruz), (editor::Pixel{800, 400}));
}

TEST_F(EditorConTeclado, UnCauceSeDibujaYSeTerminaSinRaton)
{
    PonModo(Boton::Cauce);
    Cruz(100, 300);
    Tecla(T::Enter);
    Tecla(T::Enter);  // on its only vertex: nothing
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    Cruz(200, 250);
    Tecla(T::Espacio);
    Cruz(300, 100);
    Tecla(T::Enter);
    EXPECT_EQ(f.trazo.ClicsCauce, 3);
    Escribe({"solo"});
    Tecla(T::Enter);  // on the last one: as a double click
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.Cauces(1).NombreCauce, "c-solo");
    EXPECT_EQ(s.Red.NroVertices(1), 3);
    EXPECT_EQ(Vertice(1, 1), (Punto{100, 300}));
    EXPECT_EQ(Vertice(1, 2), (Punto{200, 250}));
    EXPECT_EQ(Vertice(1, 3), (Punto{300, 100}));
    EXPECT_EQ(editor::Modo(f), Boton::Selecciona);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
}

TEST_F(EditorConTeclado, LaCruzColocaMideYElige)
{
    PonModo(Boton::UEH);
    Cruz(250, 150);
    Escribe({"una"});
    Tecla(T::Enter);
    ASSERT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHx, 250);
    EXPECT_EQ(s.Red.UEHs(1).IconoUEHy, 150);
    EXPECT_EQ(f.gesto.cruz, (Punto{250, 150}));
    PonModo(Boton::Selecciona);
    Cruz(255, 155);
    Tecla(T::Espacio);
    EXPECT_EQ(s.Seleccion.UEHSel, 1);
    EXPECT_FALSE(f.gesto.izquierdoAbajo);
    s.Configuracion.EscalaDibujo = "1";
    PonModo(Boton::LongArea);
    Cruz(100, 100);
    Tecla(T::Enter);
    Cruz(100, 200);
    Tecla(T::Enter);
    Responde({false});
    anfitrion->sucesos.clear();
    Tecla(T::Enter);
    ASSERT_EQ(Avisos().size(), 1U);
    EXPECT_EQ(Avisos()[0].texto, "Perímetro=100 metros");
}

TEST_F(EditorConTeclado, SinCruzElEspacioNoHaceNada)
{
    PonModo(Boton::UEH);
    Tecla(T::Espacio);
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Editor, EnterTerminaElCauceConMasDeUnClic)
{
    PonModo(Boton::Cauce);
    Clic(10, 20);
    Tecla(T::Enter);
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 0);
    Clic(30, 40);
    Escribe({"uno"});
    Tecla(T::Enter);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(editor::Modo(f), Boton::Cauce);
}

TEST_F(Editor, ElDobleClicTerminaElCauceYVuelveASeleccionar)
{
    PonModo(Boton::Cauce);
    Clic(10, 20);
    Escribe({"uno"});
    DobleClic(30, 40);
    ASSERT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.NroVertices(1), 2);
    EXPECT_EQ(editor::Modo(f), Boton::Selecciona);
}

TEST_F(Editor, ElDobleClicConUnSoloClicDejaElCauceSinTerminar)
{
    PonModo(Boton::Cauce);
    DobleClic(30, 40);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 0);
    EXPECT_EQ(f.trazo.ClicsCauce, 1);
    EXPECT_EQ(editor::Modo(f), Boton::Selecciona);
    PonModo(Boton::Cauce);
    Clic(50, 60);
    Escribe({"uno"});
    Tecla(T::Enter);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(Vertice(1, 1), (Punto{30, 40}));
}

// --- zoom and hits ---

TEST_F(Editor, ElMismoPuntoLogicoEligeLoMismoEnTodaEscala)
{
    RedSana();
    Parte();
    for (const int escala : {20, 100, 370, 1000}) {
        editor::sldEscala_Mueve(f, s, escala);
        const editor::Pixel p = editor::APixel(f.vista, {255, 155});
        const Punto bajoElPuntero = editor::DePixel(f.vista, p.x, p.y);
        editor::LimpiaSeleccion(s);
        Clic(bajoElPuntero.X, bajoElPuntero.Y);
        EXPECT_EQ(s.Seleccion.UEHSel, 1) << escala;
    }
}

// --- the sample project ---

TEST_F(Editor, ElProyectoDeMuestraSeVeEntero)
{
    const std::filesystem::path muestra = std::filesystem::path(SIRO_DATA_DIR) / "Proyectos";
    for (const std::string sufijo : {"_Conf.vlm", "_UEHs.vlm", "_VerCau.vlm"})
        disco.Pon("/proy/Quelmar" + sufijo, apoyo::BytesDeArchivo(muestra / ("Quelmar" + sufijo)));
    disco.Pon("/proy/Quelmar.jpg", apoyo::BytesDeArchivo(muestra / "Quelmar.jpg"));
    s.Proyecto.NombreProyecto = "Quelmar";
    Abre();
    ASSERT_GT(s.Red.NroUEHs() * s.Red.NroCauces() * s.Red.NroRepresas() * s.Red.NroLagos(), 0);
    EXPECT_EQ(Faltas(), std::vector<std::string>{});
    EXPECT_EQ(Con(Papel::EnlaceUEH).size(), static_cast<std::size_t>(s.Red.NroUEHs()));
    for (const Punto esquina : {Punto{f.vista.extension.XMin, f.vista.extension.YMin},
                                Punto{f.vista.extension.XMax, f.vista.extension.YMax}}) {
        const editor::Pixel p = editor::APixel(f.vista, esquina);
        EXPECT_TRUE(p.x >= 0 && p.x <= f.vista.lienzo.ancho && p.y >= 0 && p.y <= f.vista.lienzo.alto);
    }
    EXPECT_EQ(editor::RutaImagen(s), model::Ruta("/proy", "Quelmar.jpg"));
    f.fondo.CargaImagen = [](const std::string&) {
        return editor::ImagenCargada{editor::CargaDeImagen::Entera, {800, 600}};
    };
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_TRUE(f.fondo.ImagenVisible);
}

// --- closing ---

TEST_F(Editor, EscConUnaSolaSalidaPreguntaSiGuardaYCierra)
{
    RedSana();
    Parte();
    Responde({false});
    Tecla(T::Esc);
    EXPECT_EQ(Preguntas(), (Cajas{PreguntaGuardar}));
    EXPECT_TRUE(Avisos().empty());
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(f.principalVisible);
    EXPECT_TRUE(f.dibujo.Primitivas().empty());
    EXPECT_FALSE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
}

TEST_F(Editor, AlDecirQueSiGuardaYCierra)
{
    RedSana();
    Parte();
    Responde({true});
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::Salir);
    EXPECT_EQ(Avisos(), (Cajas{Falla(TextoGuardado)}));
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(f.dibujo.Primitivas().empty());
    EXPECT_TRUE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
}

TEST_F(Editor, ConLaRedVaciaEscNoCierraNiPregunta)
{
    Tecla(T::Esc);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    editor::ToolbarUEHs_ButtonClick(f, s, Boton::Salir);
    EXPECT_TRUE(f.abierta);
}

TEST_F(Editor, ConLaRedVaciaElBotonDelMarcoCierraSinPreguntar)
{
    EXPECT_TRUE(editor::Form_QueryUnload(f, s));
    EXPECT_FALSE(f.abierta);
    EXPECT_TRUE(anfitrion->sucesos.empty());
    EXPECT_TRUE(editor::Form_QueryUnload(f, s));
}

TEST_F(Editor, ElBotonDelMarcoEsComoEscSiHayRed)
{
    red.UEH("u-1", {1, 1});
    red.UEH("u-2", {50, 1});  // two outfalls
    Parte();
    Responde({true});  // back to the editor
    EXPECT_FALSE(editor::Form_QueryUnload(f, s));
    EXPECT_TRUE(f.abierta);
    ASSERT_EQ(Preguntas().size(), 1U);
    EXPECT_EQ(Preguntas().front().titulo, "Advertencia !!!");
    Responde({false, false});
    EXPECT_TRUE(editor::Form_QueryUnload(f, s));
    EXPECT_FALSE(f.abierta);
}

TEST_F(Editor, ConUnaSolaSalidaUnAvisoContestadoQueSiCierraIgual)
{
    RedSana();
    red.Cauce("c-2", {{5, 5}, {6, 6}}, "c-1");  // nothing drains into it
    Parte();
    Responde({true, false});
    Tecla(T::Esc);
    ASSERT_EQ(Preguntas().size(), 2U);
    EXPECT_EQ(Preguntas()[0].texto,
              "Hay tramos de Cauces sin aportes de UEHs. Verifique los tramos siguientes y asigne sus UEH o "
              "componentes de aportes: c-2             ¿Desea volver a la ventana de edición  (SI) o "
              "continuar (No) ?");
    EXPECT_EQ(Preguntas()[1], PreguntaGuardar);
    EXPECT_FALSE(f.abierta);
}

TEST_F(Editor, UnAvisoContestadoQueNoDejaCerrar)
{
    red.UEH("u-1", {1, 1});
    red.UEH("u-2", {50, 1});  // two outfalls
    Parte();
    Responde({false, false});
    Tecla(T::Esc);
    ASSERT_EQ(Preguntas().size(), 2U);
    EXPECT_EQ(
        Preguntas()[0].texto,
        "Hay más de un componente de descarga para el sistema (sección final de control). El sistema admite "
        "esta posibilidad para el cálculo para un máximo de 10 componentes, pero si el sistema es de salida "
        "final única debe verificar los campos <Drena a> de los siguientes componentes:u-1    u-2            "
        " "
        "¿Desea volver a la ventana de edición  (SI) o continuar (No) ?");
    EXPECT_EQ(Preguntas()[1], PreguntaGuardar);
    EXPECT_FALSE(f.abierta);
}

TEST_F(Editor, ElAvisoYaVistoDejaElEditorAbiertoSinPreguntarNada)
{
    red.UEH("u-1", {1, 1});
    red.UEH("u-2", {50, 1});
    Parte();
    s.Control.AvisoDescargasVisto = true;
    Tecla(T::Esc);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Editor, UnNoDeUnCierreAnteriorNoVale)
{
    red.UEH("u-1", {1, 1});
    red.UEH("u-2", {50, 1});
    Parte();
    s.Control.ContinuarSinCorregir = s.Control.RedOk = true;
    Responde({true});
    Tecla(T::Esc);
    EXPECT_TRUE(f.abierta);
}

TEST_F(Editor, AlCerrarElCauceSinTerminarSeAbandona)
{
    RedSana();
    Parte();
    s.Red.ColCauces.Anuncia(2);
    s.Red.NroVertices(2) = 1;
    f.trazo.ClicsCauce = 1;
    Responde({false});
    Tecla(T::Esc);
    EXPECT_FALSE(f.abierta);
    EXPECT_EQ(s.Red.NroCauces(), 1);
    EXPECT_EQ(f.trazo.ClicsCauce, 0);
}

// --- background image ---

struct Imagen : Editor {
    std::vector<std::string> pedidas{};
    Imagen()
    {
        f.fondo.CargaImagen = [this](const std::string& ruta) {
            pedidas.push_back(ruta);
            return editor::ImagenCargada{editor::CargaDeImagen::Entera, {640, 480}};
        };
        s.Configuracion.ArchivoImagen = "Arroyo.jpg";
    }
};

TEST_F(Imagen, UnNombreSueltoSeBuscaEnElDirectorioDelProyecto)
{
    EXPECT_EQ(editor::RutaImagen(s), model::Ruta("/proy", "Arroyo.jpg"));
    s.Configuracion.ArchivoImagen = "/mapas/Arroyo.jpg";
    EXPECT_EQ(editor::RutaImagen(s), "/mapas/Arroyo.jpg");
}

TEST_F(Imagen, SePoneYSeQuitaConSusLeyendasYReleeLosComponentes)
{
    RedSana();
    Guarda();
    s.Red.ColUEHs.Item(1).Area = 7;  // not saved
    disco.Pon("/proy/Arroyo.jpg", "x");
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_TRUE(f.fondo.ImagenVisible);
    EXPECT_EQ(f.fondo.cmdImagenUEHs, "Quitar Imágen");
    EXPECT_EQ(f.fondo.imagen, (Tamano{640, 480}));
    EXPECT_EQ(f.fondo.rutaImagen, model::Ruta("/proy", "Arroyo.jpg"));
    EXPECT_EQ(pedidas, (std::vector<std::string>{model::Ruta("/proy", "Arroyo.jpg")}));
    EXPECT_EQ(Con(Papel::Imagen).size(), 1U);
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 0);
    s.Red.ColUEHs.Item(1).Area = 7;
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_FALSE(f.fondo.ImagenVisible);
    EXPECT_EQ(f.fondo.cmdImagenUEHs, "Mostrar Imágen");
    EXPECT_TRUE(Con(Papel::Imagen).empty());
    EXPECT_EQ(s.Red.ColUEHs.Item(1).Area, 0);
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_EQ(f.fondo.cmdImagenUEHs, "Quitar Imágen");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(Imagen, LoQueLaRelecturaQuitoVuelveConDeshacer)
{
    RedSana();
    Guarda();
    disco.Pon("/proy/Arroyo.jpg", "x");
    red.UEH("u-2", {9, 9});
    editor::Anota(f.historia, s.Red, f.trazo);
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_EQ(s.Red.NroUEHs(), 1);
    EXPECT_FALSE(f.cambiada);
    Tecla(T::Deshacer);
    EXPECT_EQ(s.Red.NroUEHs(), 2);
    EXPECT_TRUE(f.cambiada);
}

TEST_F(Imagen, UnArchivoQueNoEstaSeCuentaYLaImagenQuedaQuitada)
{
    RedSana();
    Parte();
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_EQ(Avisos(), (Cajas{Falla("Error Nro. 53 ,No se encontró el archivoVerifique.")}));
    EXPECT_FALSE(f.fondo.ImagenVisible);
    EXPECT_EQ(f.fondo.cmdImagenUEHs, "Imágen");
    EXPECT_EQ(s.Red.NroCauces(), 1);  // nothing was read again
    EXPECT_TRUE(pedidas.empty());
}

TEST_F(Imagen, UnDirectorioQueNoEstaTambien)
{
    s.Configuracion.ArchivoImagen = "/otra/Arroyo.jpg";
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_EQ(Avisos(), (Cajas{Falla("Error Nro. 76 ,No se encontró la ruta de accesoVerifique.")}));
    EXPECT_FALSE(f.fondo.ImagenVisible);
}

TEST_F(Imagen, UnArchivoQueNoEsImagenTambien)
{
    disco.Pon("/proy/Arroyo.jpg", "no");
    f.fondo.CargaImagen = [](const std::string&) { return editor::ImagenCargada{}; };
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_EQ(Avisos(), (Cajas{Falla("Error Nro. 75 ,Error de acceso a la ruta o al archivoVerifique.")}));
    EXPECT_FALSE(f.fondo.ImagenVisible);
}

// The file behind the name, what became of it, what of it is shown, and what the user reads.
TEST_F(Imagen, LoQueLeFaltaAUnaImagenSeDice)
{
    using editor::CargaDeImagen;
    disco.Pon("/proy/Arroyo.jpg", "x");
    const struct {
        CargaDeImagen fin;
        Tamano tamano;
        std::string aviso;
    } casos[] = {
        {CargaDeImagen::Incompleta,
         {640, 480},
         "El archivo de imagen /proy/Arroyo.jpg está incompleto: termina antes que su imagen. Cópielo otra "
         "vez del original."},
        {CargaDeImagen::Incompleta,
         {},
         "El archivo de imagen /proy/Arroyo.jpg está incompleto: termina antes que su imagen. Cópielo otra "
         "vez del original."},
        {CargaDeImagen::MetarchivoMejorado,
         {},
         "El archivo /proy/Arroyo.jpg es un metarchivo mejorado (EMF) aunque su nombre termine en .wmf. "
         "Guárdelo como .png, .jpg o .wmf con el programa que lo hizo."},
        {CargaDeImagen::Excesiva,
         {},
         "El dibujo del archivo /proy/Arroyo.jpg tiene demasiados elementos para servir de fondo. Guárdelo "
         "como .png o .jpg con el programa que lo hizo."},
        {CargaDeImagen::Cancelada, {}, ""},
    };
    for (const auto& caso : casos) {
        anfitrion->sucesos.clear();
        f.fondo.ImagenVisible = false;
        f.fondo.CargaImagen = [&](const std::string&) {
            return editor::ImagenCargada{caso.fin, caso.tamano};
        };
        editor::cmdImagenUEHs_Click(f, s);
        Cajas esperadas;
        if (!caso.aviso.empty())
            esperadas.push_back({caso.aviso, "Advertencia !", model::Icono::Exclamacion});
        EXPECT_EQ(Avisos(), esperadas);
        EXPECT_EQ(f.fondo.ImagenVisible, caso.tamano.ancho > 0);
    }
}

// A map of 100 MB is no file of a project: that it isn't read as one keeps nobody from seeing it.
TEST_F(Imagen, UnaImagenMayorQueLosArchivosDelProyectoSeMuestra)
{
    s.Disco.Lee = [](const std::string&) -> std::string {
        throw model::Falla{model::NumeroFalla::AccesoRuta};
    };
    editor::cmdImagenUEHs_Click(f, s);
    EXPECT_EQ(pedidas, (std::vector<std::string>{model::Ruta("/proy", "Arroyo.jpg")}));
    EXPECT_EQ(f.fondo.imagen, (Tamano{640, 480}));
}

}  // namespace
