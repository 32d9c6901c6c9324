// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/DirPropio.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "apoyo/DiscoPrueba.h"
#include "model/Falla.h"

namespace model {
namespace {

struct DirectorioPropio : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string programa = Ruta("", "programa");
    const std::string usuario = Ruta("", "usuario");
    const std::string entregado = Ruta("", "entregado");
    DirectorioPropio()
    {
        disco.PonDirectorio(programa);
        disco.PonDirectorio(usuario);
        disco.Pon(Ruta(entregado, "distriPp_dpt.vlm"), "tabla");
        disco.Pon(Ruta(Ruta(entregado, "Proyectos"), "Quelmar_Conf.vlm"), "conf");
    }
    std::string Prepara() { return PreparaDirTrabajo(disco.Puerta(), programa, usuario, entregado); }
};

TEST_F(DirectorioPropio, EsElDelEjecutableDondeSePuedeEscribir)
{
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(disco.Bytes(Ruta(programa, "distriPp_dpt.vlm")), "tabla");
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")), "conf");
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
    EXPECT_EQ(disco.Bytes(Ruta(usuario, "distriPp_dpt.vlm")), "tabla");
    EXPECT_FALSE(disco.Esta(Ruta(programa, "distriPp_dpt.vlm")));
}

TEST_F(DirectorioPropio, LoQueElUsuarioYaTieneSeRespeta)
{
    disco.Pon(Ruta(programa, "distriPp_dpt.vlm"), "la mía");
    Prepara();
    EXPECT_EQ(disco.Bytes(Ruta(programa, "distriPp_dpt.vlm")), "la mía");
}

TEST_F(DirectorioPropio, DespuesDelPrimerArranqueNoSeCopiaMas)
{
    disco.Pon(Ruta(programa, "VelmirDir.vlm"), "");
    Prepara();
    EXPECT_FALSE(disco.Esta(Ruta(programa, "distriPp_dpt.vlm")));
}

TEST_F(DirectorioPropio, LoQueNoSePuedeCopiarSeDejaYElRestoVa)
{
    disco.Protege(Ruta(entregado, "distriPp_dpt.vlm"));
    disco.PonDirectorio(Ruta(programa, "distriPp_dpt.vlm"));  // in the way of the copy
    EXPECT_EQ(Prepara(), programa);
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(programa, "Proyectos"), "Quelmar_Conf.vlm")), "conf");
}

TEST_F(DirectorioPropio, ElDelUsuarioSeHaceConLosQueLeFaltanArriba)
{
    disco.Protege(programa);
    const std::string nuevo = Ruta(Ruta(Ruta("", "casa"), "SIRO"), "siro");
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, nuevo, entregado), nuevo);
    EXPECT_EQ(disco.Bytes(Ruta(nuevo, "distriPp_dpt.vlm")), "tabla");
}

TEST_F(DirectorioPropio, SinDirectorioDeUsuarioQuedaElDelEjecutable)
{
    disco.Protege(programa);
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, "", entregado), programa);
}

// Two programs that start at once: the other one has taken the probe away already.
TEST_F(DirectorioPropio, LaPruebaDeEscrituraNoDependeDePoderBorrarla)
{
    Disco puerta = disco.Puerta();
    puerta.Borra = [](const std::string&) { throw Falla{NumeroFalla::ArchivoNoEsta}; };
    EXPECT_EQ(PreparaDirTrabajo(puerta, programa, usuario, ""), programa);
}

// --- what an installation delivers ---

struct LugarEntregado : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string programa = Ruta(Ruta("", "siro"), "bin");
    const std::string alLado = Ruta(Ruta(Ruta(programa, ".."), "share"), "siro");
    LugarEntregado() { disco.PonDirectorio(programa); }
    std::string Halla() { return DirEntregado(disco.Puerta(), programa); }
};

TEST_F(LugarEntregado, SinAyudaNoHayNinguno)
{
    disco.PonDirectorio(Ruta(programa, "data"));
    disco.PonDirectorio(Ruta(alLado, "Proyectos"));
    EXPECT_EQ(Halla(), "");
}

// Each place goes before those that were tried above it.
TEST_F(LugarEntregado, ElPropioElCompartidoYData)
{
    disco.PonDirectorio(Ruta(programa, "Ayuda"));
    EXPECT_EQ(Halla(), programa);
    disco.PonDirectorio(Ruta(alLado, "Ayuda"));
    EXPECT_EQ(Halla(), alLado);
    disco.PonDirectorio(Ruta(Ruta(programa, "data"), "Ayuda"));
    EXPECT_EQ(Halla(), Ruta(programa, "data"));
}

// A folder with program and data that lies where nobody may write: a medium, another's home.
TEST_F(LugarEntregado, DeUnaCarpetaProtegidaSeCopiaAlUsuario)
{
    const std::string usuario = Ruta("", "usuario");
    disco.Pon(Ruta(programa, "distriPp_dpt.vlm"), "tabla");
    disco.Pon(Ruta(Ruta(programa, "Ayuda"), "indice.html"), "ayuda");
    disco.Protege(programa);
    EXPECT_EQ(PreparaDirTrabajo(disco.Puerta(), programa, usuario, Halla()), usuario);
    EXPECT_EQ(disco.Bytes(Ruta(usuario, "distriPp_dpt.vlm")), "tabla");
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(usuario, "Ayuda"), "indice.html")), "ayuda");
}

// --- help after an upgrade ---

struct AyudaRenovada : testing::Test {
    apoyo::DiscoPrueba disco{};
    const std::string propio = Ruta("", "usuario"), entregado = Ruta("", "entregado");
    const std::string indice = Ruta(Ruta(propio, "Ayuda"), "indice.html");
    AyudaRenovada()
    {
        disco.Pon(Ruta(Ruta(entregado, "Ayuda"), "indice.html"), "nueva");
        disco.Pon(indice, "vieja");
    }
    void Renueva() { RenuevaAyuda(disco.Puerta(), propio, entregado); }
};

TEST_F(AyudaRenovada, LoEntregadoReemplazaALoCopiadoAntes)
{
    disco.Pon(Ruta(Ruta(entregado, "Ayuda"), "teclas.html"), "otra");
    Renueva();
    EXPECT_EQ(disco.Bytes(indice), "nueva");
    EXPECT_EQ(disco.Bytes(Ruta(Ruta(propio, "Ayuda"), "teclas.html")), "otra");
}

TEST_F(AyudaRenovada, LoQueEsIgualNoSeEscribe)
{
    disco.Pon(indice, "nueva");
    Disco puerta = disco.Puerta();
    int copias = 0;
    puerta.Copia = [&](const std::string&, const std::string&) { ++copias; };
    RenuevaAyuda(puerta, propio, entregado);
    EXPECT_EQ(copias, 0);
}

TEST_F(AyudaRenovada, LosDatosDelUsuarioNoSeTocan)
{
    disco.Pon(Ruta(entregado, "distriPp_dpt.vlm"), "tabla");
    disco.Pon(Ruta(propio, "distriPp_dpt.vlm"), "la mía");
    Renueva();
    EXPECT_EQ(disco.Bytes(Ruta(propio, "distriPp_dpt.vlm")), "la mía");
}

TEST_F(AyudaRenovada, SinLugarOSinEntregaTodoQueda)
{
    RenuevaAyuda(disco.Puerta(), propio, "");
    RenuevaAyuda(disco.Puerta(), propio, Ruta("", "nada"));
    EXPECT_EQ(disco.Bytes(indice), "vieja");
    disco.PonDirectorio(Ruta("", "otro"));
    RenuevaAyuda(disco.Puerta(), Ruta("", "otro"), entregado);
    EXPECT_FALSE(disco.Esta(Ruta(Ruta(Ruta("", "otro"), "Ayuda"), "indice.html")));
}

TEST_F(AyudaRenovada, LoQueNoSePuedeEscribirSeDejaSinDecirNada)
{
    disco.Protege(Ruta(propio, "Ayuda"));
    EXPECT_NO_THROW(Renueva());
    EXPECT_EQ(disco.Bytes(indice), "vieja");
}

// --- the user's own directory ---

std::string DirDe(const std::map<std::string, std::string>& variables)
{
    return DirDelUsuario([&](const std::string& nombre) {
        const auto hallada = variables.find(nombre);
        return hallada == variables.end() ? std::string() : hallada->second;
    });
}

#if !defined(_WIN32) && !defined(__APPLE__)
TEST(DirDelUsuario, EsDondeElEscritorioGuardaLosDatos)
{
    EXPECT_EQ(DirDe({{"HOME", "/casa"}}), "/casa/.local/share/SIRO/siro");
    EXPECT_EQ(DirDe({{"HOME", "/casa"}, {"XDG_DATA_HOME", "/datos"}}), "/datos/SIRO/siro");
    EXPECT_EQ(DirDe({{"XDG_DATA_HOME", "/datos"}}), "/datos/SIRO/siro");
    EXPECT_EQ(DirDe({{"HOME", "/casa"}, {"XDG_DATA_HOME", "datos"}}), "/casa/.local/share/SIRO/siro");
}
#endif

TEST(DirDelUsuario, SinAmbienteNoHayNinguno)
{
    EXPECT_EQ(DirDe({}), "");
}

}  // namespace
}  // namespace model
