// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/RutaProyecto.h"

#include <gtest/gtest.h>

#include <string>

#include "model/Disco.h"

using namespace model;

namespace {

TEST(SirveDeNombre, TodoLoQueNoSaleDeLaCarpeta)
{
    for (const char* const nombre : {"", "Quelmar", "a@b", "con espacio", "Río", "ñandú", "a.b", ".", "€"})
        EXPECT_TRUE(SirveDeNombre(nombre)) << nombre;
}

TEST(SirveDeNombre, SeparadoresPuntosDoblesYControlesNo)
{
    for (const char* const nombre :
         {"/", "a/b", "a\\b", "..", "../a", "a..b", "\t", "a\n", "\x1F", "\x7F", "a\xC2\x81", "\xC2\x9F"})
        EXPECT_FALSE(SirveDeNombre(nombre)) << nombre;
    EXPECT_FALSE(SirveDeNombre(std::string("a\0b", 3)));
    // U+00A0 and U+00E9 begin behind the controls; the byte 0x81 behind another letter is part of one.
    EXPECT_TRUE(SirveDeNombre("\xC2\xA0"));
    EXPECT_TRUE(SirveDeNombre("\xC3\x81"));
}

TEST(RutaLlana, LosSeparadoresRepetidosSonUnoSalvoLosDosDelComienzo)
{
    const auto con = [](std::string ruta) {
        for (char& letra : ruta)
            if (letra == '/') letra = Separador;
        return ruta;
    };
    struct Caso {
        const char* ruta;
        const char* llana;
    };
    for (const Caso& caso : {Caso{"/a/b", "/a/b"}, Caso{"/a//b", "/a/b"}, Caso{"/a///b//c", "/a/b/c"},
                             Caso{"//red/a", "//red/a"}, Caso{"//red//a", "//red/a"}, Caso{"///a", "/a"},
                             Caso{"a//b", "a/b"}, Caso{"", ""}, Caso{"/", "/"}, Caso{"/a/", "/a/"}})
        EXPECT_EQ(RutaLlana(con(caso.ruta)), con(caso.llana)) << caso.ruta;
}

TEST(ComoVuelve, LoQueElCodigoNoTieneEsUnSignoDePregunta)
{
    EXPECT_EQ(ComoVuelve("/río-α/日"), "/río-?/?");
    EXPECT_EQ(ComoVuelve("/río"), "/río");
}

// Drives are where the backslash separates: here a path has one only where its second character is a colon.
TEST(RutaProyecto, LaUnidadSonLosDosPrimerosCaracteres)
{
    EXPECT_EQ(SinUnidad("C:/proy"), "/proy");
    EXPECT_EQ(SinUnidad("ñ:x"), "x");
    EXPECT_EQ(SinUnidad(":C:"), HayUnidades ? ":" : ":C:");
    EXPECT_EQ(SinUnidad("/proy"), HayUnidades ? "roy" : "/proy");
    EXPECT_EQ(SinUnidad(""), "");
    EXPECT_EQ(UnidadDe("C:/proy"), HayUnidades ? "C:" : "");
}

}  // namespace
