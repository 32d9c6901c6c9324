// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Cifras.h"

#include <gtest/gtest.h>

#include <limits>

namespace report {
namespace {

TEST(CifrasDeMemoria, ComaPuntoYMiles)
{
    const Cifras coma{',', "."}, punto{'.', ","}, llana{',', ""};
    EXPECT_EQ(coma.Con(1234567.891, 2), "1.234.567,89");
    EXPECT_EQ(punto.Con(1234567.891, 2), "1,234,567.89");
    EXPECT_EQ(llana.Con(1234567.891, 2), "1234567,89");
    EXPECT_EQ(coma.Con(-12345, 0), "-12.345");
    EXPECT_EQ(coma.Con(1234.5, 1), "1234,5") << "four digits stand together";
    EXPECT_EQ(coma.Con(999999.6, 0), "1.000.000");
    EXPECT_EQ(coma.Con(0.0004, 3, false), "0,0004") << "a little isn't 0";
    EXPECT_EQ(coma.Con(std::numeric_limits<double>::quiet_NaN(), 1), "-");
    EXPECT_EQ(coma.Escrita(0.1F), "0,1");
    EXPECT_EQ(coma.Corta(0.123456), "0,1235");
    EXPECT_EQ(coma.Corta(103157), "103.157");
    EXPECT_EQ(llana.Corta(12345.6), "12346");
    EXPECT_EQ(coma.De("-0.5"), "-0,5");
    EXPECT_EQ(coma.De(""), "");
}

TEST(CifrasDeMemoria, EnUnaFraseSoloLosNumeros)
{
    const Cifras n{',', ""};
    EXPECT_EQ(n.EnTexto("Tormenta: P 60.5 mm, D 60 min."), "Tormenta: P 60,5 mm, D 60 min.");
    EXPECT_EQ(n.EnTexto("sobra (0.5 m3/s), 2.5%."), "sobra (0,5 m³/s), 2,5%.");
    EXPECT_EQ(n.EnTexto("versión 1.2.3, archivo A1.5_pt.vlm, v2.5"),
              "versión 1.2.3, archivo A1.5_pt.vlm, v2.5");
    EXPECT_EQ(n.EnTexto("S=3.5 km2"), "S=3.5 km²") << "what begins with a letter may be a name";
    EXPECT_EQ(n.EnTexto("caudal [m3/s]"), "caudal [m³/s]");
    EXPECT_EQ(n.EnTexto("  dos  blancos "), "  dos  blancos ");
    EXPECT_EQ((Cifras{'.', ""}.EnTexto("P 60.5 mm")), "P 60.5 mm");
}

TEST(CifrasDeMemoria, Unidades)
{
    EXPECT_EQ(Unidad("m3/s/km2"), "m³/s/km²");
    EXPECT_EQ(Unidad("mm/h"), "mm/h");
    EXPECT_EQ(Unidad(""), "");
}

}  // namespace
}  // namespace report
