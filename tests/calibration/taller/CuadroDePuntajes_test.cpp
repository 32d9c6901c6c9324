// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/CuadroDePuntajes.h"

#include <gtest/gtest.h>

namespace calibration {
namespace {

// 106 against 100 in volume, the same peak two steps of 10 min later.
TEST(CuadroDePuntajes, UnaFilaPorPuntajeYLaFrase)
{
    Emparejados e;
    const std::vector<double> S{16, 10, 20, 60, 0}, O{20, 60, 10, 10, 0};
    for (std::size_t i = 0; i < S.size(); ++i)
        e.pares.push_back({10.0 * static_cast<double>(i), S[i], O[i]});
    e.sinPeso = 1;
    CuadroDePuntajes c;
    Pon(c, e, "Quelmar, marzo");
    EXPECT_EQ(c.lblPuntajes,
              "Sobrestima el volumen 6 %, el pico llega 20 min tarde. 5 pares; 1 observación sin peso.");
    const forms::Planilla& p = c.tblPuntajes.planilla;
    ASSERT_EQ(p.filas.size(), Puntajes().size());
    EXPECT_EQ(p.titulos.at(1), "Quelmar, marzo");
    EXPECT_EQ(p.filas[8][0], "Error del volumen");
    EXPECT_EQ(p.filas[8][1], "+6.0");
    EXPECT_EQ(p.filas[8][2], "%");
    EXPECT_EQ(p.filas[8][3], "0");
    EXPECT_EQ(p.filas[10][1], "+20.0");
}

TEST(CuadroDePuntajes, LoQueNoSeDefineYLoQueNoHay)
{
    CuadroDePuntajes c;
    Pon(c, {.pares = {{0, 1, 2}}}, "");
    EXPECT_EQ(c.tblPuntajes.planilla.filas[0][1], "no está definido");
    EXPECT_EQ(c.lblPuntajes, "Subestima el volumen 50 %, subestima el pico 50 %. 1 par.");
    Pon(c, {}, "");
    EXPECT_EQ(c.lblPuntajes, "Ningún par.");
    Vacia(c, "El evento no tiene observaciones.");
    EXPECT_TRUE(c.tblPuntajes.planilla.filas.empty());
    EXPECT_EQ(c.lblPuntajes, "El evento no tiene observaciones.");
}

}  // namespace
}  // namespace calibration
