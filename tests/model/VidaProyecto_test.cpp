// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/VidaProyecto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "MundoDeProyecto.h"
#include "apoyo/Compara.h"
#include "model/ArchivoConf.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/RutaProyecto.h"

using namespace model;
using apoyo::NumeroDeFalla;

namespace {

const std::string Programa = "siro";
const std::string Proyectos = Ruta(Programa, "Proyectos");
const std::string Otros = "otros";
const std::string Puntero = Ruta(Programa, "VelmirDir.vlm");

std::string BytesPuntero(const std::string& directorio, const std::string& proyecto)
{
    return "\"" + directorio + "\"\r\n\"" + proyecto + "\"\r\n";
}

/// A program in its directory, with the default directory of projects and another one.
struct VidaProyecto : ::testing::Test, MundoDeProyecto {
    VidaProyecto()
    {
        for (const std::string& directorio : {Programa, Proyectos, Otros})
            disco.PonDirectorio(directorio);
        s.Proyecto.DirEjecutable = Programa;
    }
    /// The pointer of an earlier session.
    void PonPuntero(const std::string& directorio, const std::string& proyecto)
    {
        disco.Pon(Puntero, BytesPuntero(directorio, proyecto));
    }
    /// A project with a configuration, one reach of two vertices and a unit that drains into it.
    void PonProyecto(const std::string& directorio, const std::string& nombre)
    {
        disco.Pon(Ruta(directorio, nombre + "_Conf.vlm"), BytesConf(directorio, nombre));
        disco.Pon(Ruta(directorio, nombre + "_UEHs.vlm"), BytesUEHs(nombre));
        disco.Pon(Ruta(directorio, nombre + "_VerCau.vlm"), "1,2\r\n3,4\r\n");
    }
    static std::string BytesConf(const std::string& directorio, const std::string& nombre)
    {
        std::string bytes =
            "\"" + nombre + "\"\r\n\"Arroyo\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"01/02/2006\"\r\n";
        bytes += "\"" + UnidadDe(directorio) + "\"\r\n\"" + directorio + "\"\r\n\"\"\r\n1\r\n\"" + nombre +
                 "_Conf.vlm\"\r\n0\r\n\"Ninguno\"\r\n";
        bytes += "\"0\"\r\n\"\"\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n0\r\n0\r\n";
        bytes += "#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n#FALSE#\r\n10\r\n\"800\"\r\n\"0\"\r\n";
        for (int i = 0; i < 31; ++i)
            bytes += "0\r\n";
        return bytes;
    }
    static std::string BytesUEHs(const std::string& nombre)
    {
        return "\"" + nombre +
               "\"\r\n1\r\n1\r\n\"c-1\"\r\n2\r\n1\r\n\"\"\r\n1\r\n1000\r\n1\r\n0\r\n0\r\n#TRUE#\r\n"
               "1\r\n1\r\n\"u-1\"\r\n250\r\n\"\"\r\n900\r\n0.5\r\n\"Directo\"\r\n1\r\n1\r\n2\r\n2\r\n\"c-"
               "1\"\r\n"
               "0.3\r\n0.6\r\n0\r\n0\r\n0\r\n2\r\n"
               "0\r\n0\r\n";
    }
    /// The project in hand, as opening it leaves it.
    void AbreProyecto(const std::string& directorio, const std::string& nombre)
    {
        LeePuntero(s);
        TomaRutaProyecto(s, Ruta(directorio, nombre + "_Conf.vlm"));
        leoConf(s);
        TomaSucesos();
    }
};

const std::string Guardado =
    "Los datos de configuración del proyecto se han guardado correctamente en el archivo ";
const std::string ComponentesGuardados =
    "Los datos de componentes de Unidades Hidrológicas del proyecto se han guardado correctamente en el "
    "archivo ";
const std::string PideNuevo =
    SucesoPide("Ingrese un nombre de archivo para el nuevo proyecto: ", "Proyecto Nuevo", "");
const std::string PideCopia = SucesoPide("Ingrese un nombre de archivo para el nuevo proyecto: ",
                                         "Cuardar Como...(copia el proyecto actual con otro nombre)", "");
const std::string NombreInvalido =
    SucesoAviso("Nombre inválido: Ingrese solamente letras y/o dígitos sin caracteres especiales",
                "Nombre de Proyecto inválido!!", Icono::Exclamacion);
const std::string ErrorDesconocido = SucesoAviso("Error de archivo desconocido");
const std::string Elige = SucesoElige("Abrir", "Archivos de Proyecto (*_Conf.vlm) |*_Conf.vlm");

std::string YaExiste(const std::string& nombre)
{
    return SucesoAviso("El proyecto ya existe en el archivo <" + nombre +
                       "_Conf.vlm>. Elija un nombre distinto o elimine el proyecto existente.");
}

using Sucesos = std::vector<std::string>;

// =======================================================================================================
// The pointer
// =======================================================================================================

TEST_F(VidaProyecto, ElPunteroDaDirectorioYProyectoYSeEscribeDeNuevo)
{
    disco.Pon(Puntero, "\"" + Otros + "\",Quelmar");  // any form of the two fields will do
    s.Proyecto.DirProyecto = "viejo";
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirTrabajo, Programa);
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Quelmar"));
    EXPECT_TRUE(TomaSucesos().empty());
}

TEST_F(VidaProyecto, SinPunteroNoHayProyectoYSeEscribeElDirectorioPorDefecto)
{
    disco.Quita(Proyectos);
    s.Proyecto.NombreProyecto = "viejo";
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_TRUE(disco.Esta(Proyectos)) << "it is created at the first start";
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
    EXPECT_TRUE(TomaSucesos().empty());
}

TEST_F(VidaProyecto, UnPunteroSinDirectorioTomaElPorDefecto)
{
    PonPuntero("", "Quelmar");
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, "Quelmar"));
}

TEST_F(VidaProyecto, UnDirectorioQueSeFueDejaSinProyecto)
{
    PonPuntero("se fue", "Quelmar");
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
    EXPECT_TRUE(TomaSucesos().empty());
}

TEST_F(VidaProyecto, ElUltimoProyectoSoloSePruebaConConfPendiente)
{
    PonPuntero(Otros, "Quelmar");
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar") << "not asked for, its absence goes unnoticed";
    s.Proyecto.ConfPendiente = true;
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
    PonPuntero(Otros, "Quelmar");
    disco.Pon(Ruta(Otros, "Quelmar_Conf.vlm"), "");
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
}

TEST_F(VidaProyecto, UnPunteroCortadoEnCadaByteDejaSinProyectoSiNoLlegaAlSegundo)
{
    const std::string bytes = BytesPuntero(Otros, "Q");
    const std::size_t segundo = bytes.find("\"Q\"");
    for (std::size_t n = 0; n <= bytes.size(); ++n) {
        disco.Pon(Puntero, bytes.substr(0, n));
        LeePuntero(s);
        EXPECT_EQ(s.Proyecto.DirProyecto, n > segundo ? Otros : Proyectos) << n << " bytes";
        EXPECT_EQ(s.Proyecto.NombreProyecto, n > segundo + 1 ? "Q" : "") << n << " bytes";
        EXPECT_TRUE(TomaSucesos().empty()) << n << " bytes";
    }
}

TEST_F(VidaProyecto, DesdeUnaRutaDeRedSoloSeEscribeElPuntero)
{
    const std::string red = std::string(2, Separador) + "servidor";
    disco.PonDirectorio(red);
    s.Proyecto.DirEjecutable = red;
    s.Proyecto.DirTrabajo = Programa;
    s.Proyecto.DirProyecto = "el de antes";
    s.Proyecto.NombreProyecto = "Quelmar";
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirTrabajo, Programa);
    EXPECT_EQ(s.Proyecto.DirProyecto, "el de antes");
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero("el de antes", "Quelmar"));
    EXPECT_FALSE(disco.Esta(Ruta(red, "Proyectos")));
}

TEST_F(VidaProyecto, UnaRutaConUnSoloSeparadorNoEsDeRed)
{
    const std::string raiz = std::string(1, Separador) + "opt";
    disco.PonDirectorio(raiz);
    s.Proyecto.DirEjecutable = raiz;
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirTrabajo, raiz);
    EXPECT_EQ(s.Proyecto.DirProyecto, Ruta(raiz, "Proyectos"));
}

TEST_F(VidaProyecto, SinDirectorioDelProgramaNoHayProyectoNiCaja)
{
    for (const char* directorio : {"no hay", ""}) {
        s.Proyecto.DirEjecutable = directorio;
        s.Proyecto.NombreProyecto = "viejo";
        LeePuntero(s);
        EXPECT_EQ(s.Proyecto.DirProyecto, Ruta(directorio, "Proyectos")) << directorio;
        EXPECT_EQ(s.Proyecto.NombreProyecto, "") << directorio;
        EXPECT_TRUE(TomaSucesos().empty()) << directorio;
        EXPECT_EQ(NumeroDeFalla([&] { GuardaPuntero(s); }), 76) << directorio;
    }
}

TEST_F(VidaProyecto, CadaLlamadaAlDiscoQueFallaDejaElDirectorioPorDefectoSinCaja)
{
    s.Proyecto.ConfPendiente = true;
    int fallidas = 0;
    for (int n = 1; n <= 50; ++n) {
        PonPuntero(Otros, "Quelmar");
        disco.Pon(Ruta(Otros, "Quelmar_Conf.vlm"), "");
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        LeePuntero(s);
        const bool fallo = disco.HuboFalla();
        disco.DejaDeFallar();
        EXPECT_TRUE(TomaSucesos().empty()) << "call " << n;
        if (!fallo) break;
        ++fallidas;
        // A "Proyectos" that can't be created because it is there already is no failure.
        if (s.Proyecto.DirProyecto == Otros) {
            EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar") << "call " << n;
        } else {
            EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos) << "call " << n;
            EXPECT_EQ(s.Proyecto.NombreProyecto, "") << "call " << n;
            EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, "")) << "call " << n;
        }
    }
    EXPECT_GE(fallidas, 4) << "creating, reading, the test of the project, writing";
    EXPECT_LT(fallidas, 50);
}

TEST_F(VidaProyecto, UnDirectorioDeProyectosQueNoSePuedeCrearDejaSinProyecto)
{
    disco.Quita(Proyectos);
    PonPuntero(Otros, "Quelmar");
    disco.FallaEn(2, NumeroFalla::AccesoRuta);  // behind the look at the program's directory
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
    EXPECT_TRUE(TomaSucesos().empty());
}

TEST_F(VidaProyecto, UnDirectorioDelProgramaProtegidoDejaSinProyecto)
{
    PonPuntero(Otros, "Quelmar");
    disco.Protege(Programa);
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Quelmar"));
    EXPECT_TRUE(TomaSucesos().empty());
}

TEST_F(VidaProyecto, ElPunteroGuardaLosAcentos)
{
    s.Proyecto.DirTrabajo = Programa;
    s.Proyecto.DirProyecto = "Señal";
    s.Proyecto.NombreProyecto = "Q";
    GuardaPuntero(s);
    EXPECT_EQ(disco.Bytes(Puntero),
              "\"Se\xF1"
              "al\"\r\n\"Q\"\r\n");
    disco.PonDirectorio("Señal");
    s.Proyecto.DirProyecto.clear();
    LeePuntero(s);
    EXPECT_EQ(s.Proyecto.DirProyecto, "Señal");
}

TEST_F(VidaProyecto, CerrarSinHaberAbiertoNadaEscribeUnNombreVacio)
{
    PonPuntero(Otros, "Quelmar");
    LeePuntero(s);
    s.Proyecto.NombreProyecto.clear();  // as the end of start-up leaves it
    GuardaPuntero(s);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, ""));
}

TEST_F(VidaProyecto, CadaRefrescoDeLasEtiquetasGuardaElPuntero)
{
    LeePuntero(s);
    s.Proyecto.DirProyecto = Otros;
    s.Proyecto.NombreProyecto = "Quelmar";
    MuestraProyecto(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{SucesoEtiquetas("Quelmar", "")});
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Quelmar"));
}

TEST_F(VidaProyecto, LimpiarVaciaComponentesSeleccionCuentasYNombresYLeeElPuntero)
{
    PonPuntero(Otros, "Quelmar");
    s.Red.ColUEHs.Agrega({});
    s.Red.ColCauces.Agrega({});
    s.Red.ColLagos.Agrega({});
    s.Red.ColRepresas.Agrega({});
    s.Seleccion.CauceSel = s.Seleccion.CauceAnterior = s.Seleccion.UEHSel = s.Seleccion.RepresaSel =
        s.Seleccion.LagoSel = s.Seleccion.VerticeSel = 1;
    s.Proyecto.NombreProyecto = s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = s.Proyecto.ArchivoTemp =
        "x";
    s.TablasDeLluvia.NroFilasTabla = {1, 2, 3, 4};
    LimpiaProyecto(s);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta() + s.Red.ColCauces.Cuenta() + s.Red.ColLagos.Cuenta() +
                  s.Red.ColRepresas.Cuenta(),
              0);
    EXPECT_EQ(s.Red.NroUEHs() + s.Red.NroCauces() + s.Red.NroLagos() + s.Red.NroRepresas(), 0);
    EXPECT_EQ(s.Seleccion.CauceSel + s.Seleccion.CauceAnterior + s.Seleccion.UEHSel + s.Seleccion.RepresaSel +
                  s.Seleccion.LagoSel + s.Seleccion.VerticeSel,
              0);
    EXPECT_EQ(s.Proyecto.DirProyectoConf, "");
    EXPECT_EQ(s.Proyecto.ArchivoTemp, "") << "the pointer doesn't set it";
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.TablasDeLluvia.NroFilasTabla[3], 4) << "the tables that all projects share stay";
}

TEST_F(VidaProyecto, UnPunteroConUnNombreQueSaleDeLaCarpetaDejaSinProyecto)
{
    for (const char* nombre : {"../x", "a\\b", "a/b", "a\x01"}) {
        PonPuntero(Otros, nombre);
        LeePuntero(s);
        EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos) << nombre;
        EXPECT_EQ(s.Proyecto.NombreProyecto, "") << nombre;
        EXPECT_TRUE(TomaSucesos().empty()) << nombre;
    }
}

TEST_F(VidaProyecto, LaRutaElegidaSeTomaLlana)
{
    const std::string sep(1, Separador);
    EXPECT_TRUE(TomaRutaProyecto(s, sep + "a" + sep + sep + "b" + sep + "Q_Conf.vlm"));
    EXPECT_EQ(s.Proyecto.DirProyecto, sep + "a" + sep + "b");
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Q");
    EXPECT_TRUE(TomaRutaProyecto(s, sep + sep + "red" + sep + "Q_Conf.vlm"));
    EXPECT_EQ(s.Proyecto.DirProyecto, sep + sep + "red");
}

TEST_F(VidaProyecto, LoQueElDibujoDetieneNoHaEmpezado)
{
    struct Caso {
        const char* orden;
        void (*corre)(Siro& s);
        Riesgo riesgo;
    };
    const std::vector<Caso> casos = {
        {"nuevo", [](Siro& t) { static_cast<void>(mnuNuevoProyecto(t)); }, Riesgo::OtroProyecto},
        {"abrir", mnuAbrirProyecto, Riesgo::OtroProyecto},
        {"soltar", [](Siro& t) { AbreProyectoDe(t, Ruta(Otros, "Q_Conf.vlm")); }, Riesgo::OtroProyecto},
        {"ultimo", mnu_ultimoarchivo1, Riesgo::OtroProyecto},
        {"copiar", mnuGuardarProyectoComo, Riesgo::ReleeRed}};
    PonProyecto(Otros, "Quelmar");
    AbreProyecto(Otros, "Quelmar");
    LeeUEHs(s);
    Responde("Nuevo1");
    EligeRuta(Ruta(Otros, "Quelmar_Conf.vlm"));
    TomaSucesos();
    const Sucesos antes = disco.Archivos();
    for (const Caso& caso : casos) {
        std::vector<Riesgo> riesgos;
        s.Anfitrion.ResguardaDibujo = [&](Riesgo riesgo) {
            riesgos.push_back(riesgo);
            return false;
        };
        caso.corre(s);
        EXPECT_EQ(riesgos, std::vector<Riesgo>{caso.riesgo}) << caso.orden;
        EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar") << caso.orden;
        EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1) << caso.orden;
        EXPECT_TRUE(TomaSucesos().empty()) << caso.orden;
        EXPECT_EQ(disco.Archivos(), antes) << caso.orden;
    }
}

// =======================================================================================================
// Names
// =======================================================================================================

TEST_F(VidaProyecto, ElNombreTieneDigitosLetrasYArroba)
{
    // The whole rule over every byte: 48 to 57, 64 to 90, 97 to 122.
    for (int codigo = 0; codigo < 256; ++codigo) {
        const bool vale = (codigo >= 48 && codigo <= 57) || (codigo >= 64 && codigo <= 90) ||
                          (codigo >= 97 && codigo <= 122);
        EXPECT_EQ(NombreProyectoValido(std::string("a") + static_cast<char>(codigo) + "b"), vale) << codigo;
    }
    for (const char* nombre : {"Quelmar", "Q1", "2026", "a@b", "@"})
        EXPECT_TRUE(NombreProyectoValido(nombre)) << nombre;
    for (const char* nombre :
         {"dos palabras", "con_guion", "Río", "ñ", "a-b", "a.b", "a/b", "a\\b", "a:b", " a", "a "})
        EXPECT_FALSE(NombreProyectoValido(nombre)) << nombre;
}

// =======================================================================================================
// New
// =======================================================================================================

TEST_F(VidaProyecto, NuevoTomaElNombreYNoEscribeArchivosDeProyecto)
{
    PonPuntero(Otros, "Quelmar");
    Responde("Nuevo1");
    mnuNuevoProyecto(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, SucesoEtiquetas("Nuevo1", "")}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Nuevo1");
    EXPECT_TRUE(s.Proyecto.ProyectoNuevo);
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros) << "the directory of the last project";
    EXPECT_EQ(s.Proyecto.DirProyectoConf, Otros);
    EXPECT_EQ(disco.Archivos(), Sucesos{"siro/VelmirDir.vlm"});
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Nuevo1"));
}

TEST_F(VidaProyecto, NuevoCanceladoDejaElNombreDelUltimoProyecto)
{
    PonPuntero(Otros, "Quelmar");
    Responde("");
    mnuNuevoProyecto(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{PideNuevo});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
}

TEST_F(VidaProyecto, NuevoRechazaBlancoSubrayadoYAcentoYAceptaArroba)
{
    for (const char* nombre : {"dos palabras", "con_guion", "Río"}) {
        PonPuntero(Otros, "Quelmar");
        Responde(nombre);
        mnuNuevoProyecto(s);
        EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, NombreInvalido})) << nombre;
        EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar") << nombre;
        EXPECT_FALSE(s.Proyecto.ProyectoNuevo) << nombre;
    }
    Responde("uno@dos");
    mnuNuevoProyecto(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, SucesoEtiquetas("uno@dos", "")}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "uno@dos");
}

TEST_F(VidaProyecto, NuevoRepetidoSeDiceConservaElNombreRechazadoYNoEspera)
{
    PonPuntero(Otros, "Quelmar");
    PonProyecto(Otros, "Viejo");
    const std::string antes = disco.Bytes(Ruta(Otros, "Viejo_Conf.vlm"));
    Responde("Viejo");
    mnuNuevoProyecto(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, YaExiste("Viejo")}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Viejo");
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo)
        << "the next configuration must not write over the project that exists";
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Viejo_Conf.vlm")), antes);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Quelmar")) << "no labels were refreshed";
}

TEST_F(VidaProyecto, NuevoConUnaFallaDeArchivoSeDiceYTermina)
{
    PonPuntero(Otros, "Quelmar");
    disco.PonDirectorio(Ruta(Otros, "Nuevo1_Conf.vlm"));  // it is there and can't be read
    Responde("Nuevo1");
    EXPECT_THROW(mnuNuevoProyecto(s), FinDelPrograma);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, ErrorDesconocido, SucesoTermina()}));
}

TEST_F(VidaProyecto, NuevoSinPoderEscribirElPunteroSeDiceYTermina)
{
    PonPuntero(Otros, "Quelmar");
    Responde("Nuevo1");
    AlPedirTexto([&] { disco.Protege(Puntero); });
    EXPECT_THROW(mnuNuevoProyecto(s), FinDelPrograma);
    EXPECT_EQ(TomaSucesos(),
              (Sucesos{PideNuevo, SucesoEtiquetas("Nuevo1", ""), ErrorDesconocido, SucesoTermina()}));
}

TEST_F(VidaProyecto, NuevoConElDirectorioIdoEntretantoSeDiceYTermina)
{
    PonPuntero(Otros, "Quelmar");
    Responde("Nuevo1");
    AlPedirTexto([&] { disco.Quita(Otros); });
    EXPECT_THROW(mnuNuevoProyecto(s), FinDelPrograma);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, ErrorDesconocido, SucesoTermina()}));
}

// =======================================================================================================
// Open and reopen
// =======================================================================================================

TEST_F(VidaProyecto, AbrirLeeLaConfiguracionYNoLosComponentes)
{
    PonPuntero(Proyectos, "Otro");
    PonProyecto(Otros, "Quelmar");
    s.frmConfigura.TextProyecto = "el de antes";
    EligeRuta(Ruta(Otros, "Quelmar_Conf.vlm"));
    mnuAbrirProyecto(s);
    // The labels come first: they show the earlier title beside the new name.
    EXPECT_EQ(TomaSucesos(),
              (Sucesos{Elige, SucesoEtiquetas("Quelmar", "el de antes"), SucesoHabilitaGuardarComo()}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
    EXPECT_EQ(s.Proyecto.DirProyectoConf, Otros);
    EXPECT_EQ(s.Configuracion.TituloProyecto, "Arroyo");
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 0);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Quelmar"));
}

TEST_F(VidaProyecto, AbrirCanceladoDejaElNombreDelUltimoProyecto)
{
    PonPuntero(Otros, "Quelmar");
    EligeRuta("");
    mnuAbrirProyecto(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{Elige});
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
}

TEST_F(VidaProyecto, AbrirUnArchivoQueNoTerminaEnConfDejaSinProyecto)
{
    for (const char* archivo : {"Quelmar_UEHs.vlm", "Quelmar_conf.vlm", "Quelmar_Conf.vlm2", "Conf.vlm"}) {
        PonPuntero(Otros, "Quelmar");
        EligeRuta(Ruta(Otros, archivo));
        mnuAbrirProyecto(s);
        EXPECT_EQ(TomaSucesos(), Sucesos{Elige}) << archivo << ": no message";
        EXPECT_EQ(s.Proyecto.NombreProyecto, "") << archivo;
        EXPECT_EQ(s.Proyecto.ArchivoTemp, "") << archivo;
    }
}

TEST_F(VidaProyecto, LaRutaDiceDirectorioNombreYPrimerSeparador)
{
    struct Caso {
        std::string ruta, directorio, nombre, conf;
    };
    const std::string S(1, Separador);
    for (const auto& [ruta, directorio, nombre, conf] :
         {Caso{S + "a" + S + "b" + S + "Q_Conf.vlm", S + "a" + S + "b", "Q", S},
          Caso{"c:" + S + "a" + S + "Q_Conf.vlm", "c:" + S + "a", "Q", "c:" + S},
          Caso{S + "Q_Conf.vlm", "", "Q", S}, Caso{"a" + S + "Q_2_Conf.vlm", "a", "Q_2", "a" + S},
          Caso{"a" + S + "_Conf.vlm", "a", "", "a" + S},
          Caso{"Q_Conf.vlm", "como estaba", "Q", "como estaba"}}) {
        s.Proyecto.DirProyecto = s.Proyecto.DirProyectoConf = "como estaba";
        EXPECT_TRUE(TomaRutaProyecto(s, ruta)) << ruta;
        EXPECT_EQ(s.Proyecto.DirProyecto, directorio) << ruta;
        EXPECT_EQ(s.Proyecto.NombreProyecto, nombre) << ruta;
        EXPECT_EQ(s.Proyecto.DirProyectoConf, conf) << ruta;
        EXPECT_EQ(s.Proyecto.ArchivoTemp, ruta);
    }
}

TEST_F(VidaProyecto, AbrirUnaConfiguracionDanadaLoDiceYDejaSinNombreNuncaTermina)
{
    PonPuntero(Proyectos, "");
    PonProyecto(Otros, "Quelmar");
    disco.Pon(Ruta(Otros, "Quelmar_Conf.vlm"), "\"Quelmar\"\r\n\"Arroyo\"\r\n");
    EligeRuta(Ruta(Otros, "Quelmar_Conf.vlm"));
    mnuAbrirProyecto(s);
    EXPECT_EQ(
        TomaSucesos(),
        (Sucesos{Elige, SucesoEtiquetas("Quelmar", ""),
                 SucesoAviso("Error Nro. 62 ,La entrada de datos sobrepasó el final del archivoVerifique. El "
                             "archivo de configuración <Quelmar_Conf.vlm > está dañado. Corrija o elimine "
                             "manualmente este archivo"),
                 SucesoHabilitaGuardarComo()}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
}

TEST_F(VidaProyecto, AbrirSinPoderEscribirElPunteroAbreElProyecto)
{
    PonPuntero(Proyectos, "");
    PonProyecto(Otros, "Quelmar");
    EligeRuta(Ruta(Otros, "Quelmar_Conf.vlm"));
    AlElegirArchivo([&] { disco.Protege(Puntero); });
    mnuAbrirProyecto(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{Elige, SucesoEtiquetas("Quelmar", ""), SucesoHabilitaGuardarComo()}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.Configuracion.TituloProyecto, "Arroyo");
}

TEST_F(VidaProyecto, ReabrirLeeLaConfiguracionAntesQueLasEtiquetas)
{
    PonPuntero(Otros, "Quelmar");
    PonProyecto(Otros, "Quelmar");
    s.Proyecto.NombreProyecto.clear();
    s.Proyecto.ConfPendiente = true;
    mnu_ultimoarchivo1(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{SucesoEtiquetas("Quelmar", "Arroyo"), SucesoHabilitaGuardarComo()}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
}

TEST_F(VidaProyecto, ReabrirUnProyectoQueYaNoEstaNoHabilitaGuardarComo)
{
    PonPuntero(Otros, "Quelmar");
    s.Proyecto.ConfPendiente = true;
    mnu_ultimoarchivo1(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{SucesoAviso("Error Nro. 53 ,No se encontró el archivoVerifique."),
                                      SucesoEtiquetas("", "")}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(s.Proyecto.DirProyecto, Proyectos);
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Proyectos, ""));
}

TEST_F(VidaProyecto, ReabrirUnProyectoDanadoNoHabilitaGuardarComo)
{
    PonPuntero(Otros, "Quelmar");
    disco.Pon(Ruta(Otros, "Quelmar_Conf.vlm"), "");
    mnu_ultimoarchivo1(s);
    const Sucesos vistos = TomaSucesos();
    ASSERT_EQ(vistos.size(), 2U) << "the damaged file's box and the labels";
    EXPECT_EQ(vistos[1], SucesoEtiquetas("", ""));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "");
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, ""));
}

// =======================================================================================================
// Save as
// =======================================================================================================

TEST_F(VidaProyecto, GuardarComoSinProyectoNoHaceNada)
{
    s.Proyecto.NombreProyecto.clear();
    mnuGuardarProyectoComo(s);
    EXPECT_TRUE(TomaSucesos().empty());
}

TEST_F(VidaProyecto, GuardarComoCopiaTodosLosArchivosYReescribeConfiguracionYComponentes)
{
    PonProyecto(Otros, "Quelmar");
    for (const char* tabla : {"_RHQ.vlm", "_RHAS.vlm", "_LHASQ.vlm"})
        disco.Pon(Ruta(Otros, std::string("Quelmar") + tabla), tabla);
    const Sucesos antes = disco.Archivos();
    AbreProyecto(Otros, "Quelmar");
    Responde("Copia2");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideCopia, SucesoAviso(Guardado + Ruta(Otros, "Copia2_Conf.vlm")),
                                      SucesoAviso(ComponentesGuardados + Ruta(Otros, "Copia2_VerCau.vlm"))}));
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_Conf.vlm")), BytesConf(Otros, "Copia2"))
        << "name and file name are the new ones";
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_UEHs.vlm")), BytesUEHs("Copia2"));
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_VerCau.vlm")), "1,2\r\n3,4\r\n");
    for (const char* tabla : {"_RHQ.vlm", "_RHAS.vlm", "_LHASQ.vlm"})
        EXPECT_EQ(disco.Bytes(Ruta(Otros, std::string("Copia2") + tabla)), tabla);
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_Conf.vlm")), BytesConf(Otros, "Quelmar"))
        << "the old project stays";
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_UEHs.vlm")), BytesUEHs("Quelmar"));
    EXPECT_EQ(disco.Archivos().size(), antes.size() + 7) << "six files and the pointer that reading it wrote";
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Copia2");
    EXPECT_EQ(s.frmConfigura.lblMiArchivoConf, "Copia2_Conf.vlm");
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
    EXPECT_EQ(s.Red.ColCauces.Cuenta(), 1);
    EXPECT_EQ(s.Red.ColUEHs.Cuenta(), 1);
}

TEST_F(VidaProyecto, GuardarComoSinTablasDaUnProyectoSinEllasYSinError)
{
    PonProyecto(Otros, "Quelmar");
    AbreProyecto(Otros, "Quelmar");
    Responde("Copia2");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(TomaSucesos().size(), 3U) << "the prompt and the two boxes of what was saved";
    for (const char* tabla : {"_RHQ.vlm", "_RHAS.vlm", "_LHASQ.vlm"})
        EXPECT_FALSE(disco.Esta(Ruta(Otros, std::string("Copia2") + tabla))) << tabla;
    EXPECT_TRUE(disco.Esta(Ruta(Otros, "Copia2_UEHs.vlm")));
}

TEST_F(VidaProyecto, GuardarComoSinLosArchivosDelMedioCopiaLosDemas)
{
    PonProyecto(Otros, "Quelmar");
    disco.Pon(Ruta(Otros, "Quelmar_LHASQ.vlm"), "lagos");
    AbreProyecto(Otros, "Quelmar");
    disco.Quita(Ruta(Otros, "Quelmar_Conf.vlm"));
    Responde("Copia2");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_Conf.vlm")), BytesConf(Otros, "Copia2"))
        << "written from the controls";
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_LHASQ.vlm")), "lagos");
}

TEST_F(VidaProyecto, GuardarComoDeUnaRedVaciaNoDejaArchivosDeComponentes)
{
    disco.Pon(Ruta(Otros, "Quelmar_Conf.vlm"), BytesConf(Otros, "Quelmar"));
    AbreProyecto(Otros, "Quelmar");
    Responde("Copia2");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideCopia, SucesoAviso(Guardado + Ruta(Otros, "Copia2_Conf.vlm"))}));
    EXPECT_TRUE(disco.Esta(Ruta(Otros, "Copia2_Conf.vlm")));
    EXPECT_FALSE(disco.Esta(Ruta(Otros, "Copia2_UEHs.vlm")));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Copia2");
}

TEST_F(VidaProyecto, GuardarComoRecuerdaElNombreViejoAunqueElArchivoDigaOtro)
{
    PonProyecto(Otros, "Quelmar");
    disco.Pon(Ruta(Otros, "Quelmar_UEHs.vlm"), BytesUEHs("Ajeno"));
    disco.Pon(Ruta(Otros, "Ajeno_VerCau.vlm"), "5,6\r\n7,8\r\n");
    disco.Pon(Ruta(Otros, "Quelmar_RHQ.vlm"), "de Quelmar");
    disco.Pon(Ruta(Otros, "Ajeno_RHQ.vlm"), "de Ajeno");
    AbreProyecto(Otros, "Quelmar");
    Responde("Copia2");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_RHQ.vlm")), "de Quelmar");
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_UEHs.vlm")), BytesUEHs("Copia2"));
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_VerCau.vlm")), "5,6\r\n7,8\r\n")
        << "the vertices that were loaded";
}

TEST_F(VidaProyecto, GuardarComoCanceladoOConNombreInvalidoNoEscribeNada)
{
    PonProyecto(Otros, "Quelmar");
    AbreProyecto(Otros, "Quelmar");
    const Sucesos antes = disco.Archivos();
    Responde("");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{PideCopia});
    Responde("con_guion");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideCopia, NombreInvalido}));
    EXPECT_EQ(disco.Archivos(), antes);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
}

TEST_F(VidaProyecto, GuardarComoRepetidoSeDiceYConservaElNombreNuevo)
{
    PonProyecto(Otros, "Quelmar");
    PonProyecto(Otros, "Viejo");
    AbreProyecto(Otros, "Quelmar");
    Responde("Viejo");
    mnuGuardarProyectoComo(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideCopia, YaExiste("Viejo")}));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Viejo");
    EXPECT_FALSE(s.Proyecto.ProyectoNuevo);
    EXPECT_EQ(disco.Bytes(Ruta(Otros, "Viejo_UEHs.vlm")), BytesUEHs("Viejo"));
}

TEST_F(VidaProyecto, GuardarComoConUnaFallaDeArchivoSeDiceYTermina)
{
    struct Caso {
        const char* que;
        const char* copia;
    };
    for (const Caso& caso :
         {Caso{"the configuration", "Copia2_Conf.vlm"}, Caso{"the vertices", "Copia2_VerCau.vlm"},
          Caso{"the components", "Copia2_UEHs.vlm"}, Caso{"a table", "Copia2_RHQ.vlm"}}) {
        PonProyecto(Otros, "Quelmar");
        disco.Pon(Ruta(Otros, "Quelmar_RHQ.vlm"), "tabla");
        AbreProyecto(Otros, "Quelmar");
        Responde("Copia2");
        disco.Protege(Ruta(Otros, caso.copia));
        EXPECT_THROW(mnuGuardarProyectoComo(s), FinDelPrograma) << caso.que;
        const Sucesos vistos = TomaSucesos();
        ASSERT_GE(vistos.size(), 3U) << caso.que;
        EXPECT_EQ(vistos.front(), PideCopia) << caso.que;
        EXPECT_EQ(vistos[vistos.size() - 2], ErrorDesconocido) << caso.que;
        EXPECT_EQ(vistos.back(), SucesoTermina()) << caso.que;
        EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_UEHs.vlm")), BytesUEHs("Quelmar")) << caso.que;
        disco.Protege(Ruta(Otros, caso.copia), false);
        for (const char* parte : {"_Conf.vlm", "_VerCau.vlm", "_UEHs.vlm", "_RHQ.vlm"})
            disco.Quita(Ruta(Otros, std::string("Copia2") + parte));
    }
}

TEST_F(VidaProyecto, GuardarComoSinDirectorioTermina)
{
    s.Proyecto.NombreProyecto = "Quelmar";
    s.Proyecto.DirProyecto.clear();
    s.Proyecto.DirProyectoConf.clear();
    Responde("Copia2");
    EXPECT_THROW(mnuGuardarProyectoComo(s), FinDelPrograma);
    const Sucesos vistos = TomaSucesos();
    ASSERT_GE(vistos.size(), 3U) << "the load of the components has told of the missing directory before";
    EXPECT_EQ(Sucesos(vistos.end() - 3, vistos.end()),
              (Sucesos{PideCopia, ErrorDesconocido, SucesoTermina()}))
        << "the text about the directory of work is never shown";
}

TEST_F(VidaProyecto, TrasUnFinQueVuelveNadaMasSeHace)
{
    TerminaVuelve();
    PonPuntero(Otros, "Quelmar");
    Responde("Nuevo1");
    disco.PonDirectorio(Ruta(Otros, "Nuevo1_Conf.vlm"));
    mnuNuevoProyecto(s);
    EXPECT_EQ(TomaSucesos(), (Sucesos{PideNuevo, ErrorDesconocido, SucesoTermina()}));
    EXPECT_EQ(disco.Bytes(Puntero), BytesPuntero(Otros, "Quelmar"));
}

// =======================================================================================================
// A disk whose n-th call fails
// =======================================================================================================

TEST_F(VidaProyecto, AbrirYReabrirNuncaTerminanFalleLaLlamadaQueFalle)
{
    for (const bool reabre : {false, true}) {
        int fallidas = 0;
        for (int n = 1; n <= 100; ++n) {
            PonPuntero(Otros, "Quelmar");
            PonProyecto(Otros, "Quelmar");
            EligeRuta(Ruta(Otros, "Quelmar_Conf.vlm"));
            disco.FallaEn(n, NumeroFalla::AccesoRuta);
            EXPECT_NO_THROW(reabre ? mnu_ultimoarchivo1(s) : mnuAbrirProyecto(s)) << "call " << n;
            const bool fallo = disco.HuboFalla();
            disco.DejaDeFallar();
            const Sucesos vistos = TomaSucesos();
            EXPECT_EQ(std::count(vistos.begin(), vistos.end(), SucesoTermina()), 0) << "call " << n;
            EXPECT_EQ(std::count(vistos.begin(), vistos.end(), ErrorDesconocido), 0) << "call " << n;
            // What was opened is as it was, and the pointer whole.
            EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_Conf.vlm")), BytesConf(Otros, "Quelmar")) << n;
            EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_UEHs.vlm")), BytesUEHs("Quelmar")) << n;
            const std::string puntero = disco.Bytes(Puntero);
            EXPECT_TRUE(puntero == BytesPuntero(Otros, "Quelmar") || puntero == BytesPuntero(Proyectos, ""))
                << n << puntero;
            if (!fallo) break;
            ++fallidas;
        }
        EXPECT_GE(fallidas, 6) << "the pointer's, the configuration's and the labels' calls";
        EXPECT_LT(fallidas, 100);
    }
}

TEST_F(VidaProyecto, GuardarComoConLaEnesimaLlamadaFallidaDejaElProyectoViejo)
{
    int terminos = 0;
    for (int n = 1; n <= 200; ++n) {
        for (const std::string& ruta : disco.Archivos())
            disco.Quita(ruta);
        PonProyecto(Otros, "Quelmar");
        disco.Pon(Ruta(Otros, "Quelmar_RHQ.vlm"), "tabla");
        AbreProyecto(Otros, "Quelmar");
        Responde("Copia2");
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        bool termino = false;
        try {
            mnuGuardarProyectoComo(s);
        } catch (const FinDelPrograma&) {
            termino = true;
        }
        const bool fallo = disco.HuboFalla();
        disco.DejaDeFallar();
        const Sucesos vistos = TomaSucesos();
        EXPECT_EQ(std::count(vistos.begin(), vistos.end(), ErrorDesconocido), termino ? 1 : 0)
            << "call " << n;
        EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_Conf.vlm")), BytesConf(Otros, "Quelmar")) << "call " << n;
        EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_UEHs.vlm")), BytesUEHs("Quelmar")) << "call " << n;
        EXPECT_EQ(disco.Bytes(Ruta(Otros, "Quelmar_RHQ.vlm")), "tabla") << "call " << n;
        std::vector<std::string> copia = disco.Archivos();
        std::erase_if(copia,
                      [](const std::string& ruta) { return ruta.find("Copia2_") == std::string::npos; });
        if (!fallo) {
            EXPECT_EQ(disco.Bytes(Ruta(Otros, "Copia2_RHQ.vlm")), "tabla");
            break;
        }
        EXPECT_TRUE(termino ? copia.empty() : copia.size() >= 2) << "call " << n;
        terminos += termino ? 1 : 0;
    }
    // The change of directory, the test of the name, six copies and the one replacement end the program; the
    // faults of loading the components have boxes of their own.
    EXPECT_EQ(terminos, 9);
}

// =======================================================================================================
// Delete
// =======================================================================================================

const std::string PreguntaQuelmar = SucesoPregunta(
    "¿Está seguro de borrar los archivos del Proyecto <Quelmar> ? ", "Consulta", Icono::Pregunta);

struct EliminarProyecto : VidaProyecto {
    EliminarProyecto()
    {
        s.Proyecto.DirProyecto = Otros;
        s.Proyecto.NombreProyecto = "Quelmar";
        for (const char* nombre :
             {"Ara_Conf.vlm", "Ara_UEHs.vlm", "Ara_RHQ.vlm", "Arauco_Conf.vlm", "Arauco_UEHs.vlm",
              "ara_Conf.vlm", "Ara.txt", "Ara1_pt.vlm", "Ara.vlm", "Ara_UEHs.VLM", "ListaPDR.vlm",
              "Quelmar_Conf.vlm", "LaAra_Conf.vlm", "Ara_conf.vlm"})
            disco.Pon(Ruta(Otros, nombre), "x");
        dlg.Abre(s);
    }
    Sucesos Quedan()
    {
        Sucesos nombres;
        for (const std::string& ruta : disco.Archivos())
            nombres.push_back(ruta.substr(Otros.size() + 1));
        return nombres;
    }
    dlgEliminarProyecto dlg;
};

TEST_F(EliminarProyecto, ElDialogoMuestraElDirectorioYSusConfiguraciones)
{
    EXPECT_EQ(dlg.DirProyecto, Otros);
    EXPECT_EQ(dlg.filProyectoEliminar, (Sucesos{"Ara_Conf.vlm", "Arauco_Conf.vlm", "LaAra_Conf.vlm",
                                                "Quelmar_Conf.vlm", "ara_Conf.vlm"}));
    EXPECT_EQ(dlg.lblProyectoAEliminar, "Ninguno");
    EXPECT_TRUE(dlg.abierto);
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    EXPECT_EQ(dlg.lblProyectoAEliminar, "Ara_Conf.vlm");
    dlg.Abre(s);
    EXPECT_EQ(dlg.lblProyectoAEliminar, "Ninguno");
    s.Proyecto.DirProyecto = "no hay";
    dlg.Abre(s);
    EXPECT_TRUE(dlg.filProyectoEliminar.empty());
}

TEST_F(EliminarProyecto, UnNombreVacioNoBorraNada)
{
    disco.Pon(Ruta(Otros, "_Conf.vlm"), "");
    const Sucesos antes = disco.Archivos();
    dlg.filProyectoEliminar_AlPulsar("_Conf.vlm");
    RespondeSi(true);
    TomaCajas();
    dlg.OKButton(s);
    EXPECT_EQ(disco.Archivos(), antes);
    EXPECT_TRUE(dlg.abierto);
    EXPECT_EQ(
        TomaCajas(),
        (std::vector<Mensaje>{{"El archivo elegido no lleva nombre de proyecto: no se borra ningún archivo.",
                               "Consulta", Icono::Exclamacion}}));
}

TEST_F(EliminarProyecto, LoEliminadoVaALaPapeleraDondeLaHay)
{
    std::vector<std::string> tirados;
    s.Anfitrion.TiraAPapelera = [&](const std::string& ruta) {
        tirados.push_back(ruta);
        disco.Quita(ruta);
        return true;
    };
    disco.OlvidaLlamadas();
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    RespondeSi(true);
    dlg.OKButton(s);
    EXPECT_EQ(tirados,
              (Sucesos{Ruta(Otros, "Ara_Conf.vlm"), Ruta(Otros, "Ara.vlm"), Ruta(Otros, "Ara1_pt.vlm"),
                       Ruta(Otros, "Ara_RHQ.vlm"), Ruta(Otros, "Ara_UEHs.vlm"), Ruta(Otros, "Ara_conf.vlm"),
                       Ruta(Otros, "Arauco_Conf.vlm"), Ruta(Otros, "Arauco_UEHs.vlm")}));
    EXPECT_FALSE(dlg.abierto);
    for (const auto& llamada : disco.Llamadas())
        EXPECT_NE(llamada.clase, apoyo::DiscoPrueba::Clase::Borra) << llamada.ruta;
}

TEST_F(EliminarProyecto, ElDibujoSinGuardarDelProyectoQueSeBorraLoDetiene)
{
    std::vector<Riesgo> riesgos;
    s.Anfitrion.ResguardaDibujo = [&](Riesgo riesgo) {
        riesgos.push_back(riesgo);
        return false;
    };
    RespondeSi(true);
    s.Proyecto.NombreProyecto = "Quelmar";
    const Sucesos antes = disco.Archivos();
    dlg.filProyectoEliminar_AlPulsar("Quelmar_Conf.vlm");
    dlg.OKButton(s);
    EXPECT_EQ(disco.Archivos(), antes);
    EXPECT_EQ(riesgos, std::vector<Riesgo>{Riesgo::MueveProyecto});
    dlg.filProyectoEliminar_AlPulsar("LaAra_Conf.vlm");
    dlg.OKButton(s);
    EXPECT_LT(disco.Archivos().size(), antes.size())
        << "another project's files are no matter of the drawing";
    EXPECT_EQ(riesgos.size(), 1U);
}

TEST_F(EliminarProyecto, EliminarBorraTambienLosProyectosCuyoNombreEmpiezaIgual)
{
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    RespondeSi(true);
    dlg.OKButton(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{PreguntaQuelmar}) << "the question names the current project";
    EXPECT_EQ(Quedan(), (Sucesos{"Ara.txt", "Ara_UEHs.VLM", "LaAra_Conf.vlm", "ListaPDR.vlm",
                                 "Quelmar_Conf.vlm", "ara_Conf.vlm"}));
    EXPECT_FALSE(dlg.abierto);
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
}

TEST_F(EliminarProyecto, EliminarElProyectoActualNoLoOlvida)
{
    dlg.filProyectoEliminar_AlPulsar("Quelmar_Conf.vlm");
    RespondeSi(true);
    dlg.OKButton(s);
    EXPECT_FALSE(disco.Esta(Ruta(Otros, "Quelmar_Conf.vlm")));
    EXPECT_EQ(s.Proyecto.NombreProyecto, "Quelmar");
    EXPECT_EQ(s.Proyecto.DirProyecto, Otros);
    EXPECT_FALSE(dlg.abierto) << "no other file matched, and that is no failure";
}

TEST_F(EliminarProyecto, ConNingunoPreguntaIgualYNoBorraNada)
{
    const Sucesos antes = disco.Archivos();
    RespondeSi(true);
    dlg.OKButton(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{PreguntaQuelmar});
    EXPECT_TRUE(dlg.abierto);
    dlg.lblProyectoAEliminar.clear();
    dlg.OKButton(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{PreguntaQuelmar});
    EXPECT_TRUE(dlg.abierto);
    EXPECT_EQ(disco.Archivos(), antes);
}

TEST_F(EliminarProyecto, ConNoNoBorraNadaYQuedaAbierto)
{
    const Sucesos antes = disco.Archivos();
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    RespondeSi(false);
    dlg.OKButton(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{PreguntaQuelmar});
    EXPECT_TRUE(dlg.abierto);
    EXPECT_EQ(disco.Archivos(), antes);
}

TEST_F(EliminarProyecto, SinProyectoActualLaPreguntaNoNombraNinguno)
{
    s.Proyecto.NombreProyecto.clear();
    RespondeSi(false);
    dlg.OKButton(s);
    EXPECT_EQ(TomaSucesos(), Sucesos{SucesoPregunta("¿Está seguro de borrar los archivos del Proyecto <> ? ",
                                                    "Consulta", Icono::Pregunta)});
}

TEST_F(EliminarProyecto, ElPrefijoLlegaHastaElPrimerSubrayado)
{
    disco.Pon(Ruta(Otros, "Ara_2_Conf.vlm"), "x");
    dlg.filProyectoEliminar_AlPulsar("Ara_2_Conf.vlm");
    RespondeSi(true);
    dlg.OKButton(s);
    EXPECT_FALSE(disco.Esta(Ruta(Otros, "Arauco_Conf.vlm"))) << "the pattern is Ara*.vlm";
}

TEST_F(EliminarProyecto, PrefijoYTerminacionNoSeSuperponen)
{
    disco.Pon(Ruta(Otros, "Ara.vlm_Conf.vlm"), "x");
    dlg.filProyectoEliminar_AlPulsar("Ara.vlm_Conf.vlm");
    RespondeSi(true);
    dlg.OKButton(s);
    EXPECT_FALSE(disco.Esta(Ruta(Otros, "Ara.vlm_Conf.vlm")));
    EXPECT_TRUE(disco.Esta(Ruta(Otros, "Ara.vlm"))) << "the pattern is Ara.vlm*.vlm";
}

TEST_F(EliminarProyecto, UnaFallaDejaElDialogoAbierto)
{
    dlg.filProyectoEliminar_AlPulsar("Ara_Conf.vlm");
    RespondeSi(true);
    disco.Quita(Ruta(Otros, "Ara_Conf.vlm"));
    EXPECT_EQ(NumeroDeFalla([&] { dlg.OKButton(s); }), 53);
    EXPECT_TRUE(dlg.abierto);
    EXPECT_TRUE(disco.Esta(Ruta(Otros, "Ara_UEHs.vlm"))) << "nothing is deleted then";
    s.Proyecto.DirProyecto = "no hay";
    EXPECT_EQ(NumeroDeFalla([&] { dlg.OKButton(s); }), 76);
    s.Proyecto.DirProyecto = Otros;
    disco.Pon(Ruta(Otros, "Ara_Conf.vlm"), "x");
    disco.Protege(Ruta(Otros, "Ara_UEHs.vlm"));
    EXPECT_EQ(NumeroDeFalla([&] { dlg.OKButton(s); }), 75);
    EXPECT_TRUE(dlg.abierto);
    EXPECT_TRUE(disco.Esta(Ruta(Otros, "Ara_UEHs.vlm")));
}

}  // namespace
