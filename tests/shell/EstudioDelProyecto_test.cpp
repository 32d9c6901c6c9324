// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <string>
#include <vector>

#include "EscritorioDePrueba.h"
#include "study/Abierto.h"
#include "study/ArchivoEstudio.h"

namespace shell {
namespace {

using apoyo::Control;
using study::EstadoDeArchivo;

/// The sample project, which has no study, in the whole program.
struct EstudioDelProyecto : EscritorioDePrueba {
    [[nodiscard]] std::string Ruta(const std::string& nombre) const
    {
        return instalacion.Proyectos() + "/" + nombre;
    }
    [[nodiscard]] bool Esta(const std::string& nombre) const { return QFile::exists(forms::Q(Ruta(nombre))); }
    static study::Taller Con(const std::string& estacion)
    {
        study::Taller t;
        t.estaciones = {{.nombre = estacion}};
        return t;
    }
    static std::string Texto(const std::string& estacion)
    {
        return study::EscribeEstudio({.taller = Con(estacion)});
    }
    void Cambia(const std::string& estacion)
    {
        escritorio.entorno.Atiende([&] { Estudio().CambiaTaller("Cambiar", Con(estacion)); });
    }
    study::Abierto& Estudio() { return *escritorio.Estudio().Talleres().Estudio(); }
};

TEST_F(EstudioDelProyecto, SinEstudioNoHayArchivoNiCaja)
{
    Arranca(instalacion.Quelmar());
    QCoreApplication::processEvents();
    for (const model::Mensaje& caja : anfitrion->Avisos())
        EXPECT_NE(caja.titulo, "Estudio") << caja.texto;
    EXPECT_FALSE(Esta("Quelmar_Estudio.json"));
    EXPECT_EQ(Estudio().Archivo(), (EstadoDeArchivo{EstadoDeArchivo::Clase::Guardado, ""}));
}

TEST_F(EstudioDelProyecto, UnoDanadoSeDiceYElProyectoSeAbreIgual)
{
    escritorio.s.Disco.Escribe(Ruta("Quelmar_Estudio.json"), "{\n\"version\": 9}\n");
    Arranca(instalacion.Quelmar());
    QTRY_COMPARE(anfitrion->sucesos.size(), 1U);
    EXPECT_EQ(anfitrion->Avisos()[0].texto.find(
                  "El estudio Quelmar_Estudio.json no se puede leer. Renglón 2: es de una "
                  "versión posterior del programa"),
              0U);
    EXPECT_EQ(Rotulo("lblProyecto"), "Quelmar");
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(anfitrion->sucesos.size(), 1U);
}

TEST_F(EstudioDelProyecto, SigueAlProyectoQueSeAbreYSeGuardaConOtroNombre)
{
    escritorio.s.Disco.Escribe(Ruta("Quelmar_Estudio.json"), Texto("Quelmar"));
    Arranca(instalacion.Quelmar());
    QTRY_COMPARE(Estudio().EnMano().taller, Con("Quelmar"));
    Cambia("Uno");
    EXPECT_EQ(escritorio.s.Disco.Lee(Ruta("Quelmar_Estudio.json")), Texto("Uno"));
    anfitrion->textos = {"Copia"};
    Accion("mnuGuardarProyectoComo").trigger();
    ASSERT_EQ(escritorio.s.Proyecto.NombreProyecto, "Copia");
    EXPECT_EQ(Estudio().PorDeshacer(), "Cambiar");
    Cambia("Dos");
    EXPECT_EQ(escritorio.s.Disco.Lee(Ruta("Copia_Estudio.json")), Texto("Dos"));
    EXPECT_EQ(escritorio.s.Disco.Lee(Ruta("Quelmar_Estudio.json")), Texto("Uno"));
    EXPECT_TRUE(anfitrion->Preguntas().empty());

    anfitrion->elegidos = {instalacion.Quelmar()};
    Accion("mnuAbrirProyecto").trigger();
    QTRY_COMPARE(Estudio().EnMano().taller, Con("Uno"));
}

TEST_F(EstudioDelProyecto, EliminarLoListaYLoVacia)
{
    escritorio.s.Anfitrion.TiraAPapelera = [](const std::string&) { return false; };
    Arranca(instalacion.Quelmar());
    Cambia("Uno");
    ASSERT_TRUE(Esta("Quelmar_Estudio.json"));
    QTimer::singleShot(0, [&] {
        QWidget* const dialogo = QApplication::activeModalWidget();
        ASSERT_NE(dialogo, nullptr);
        EXPECT_FALSE(Control<QLabel>(*dialogo, "lblTambien").isVisible());
        auto& lista = Control<QListWidget>(*dialogo, "filProyectoEliminar");
        const auto filas = lista.findItems(QStringLiteral("Quelmar_Conf.vlm"), Qt::MatchExactly);
        ASSERT_EQ(filas.size(), 1);
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, lista.visualItemRect(filas[0]).center());
        EXPECT_TRUE(Control<QLabel>(*dialogo, "lblTambien").isVisible());
        EXPECT_EQ(Control<QLabel>(*dialogo, "lblTambien").text(), QStringLiteral("Quelmar_Estudio.json"));
        Control<QPushButton>(*dialogo, "OKButton").click();
    });
    Accion("mnuEliminarProyecto").trigger();
    EXPECT_FALSE(Esta("Quelmar_Conf.vlm"));
    EXPECT_FALSE(Esta("Quelmar_Estudio.json"));
    EXPECT_EQ(Estudio().EnMano(), study::Estudio{});
}

TEST_F(EstudioDelProyecto, SalirOfreceOtroLugarParaLoQueNoSePudoGuardar)
{
    Arranca(instalacion.Quelmar());
    const auto reemplaza = escritorio.s.Disco.Reemplaza;
    escritorio.s.Disco.Reemplaza = [&](const std::vector<model::CambioArchivo>& cambios) {
        if (cambios.front().ruta.ends_with("Quelmar_Estudio.json"))
            throw model::Falla{model::NumeroFalla::AccesoRuta};
        reemplaza(cambios);
    };
    escritorio.s.Anfitrion.EligeDestino = anfitrion.Puerta().EligeDestino;
    Cambia("Uno");
    EXPECT_EQ(Estudio().Archivo().clase, EstadoDeArchivo::Clase::SinGuardar);
    anfitrion->elegidos = {instalacion.Dir() + "/aparte.json"};
    escritorio.Principal().close();
    EXPECT_EQ(escritorio.s.Disco.Lee(instalacion.Dir() + "/aparte.json"), Texto("Uno"));
    EXPECT_TRUE(escritorio.entorno.Terminando());
}

TEST_F(EstudioDelProyecto, LoObservadoLlegaALosHidrogramasPrimeroLoDeLaTormentaEnMano)
{
    Arranca(instalacion.Quelmar());
    study::Ajuste ajuste;
    ajuste.eventos = {
        {.nombre = "Marzo",
         .lluvia = {.origen = "lamina"},
         .observaciones = {{.componente = "u-1", .puntos = {{10, 2}, {20, 3}}}, {.componente = "u-2"}}},
        {.nombre = "Abril",
         .observaciones = {{.componente = "u-1",
                            .magnitud = "nivel",
                            .curva = {{1, 5}, {2, 20}},
                            .puntos = {{30, 1}, {40, 9}}}}}};
    escritorio.entorno.Atiende([&] { Estudio().CambiaAjuste("Eventos", ajuste); });
    const Talleres& talleres = escritorio.Estudio().Talleres();
    EXPECT_EQ(talleres.Observados("u-1"),
              (std::vector<results::Observado>{{"Abril", {{30, 5}}},  // by its curve
                                               {"Marzo", {{10, 2}, {20, 3}}}}));
    EXPECT_TRUE(talleres.Observados("u-2").empty());
    EXPECT_TRUE(Esta("Quelmar_serie_1.csv") && Esta("Quelmar_serie_2.csv"));
    escritorio.entorno.Atiende([&] { Estudio().Deshace(); });
    EXPECT_TRUE(talleres.Observados("u-1").empty());
    EXPECT_FALSE(Esta("Quelmar_serie_1.csv"));
}

// The files are put in place by somebody else than the study: what it had in memory isn't written over them.
TEST_F(EstudioDelProyecto, TrasTraerUnaVersionEsElDeEllaSinPasos)
{
    Arranca(instalacion.Quelmar());
    QCoreApplication::processEvents();
    Cambia("Uno");
    Cambia("Dos");
    const auto trae = [&] {
        escritorio.entorno.Atiende([&] { escritorio.Estudio().Talleres().TrasTraer(); });
        QCoreApplication::processEvents();
    };
    escritorio.s.Disco.Reemplaza({{Ruta("Quelmar_Estudio.json"), Texto("Uno")}});
    trae();
    EXPECT_EQ(Estudio().EnMano().taller, Con("Uno"));
    EXPECT_EQ(Estudio().PorDeshacer(), "");
    EXPECT_EQ(escritorio.s.Disco.Lee(Ruta("Quelmar_Estudio.json")), Texto("Uno"));
    anfitrion->sucesos.clear();
    Cambia("Tres");
    EXPECT_TRUE(anfitrion->sucesos.empty()) << "it knows what is there";
    EXPECT_EQ(escritorio.s.Disco.Lee(Ruta("Quelmar_Estudio.json")), Texto("Tres"));
    QFile::remove(forms::Q(Ruta("Quelmar_Estudio.json")));
    trae();
    EXPECT_EQ(Estudio().EnMano(), study::Estudio{});
    EXPECT_FALSE(Esta("Quelmar_Estudio.json"));
}

}  // namespace
}  // namespace shell
