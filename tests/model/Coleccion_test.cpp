// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Coleccion.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "apoyo/Compara.h"
#include "model/Siro.h"

using apoyo::NumeroDeFalla;
using namespace model;

namespace {

using DeTres = Coleccion<std::string, 3>;

DeTres Con(int n)
{
    DeTres c;
    for (int i = 1; i <= n; ++i)
        c.Agrega("c-" + std::to_string(i));
    return c;
}

TEST(Coleccion, LaRanuraNEsElEnesimo)
{
    DeTres c = Con(3);
    EXPECT_EQ(c.Ranura(1), "c-1");
    EXPECT_EQ(c.Ranura(3), "c-3");
    c.Ranura(2) = "otro";
    EXPECT_EQ(c.Item(2), "otro");
}

TEST(Coleccion, LaRanuraCeroYLasVaciasNoTienenObjeto)
{
    DeTres c = Con(2);
    EXPECT_EQ(NumeroDeFalla([&] { c.Ranura(0); }), 91);
    EXPECT_EQ(NumeroDeFalla([&] { c.Ranura(3); }), 91);
    EXPECT_EQ(NumeroDeFalla([&] { static_cast<void>(std::as_const(c).Ranura(3)); }), 91);
}

TEST(Coleccion, FueraDelLimiteEsSubindiceAunqueLaColeccionLoTenga)
{
    DeTres c = Con(4);
    EXPECT_EQ(c.Cuenta(), 4);
    EXPECT_EQ(c.Item(4), "c-4");
    EXPECT_EQ(NumeroDeFalla([&] { c.Ranura(4); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { c.Ranura(-1); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { static_cast<void>(std::as_const(c).Ranura(4)); }), 9);
}

TEST(Coleccion, QuitarRenumeraLosDeDetras)
{
    DeTres c = Con(3);
    c.Quita(2);
    EXPECT_EQ(c.Cuenta(), 2);
    EXPECT_EQ(c.Ranura(2), "c-3");
    EXPECT_EQ(NumeroDeFalla([&] { c.Ranura(3); }), 91);
    c.Vacia();
    EXPECT_EQ(c.Cuenta(), 0);
    EXPECT_TRUE(c.begin() == c.end());
}

TEST(Coleccion, CuentaLosQueHayMientrasNoSeAnuncieOtroNumero)
{
    DeTres c = Con(2);
    EXPECT_EQ(c.Nro(), 2);
    c.Anuncia(5);
    EXPECT_EQ(c.Nro(), 5);
    EXPECT_EQ(c.Cuenta(), 2);
    EXPECT_EQ(NumeroDeFalla([&] { c.Ranura(3); }), 91);
    EXPECT_FALSE(c == Con(2));
    c.Agrega("c-3");
    EXPECT_EQ(c.Nro(), 3);
    c.Anuncia(0);
    c.Quita(1);
    EXPECT_EQ(c.Nro(), 2);
    c.Anuncia(-1);
    EXPECT_EQ(c.Recuenta(), 2);
    EXPECT_EQ(c.Nro(), 2);
    c.Vacia();
    EXPECT_EQ(c.Nro(), 0);
}

TEST(Coleccion, SeRecorreEnOrden)
{
    std::string recorrido;
    for (const std::string& nombre : Con(4))
        recorrido += nombre + ' ';
    EXPECT_EQ(recorrido, "c-1 c-2 c-3 c-4 ");
}

TEST(Siro, LosLimitesDeLasCuatroClases)
{
    Siro s;
    for (int i = 1; i <= 71; ++i) {
        s.Red.ColUEHs.Agrega({});
        s.Red.ColCauces.Agrega({});
        s.Red.ColLagos.Agrega({});
        s.Red.ColRepresas.Agrega({});
    }
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.UEHs(70); }), 0);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.UEHs(71); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.Cauces(70); }), 0);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.Cauces(71); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.Lagos(70); }), 0);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.Lagos(71); }), 9);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.Represas(20); }), 0);
    EXPECT_EQ(NumeroDeFalla([&] { s.Red.Represas(21); }), 9);
    EXPECT_EQ(s.Tormenta.PpUEH.Tope(), 70);
    EXPECT_EQ(NumeroDeFalla([&] { s.Tormenta.PpUEH(71) = 1; }), 9);
}

TEST(Siro, UnaCopiaEsOtroPrograma)
{
    Siro s;
    s.Red.ColUEHs.Agrega({.NombreUEH = "u-1"});
    s.Tormenta.PpUEH(1) = 5;
    Siro otro = s;
    otro.Red.UEHs(1).NombreUEH = "u-2";
    otro.Tormenta.PpUEH(1) = 6;
    EXPECT_EQ(s.Red.UEHs(1).NombreUEH, "u-1");
    EXPECT_EQ(s.Tormenta.PpUEH(1), 5);
}

}  // namespace
