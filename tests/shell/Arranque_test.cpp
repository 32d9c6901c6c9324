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

// The mark of a delivery that found no room.
TEST_F(Arranque, LoQueNoSePudoCopiarSeDice)
{
    Arranca();
    EXPECT_TRUE(anfitrion->Avisos().empty());
    disco.Pon(model::Ruta(s.DirTrabajo, "siro_entrega.tmp"), "");
    Arranca();
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(
        anfitrion->Avisos()[0].texto,
        "No se pudieron copiar todos los archivos que trae el programa, tal vez por falta de lugar en el "
        "disco. Se intentará otra vez en el próximo arranque. Carpeta: " +
            s.DirTrabajo);
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

}  // namespace
}  // namespace shell
