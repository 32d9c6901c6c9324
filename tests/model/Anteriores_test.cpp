// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a save takes the place of is kept: which saves, how many, whatever the disk says, and the way back.

#include "model/Anteriores.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "LlamadasQueFallan.h"
#include "apoyo/Compara.h"
#include "apoyo/DiscoPrueba.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"

using namespace model;
using apoyo::DiscoPrueba;
using apoyo::NumeroDeFalla;

namespace {

const std::string Barra(1, Separador);
const std::string Carpeta = "/casa/Anteriores", Dir = "/proyectos", Arroyo = Dir + Barra + "Arroyo";

std::string En(const std::string& nombre)
{
    return Ruta(Dir, nombre);
}

/// A folder with the project "Arroyo", saved through the door by a program whose clock the test sets.
struct Anterior : ::testing::Test {
    Anterior()
    {
        disco.PonDirectorio("/casa");
        disco.Pon(En("Arroyo_Conf.vlm"), "conf");
        disco.Pon(En("Arroyo_UEHs.vlm"), "red 0");
        a = {disco.Puerta(), Carpeta, [this] { return reloj; }};
        puerta = ConAnteriores(a, [this](const std::string& aviso) { avisos.push_back(aviso); });
    }
    /// A save of the network, a minute after the last one.
    void Guarda(const std::string& red)
    {
        reloj += 60;
        puerta.Reemplaza({{En("Arroyo_UEHs.vlm"), red}});
    }
    void GuardaEstudio(const std::string& estudio, std::int64_t despues)
    {
        reloj += despues;
        puerta.Reemplaza({{En("Arroyo_Estudio.json"), estudio}});
    }
    /// The networks kept, the newest first; "?" for a version that can't be read.
    std::vector<std::string> Redes(const std::string& proyecto = Arroyo) const
    {
        std::vector<std::string> redes;
        for (const FichaDeVersion& ficha : VersionesDe(a, proyecto)) {
            redes.emplace_back("?");
            Sentencia([&] {
                for (const CambioArchivo& archivo : LeeVersion(a, ficha).archivos)
                    if (archivo.ruta.ends_with("_UEHs.vlm")) redes.back() = archivo.bytes;
            });
        }
        return redes;
    }
    std::size_t Cuantas() const { return VersionesDe(a, Arroyo).size(); }
    VersionAnterior Lee(std::size_t lugar) const { return LeeVersion(a, VersionesDe(a, Arroyo).at(lugar)); }
    std::string RutaDe(std::size_t lugar) const
    {
        return Ruta(Carpeta, VersionesDe(a, Arroyo).at(lugar).Archivo());
    }

    DiscoPrueba disco;
    std::int64_t reloj = 1795314300;
    Anteriores a;
    Disco puerta;
    std::vector<std::string> avisos;
};

using Textos = std::vector<std::string>;

TEST_F(Anterior, UnGuardadoDejaLoQueHabiaConSuMomentoYFueraDelProyecto)
{
    Guarda("red 1");
    ASSERT_EQ(Cuantas(), 1U);
    EXPECT_EQ(VersionesDe(a, Arroyo)[0].momento, 1795314360);
    EXPECT_EQ(Lee(0), (VersionAnterior{Arroyo, {{"Arroyo_Conf.vlm", "conf"}, {"Arroyo_UEHs.vlm", "red 0"}}}));
    EXPECT_EQ(disco.Bytes(En("Arroyo_UEHs.vlm")), "red 1");
    EXPECT_EQ(a.disco.Lista(Dir), (std::vector<std::string>{"Arroyo_Conf.vlm", "Arroyo_UEHs.vlm"}));
    EXPECT_EQ(ProyectosConVersiones(a), (std::vector<std::string>{Arroyo}));
    EXPECT_TRUE(avisos.empty());
}

TEST_F(Anterior, QuedanLasUltimasDiez)
{
    for (int i = 1; i <= 13; ++i)
        Guarda("red " + std::to_string(i));
    EXPECT_EQ(Redes(), (Textos{"red 12", "red 11", "red 10", "red 9", "red 8", "red 7", "red 6", "red 5",
                               "red 4", "red 3"}));
}

// A clock that was put back makes none of them the oldest.
TEST_F(Anterior, ElOrdenEsElDeLosGuardadosYNoElDelReloj)
{
    Guarda("red 1");
    reloj -= 100000;
    for (int i = 2; i <= 12; ++i)
        Guarda("red " + std::to_string(i));
    EXPECT_EQ(Redes().front(), "red 11");
    EXPECT_EQ(Redes().back(), "red 2");
}

TEST_F(Anterior, LoQueNoCambiaNadaNoDejaNinguna)
{
    Guarda("red 0");
    EXPECT_EQ(Cuantas(), 0U);
    Guarda("red 1");
    Guarda("red 1");
    EXPECT_EQ(Cuantas(), 1U);
}

// 0 -> 1 -> 0 -> 2: what "red 0" was kept as first gives way to what is kept of it now.
TEST_F(Anterior, UnEstadoQueVuelveOcupaUnLugarSolo)
{
    Guarda("red 1");
    Guarda("red 0");
    Guarda("red 2");
    EXPECT_EQ(Redes(), (Textos{"red 0", "red 1"}));
    // The newest holds it already, as it does after a program that was killed between version and save.
    GuardaVersion(a, Lee(0));
    EXPECT_EQ(Redes(), (Textos{"red 0", "red 1"}));
}

// The study is written at each change: in an hour of work it may take the place of four versions.
TEST_F(Anterior, ElEstudioSoloDejaUnaCadaCuartoDeHora)
{
    Guarda("red 1");
    for (int i = 1; i <= 60; ++i)
        GuardaEstudio(std::to_string(i), 60);
    EXPECT_EQ(Cuantas(), 5U);
    // And of the network each save's, whatever the study has done.
    Guarda("red 2");
    GuardaEstudio("otro", 60);
    Guarda("red 3");
    EXPECT_EQ(Redes()[0], "red 2");
    EXPECT_EQ(Redes()[1], "red 1");
}

TEST_F(Anterior, LosArchivosDeUnMismoGuardadoDejanUnaSola)
{
    Guarda("red 1");
    reloj += 2;
    puerta.Reemplaza({{En("Arroyo_VerCau.vlm"), "x"}});
    EXPECT_EQ(Cuantas(), 1U);
    reloj += 1;
    puerta.Reemplaza({{En("Arroyo_VerCau.vlm"), "y"}});
    EXPECT_EQ(Cuantas(), 2U);
}

TEST_F(Anterior, BorrarYCopiarDejanLoQueHabia)
{
    struct Fila {
        const char* que;
        std::function<void()> hace;
        std::size_t versiones;
    };
    disco.Pon("/otra/x", "copiada");
    for (const Fila& fila : std::vector<Fila>{
             {"copied over", [&] { puerta.Copia("/otra/x", En("Arroyo_UEHs.vlm")); }, 1},
             {"deleted", [&] { puerta.Borra(En("Arroyo_UEHs.vlm")); }, 2},
             {"gone already", [&] { NumeroDeFalla([&] { puerta.Borra(En("Arroyo_UEHs.vlm")); }); }, 2},
             {"trashed", [&] { GuardaAntesDe(a, En("Arroyo_Conf.vlm")); }, 3}}) {
        reloj += 60;
        fila.hace();
        EXPECT_EQ(Cuantas(), fila.versiones) << fila.que;
    }
    // The last one is of a project that has no network any more.
    EXPECT_EQ(Redes(), (Textos{"?", "copiada", "red 0"}));
}

TEST_F(Anterior, LoQueNoEsDeUnProyectoPasaDeLargo)
{
    disco.Pon("/casa/VelmirDir.vlm", "x");
    disco.Pon(En("nota.txt"), "x");
    puerta.Reemplaza({{"/casa/VelmirDir.vlm", "y"}});
    puerta.Reemplaza({{En("nota.txt"), "y"}});
    puerta.Reemplaza({{En("Nuevo_Conf.vlm"), "y"}, {En("Nuevo_UEHs.vlm"), "y"}});
    EXPECT_FALSE(disco.Esta(Carpeta));
    EXPECT_TRUE(ProyectosConVersiones(a).empty());
    EXPECT_EQ(disco.Bytes(En("Nuevo_UEHs.vlm")), "y");
}

TEST(ProyectoDeArchivo, EsElDelNombreMasLargoYLasTormentasSonDelUnico)
{
    const std::vector<std::string> uno{"A_Conf.vlm", "A_UEHs.vlm", "x_pt.vlm"},
        dos{"A_B_Conf.vlm", "A_Conf.vlm", "x_pt.vlm"};
    struct Fila {
        const char* archivo;
        const std::vector<std::string>& todos;
        const char* de;
    };
    for (const Fila& fila : std::vector<Fila>{{"A_UEHs.vlm", uno, "A"},
                                              {"A_Conf.vlm", uno, "A"},
                                              {"A_Estudio.json", uno, "A"},
                                              {"A_serie_1.csv", uno, "A"},
                                              {"A_otra.csv", uno, ""},
                                              {"A.vlm", uno, ""},
                                              {"AB_UEHs.vlm", uno, ""},
                                              {"x_pt.vlm", uno, "A"},
                                              {"ListaPDR.vlm", uno, "A"},
                                              {"x_pt.vlm", dos, ""},
                                              {"ListaPDR.vlm", dos, ""},
                                              {"A_B_UEHs.vlm", dos, "A_B"},
                                              {"A_UEHs.vlm", dos, "A"}})
        EXPECT_EQ(ProyectoDeArchivo(fila.archivo, fila.todos), fila.de) << fila.archivo;
}

// --- a disk that says no ---

TEST_F(Anterior, SiNoSePuedeGuardarLaVersionElGuardadoSigueYSeDiceUnaVez)
{
    disco.Protege("/casa");
    Guarda("red 1");
    EXPECT_EQ(disco.Bytes(En("Arroyo_UEHs.vlm")), "red 1");
    EXPECT_EQ(avisos, (std::vector<std::string>{"No se pudo guardar la versión anterior del proyecto Arroyo: "
                                                "No se encontró la ruta de acceso. Lo demás se guardó. "
                                                "Carpeta: /casa/Anteriores"}));
    Guarda("red 2");
    EXPECT_EQ(avisos.size(), 1U);
    EXPECT_EQ(Cuantas(), 0U);
    disco.Protege("/casa", false);
    Guarda("red 3");
    EXPECT_EQ(Redes(), (Textos{"red 2"}));
}

TEST_F(Anterior, LoDemasiadoGrandeNoSeGuardaYSeDice)
{
    disco.Pon(En("Arroyo_serie_1.csv"), std::string(MaximoDeVersion, 'x'));
    Guarda("red 1");
    EXPECT_EQ(Cuantas(), 0U);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_NE(avisos[0].find("El proyecto ocupa demasiado"), std::string::npos);
    disco.Pon(En("Arroyo_serie_1.csv"), std::string(MaximoDeVersion - 100, 'x'));
    Guarda("red 2");
    EXPECT_EQ(Redes(), (Textos{"red 1"}));
}

// Whatever call fails, the project is saved, or the save's own fault goes on its way.
TEST_F(Anterior, CadaLlamadaNegadaDejaElGuardadoHechoODicho)
{
    for (int i = 1; i <= 11; ++i)
        Guarda("red " + std::to_string(i));
    int n = 1;
    for (; n < 200; ++n) {
        const std::string antes = disco.Bytes(En("Arroyo_UEHs.vlm")), nueva = "falla " + std::to_string(n);
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        const int falla = NumeroDeFalla([&] { Guarda(nueva); });
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        EXPECT_EQ(disco.Bytes(En("Arroyo_UEHs.vlm")), falla == 0 ? nueva : antes) << n;
        for (const std::string& red : Redes())
            EXPECT_NE(red, "?") << n;
        if (!hubo) break;
    }
    EXPECT_GT(n, 5);
    EXPECT_LT(n, 200);
}

// --- damaged and hostile files ---

TEST_F(Anterior, UnaDanadaSeDiceYQueda)
{
    for (int i = 1; i <= 4; ++i)
        Guarda("red " + std::to_string(i));
    const std::string danada = RutaDe(3), ajena = Ruta(Carpeta, "nota.anterior");
    disco.Pon(danada, "basura");
    disco.Pon(ajena, "de otro");
    EXPECT_EQ(Redes(), (Textos{"red 3", "red 2", "red 1", "?"}));
    EXPECT_EQ(NumeroDeFalla([&] { Lee(3); }), 75);
    for (int i = 5; i <= 20; ++i)
        Guarda("red " + std::to_string(i));
    EXPECT_EQ(disco.Bytes(danada), "basura");
    EXPECT_EQ(disco.Bytes(ajena), "de otro");
    EXPECT_EQ(Cuantas(), 10U);
    EXPECT_EQ(Redes().back(), "?");
}

TEST_F(Anterior, UnaDeOtroProyectoBajoEsteNombreNoSeToma)
{
    Guarda("red 1");
    const std::string ruta = RutaDe(0);
    VersionAnterior otra = Lee(0);
    otra.proyecto = "/otra/Arroyo";
    disco.Pon(ruta, EscribeVersion(otra));
    EXPECT_EQ(NumeroDeFalla([&] { Lee(0); }), 75);
}

const VersionAnterior Entera{Arroyo,
                             {{"Arroyo_Conf.vlm", "conf"}, {"Arroyo_UEHs.vlm", std::string("\0\n\xff", 3)}}};

TEST(VersionAnterior, VuelveComoSeEscribio)
{
    EXPECT_EQ(LeeVersion(EscribeVersion(Entera)), Entera);
    const VersionAnterior vacia{Arroyo, {}};
    EXPECT_EQ(LeeVersion(EscribeVersion(vacia)), vacia);
}

TEST(VersionAnterior, CadaByteCambiadoYCadaCorteSeNotan)
{
    const std::string bytes = EscribeVersion(Entera);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::string otro = bytes;
        otro[i] = static_cast<char>(otro[i] ^ 1);
        EXPECT_EQ(NumeroDeFalla([&] { LeeVersion(otro); }), 75) << i;
        EXPECT_EQ(NumeroDeFalla([&] { LeeVersion(bytes.substr(0, i)); }), 75) << i;
    }
    EXPECT_EQ(NumeroDeFalla([&] { LeeVersion(bytes + "x"); }), 75);
}

TEST(VersionAnterior, ConHuellaBuenaYContenidoHostilNoSeToma)
{
    const std::string p = Arroyo + "\n";
    EXPECT_EQ(LeeVersion(ConHuella(p + "1\n3 Arroyo_a.vlm\nabc")),
              (VersionAnterior{Arroyo, {{"Arroyo_a.vlm", "abc"}}}));
    for (const std::string& cuerpo : {
             p + "1\n3 ../Arroyo_a.vlm\nabc",               // out of its folder
             p + "1\n3 Arroyo_/../../a.vlm\nabc",           // the same further on
             p + "1\n3 Arroyo_\\a.vlm\nabc",                // another platform's separator
             p + "1\n3 Otro_a.vlm\nabc",                    // another project's file
             p + "1\n3 .bashrc\nabc",                       // nobody's
             p + "1\n3 \nabc",                              // no name
             p + "2\n1 Arroyo_a.vlm\n2 Arroyo_a.vlm\nabc",  // twice the same
             p + "2\n1 Arroyo_b.vlm\n2 Arroyo_a.vlm\nabc",  // not in order
             p + "1\n4 Arroyo_a.vlm\nabc",                  // beyond its end
             p + "1\n2 Arroyo_a.vlm\nabc",                  // short of its end
             p + "1\n-3 Arroyo_a.vlm\nabc",                 // a length below nothing
             p + "1\n18446744073709551615 Arroyo_a.vlm\nabc",
             p + "99999999\n3 Arroyo_a.vlm\nabc",  // more files than there are
             p + "x\n",
             std::string("/proyectos/\n0\n"),  // a project without a name
             std::string("/proyectos/..\n0\n"),
             std::string("\n0\n"),
         })
        EXPECT_EQ(NumeroDeFalla([&] { LeeVersion(ConHuella(cuerpo)); }), 75) << cuerpo;
}

// Vectors of Fowler, Noll and Vo's own test suite for the 64-bit FNV-1a.
TEST(HuellaFnv, EsLaPublicada)
{
    EXPECT_EQ(HuellaFnv(""), 0xcbf29ce484222325U);
    EXPECT_EQ(HuellaFnv("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(HuellaFnv("foobar"), 0x85944171f73967e8U);
}

TEST(FichaDeVersion, SoloSuPropioNombre)
{
    const FichaDeVersion ficha{0x123U, 12, 1795314300, 0xabcU};
    const std::string nombre = "0000000000000123-00000012-1795314300-0000000000000abc.anterior";
    EXPECT_EQ(ficha.Archivo(), nombre);
    EXPECT_EQ(LeeFicha(nombre), ficha);
    for (const char* otro : {"0000000000000123-12-1795314300-0000000000000abc.anterior",
                             "0000000000000123-00000012--1795314300-0000000000000abc.anterior",
                             "0000000000000123-00000012-1795314300-0000000000000ABC.anterior",
                             "0000000000000123-00000012-1795314300.anterior", ".anterior", "", "a.vlm"})
        EXPECT_EQ(LeeFicha(otro), std::nullopt) << otro;
}

// --- the way back ---

TEST_F(Anterior, TraerDeVueltaPoneLoDeEntoncesYDejaLoDeAhoraParaDeshacerlo)
{
    Guarda("red 1");
    reloj += 60;
    puerta.Reemplaza({{En("Arroyo_UEHs.vlm"), "red 2"}, {En("Arroyo_RHQ.vlm"), "tabla"}});
    const VersionAnterior presente = VersionPresente(a.disco, Arroyo);
    TraeDeVuelta(a, Lee(1));
    EXPECT_EQ(VersionPresente(a.disco, Arroyo).archivos,
              (std::vector<CambioArchivo>{{"Arroyo_Conf.vlm", "conf"}, {"Arroyo_UEHs.vlm", "red 0"}}));
    EXPECT_EQ(Redes(), (Textos{"red 2", "red 1", "red 0"}));
    TraeDeVuelta(a, Lee(0));
    EXPECT_EQ(VersionPresente(a.disco, Arroyo), presente);
}

TEST_F(Anterior, LaMasViejaDeDiezSeTraeTambienSiAlgoFalla)
{
    int n = 1, fallas = 0;
    for (; n < 200; ++n) {
        if (n > 1) disco.Quita(Carpeta);
        disco.Pon(En("Arroyo_UEHs.vlm"), "red 0");
        for (int i = 1; i <= 10; ++i)
            Guarda("red " + std::to_string(i));
        const VersionAnterior vieja = Lee(9);
        disco.FallaEn(n, NumeroFalla::AccesoRuta);
        const int falla = NumeroDeFalla([&] { TraeDeVuelta(a, vieja); });
        const bool hubo = disco.HuboFalla();
        disco.DejaDeFallar();
        if (falla != 0) ++fallas;
        EXPECT_EQ(disco.Bytes(En("Arroyo_UEHs.vlm")), falla == 0 ? "red 0" : "red 10") << n;
        EXPECT_EQ(falla != 0 ? Redes().back() : Redes().front(), falla != 0 ? "red 0" : "red 10") << n;
        if (!hubo) break;
    }
    EXPECT_GE(fallas, 4);
    EXPECT_LT(n, 200);
}

TEST_F(Anterior, UnProyectoBorradoVuelve)
{
    Guarda("red 1");
    reloj += 60;
    puerta.Borra(En("Arroyo_Conf.vlm"));
    puerta.Borra(En("Arroyo_UEHs.vlm"));
    EXPECT_EQ(ProyectosConVersiones(a), (std::vector<std::string>{Arroyo}));
    TraeDeVuelta(a, Lee(0));
    EXPECT_EQ(disco.Bytes(En("Arroyo_UEHs.vlm")), "red 1");
    EXPECT_EQ(disco.Bytes(En("Arroyo_Conf.vlm")), "conf");
}

TEST_F(Anterior, LasTormentasVuelvenMientrasSonDelProyectoYNuncaSeBorran)
{
    disco.Pon(En("Lluvia_pt.vlm"), "vieja");
    reloj += 60;
    puerta.Reemplaza({{En("Lluvia_pt.vlm"), "nueva"}});
    disco.Pon(En("Otra_pt.vlm"), "posterior");
    ASSERT_EQ(Cuantas(), 1U);
    const VersionAnterior version = Lee(0);
    TraeDeVuelta(a, version);
    EXPECT_EQ(disco.Bytes(En("Lluvia_pt.vlm")), "vieja");
    EXPECT_EQ(disco.Bytes(En("Otra_pt.vlm")), "posterior");
    disco.Pon(En("Segundo_Conf.vlm"), "comparte la carpeta");
    disco.Pon(En("Lluvia_pt.vlm"), "de los dos");
    TraeDeVuelta(a, version);
    EXPECT_EQ(disco.Bytes(En("Lluvia_pt.vlm")), "de los dos");
}

TEST_F(Anterior, AparteSeEscribeEnteraYNoTapaNada)
{
    Guarda("red 1");
    disco.PonDirectorio("/otra");
    EXPECT_EQ(EscribeAparte(a.disco, Lee(0), "/otra"), Ruta("/otra", "Arroyo_Conf.vlm"));
    EXPECT_EQ(disco.Bytes(Ruta("/otra", "Arroyo_UEHs.vlm")), "red 0");
    disco.Pon(Ruta("/otra", "Arroyo_UEHs.vlm"), "del usuario");
    disco.Quita(Ruta("/otra", "Arroyo_Conf.vlm"));
    EXPECT_EQ(EscribeAparte(a.disco, Lee(0), "/otra"), "");
    EXPECT_EQ(disco.Bytes(Ruta("/otra", "Arroyo_UEHs.vlm")), "del usuario");
    EXPECT_FALSE(disco.Esta(Ruta("/otra", "Arroyo_Conf.vlm")));
    EXPECT_EQ(NumeroDeFalla([&] { EscribeAparte(a.disco, Lee(0), "/noEsta"); }), 76);
}

TEST_F(Anterior, UnoMudadoTieneLasSuyasYLasDeAntesQuedan)
{
    Guarda("red 1");
    for (const char* nombre : {"Arroyo_Conf.vlm", "Arroyo_UEHs.vlm"})
        disco.Pon(Ruta("/mudado", nombre), disco.Bytes(En(nombre)));
    disco.Quita(Dir);
    reloj += 60;
    puerta.Reemplaza({{Ruta("/mudado", "Arroyo_UEHs.vlm"), "red 2"}});
    EXPECT_EQ(Redes(), (Textos{"red 0"}));
    EXPECT_EQ(Redes("/mudado" + Barra + "Arroyo"), (Textos{"red 1"}));
    EXPECT_EQ(ProyectosConVersiones(a), (std::vector<std::string>{"/mudado" + Barra + "Arroyo", Arroyo}));
}

// Both have counted the versions when one of them writes: neither takes the other's place.
TEST_F(Anterior, DosProgramasALaVezNoSePisan)
{
    Guarda("red 1");
    Anteriores otro = a;
    const Disco suDisco = otro.disco;
    bool hecho = false;
    otro.disco.Reemplaza = [&](const std::vector<CambioArchivo>& cambios) {
        if (!std::exchange(hecho, true)) Guarda("red 2");  // by the other program meanwhile
        suDisco.Reemplaza(cambios);
    };
    const Disco suPuerta = ConAnteriores(otro, [](const std::string&) {});
    reloj += 60;
    disco.Pon(En("Arroyo_VerCau.vlm"), "suyo");
    suPuerta.Reemplaza({{En("Arroyo_UEHs.vlm"), "red 3"}});
    EXPECT_EQ(Cuantas(), 3U);
    for (const std::string& red : Redes())
        EXPECT_NE(red, "?");
    EXPECT_EQ(disco.Bytes(En("Arroyo_UEHs.vlm")), "red 3");
}

// --- on the real disk ---

struct AnteriorReal : ::testing::Test {
    AnteriorReal()
    {
        namespace fs = std::filesystem;
        proyectos = carpeta.Camino() / fs::path(u8"Cañadón Ñandú");
        fs::create_directories(proyectos);
        casa = carpeta.Camino() / "casa";
        fs::create_directories(casa);
    }
    Anteriores Con(const Disco& disco) const
    {
        const auto texto = (casa / "Anteriores").u8string();
        return {disco, {texto.begin(), texto.end()}, [] { return std::int64_t{1795314300}; }};
    }
    std::string En(const std::string& nombre) const
    {
        const auto texto = proyectos.u8string();
        return Ruta(std::string(texto.begin(), texto.end()), nombre);
    }
    void Empieza() const
    {
        fallas::PonContenido(proyectos, Viejo);
        std::filesystem::remove_all(casa / "Anteriores");
    }
    void Guarda(const Disco& disco) const
    {
        ConAnteriores(Con(disco), [](const std::string&) {
        }).Reemplaza({{En("Arroyo_UEHs.vlm"), "red 1"}, {En("Arroyo_VerCau.vlm"), "ver 1"}});
    }
    const fallas::Contenido Viejo{
        {"Arroyo_Conf.vlm", "conf"}, {"Arroyo_UEHs.vlm", "red 0"}, {"Arroyo_VerCau.vlm", "ver 0"}},
        Nuevo{{"Arroyo_Conf.vlm", "conf"}, {"Arroyo_UEHs.vlm", "red 1"}, {"Arroyo_VerCau.vlm", "ver 1"}};
    apoyo::CarpetaTemporal carpeta;
    std::filesystem::path proyectos, casa;
};

// After each death: the project old or new as ever, and once a new one is kept, no file of another kind.
TEST_F(AnteriorReal, MatadoEnCadaLlamadaElGuardadoEsEnteroYLaVersionEsEnteraONoEsta)
{
    const std::string proyecto = En("Arroyo");
    for (const double hecha : {0.0, 0.5, 1.0}) {
        int muertes = 0, conVersion = 0;
        for (int n = 1; n < 100; ++n) {
            Empieza();
            const fallas::Fin fin =
                fallas::EnOtroProceso([&] { Guarda(fallas::Disco({.llamada = n, .hecha = hecha})); });
            ASSERT_NE(fin, fallas::Fin::Mal);
            const Disco disco = DiscoDelSistema();
            disco.Recupera(En("x").substr(0, En("").size() - 1));
            const fallas::Contenido queda = fallas::ContenidoDe(proyectos);
            EXPECT_TRUE(queda == Viejo || queda == Nuevo) << n << " " << hecha;
            const Anteriores a = Con(disco);
            const auto versiones = VersionesDe(a, proyecto);
            ASSERT_LE(versiones.size(), 1U);
            if (!versiones.empty()) {
                ++conVersion;
                EXPECT_EQ(LeeVersion(a, versiones[0]).archivos,
                          (std::vector<CambioArchivo>{{"Arroyo_Conf.vlm", "conf"},
                                                      {"Arroyo_UEHs.vlm", "red 0"},
                                                      {"Arroyo_VerCau.vlm", "ver 0"}}));
            } else {
                EXPECT_EQ(queda, Viejo) << "what was replaced is kept";
            }
            // The next version clears what the death has left.
            VersionAnterior otra = VersionPresente(disco, proyecto);
            otra.archivos[1].bytes = "otra";
            GuardaVersion(a, otra);
            EXPECT_EQ(fallas::ContenidoDe(casa / "Anteriores").size(), versiones.size() + 1);
            if (fin == fallas::Fin::Entero) break;
            ++muertes;
        }
        EXPECT_GE(muertes, 9) << "three calls of the version, and those of two files";
        EXPECT_LT(muertes, 99);
        EXPECT_GE(conVersion, 5);
    }
}

TEST_F(AnteriorReal, MatadoAlTraerDeVueltaElProyectoEsElDeAntesOElTraidoYLoDeAntesSeGuardo)
{
    const std::string proyecto = En("Arroyo");
    const VersionAnterior vieja{
        proyecto,
        {{"Arroyo_Conf.vlm", "conf"}, {"Arroyo_UEHs.vlm", "red 0"}, {"Arroyo_VerCau.vlm", "ver 0"}}};
    int muertes = 0;
    for (int n = 1; n < 100; ++n) {
        Empieza();
        fallas::PonContenido(proyectos, Nuevo);
        const fallas::Fin fin = fallas::EnOtroProceso(
            [&] { TraeDeVuelta(Con(fallas::Disco({.llamada = n, .hecha = 1})), vieja); });
        ASSERT_NE(fin, fallas::Fin::Mal);
        const Disco disco = DiscoDelSistema();
        disco.Recupera(En("x").substr(0, En("").size() - 1));
        const fallas::Contenido queda = fallas::ContenidoDe(proyectos);
        EXPECT_TRUE(queda == Viejo || queda == Nuevo) << n;
        EXPECT_TRUE(queda != Viejo || VersionesDe(Con(disco), proyecto).size() == 1U) << n;
        if (fin == fallas::Fin::Entero) break;
        ++muertes;
    }
    EXPECT_GE(muertes, 9);
    EXPECT_LT(muertes, 99);
}

}  // namespace
