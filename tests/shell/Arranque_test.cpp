// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Arranque.h"

#include <gtest/gtest.h>

#include "model/Configuracion.h"
#include "shell/EscenaDePrueba.h"

namespace shell {
namespace {

struct Arranque : EscenaDePrueba {
    Arranque() { anfitrion->pasoReloj = 0.5; }
    std::vector<std::string> pasos{};
    Portada portada{
        .Abre = [this](const std::string& version) { pasos.push_back("abre " + version); },
        .AtiendeSucesos = [this] { pasos.emplace_back("sucesos"); },
        .Cierra = [this] { pasos.emplace_back("cierra"); },
    };
    void Arranca()
    {
        Prepara(s, portada, "0.1.0");
        AlAbrirse(f, s);
    }
    const std::string& UltimoArchivo() const { return f.Estado(Variable::mnu_ultimoarchivo1).leyenda; }
};

TEST_F(Arranque, SinPunteroNoHayProyectoNiUltimoArchivoYSeEscribeElDirectorioPorDefecto)
{
    Arranca();
    EXPECT_EQ(s.NombreProyecto, "");
    EXPECT_EQ(UltimoArchivo(), "");
    EXPECT_FALSE(s.ConfPendiente);
    EXPECT_EQ(s.DirProyecto, Proyectos);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
}

TEST_F(Arranque, ElUltimoProyectoSeOfreceYNoSeAbre)
{
    disco.Pon(Puntero, BytesPuntero(Proyectos, "Mio"));
    Arranca();
    EXPECT_EQ(UltimoArchivo(), model::Ruta(Proyectos, "Mio_Conf.vlm"));
    EXPECT_EQ(s.NombreProyecto, "");
    EXPECT_TRUE(s.ConfPendiente);
}

TEST_F(Arranque, AunqueElUltimoProyectoExistaLosEditoresLoPidenHastaQueSeAbra)
{
    disco.Pon(Puntero, BytesPuntero(Proyectos, "Mio"));
    PonProyecto();
    s.frmConfigura.lblMiArchivoConf = "Mio_Conf.vlm";
    s.frmConfigura.Dir1 = Proyectos;
    model::cmdAplicar(s);
    anfitrion->sucesos.clear();
    Arranca();
    EXPECT_EQ(Elige("mnuEditfrmUEHsTabla"), Lista{});
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    Elige("mnu_ultimoarchivo1");
    EXPECT_EQ(Elige("mnuEditfrmUEHsTabla"), Lista{"abre dlgUEHsEditTabla"});
}

TEST_F(Arranque, UnUltimoProyectoQueSeFueYaNoSeReabre)
{
    disco.Pon(Puntero, BytesPuntero(Proyectos, "Mio"));
    Arranca();
    Elige("mnu_ultimoarchivo1");
    EXPECT_EQ(s.NombreProyecto, "");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
}

TEST_F(Arranque, ElPunteroLeidoTrasLaPortadaReemplazaAlProyectoPorDefecto)
{
    std::string durante;
    portada.AtiendeSucesos = [&] { durante = s.NombreProyecto; };
    disco.Pon(Puntero, BytesPuntero(Proyectos, "Mio"));
    Prepara(s, portada, "0.1.0");
    EXPECT_EQ(durante, "Quelmar");
    EXPECT_EQ(s.NombreProyecto, "Mio");
}

TEST_F(Arranque, LaPortadaMuestraLaVersionUnSegundoYMedio)
{
    Arranca();
    EXPECT_EQ(pasos, (Lista{"abre Version 0.1.0", "sucesos", "sucesos", "sucesos", "cierra"}));
}

TEST_F(Arranque, SinEsperaLaPortadaAtiendeUnaVez)
{
    Prepara(s, portada, "1.2.3", 0);
    EXPECT_EQ(pasos, (Lista{"abre Version 1.2.3", "sucesos", "cierra"}));
}

TEST_F(Arranque, EmpiezaSinSeleccionNiBanderasDeCorrida)
{
    s.UEHSel = s.CauceSel = 1;
    s.SalidaPizarra = s.ErrorRed = s.AvisoDescargasVisto = s.ProyectoNuevo = true;
    s.NroUEHs = 3;
    Arranca();
    EXPECT_EQ(s.UEHSel, 0);
    EXPECT_EQ(s.CauceSel, 0);
    EXPECT_EQ(s.NroUEHs, 0);
    EXPECT_FALSE(s.SalidaPizarra);
    EXPECT_FALSE(s.ErrorRed);
    EXPECT_FALSE(s.AvisoDescargasVisto);
    EXPECT_FALSE(s.ProyectoNuevo);
}

// --- the program's own directory -----------------------------------------------------------------------

struct DirectorioPropio : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string programa = model::Ruta("", "programa");
    const std::string usuario = model::Ruta("", "usuario");
    const std::string entregado = model::Ruta("", "entregado");
    DirectorioPropio()
    {
        disco.PonDirectorio(programa);
        disco.PonDirectorio(usuario);
        disco.Pon(model::Ruta(entregado, "distriPp_dpt.vlm"), "tabla");
        disco.Pon(model::Ruta(model::Ruta(entregado, "Proyectos"), "Quelmar_Conf.vlm"), "conf");
    }
    std::string Prepara() { return PreparaDirTrabajo(disco.Puerta(), programa, usuario, entregado); }
};

TEST_F(DirectorioPropio, EsElDelEjecutableDondeSePuedeEscribir)
{
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(disco.Bytes(model::Ruta(programa, "distriPp_dpt.vlm")), "tabla");
    EXPECT_EQ(disco.Bytes(model::Ruta(model::Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")), "conf");
}

TEST_F(DirectorioPropio, NoDejaNadaDeLaPruebaDeEscritura)
{
    PreparaDirTrabajo(disco.Puerta(), programa, usuario, "");
    EXPECT_EQ(disco.Archivos().size(), 2U);  // those of the delivery
}

TEST_F(DirectorioPropio, DondeNoSePuedeEscribirEsElDelUsuario)
{
    disco.Protege(programa);
    EXPECT_EQ(Prepara(), usuario);
    EXPECT_EQ(disco.Bytes(model::Ruta(usuario, "distriPp_dpt.vlm")), "tabla");
    EXPECT_FALSE(disco.Esta(model::Ruta(programa, "distriPp_dpt.vlm")));
}

TEST_F(DirectorioPropio, LoQueElUsuarioYaTieneSeRespeta)
{
    disco.Pon(model::Ruta(programa, "distriPp_dpt.vlm"), "la mía");
    Prepara();
    EXPECT_EQ(disco.Bytes(model::Ruta(programa, "distriPp_dpt.vlm")), "la mía");
}

TEST_F(DirectorioPropio, DespuesDelPrimerArranqueNoSeCopiaMas)
{
    disco.Pon(model::Ruta(programa, "VelmirDir.vlm"), "");
    Prepara();
    EXPECT_FALSE(disco.Esta(model::Ruta(programa, "distriPp_dpt.vlm")));
}

TEST_F(DirectorioPropio, LoQueNoSePuedeCopiarSeDejaYElRestoVa)
{
    disco.Protege(model::Ruta(entregado, "distriPp_dpt.vlm"));
    disco.PonDirectorio(model::Ruta(programa, "distriPp_dpt.vlm"));  // in the way of the copy
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(disco.Bytes(model::Ruta(model::Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")), "conf");
}

}  // namespace
}  // namespace shell
