// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Candado.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "ProyectoDePrueba.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/Siro.h"
#include "model/TablasEmbalse.h"
#include "model/VidaProyecto.h"

using namespace model;

namespace {

/// A desktop with the project "Arroyo", a network of one UEH, stored by it.
struct DosProgramas : ::testing::Test, ProyectoDePrueba {
    DosProgramas()
    {
        s.Vigilancia.activa = true;
        s.Red.ColUEHs.Agrega({.NombreUEH = "u-1", .Metodo = "Directo", .numUEH = 1});
        cmdAplicar(s);
        GuardaRed(s);
        anfitrion->sucesos.clear();
    }
    std::vector<std::string> Preguntas() const
    {
        std::vector<std::string> textos;
        for (const Mensaje& m : anfitrion->Preguntas())
            textos.push_back(m.titulo + "|" + m.texto);
        return textos;
    }
    static std::string Cambiado(const std::string& archivo)
    {
        return "Archivo cambiado|El archivo /proy/Arroyo" + archivo +
               " no es el que este programa leyó o guardó: otro lo ha cambiado. ¿Desea reemplazarlo?";
    }
    const std::string otro = "equipo PC2, proceso 77";
    const std::string PreguntaAbierto =
        "Proyecto abierto dos veces|El proyecto Arroyo está abierto también en otro SIRO (" + otro +
        "). Lo que guarde aquí puede reemplazar lo que se haya hecho allí. ¿Desea guardar igual?";
};

TEST_F(DosProgramas, LoPropioSeGuardaUnaYOtraVezSinPreguntas)
{
    cmdAplicar(s);
    GuardaRed(s);
    LeeTablaHSVRepresa(s);
    GuardaTablaHSVRepresa(s);
    GuardaTablaHSVRepresa(s);
    GuardaRed(s);
    leoConf(s);
    cmdAplicar(s);
    EXPECT_EQ(Preguntas(), std::vector<std::string>{});
}

TEST_F(DosProgramas, LoQueOtroCambioSePreguntaAntesDePisarlo)
{
    struct Caso {
        const char* archivo;
        std::function<void(Siro&)> guarda;
    };
    const std::vector<Caso> casos = {{"_Conf.vlm", [](Siro& t) { cmdAplicar(t); }},
                                     {"_UEHs.vlm", [](Siro& t) { GuardaRed(t); }},
                                     {"_VerCau.vlm", [](Siro& t) { GuardaRed(t); }}};
    for (const Caso& caso : casos) {
        Pon(caso.archivo, "de otro");
        anfitrion->sucesos.clear();
        anfitrion->respuestas = {false, true};
        caso.guarda(s);
        EXPECT_EQ(Preguntas(), std::vector<std::string>{Cambiado(caso.archivo)}) << caso.archivo;
        EXPECT_EQ(Bytes(caso.archivo), "de otro") << caso.archivo;
        EXPECT_EQ(Avisos(), Cajas{}) << caso.archivo;
        EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1) << caso.archivo;
        caso.guarda(s);
        EXPECT_NE(Bytes(caso.archivo), "de otro") << caso.archivo;
        caso.guarda(s);
        EXPECT_EQ(Preguntas().size(), 2U) << caso.archivo;
    }
}

TEST_F(DosProgramas, UnaTablaQueOtroCambioSePregunta)
{
    s.Red.ColRepresas.Agrega({.NombreRepresa = "r-1", .numRepresa = 1});
    LeeTablaHQRepresa(s);
    Pon("_RHQ.vlm", "de otro");
    anfitrion->respuestas = {false};
    GuardaTablaHQRepresa(s);
    EXPECT_EQ(Preguntas(), std::vector<std::string>{Cambiado("_RHQ.vlm")});
    EXPECT_EQ(Bytes("_RHQ.vlm"), "de otro");
}

TEST_F(DosProgramas, UnaRedVaciaNoBorraSinPreguntarLaQueOtroDejo)
{
    Pon("_UEHs.vlm", "de otro");
    s.Red.ColUEHs.Vacia();
    anfitrion->respuestas = {false};
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Bytes("_UEHs.vlm"), "de otro");
}

TEST_F(DosProgramas, LoQueNuncaSeLeyoTambienSePregunta)
{
    disco.Pon("/proy/Otro_UEHs.vlm", "ajeno");
    s.Proyecto.NombreProyecto = "Otro";
    anfitrion->respuestas = {false};
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(disco.Bytes("/proy/Otro_UEHs.vlm"), "ajeno");
    EXPECT_EQ(anfitrion->Preguntas().size(), 1U);
}

TEST_F(DosProgramas, LoQueOtroBorroSeGuardaSinPreguntar)
{
    disco.Quita("/proy/Arroyo_UEHs.vlm");
    GuardaRed(s);
    EXPECT_EQ(Preguntas(), std::vector<std::string>{});
    EXPECT_TRUE(disco.Esta("/proy/Arroyo_UEHs.vlm"));
}

TEST_F(DosProgramas, AlAbrirSeDiceQuienLoTieneYSePreguntaAntesDelPrimerGuardado)
{
    disco.PonDirectorio("/siro");
    s.Proyecto.DirEjecutable = "/siro";
    anfitrion->ocupante = otro;
    AbreProyectoDe(s, "/proy/Arroyo_Conf.vlm");
    EXPECT_EQ(Avisos(),
              (Cajas{{"El proyecto Arroyo está abierto también en otro SIRO (" + otro +
                          "). Si los dos lo guardan, queda lo que guarde el último. Antes de guardar "
                          "se le preguntará.",
                      "Proyecto abierto dos veces", Icono::Exclamacion}}));
    EXPECT_EQ(anfitrion->reclamados.back(), "/proy/Arroyo_Conf.vlm");
    LeeUEHs(s);
    anfitrion->respuestas = {false, true};
    const std::string antes = Bytes("_UEHs.vlm");
    s.Red.ColUEHs.Item(1).Area = 5;
    EXPECT_FALSE(GuardaRed(s));
    EXPECT_EQ(Bytes("_UEHs.vlm"), antes);
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(Preguntas(), (std::vector<std::string>{PreguntaAbierto, PreguntaAbierto})) << "asked till Yes";
}

TEST_F(DosProgramas, SiElOtroYaSeFueNoSePregunta)
{
    anfitrion->ocupante = otro;
    ReclamaProyecto(s);
    anfitrion->ocupante.clear();
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(Preguntas(), std::vector<std::string>{});
}

TEST_F(DosProgramas, TrasElSiElProyectoSeReclamaAlQuedarLibre)
{
    anfitrion->ocupante = otro;
    ReclamaProyecto(s);
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(Preguntas(), std::vector<std::string>{PreguntaAbierto});
    anfitrion->reclamados.clear();
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_EQ(anfitrion->reclamados, std::vector<std::string>{"/proy/Arroyo_Conf.vlm"}) << "still taken";
    anfitrion->ocupante.clear();
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_EQ(anfitrion->reclamados.size(), 2U) << "free by now";
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_EQ(anfitrion->reclamados.size(), 2U) << "this program's";
    EXPECT_EQ(Preguntas().size(), 1U);
}

TEST_F(DosProgramas, ElSiValeParaElProgramaPorElQueSePregunto)
{
    const std::string tercero = "equipo PC3, proceso 5";
    anfitrion->ocupante = otro;
    ReclamaProyecto(s);
    EXPECT_TRUE(cmdAplicar(s));
    anfitrion->ocupante = tercero;
    anfitrion->respuestas = {false};
    EXPECT_FALSE(cmdAplicar(s));
    std::string preguntaTercero = PreguntaAbierto;
    preguntaTercero.replace(preguntaTercero.find(otro), otro.size(), tercero);
    EXPECT_EQ(Preguntas(), (std::vector<std::string>{PreguntaAbierto, preguntaTercero}));
}

TEST_F(DosProgramas, ElSiValeParaUnaSolaAperturaDelProyecto)
{
    anfitrion->ocupante = otro;
    ReclamaProyecto(s);
    EXPECT_TRUE(cmdAplicar(s));
    ReclamaProyecto(s);
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(Preguntas(), (std::vector<std::string>{PreguntaAbierto, PreguntaAbierto}));
}

TEST_F(DosProgramas, ElNombreDeAdentroEsElQueSeReclama)
{
    disco.PonDirectorio("/siro");
    s.Proyecto.DirEjecutable = "/siro";
    disco.Pon("/proy/Copia_Conf.vlm", Bytes("_Conf.vlm"));
    anfitrion->reclamados.clear();
    AbreProyectoDe(s, "/proy/Copia_Conf.vlm");
    EXPECT_EQ(anfitrion->reclamados,
              (std::vector<std::string>{"/proy/Copia_Conf.vlm", "/proy/Arroyo_Conf.vlm"}));
}

TEST_F(DosProgramas, ElProyectoQuePasaAOtraCarpetaSeReclamaAlli)
{
    disco.PonDirectorio("/fotos");
    s.frmConfigura.Dir1 = "/fotos";
    EXPECT_TRUE(cmdAplicar(s));
    EXPECT_EQ(anfitrion->reclamados.back(), "/fotos/Arroyo_Conf.vlm");
}

TEST_F(DosProgramas, LaCopiaConOtroNombreSeReclamaEnLugarDelOriginal)
{
    anfitrion->textos = {"Copia"};
    mnuGuardarProyectoComo(s);
    EXPECT_TRUE(disco.Esta("/proy/Copia_Conf.vlm"));
    EXPECT_EQ(anfitrion->reclamados.back(), "/proy/Copia_Conf.vlm");
}

TEST_F(DosProgramas, SinVentanasNadaSeReclamaNiSePregunta)
{
    s.Vigilancia = {};
    disco.PonDirectorio("/siro");
    s.Proyecto.DirEjecutable = "/siro";
    anfitrion->reclamados.clear();
    anfitrion->ocupante = otro;
    AbreProyectoDe(s, "/proy/Arroyo_Conf.vlm");
    LeeUEHs(s);
    Pon("_UEHs.vlm", "de otro");
    EXPECT_TRUE(GuardaRed(s));
    EXPECT_EQ(anfitrion->reclamados, std::vector<std::string>{});
    EXPECT_EQ(Preguntas(), std::vector<std::string>{});
}

TEST(RutaDeCandado, EstaJuntoAlArchivoYNoEsDelProyecto)
{
    EXPECT_EQ(RutaDeCandado(Ruta("proy", "A_Conf.vlm")), Ruta("proy", ".A_Conf.vlm.lock"));
    EXPECT_EQ(RutaDeCandado("A_Conf.vlm"), ".A_Conf.vlm.lock");
    EXPECT_TRUE(EsCandado(".A_Conf.vlm.lock"));
    EXPECT_FALSE(EsCandado("A_Conf.vlm"));
    EXPECT_FALSE(EsCandado("mapa.lock"));
}

}  // namespace
