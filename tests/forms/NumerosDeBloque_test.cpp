// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/NumerosDeBloque.h"

#include <gtest/gtest.h>

namespace forms {
namespace {

using enum LecturaNumeros;
using Textos = std::vector<std::string_view>;
using Lecturas = std::vector<LecturaNumeros>;

struct CasoNumero {
    std::string_view texto;
    // As each reading has it; empty: no number.
    std::string_view puntoDeMiles, comaDeMiles, sinMiles;
};

// A group of thousands has three digits, the first one to three of which the first isn't 0.
constexpr CasoNumero Numeros[] = {
    {"7", "7", "7", "7"},
    {"1,5", "1.5", "", "1.5"},
    {"1.5", "", "1.5", "1.5"},
    {"2.300", "2300", "2.300", "2.300"},
    {"2,300", "2.300", "2300", "2.300"},
    {"1.234,5", "1234.5", "", ""},
    {"1,234.5", "", "1234.5", ""},
    {"-12.345.678,25", "-12345678.25", "", ""},
    {"1.234.567", "1234567", "", ""},
    {"0.500", "", "0.500", "0.500"},
    {"0,500", "0.500", "", "0.500"},
    {"1234.567", "", "1234.567", "1234.567"},
    {"12.34.567", "", "", ""},
    {"1.234,5.6", "", "", ""},
    {"1,234,567.25", "", "1234567.25", ""},
    {".5", "", ".5", ".5"},
    {"1e3", "1e3", "1e3", "1e3"},
    {"x", "", "", ""},
    {"", "", "", ""},
};

TEST(NumerosDeBloque, CadaLecturaDeUnNumero)
{
    for (const CasoNumero& caso : Numeros) {
        EXPECT_EQ(LeeNumero(caso.texto, PuntoDeMiles).value_or(""), caso.puntoDeMiles) << caso.texto;
        EXPECT_EQ(LeeNumero(caso.texto, ComaDeMiles).value_or(""), caso.comaDeMiles) << caso.texto;
        EXPECT_EQ(LeeNumero(caso.texto, SinMiles).value_or(""), caso.sinMiles) << caso.texto;
    }
}

struct CasoLecturas {
    Textos textos;
    Lecturas lecturas;
};

TEST(NumerosDeBloque, LoQueLosDemasDicenNoSePregunta)
{
    const CasoLecturas casos[] = {
        {{}, {SinMiles}},
        {{"1", "x", ""}, {SinMiles}},
        {{"1.5", "2"}, {SinMiles}},
        {{"1,234", "2"}, {SinMiles}},
        {{"2.5", "1,5"}, {SinMiles}},
        {{"2.300", "0.500"}, {SinMiles}},
        {{"2.300", "1.234,5"}, {PuntoDeMiles}},
        {{"1.234.567", "2.300", "1,5"}, {PuntoDeMiles}},
        {{"1,234.5", "2.300"}, {ComaDeMiles}},
        {{"1,234,567"}, {ComaDeMiles}},
        {{"2.300"}, {PuntoDeMiles, SinMiles}},
        {{"2.300", "1,5"}, {PuntoDeMiles, SinMiles}},
        {{"5.5", "1,234"}, {ComaDeMiles, SinMiles}},
        {{"2.300", "1,234"}, {PuntoDeMiles, ComaDeMiles}},
        {{"1.234,5", "1,234.5"}, {SinMiles}},  // no reading holds for both
    };
    for (const CasoLecturas& caso : casos)
        EXPECT_EQ(LecturasPosibles(caso.textos), caso.lecturas)
            << (caso.textos.empty() ? std::string_view("nothing") : caso.textos.front());
}

TEST(NumerosDeBloque, LaPreguntaMuestraDosCeldasDeLasDosManeras)
{
    const Textos textos = {"5", "1,5", "2.300", "2.300", "x", "12.450", "3.100"};
    EXPECT_EQ(PreguntaLectura(textos, Lecturas{PuntoDeMiles, SinMiles}),
              "Los números del bloque pueden leerse de dos maneras. ¿Separa el punto los miles?\n\n"
              "Sí:  2.300 es 2300;   12.450 es 12450\nNo:  2.300 es 2.3;   12.450 es 12.45");
    EXPECT_EQ(PreguntaLectura(Textos{"5.5", "1,234"}, Lecturas{ComaDeMiles, SinMiles}),
              "Los números del bloque pueden leerse de dos maneras. ¿Separa la coma los miles?\n\n"
              "Sí:  1,234 es 1234;   5.5 es 5.5\nNo:  1,234 es 1.234;   5.5 es 5.5");
}

}  // namespace
}  // namespace forms
