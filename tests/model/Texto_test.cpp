// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Texto.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace model;

namespace {

struct Pareja {
    std::string_view bytes;  ///< Windows-1252
    std::string_view texto;  ///< UTF-8
};

/// The part of the code page that isn't Latin-1, character by character, and some of the rest.
const std::vector<Pareja> Parejas = {
    {"\x80", "€"},
    {"\x82", "‚"},
    {"\x83", "ƒ"},
    {"\x84", "„"},
    {"\x85", "…"},
    {"\x86", "†"},
    {"\x87", "‡"},
    {"\x88", "ˆ"},
    {"\x89", "‰"},
    {"\x8A", "Š"},
    {"\x8B", "‹"},
    {"\x8C", "Œ"},
    {"\x8E", "Ž"},
    {"\x91", "‘"},
    {"\x92", "’"},
    {"\x93", "“"},
    {"\x94", "”"},
    {"\x95", "•"},
    {"\x96", "–"},
    {"\x97", "—"},
    {"\x98", "˜"},
    {"\x99", "™"},
    {"\x9A", "š"},
    {"\x9B", "›"},
    {"\x9C", "œ"},
    {"\x9E", "ž"},
    {"\x9F", "Ÿ"},
    {"\xA0", "\u00A0"},
    {"\xBF", "¿"},
    {"\xE1", "á"},
    {"\xF1", "ñ"},
    {"\xDC", "Ü"},
    {"\xFF", "ÿ"},
    {"A", "A"},
    {"\x7F", "\x7F"},
    {"\r\n\t", "\r\n\t"},
    {"r\xEDo", "río"},
    // The five that the code page leaves unassigned.
    {"\x81", "\u0081"},
    {"\x8D", "\u008D"},
    {"\x8F", "\u008F"},
    {"\x90", "\u0090"},
    {"\x9D", "\u009D"},
};

TEST(Texto, Windows1252CaracterPorCaracterEnAmbosSentidos)
{
    for (const Pareja& p : Parejas) {
        EXPECT_EQ(DeWindows1252(p.bytes), p.texto);
        EXPECT_EQ(AWindows1252(p.texto), p.bytes) << p.texto;
    }
}

TEST(Texto, LosDoscientosCincuentaYSeisBytesVanYVuelven)
{
    std::string bytes;
    for (int b = 0; b < 256; ++b)
        bytes += static_cast<char>(b);
    const std::string texto = DeWindows1252(bytes);
    EXPECT_EQ(AWindows1252(texto), bytes);
    EXPECT_EQ(CuentaCaracteres(texto), 256U);
}

TEST(Texto, LoQueFaltaEnLaPaginaEsUnSoloInterrogante)
{
    EXPECT_EQ(AWindows1252("Ω"), "?");
    EXPECT_EQ(AWindows1252("a→b"), "a?b");
    EXPECT_EQ(AWindows1252("😀"), "?");       // four bytes, one character
    EXPECT_EQ(AWindows1252("\u0080"), "?");  // a control that isn't the euro's byte
    EXPECT_EQ(AWindows1252("\u009F"), "?");
    EXPECT_EQ(AWindows1252("\uFEFFa"), "?a");
    EXPECT_EQ(AWindows1252("\U0010FFFF"), "?");
}

TEST(Texto, CadaByteQueNoEsUtf8EsUnInterrogante)
{
    EXPECT_EQ(AWindows1252("r\xEDo"), "r?o");
    EXPECT_EQ(AWindows1252("\xC3"), "?");
    EXPECT_EQ(AWindows1252("\xE2\x82"), "??");  // the euro without its last byte
    EXPECT_EQ(AWindows1252("\xE2\x82z"), "??z");
    EXPECT_EQ(AWindows1252("\x80\xBF"), "??");            // continuations of nothing
    EXPECT_EQ(AWindows1252("\xC0\x80\xC1\xBF"), "????");  // overlong
    EXPECT_EQ(AWindows1252("\xE0\x9F\xBF"), "???");       // overlong in three
    EXPECT_EQ(AWindows1252("\xF0\x8F\xBF\xBF"), "????");  // overlong in four
    EXPECT_EQ(AWindows1252("\xED\xA0\x80"), "???");       // a surrogate
    EXPECT_EQ(AWindows1252("\xF4\x90\x80\x80"), "????");  // beyond U+10FFFF
    EXPECT_EQ(AWindows1252("\xF5\xFE\xFF"), "???");
    EXPECT_EQ(AWindows1252("\xED\x9F\xBF\xEE\x80\x80"), "??");  // U+D7FF and U+E000 are characters
    EXPECT_EQ(AWindows1252(std::string_view("a\0b", 3)), std::string_view("a\0b", 3));
    EXPECT_EQ(AWindows1252(""), "");
}

TEST(Texto, CuentaCaracteresYNoBytes)
{
    EXPECT_EQ(CuentaCaracteres(""), 0U);
    EXPECT_EQ(CuentaCaracteres("cuenca"), 6U);
    EXPECT_EQ(CuentaCaracteres("ñandú"), 5U);
    EXPECT_EQ(CuentaCaracteres("€"), 1U);
    EXPECT_EQ(CuentaCaracteres("a😀b"), 3U);
    EXPECT_EQ(CuentaCaracteres("\xE2\x82"), 2U);
}

// Plain characters are passed over a word at a time: the one that isn't is found wherever it stands.
TEST(Texto, UnaLetraConTildeSeEncuentraEnCualquierLugar)
{
    for (std::size_t largo = 0; largo <= 20; ++largo) {
        for (std::size_t lugar = 0; lugar <= largo; ++lugar) {
            const std::string antes(lugar, 'a'), despues(largo - lugar, 'z');
            EXPECT_EQ(AWindows1252(antes + "ó" + despues), antes + "\xF3" + despues);
            EXPECT_EQ(DeWindows1252(antes + "\xF3" + despues), antes + "ó" + despues);
            EXPECT_EQ(CuentaCaracteres(antes + "ó" + despues), largo + 1);
        }
    }
}

TEST(Texto, AjustaPorCaracteres)
{
    EXPECT_EQ(AjustaIzquierda("ab", 5), "ab   ");
    EXPECT_EQ(AjustaIzquierda("ñú", 4), "ñú  ");
    EXPECT_EQ(AjustaIzquierda("", 3), "   ");
    // Exactly as wide, wider, and no width at all: whole and as it stands.
    for (const std::size_t ancho : {5U, 4U, 0U})
        EXPECT_EQ(AjustaIzquierda("Ñandú", ancho), "Ñandú");
}

TEST(Texto, ComasAPuntos)
{
    EXPECT_EQ(ComasAPuntos("1,5,"), "1.5.");
    EXPECT_EQ(ComasAPuntos("1.5"), "1.5");
    EXPECT_EQ(ComasAPuntos(""), "");
}

RC_GTEST_PROP(Texto, TodoByteVuelve, (const std::string& bytes))
{
    const std::string texto = DeWindows1252(bytes);
    RC_ASSERT(AWindows1252(texto) == bytes);
    RC_ASSERT(CuentaCaracteres(texto) == bytes.size());
}

RC_GTEST_PROP(Texto, LoCodificadoTieneUnBytePorCaracter, (const std::vector<unsigned char>& cualquiera))
{
    const std::string texto(cualquiera.begin(), cualquiera.end());
    RC_ASSERT(AWindows1252(texto).size() == CuentaCaracteres(texto));
}

RC_GTEST_PROP(Texto, AjustarDaElAnchoYGuardaElTexto, (const std::string& bytes))
{
    const auto ancho = *rc::gen::inRange<std::size_t>(0, 40);
    const std::string texto = DeWindows1252(bytes);
    const std::string izquierda = AjustaIzquierda(texto, ancho);
    RC_ASSERT(CuentaCaracteres(izquierda) == std::max(ancho, bytes.size()));
    RC_ASSERT(izquierda.starts_with(texto));
}

}  // namespace
