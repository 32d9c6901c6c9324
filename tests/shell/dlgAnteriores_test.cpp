// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/dlgAnteriores.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "apoyo/AnfitrionPrueba.h"
#include "apoyo/DiscoPrueba.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Siro.h"

namespace shell {
namespace {

using Filas = std::vector<std::vector<std::string>>;

/// The project "Arroyo" with two UEHs, saved through the door that keeps versions, a minute between saves.
struct VersionesDePrueba : testing::Test {
    VersionesDePrueba()
    {
        disco.PonDirectorio("/casa");
        disco.PonDirectorio("/proyectos");
        anteriores = {disco.Puerta(), "/casa/Anteriores", [this] { return reloj; }};
        s.Anfitrion = anfitrion.Puerta();
        s.Anfitrion.EligeDestino = [this](std::string_view, std::string_view, std::string_view) {
            return destino;
        };
        s.Anfitrion.ResguardaDibujo = [this](model::Riesgo) { return sigue; };
        s.Disco = model::ConAnteriores(anteriores, [](const std::string&) {});
        s.Proyecto.NombreProyecto = "Arroyo";
        s.Proyecto.DirProyecto = s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = s.frmConfigura.Dir1 =
            "/proyectos";
        s.frmConfigura.TextProyecto = "Cañadón";
        model::EscribeConf(s);
        for (const char* nombre : {"u-1", "u-2"})
            s.Red.ColUEHs.Agrega({.NombreUEH = nombre, .Area = 250});
        Guarda();
    }
    void Guarda()
    {
        reloj += 60;
        model::GuardaRed(s);
        anfitrion->sucesos.clear();
    }
    void PonArea(float area)
    {
        s.Red.ColUEHs.Item(1).Area = area;
        Guarda();
    }
    void Abre() { shell::Abre(f, s, anteriores); }
    float AreaEnDisco()
    {
        model::LeeUEHs(s);
        return s.Red.ColUEHs.Item(1).Area;
    }

    std::string destino{};
    bool sigue = true;
    std::int64_t reloj = 1795314300;
    apoyo::DiscoPrueba disco;
    apoyo::AnfitrionPrueba anfitrion;
    model::Anteriores anteriores;
    model::Siro s;
    dlgAnteriores f;
};

TEST_F(VersionesDePrueba, SinNingunaDiceCuandoLasHabra)
{
    disco.Quita("/casa/Anteriores");
    Abre();
    EXPECT_EQ(f.Proyecto(), "/proyectos/Arroyo");
    EXPECT_EQ(f.lblQueHacer.find("Todavía no hay versiones anteriores de este proyecto"), 0U);
    EXPECT_EQ(f.Elegida(), nullptr);
    EXPECT_FALSE(cmdTraer(f, s, anteriores));
    EXPECT_TRUE(anfitrion->sucesos.empty());
}

TEST_F(VersionesDePrueba, CadaUnaDiceQueCambioFrenteALoDeAhoraYALaQueLaPrecede)
{
    PonArea(300);
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-3", .Area = 10});
    Guarda();
    PonArea(350);
    Abre();
    // The newest first. What was there before the first network has only a configuration.
    ASSERT_EQ(f.tblVersiones.planilla.filas.size(), 4U);
    const Filas& filas = f.tblVersiones.planilla.filas;
    EXPECT_EQ(filas[0][0], Momento(reloj));
    EXPECT_EQ(filas[0][1], "1 componente cambia");
    EXPECT_EQ(filas[0][2], "1 más");
    EXPECT_EQ(filas[1][1], "1 componente cambia, 1 más");
    EXPECT_EQ(filas[1][2], "1 componente cambia");
    EXPECT_EQ(filas[2][1], "1 componente cambia, 1 más");
    EXPECT_EQ(filas[3][1], "3 más");
    EXPECT_EQ(filas[3][2], "Es la primera");
    Elige(f, 1);
    EXPECT_EQ(f.tblDiferencias.planilla.filas,
              (Filas{{"UEH u-1", "Area", "300", "350"}, {"UEH u-3", "Componente", "no está", "está"}}));
    f.cmbContra.indice = 1;
    Elige(f, 1);
    EXPECT_EQ(f.tblDiferencias.planilla.filas, (Filas{{"UEH u-1", "Area", "300", "250"}}));
    EXPECT_EQ(
        ComoPlanilla(f).titulos,
        (std::vector<std::string>{"Proyecto /proyectos/Arroyo, versión hasta el " +
                                  Momento(f.fichas[1].momento) + ", frente a la versión que la precede"}));
}

TEST_F(VersionesDePrueba, LosDemasArchivosSeComparanPorRenglones)
{
    reloj += 60;
    s.frmConfigura.TextProyecto = "Ñandú";
    model::EscribeConf(s);
    reloj += 3600;
    s.Disco.Reemplaza({{"/proyectos/Arroyo_Estudio.json", "{}"}});
    Abre();
    Elige(f, 1);
    // The title is the second line of the configuration.
    EXPECT_EQ(f.tblDiferencias.planilla.filas,
              (Filas{{"Arroyo_Conf.vlm", "Renglón 2", "\"Cañadón\"", "\"Ñandú\""},
                     {"Arroyo_Estudio.json", "Archivo", "no está", "está"}}));
    EXPECT_EQ(f.tblVersiones.planilla.filas[1][1], "Arroyo_Conf.vlm, Arroyo_Estudio.json");
}

TEST_F(VersionesDePrueba, TraerPreguntaPoneAquellaYLaDeAhoraQueda)
{
    PonArea(300);
    PonArea(350);
    Abre();
    Elige(f, 1);
    anfitrion->respuestas = {false};
    EXPECT_FALSE(cmdTraer(f, s, anteriores));
    EXPECT_EQ(AreaEnDisco(), 350);
    ASSERT_EQ(anfitrion->Preguntas().size(), 1U);
    EXPECT_NE(
        anfitrion->Preguntas()[0].texto.find("Los archivos del proyecto /proyectos/Arroyo se reemplazan"),
        std::string::npos);
    sigue = false;
    anfitrion->respuestas = {true, true};
    EXPECT_FALSE(cmdTraer(f, s, anteriores)) << "the drawing is kept";
    EXPECT_EQ(AreaEnDisco(), 350);
    sigue = true;
    EXPECT_TRUE(cmdTraer(f, s, anteriores));
    EXPECT_EQ(AreaEnDisco(), 250);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Arroyo");
    // And back again.
    Elige(f, 0);
    EXPECT_EQ(f.tblDiferencias.planilla.filas, (Filas{{"UEH u-1", "Area", "350", "250"}}));
    anfitrion->respuestas = {true};
    EXPECT_TRUE(cmdTraer(f, s, anteriores));
    EXPECT_EQ(AreaEnDisco(), 350);
}

TEST_F(VersionesDePrueba, UnDiscoQueSeNiegaSeDiceYElProyectoQueda)
{
    PonArea(300);
    Abre();
    disco.Protege("/proyectos");
    anfitrion->respuestas = {true};
    EXPECT_FALSE(cmdTraer(f, s, anteriores));
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
    disco.Protege("/proyectos", false);
    EXPECT_EQ(AreaEnDisco(), 300);
}

TEST_F(VersionesDePrueba, UnaDanadaSeNombraYNoSeTrae)
{
    PonArea(300);
    Abre();
    const std::string archivo = f.fichas[0].Archivo();
    disco.Pon("/casa/Anteriores/" + archivo, "basura");
    Abre();
    EXPECT_EQ(f.tblVersiones.planilla.filas[0][1], "Dañada");
    EXPECT_EQ(f.lblQueHacer,
              "El archivo de esta versión está dañado o no se puede leer. Se lo deja como está: " + archivo);
    EXPECT_FALSE(cmdTraer(f, s, anteriores));
    EXPECT_FALSE(cmdAparte(f, s, anteriores));
    EXPECT_EQ(disco.Bytes("/casa/Anteriores/" + archivo), "basura");
}

TEST_F(VersionesDePrueba, AparteSeEscribeYSeAbreSinTaparNada)
{
    PonArea(300);
    disco.PonDirectorio("/otra");
    Abre();
    EXPECT_FALSE(cmdAparte(f, s, anteriores)) << "the user thought better of it";
    destino = "/otra/Arroyo_Conf.vlm";
    EXPECT_TRUE(cmdAparte(f, s, anteriores));
    EXPECT_EQ(s.Proyecto.DirProyecto, "/otra");
    EXPECT_EQ(AreaEnDisco(), 250);
    Abre();
    EXPECT_EQ(f.Proyecto(), "/otra/Arroyo");
    f.cmbProyecto.Elige("/proyectos/Arroyo");
    cmbProyecto_Click(f, anteriores);
    anfitrion->sucesos.clear();
    EXPECT_FALSE(cmdAparte(f, s, anteriores)) << "its files are there already";
    EXPECT_EQ(anfitrion->Avisos().size(), 1U);
}

TEST_F(VersionesDePrueba, UnProyectoBorradoEstaEnLaListaYVuelve)
{
    PonArea(300);
    for (const char* cola : {"_Conf.vlm", "_UEHs.vlm", "_VerCau.vlm"})
        disco.Quita("/proyectos/Arroyo" + std::string(cola));
    s.Proyecto.NombreProyecto.clear();
    Abre();
    EXPECT_EQ(f.Proyecto(), "/proyectos/Arroyo");
    EXPECT_EQ(f.tblVersiones.planilla.filas[0][1], "El proyecto no está");
    anfitrion->respuestas = {true};
    EXPECT_TRUE(cmdTraer(f, s, anteriores));
    EXPECT_TRUE(disco.Esta("/proyectos/Arroyo_Conf.vlm"));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "") << "it isn't the one in hand";
    s.Proyecto.NombreProyecto = "Arroyo";
    EXPECT_EQ(AreaEnDisco(), 250);
}

}  // namespace
}  // namespace shell
