// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgRecuperar.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Componentes.h"
#include "model/Huellas.h"
#include "model/Siro.h"

namespace {

using shell::DiarioHallado;
using shell::dlgRecuperar;
using shell::Mira;
using shell::TrabajoHallado;

/// A project "P" with a UEH and a Lago on the disk, which a program had in hand.
struct Recuperacion : testing::Test {
    Recuperacion()
    {
        disco.PonDirectorio("/proy");
        disco.PonDirectorio("/d");
        s.Disco = disco.Puerta();
        s.Anfitrion = anfitrion.Puerta();
        s.Vigilancia.activa = true;
        s.Proyecto.NombreProyecto = "P";
        s.Proyecto.DirProyecto = "/proy";
        s.Red.ColUEHs.Agrega({.NombreUEH = "u-1", .Area = 5});
        s.Red.ColLagos.Agrega({.NombreLAGO = "l-1"});
        model::GuardaRed(s);
        model::LeeUEHs(s);
        anfitrion->sucesos.clear();
    }
    /// What is in memory, as its journal would hold it.
    DiarioHallado Hallado(std::vector<forms::Contenido> formas = {})
    {
        editor::Historia h;
        editor::EmpiezaHistoria(h, "P", s.Red, {});
        DiarioHallado hallado{.ruta = "/d/x.diario",
                              .diario = {.proyecto = "P",
                                         .conf = "/proy/P_Conf.vlm",
                                         .cuando = "23/11/2026 00:50:12",
                                         .huellas = model::HuellasDelProyecto(s),
                                         .red = editor::Escribe(*h.presente),
                                         .formas = std::move(formas)}};
        disco.Pon(hallado.ruta, shell::Compone(hallado.diario));
        return hallado;
    }
    model::Siro s{};
    apoyo::AnfitrionPrueba anfitrion{};
    apoyo::DiscoPrueba disco{};
    dlgRecuperar f{};
};

TEST_F(Recuperacion, LoQueEstaEnLosArchivosNoSeOfrece)
{
    EXPECT_TRUE(EstaGuardado(Mira(s, Hallado())));
    EXPECT_FALSE(EstaGuardado(Mira(s, Hallado({{.ventana = "dlgPp", .titulo = "Lluvia"}}))));
    s.Red.ColUEHs.Item(1).Area = 6;
    EXPECT_FALSE(EstaGuardado(Mira(s, Hallado())));
}

TEST_F(Recuperacion, DiceQueHabiaYQueHaCambiado)
{
    s.Red.ColUEHs.Item(1).Area = 6;
    for (const char* const n : {"u-2", "u-3", "u-4", "u-5", "u-6", "u-7", "u-8"})
        s.Red.ColUEHs.Agrega({.NombreUEH = n});
    s.Red.ColLagos.Vacia();
    const forms::Contenido forma{.ventana = "dlgPp",
                                 .titulo = "Carga de Datos",
                                 .campos = {{"txtPp", "Lámina", "80"}, {"txtDur", "Duración", ""}},
                                 .tablas = {{"t", "", {{"H", "A"}, {"1", "2"}}}}};
    Abre(f, {Mira(s, Hallado({forma}))});
    EXPECT_TRUE(f.abierta);
    EXPECT_EQ(f.lstTrabajos, std::vector<std::string>{"P   23/11/2026 00:50:12"});
    EXPECT_EQ(f.lblProyecto, "/proy/P_Conf.vlm");
    EXPECT_EQ(f.lblRed,
              "7 componentes nuevos (u-2, u-3, u-4, u-5, u-6, u-7, ...); 1 cambiado (u-1); 1 quitado (l-1)");
    EXPECT_EQ(f.lblFormas, "Carga de Datos");
    EXPECT_EQ(f.txtFormas, "Carga de Datos\nLámina\t80\n\nH\tA\n1\t2\n");
    EXPECT_EQ(f.lblArchivos, "están como entonces");
    const DiarioHallado hallado = Hallado();
    disco.Pon("/proy/P_UEHs.vlm", "otra cosa");
    disco.Quita("/proy/P_VerCau.vlm");
    Abre(f, {Mira(s, hallado)});
    EXPECT_EQ(f.lblArchivos,
              "han cambiado después: P_UEHs.vlm, P_VerCau.vlm. Se recupera sobre ellos, sin guardar");
    EXPECT_TRUE(f.SePuede());
}

TEST_F(Recuperacion, RecuperarPideElElegidoYMasTardeNada)
{
    DiarioHallado uno = Hallado(), otro = Hallado();
    uno.diario.cuando = "antes";
    uno.ruta = "/d/w.diario";
    s.Red.ColUEHs.Item(1).Area = 6;
    Abre(f, {Mira(s, uno), Mira(s, otro)});
    EXPECT_EQ(f.elegido, 1);  // the newest
    shell::lstTrabajos_Click(f, 0);
    EXPECT_EQ(f.lblCuando, "antes");
    shell::CancelButton(f);
    EXPECT_FALSE(f.abierta);
    EXPECT_FALSE(f.pedido);
    EXPECT_TRUE(disco.Esta("/d/x.diario"));
    Abre(f, {Mira(s, uno), Mira(s, otro)});
    shell::OKButton(f);
    EXPECT_FALSE(f.abierta);
    ASSERT_TRUE(f.pedido);
    EXPECT_EQ(f.pedido->hallado.ruta, "/d/x.diario");
    Abre(f, {});
    EXPECT_FALSE(f.abierta);
    EXPECT_FALSE(f.pedido);
}

TEST_F(Recuperacion, DescartarPreguntaYNoPierdeNada)
{
    s.Red.ColUEHs.Item(1).Area = 6;
    const std::string bytes = shell::Compone(Hallado().diario);
    Abre(f, {Mira(s, Hallado())});
    anfitrion->respuestas = {false};
    shell::cmdDescartar(f, s);
    EXPECT_TRUE(f.abierta);
    EXPECT_TRUE(disco.Esta("/d/x.diario"));
    EXPECT_EQ(
        anfitrion->Preguntas().back().texto,
        "Lo que no se guardó del proyecto P el 23/11/2026 00:50:12 va a la papelera. ¿Desea descartarlo?");
    shell::cmdDescartar(f, s);  // without a trash among those given up
    EXPECT_FALSE(f.abierta);
    EXPECT_FALSE(disco.Esta("/d/x.diario"));
    EXPECT_EQ(disco.Bytes("/d/Descartados/x.diario"), bytes);
    EXPECT_FALSE(f.pedido);

    Abre(f, {Mira(s, Hallado())});
    anfitrion->hayPapelera = true;
    shell::cmdDescartar(f, s);
    EXPECT_EQ(anfitrion->tirados, std::vector<std::string>{"/d/x.diario"});
}

TEST_F(Recuperacion, ElDanadoSeDiceYQueda)
{
    const DiarioHallado danado{
        .ruta = "/d/x.diario", .diario = {}, .dano = "El diario está dañado: no se lo puede leer."};
    Abre(f, {Mira(s, danado)});
    EXPECT_EQ(f.lblProyecto, "El diario está dañado: no se lo puede leer. Queda donde está.");
    EXPECT_EQ(f.lstTrabajos, std::vector<std::string>{"dañado: x.diario"});
    EXPECT_FALSE(f.SePuede());
    shell::OKButton(f);
    EXPECT_FALSE(f.pedido);
    DiarioHallado conRedMala = Hallado();
    conRedMala.diario.red->uehs.resize(20);
    Abre(f, {Mira(s, conRedMala)});
    EXPECT_FALSE(f.SePuede());
}

TEST_F(Recuperacion, SinArchivosDelProyectoSeMiraIgual)
{
    s.Red.ColUEHs.Item(1).Area = 6;
    const DiarioHallado hallado = Hallado();
    disco.Quita("/proy");
    Abre(f, {Mira(s, hallado)});
    EXPECT_TRUE(f.SePuede());
    EXPECT_EQ(f.lblRed, "2 componentes nuevos (u-1, l-1)");
}

}  // namespace
