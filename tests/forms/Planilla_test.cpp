// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Planilla.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

const Planilla Ejemplo{
    {"Uno, \"dos\""}, {{"Nombre", true}, {"Q[m3/s]"}}, {{"12", "3.5"}, {"a-1", ""}, {"b", "sin dato"}}};

TEST(Planilla, EsNumeroLoQueLoPareceFueraDeUnaColumnaDeTexto)
{
    EXPECT_TRUE(EsNumero(Ejemplo.columnas[1], "3.5"));
    EXPECT_TRUE(EsNumero(Ejemplo.columnas[1], "1E+10"));
    EXPECT_FALSE(EsNumero(Ejemplo.columnas[1], "3.5 m"));
    EXPECT_FALSE(EsNumero(Ejemplo.columnas[1], ""));
    EXPECT_FALSE(EsNumero(Ejemplo.columnas[0], "12"));
}

TEST(Planilla, ElCsvLlevaLosTextosEntreComillasYLosNumerosSinEllas)
{
    EXPECT_EQ(ComoCsv(Ejemplo),
              "\"Uno, \"\"dos\"\"\"\r\n\"Nombre\",\"Q[m3/s]\"\r\n\"12\",3.5\r\n\"a-1\",\r\n"
              "\"b\",\"sin dato\"\r\n");
}

TEST(Planilla, ElTextoVaConTabulacionesYSinComillas)
{
    EXPECT_EQ(ComoTexto(Ejemplo), "Uno, \"dos\"\r\nNombre\tQ[m3/s]\r\n12\t3.5\r\na-1\t\r\nb\tsin dato\r\n");
}

TEST(Planilla, ConComaDecimalLosCamposSeSeparanConPuntoYComa)
{
    constexpr SignoDecimal Coma{','};
    // Only numbers take it: neither a text with a point nor a name of digits does.
    EXPECT_EQ(ComoCsv({{}, {{"Nombre", true}, {"Q"}, {"Nota"}}, {{"1.2", "-3.5", "a.b"}}}, Coma),
              "\"Nombre\";\"Q\";\"Nota\"\r\n\"1.2\";-3,5;\"a.b\"\r\n");
    EXPECT_EQ(ComoTexto(Ejemplo, Coma),
              "Uno, \"dos\"\r\nNombre\tQ[m3/s]\r\n12\t3,5\r\na-1\t\r\nb\tsin dato\r\n");
}

TEST(Planilla, UnTextoCopiadoTomaElSignoEnSusNumeros)
{
    EXPECT_EQ(ConSigno("1.5\ta.b\t\r\n-2\t1E-05\n", {','}), "1,5\ta.b\t\r\n-2\t1E-05\n");
    EXPECT_EQ(ConSigno("0.5\r\n.25", {','}), "0,5\r\n,25");
    EXPECT_EQ(ConSigno("1.5\t2.5", {}), "1.5\t2.5");
    EXPECT_EQ(ConSigno("", {','}), "");
}

}  // namespace
}  // namespace forms
