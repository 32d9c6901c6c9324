// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/FormatoDeImagen.h"

#include <gtest/gtest.h>

#include <string>

#include "editor/lienzo/DibujaMetarchivo.h"

namespace editor {
namespace {

using namespace std::string_literals;

// A file of each format, as small as it comes: heads, a few bytes in place of the picture, the end.
const std::string Jpeg =
    "\xFF\xD8"s
    "\xFF\xE1\x00\x06\xFF\xD9"s  // a preview's end inside a segment of 6 bytes
    "\x00\x00"s
    "\xFF\xFF\xDA\x00\x04\x01\x02"s  // a filling byte, then the scan
    "abc\xFF\x00"s
    "def\xFF\xD9"s;
const std::string Png =
    "\x89PNG\r\n\x1A\n"s
    "\x00\x00\x00\x02IDAT\x01\x02\xAA\xAA\xAA\xAA"s
    "\x00\x00\x00\x00IEND\xAA\xAA\xAA\xAA"s;
const std::string Gif = "GIF89a\x01\x00\x01\x00\x00\x00\x00,abc\x00;"s;
/// 3 by 2 pixels of 24 bits: 9 bytes a row filled up to 12, 24 in all, behind 54 of heads.
const std::string Bmp =
    "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0"s
    "\x28\0\0\0\x03\0\0\0\xFE\xFF\xFF\xFF\x01\0\x18\0\0\0\0\0"s +
    std::string(20, '\0') + std::string(24, 'x');

TEST(FormatoDeImagen, LoQueTerminaAntesQueSuImagenEstaIncompleto)
{
    const std::string wmf = DibujaMetarchivo().Registro(0x020C, {100, 100}).Bytes();
    for (const std::string& entera : {Jpeg, Png, Gif, Bmp, wmf}) {
        EXPECT_FALSE(EstaIncompleta(entera)) << entera.substr(0, 4);
        EXPECT_TRUE(EstaIncompleta(entera.substr(0, entera.size() - 1))) << entera.substr(0, 4);
        EXPECT_TRUE(EstaIncompleta(entera.substr(0, entera.size() - 9))) << entera.substr(0, 4);
    }
}

// What stands behind the end is nobody's concern, as far as the format tells where that is.
TEST(FormatoDeImagen, LoQueSigueAlFinNoCuenta)
{
    for (const std::string& entera : {Jpeg, Png, Bmp})
        EXPECT_FALSE(EstaIncompleta(entera + "más")) << entera.substr(0, 4);
    EXPECT_FALSE(EstaIncompleta(Gif + std::string(3, '\0')));
}

TEST(FormatoDeImagen, DeLoQueNoEsImagenNoSeDiceNada)
{
    for (const std::string& otra : {""s, "no es una imagen"s, "\xFF\xD8\xFF\xE0\x00\x02hola"s})
        EXPECT_FALSE(EstaIncompleta(otra));
    std::string comprimido = Bmp.substr(0, 60);
    comprimido[30] = 1;  // by run lengths
    EXPECT_FALSE(EstaIncompleta(comprimido));
}

TEST(FormatoDeImagen, UnMetarchivoMejoradoSeConocePorSuFirma)
{
    std::string emf = "\x01\x00\x00\x00"s + std::string(36, 'x') + " EMF..."s;
    EXPECT_TRUE(EsMetarchivoMejorado(emf));
    emf[0] = 2;
    EXPECT_FALSE(EsMetarchivoMejorado(emf));
    EXPECT_FALSE(EsMetarchivoMejorado(DibujaMetarchivo().Bytes()));
    EXPECT_FALSE(EsMetarchivoMejorado(""));
}

}  // namespace
}  // namespace editor
