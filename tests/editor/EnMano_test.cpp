// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EnMano.h"

#include <gtest/gtest.h>

#include "apoyo/Compara.h"

namespace editor {
namespace {

using model::Cauce;
using model::Lago;
using model::Represa;
using model::UEH;

TEST(EnMano, CadaClaseTieneSuElegido)
{
    model::Seleccion seleccion;
    Elegido<UEH>(seleccion) = 1;
    Elegido<Cauce>(seleccion) = 2;
    Elegido<Lago>(seleccion) = 3;
    EXPECT_EQ(CuantosElegidos(seleccion), 3);
    Elegido<Represa>(seleccion) = 4;
    EXPECT_EQ(seleccion.UEHSel, 1);
    EXPECT_EQ(seleccion.CauceSel, 2);
    EXPECT_EQ(seleccion.LagoSel, 3);
    EXPECT_EQ(seleccion.RepresaSel, 4);
    EXPECT_EQ(CuantosElegidos(seleccion), 4);
}

TEST(EnMano, EsElComponenteDelNumeroElegido)
{
    model::Siro s;
    EXPECT_TRUE(RedVacia(s.Red));
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-1"});
    s.Red.ColLagos.Agrega({.NombreLAGO = "l-2"});
    EXPECT_FALSE(RedVacia(s.Red));
    EXPECT_FALSE(HayEnMano<Lago>(s));
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { EnMano<Lago>(s); }), 91);
    s.Seleccion.LagoSel = 2;
    EXPECT_TRUE(HayEnMano<Lago>(s));
    EXPECT_EQ(EnMano<Lago>(s).NombreLAGO, "l-2");
    s.Seleccion.LagoSel = 3;
    EXPECT_FALSE(HayEnMano<Lago>(s));
    LimpiaSeleccion(s);
    EXPECT_EQ(CuantosElegidos(s.Seleccion), 0);
}

// A reach whose vertices a fault has left uncounted is none.
TEST(EnMano, UnCauceEstaMientrasSeCuenta)
{
    model::Siro s;
    s.Red.ColCauces.Agrega({});
    s.Red.ColCauces.Anuncia(0);
    s.Seleccion.CauceSel = 1;
    EXPECT_FALSE(HayEnMano<Cauce>(s));
    s.Red.ColCauces.Anuncia(1);
    EXPECT_TRUE(HayEnMano<Cauce>(s));
}

}  // namespace
}  // namespace editor
