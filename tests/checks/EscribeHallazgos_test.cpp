// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/EscribeHallazgos.h"

#include <gtest/gtest.h>

#include <vector>

namespace checks {
namespace {

const std::vector<Hallazgo> Tres = {
    {Gravedad::Error, 203, "u-1", "La velocidad es 0", "0 m/s", "Cárguela.", Arreglo::Ninguno},
    {Gravedad::Aviso, 250, "", "No \"suman\"", "", "", Arreglo::OrdenaTabla},
    {Gravedad::Error, 204, "u-2", "Sin longitud", "", "Cárguela.", Arreglo::Ninguno}};

TEST(EscribeHallazgos, LeavesOutThePartsThatAFindingHasNotGot)
{
    EXPECT_EQ("error 203 u-1: La velocidad es 0 (0 m/s). Cárguela.", Linea(Tres[0]));
    EXPECT_EQ("aviso 250: No \"suman\".", Linea(Tres[1]));
    EXPECT_EQ("error 204 u-2: Sin longitud. Cárguela.", Linea(Tres[2]));
}

TEST(EscribeHallazgos, KeepsAFindingOnOneLine)
{
    EXPECT_EQ("nota 1 c- 2: Q.", Linea({.numero = 1, .componente = "c-\n2", .que = "Q"}));
}

TEST(EscribeHallazgos, CountsEachSeverityInTheLastLine)
{
    EXPECT_EQ("2 errores, 1 aviso, 0 notas", Suma(Tres));
    EXPECT_EQ("Sin hallazgos\n", EnTexto({}));
    EXPECT_EQ("Sin avisos\n", EnTexto({}, "Sin avisos"));
    EXPECT_TRUE(EnTexto(Tres).ends_with("Sin longitud. Cárguela.\n2 errores, 1 aviso, 0 notas\n"));
}

TEST(EscribeHallazgos, WritesTheFieldsOfTheRecordAsJson)
{
    EXPECT_EQ("[]\n", EnJson({}));
    EXPECT_EQ(
        "[\n {\"gravedad\": \"aviso\", \"numero\": 250, \"componente\": \"\", \"que\": \"No "
        "\\\"suman\\\"\", \"cuanto\": \"\", \"remedio\": \"\", \"arreglo\": \"ordena la tabla\"}\n]\n",
        EnJson(std::vector<Hallazgo>{Tres[1]}));
}

TEST(EscribeHallazgos, EscapesWhatJsonDoesNotTakeInsideAText)
{
    const std::vector<Hallazgo> uno = {{.componente = "a\\b\tc\x1f"}};
    EXPECT_NE(std::string::npos, EnJson(uno).find("\"a\\\\b\\u0009c\\u001f\""));
}

}  // namespace
}  // namespace checks
