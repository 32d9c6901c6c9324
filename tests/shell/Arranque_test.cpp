// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Arranque.h"

#include <gtest/gtest.h>

#include "model/ArchivoConf.h"
#include "model/Configuracion.h"
#include "model/Siro.h"
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
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(UltimoArchivo(), "");
    EXPECT_FALSE(s.Proyecto.ConfPendiente);
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
}

// The mark of a delivery that found no room.
TEST_F(Arranque, LoQueNoSePudoCopiarSeDice)
{
    Arranca();
    EXPECT_TRUE(anfitrion->Avisos().empty());
    disco.Pon(model::Ruta(s.Proyecto.DirTrabajo, "siro_entrega.tmp"), "");
    Arranca();
    ASSERT_EQ(anfitrion->Avisos().size(), 1U);
    EXPECT_EQ(
        anfitrion->Avisos()[0].texto,
        "No se pudieron copiar todos los archivos que trae el programa, tal vez por falta de lugar en el "
        "disco. Se intentará otra vez en el próximo arranque. Carpeta: " +
            s.Proyecto.DirTrabajo);
}

TEST_F(Arranque, ElUltimoProyectoSeOfreceYNoSeAbre)
{
    disco.Pon(Puntero, BytesPuntero(Proyectos, "Mio"));
    Arranca();
    EXPECT_EQ(UltimoArchivo(), model::Ruta(Proyectos, "Mio_Conf.vlm"));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_TRUE(s.Proyecto.ConfPendiente);
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
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
}

TEST_F(Arranque, ElPunteroLeidoTrasLaPortadaReemplazaAlProyectoPorDefecto)
{
    std::string durante;
    portada.AtiendeSucesos = [&] { durante = s.Proyecto.NombreProyecto; };
    disco.Pon(Puntero, BytesPuntero(Proyectos, "Mio"));
    Prepara(s, portada, "0.1.0");
    EXPECT_EQ(durante, "Quelmar");
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Mio");
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
    s.Seleccion.UEHSel = s.Seleccion.CauceSel = 1;
    s.Control.SalidaPizarra = s.Control.ErrorRed = s.Control.AvisoDescargasVisto = s.Proyecto.ProyectoNuevo =
        true;
    s.Red.ColUEHs.Anuncia(3);
    Arranca();
    EXPECT_EQ(s.Seleccion.UEHSel, 0);
    EXPECT_EQ(s.Seleccion.CauceSel, 0);
    EXPECT_EQ(s.Red.NroUEHs(), 0);
    EXPECT_FALSE(s.Control.SalidaPizarra);
    EXPECT_FALSE(s.Control.ErrorRed);
    EXPECT_FALSE(s.Control.AvisoDescargasVisto);
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
}

}  // namespace
}  // namespace shell
