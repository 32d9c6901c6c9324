// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Inicio.h"

#include <gtest/gtest.h>

#include <string>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "shell/MDIForm1.h"

namespace shell {
namespace {

using model::Ruta;
using Lista = std::vector<ProyectoReciente>;

TEST(Recientes, ElDeAhoraVaPrimeroUnaSolaVez)
{
    Lista lista;
    AnotaReciente(lista, {"/p/A_Conf.vlm", "Uno", "hoy"});
    AnotaReciente(lista, {"/p/B_Conf.vlm", "Dos", "hoy"});
    AnotaReciente(lista, {"/p/A_Conf.vlm", "Otra", "luego"});
    EXPECT_EQ(lista, (Lista{{"/p/A_Conf.vlm", "Otra", "luego"}, {"/p/B_Conf.vlm", "Dos", "hoy"}}));
}

TEST(Recientes, DelOnceavoSeOlvida)
{
    Lista lista;
    for (int i = 1; i <= 11; ++i)
        AnotaReciente(lista, {"/p/" + std::to_string(i) + "_Conf.vlm", "", ""});
    ASSERT_EQ(lista.size(), 10U);
    EXPECT_EQ(lista.front().ruta, "/p/11_Conf.vlm");
    EXPECT_EQ(lista.back().ruta, "/p/2_Conf.vlm");
}

struct EnInicio : testing::Test {
    EnInicio()
    {
        s.Anfitrion = anfitrion.Puerta();
        s.Disco = disco.Puerta();
        s.Proyecto.DirTrabajo = "/siro";
        s.Proyecto.DirProyecto = "/p";
        disco.PonDirectorio("/p");
    }
    std::vector<Paso> Pasos(const RedGuardada& red = {}, const CorridaHecha& corrida = {})
    {
        return PasosDelProyecto(s, red, corrida);
    }

    model::Siro s{};
    apoyo::DiscoPrueba disco{};
    apoyo::AnfitrionPrueba anfitrion{};
};

TEST_F(EnInicio, UnProyectoDeLaListaDiceCuencaFechaYCarpetaOQueNoEsta)
{
    disco.Pon("/p/A_Conf.vlm", "");
    const std::string conf = Ruta("/p", "A_Conf.vlm");
    const ProyectoReciente a{conf, "Río Sí", "22/11/2026 10:00"};
    EXPECT_EQ(EntradaDe(s.Disco, a), (Entrada{"A", "22/11/2026 10:00 · Río Sí · /p", true}));
    EXPECT_EQ(EntradaDe(s.Disco, {conf, "", ""}), (Entrada{"A", "/p", true}));
    EXPECT_EQ(EntradaDe(s.Disco, {Ruta("/no", "B_Conf.vlm"), "Dos", "ayer"}),
              (Entrada{"B", "No está en /no", false}));
    EXPECT_EQ(EntradaDe(s.Disco, {"B_Conf.vlm", "", ""}).habilitada, false);
    EXPECT_EQ(EntradaDe(s.Disco, {"", "", ""}).habilitada, false);
    EXPECT_EQ(EntradaDe(s.Disco, {Ruta("/p", "<b>&x_Conf.vlm"), "", ""}).titulo, "<b>&x");
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(EnInicio, SoloUnProyectoGuardadoTieneArchivo)
{
    EXPECT_EQ(ConfEnMano(s), "");
    s.Proyecto.NombreProyecto = "A";
    EXPECT_EQ(ConfEnMano(s), "");
    disco.Pon("/p/A_Conf.vlm", "");
    EXPECT_EQ(ConfEnMano(s), Ruta("/p", "A_Conf.vlm"));
}

TEST_F(EnInicio, LoEntregadoEstaOFalta)
{
    EXPECT_EQ(ProyectoDeMuestra(s), "");
    EXPECT_FALSE(HayTutorial(s));
    disco.Pon("/siro/Proyectos/Quelmar_Conf.vlm", "");
    disco.Pon("/siro/Ayuda/tutorial.html", "");
    EXPECT_EQ(ProyectoDeMuestra(s), Ruta(Ruta("/siro", "Proyectos"), "Quelmar_Conf.vlm"));
    EXPECT_TRUE(HayTutorial(s));
}

TEST_F(EnInicio, DeUnProyectoNuevoFaltaTodo)
{
    s.Proyecto.NombreProyecto = "A";
    EXPECT_EQ(
        Pasos(),
        (std::vector<Paso>{
            {{"1. Configuración", "Falta guardarla"}, EstadoPaso::Falta, "mnuOpcionesConfigurar"},
            {{"2. Red", "Falta dibujarla: todavía no tiene componentes"}, EstadoPaso::Falta, "mnufrmUEHs"},
            {{"3. Tormenta", "Falta elegirla"}, EstadoPaso::Falta, "mnufrmPp"},
            {{"4. Corrida", "Falta: todavía no se ha corrido"}, EstadoPaso::Falta, "mnuCorre1"},
        }));
}

TEST_F(EnInicio, LoHechoDiceQueEs)
{
    s.Proyecto.NombreProyecto = "A";
    disco.Pon("/p/A_Conf.vlm", "");
    s.frmConfigura.TextProyecto = "Defensa del Norte";
    s.frmConfigura.TextCuenca = "Río <i>Sí</i>";
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 90;
    const auto pasos = Pasos({1, 2, 1, 0}, {.hay = true, .cuando = "10:00", .avisos = "2 avisos"});
    EXPECT_EQ(pasos[0].entrada.detalle, "Defensa del Norte · Río <i>Sí</i>");
    EXPECT_EQ(pasos[1].entrada.detalle, "1 UEH, 2 cauces, 1 represa");
    EXPECT_EQ(pasos[2].entrada.detalle, "Tormenta: P 60 mm, D 90 min, intensidad constante, pasos 10/10 min");
    EXPECT_EQ(pasos[3].entrada.detalle, "10:00 · 2 avisos");
    for (const Paso& paso : pasos)
        EXPECT_EQ(paso.estado, EstadoPaso::Hecho) << paso.entrada.titulo;
    s.frmConfigura.TextProyecto = s.frmConfigura.TextCuenca = "";
    EXPECT_EQ(Pasos()[0].entrada.detalle, "Sin título · sin cuenca");
}

TEST_F(EnInicio, SinUEHNoHayRed)
{
    s.Proyecto.NombreProyecto = "A";
    const Paso red = Pasos({0, 2, 0, 1})[1];
    EXPECT_EQ(red.estado, EstadoPaso::Falta);
    EXPECT_EQ(red.entrada.detalle, "Falta una UEH: 0 UEHs, 2 cauces, 1 lago");
}

TEST_F(EnInicio, UnaSerieSinTormentasNoEsTormentaYSeCorrePorSuOrden)
{
    s.Proyecto.NombreProyecto = "A";
    s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 90;
    EXPECT_EQ(Pasos()[2].estado, EstadoPaso::Falta);
    EXPECT_EQ(Pasos()[3].menu, "mnuCorre2");
    s.Serie.NroSeriePDR = 3;
    EXPECT_EQ(Pasos()[2].estado, EstadoPaso::Hecho);
    s.Tormenta.FormaPp = model::FormaLluvia::PorUEH;
    s.Tormenta.PpTormenta = 0;
    EXPECT_EQ(Pasos()[2].estado, EstadoPaso::Hecho);
    s.Tormenta.DurTormenta = 0;
    EXPECT_EQ(Pasos()[2].estado, EstadoPaso::Falta);
}

TEST_F(EnInicio, UnaCorridaViejaSeRepiteYLaDeOtroProyectoNoCuenta)
{
    s.Proyecto.NombreProyecto = "A";
    const Paso vieja = Pasos({}, {.hay = true, .cuando = "10:00", .difiere = "la red ha cambiado"})[3];
    EXPECT_EQ(vieja.estado, EstadoPaso::Repetir);
    EXPECT_EQ(vieja.entrada.detalle, "Hay que repetirla: la red ha cambiado");
    const Paso ajena = Pasos({}, {.hay = true, .deOtro = true, .difiere = "es del proyecto B"})[3];
    EXPECT_EQ(ajena.estado, EstadoPaso::Falta);
}

TEST_F(EnInicio, CadaPasoEsUnaOrdenDelMenu)
{
    s.Proyecto.NombreProyecto = "A";
    for (const std::int16_t forma : {model::FormaLluvia::Escrita, model::FormaLluvia::SeriePDR}) {
        s.Tormenta.FormaPp = forma;
        for (const Paso& paso : Pasos()) {
            const auto filas = MenuMDIForm1();
            EXPECT_TRUE(std::any_of(filas.begin(), filas.end(), [&](const FilaMenu& f) {
                return f.nombre == paso.menu && f.rutina != nullptr;
            })) << paso.menu;
        }
    }
}

// The sample has 15 UEHs, 12 reaches, two dams and a lake, as its README tells.
TEST_F(EnInicio, LaRedSeCuentaEnElDiscoSinTocarLaDeMemoria)
{
    s.Disco = model::DiscoDelSistema();
    s.Proyecto.DirProyecto = SIRO_DATA_DIR "/Proyectos";
    s.Proyecto.NombreProyecto = "Quelmar";
    EXPECT_EQ(RedEnDisco(s), (RedGuardada{15, 12, 2, 1}));
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    s.Proyecto.NombreProyecto = "NoEsta";
    EXPECT_EQ(RedEnDisco(s), RedGuardada{});
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

}  // namespace
}  // namespace shell
