// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Configuracion.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/Siro.h"

using namespace model;

namespace {

TEST(SeleccionPorDefecto, LasRecurrenciasSonLasDelDiseno)
{
    ControlesConfigura c;
    c.CheckR.fill(2);
    c.CheckD.fill(2);
    BtnRecuDef(c);
    // 2 5 10 20 25 40 50 100 200, not 500, 1000, not 2000 5000 10000
    EXPECT_EQ(c.CheckR, (std::array<std::int16_t, 14>{1, 1, 1, 1, 1, 1, 1, 1, 1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(c.CheckD[0], 2);
}

TEST(SeleccionPorDefecto, LasDuracionesSonLasDelDiseno)
{
    ControlesConfigura c;
    c.CheckR.fill(2);
    BtnDurDef(c);
    // not 5, 10, not 15, 20 30 60 90 120 180 240 300 360 540 720 1080 1440, not 2880
    EXPECT_EQ(c.CheckD, (std::array<std::int16_t, 17>{0, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 0}));
    EXPECT_EQ(c.CheckR[0], 2);
}

TEST(SeleccionPorDefecto, LosCamposSinLeerTienenSuValorDeOrigen)
{
    const Siro s;
    EXPECT_EQ(s.Pasos.N0Dur, 10);
    EXPECT_EQ(s.Configuracion.MaxUEHsPixel, "800");
    EXPECT_EQ(s.Configuracion.EscalaDibujo, "0");
}

TEST(SeleccionPorDefecto, LosControlesDeUnProyectoSinArchivoTienenSuValorDeOrigen)
{
    const ControlesConfigura c;
    EXPECT_EQ(c.txtFecha, "01/02/2006");
    EXPECT_EQ(c.CheckDistriPp, 1);
    EXPECT_EQ(c.chkImagenDibujo, 0);
    EXPECT_EQ(c.lblImagenDibujo, "Ninguno");
    EXPECT_EQ(c.TexIMGEscala, "100");
    EXPECT_EQ(c.TexS, "");
    EXPECT_EQ(c.TexIMGX0, "0");
    EXPECT_EQ(c.TexIMGY0, "0");
    EXPECT_EQ(c.txtN0Dur, "10");
    EXPECT_EQ(c.txtMaxUEHsPixel, "800");
    EXPECT_EQ(c.txtEscalaImagen, "0");
    const std::vector<bool> opciones = {c.Optiona,  c.Optionb,  c.Optionc, c.OptionMin,
                                        c.OptionHr, c.Optionm3, c.OptionLt};
    EXPECT_EQ(opciones, (std::vector<bool>{true, false, false, true, false, true, false}));
    ControlesConfigura porBotones;
    porBotones.CheckR.fill(0);
    porBotones.CheckD.fill(0);
    BtnRecuDef(porBotones);
    BtnDurDef(porBotones);
    EXPECT_TRUE(c == porBotones);
}

}  // namespace
