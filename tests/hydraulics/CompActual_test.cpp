// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/CompActual.h"

#include <gtest/gtest.h>

#include "hydraulics/TablasDePrueba.h"

namespace hydraulics {
namespace {

TEST(CompActual, UnaRepresaPorTablaOPorFunciones)
{
    pruebas::EstadoConEmbalses e;
    model::Represa& r = e.s.Red.Represas(2);
    for (const bool porTabla : {true, false}) {
        r.optTabla = porTabla;
        const CompActual c = EnMano(e.s.Anfitrion, e.s.Red, r);
        EXPECT_EQ(c.clase, model::Clase::Represa);
        EXPECT_EQ(c.nombre, "r-dos");
        EXPECT_EQ(c.numero, 2);
        EXPECT_EQ(c.funciones, porTabla ? nullptr : &r);
    }
}

TEST(CompActual, UnLagoTieneUnaSolaTabla)
{
    pruebas::EstadoConEmbalses e;
    const CompActual c = EnMano(e.s.Anfitrion, e.s.Red, e.s.Red.Lagos(1));
    EXPECT_EQ(c.clase, model::Clase::Lago);
    EXPECT_EQ(c.nombre, "l-uno");
    EXPECT_EQ(&c.filas, &c.filasQ);
    EXPECT_EQ(&c.tablaH, &c.tablaHQ);
    EXPECT_EQ(c.funciones, nullptr);
}

// What is edited after the view was taken is what it shows.
TEST(CompActual, EsUnaVistaYNoUnaCopia)
{
    pruebas::EstadoConEmbalses e;
    const CompActual r = EnMano(e.s.Anfitrion, e.s.Red, e.s.Red.Represas(1)),
                     l = EnMano(e.s.Anfitrion, e.s.Red, e.s.Red.Lagos(1));
    e.PonHAS({{1, 2, 3}, {4, 5, 6}});
    for (const CompActual* c : {&r, &l}) {
        EXPECT_EQ(c->filas(c->numero), 2);
        EXPECT_EQ(c->tablaH(1, 2), 4);
        EXPECT_EQ(c->tablaA(1, 2), 5);
        EXPECT_EQ(c->tablaS(1, 2), 6);
    }
    e.PonHQ({{7, 8}});
    for (const CompActual* c : {&r, &l}) {
        EXPECT_EQ(c->filasQ(1), 1);
        EXPECT_EQ(c->tablaHQ(1, 1), 7);
        EXPECT_EQ(c->tablaQ(1, 1), 8);
    }
}

}  // namespace
}  // namespace hydraulics
