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

}  // namespace
}  // namespace forms
