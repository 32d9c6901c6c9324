// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Recesion.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "model/Red.h"

namespace calibration {
namespace {

using study::Punto;

TEST(Recesion, UnaRamaExactaDaSusConstantes)
{
    // 3.2·2.7183^(-t/12.5) at 10, 12, 15 and 20 h, of 30 digits
    const std::vector<Punto> rama{{0, 9},
                                  {600, 1.4378449956584489},
                                  {720, 1.225249372035929},
                                  {900, 0.96381374647364126},
                                  {1200, 0.646061947356264},
                                  {1300, 5}};
    const AjusteDeRecesion a = AjustaRecesion(rama, 600, 1200);
    EXPECT_EQ(a.motivo, "");
    EXPECT_EQ(a.lecturas, 4);
    EXPECT_NEAR(a.K, 12.5, 1e-12);
    EXPECT_NEAR(a.Q0, 3.2, 1e-12);
    EXPECT_NEAR(a.residuo, 0, 1e-8);
    EXPECT_NEAR(a.r2, 1, 1e-14);
    EXPECT_NEAR(CaudalDeRecesion(a, 900), 0.96381374647364126, 1e-14);
}

TEST(Recesion, UnaConRuidoSeAjustaPorMinimosCuadradosEnLogaritmos)
{
    const std::vector<Punto> rama{{600, 1.50}, {660, 1.31}, {720, 1.22}, {840, 0.98}, {900, 0}, {960, 0.86}};
    const AjusteDeRecesion a = AjustaRecesion(rama, 600, 960);
    EXPECT_EQ(a.lecturas, 5);  // one of 0 has no logarithm
    EXPECT_NEAR(a.K, 10.807635596109698, 1e-12);
    EXPECT_NEAR(a.Q0, 3.6932754179118828, 1e-12);
    EXPECT_NEAR(a.residuo, 0.022174541112728648, 1e-14);
    EXPECT_NEAR(a.r2, 0.9877734416034731, 1e-14);
}

TEST(Recesion, LoQueNoEsUnaRamaSeDice)
{
    const std::vector<Punto> sube{{0, 1}, {10, 2}, {20, 3}};
    EXPECT_EQ(AjustaRecesion(sube, 0, 20).motivo, "Entre los dos tiempos el caudal no baja.");
    EXPECT_EQ(AjustaRecesion(sube, 0, 10).motivo,
              "Hacen falta al menos tres lecturas mayores que 0 entre los dos tiempos.");
    EXPECT_EQ(AjustaRecesion({{{0, 1}, {10, 1}, {20, 1}}}, 0, 20).motivo,
              "Entre los dos tiempos el caudal no baja.");
    EXPECT_EQ(RamaDeRecesion(std::vector<Punto>{{0, 1}, {10, 9}, {20, 5}, {30, 4}, {40, 3}, {50, 2}}),
              (study::Ventana{30, 50, 1}));
}

/// u-1 and u-2 drain into c-1, which drains with u-3 into c-2; u-4 elsewhere.
model::Red Cuenca()
{
    model::Red red;
    const auto unidad = [&](const char* nombre, float area, const char* a) {
        model::UEH u;
        u.NombreUEH = nombre;
        u.Area = area;
        u.Cauce_aa = a;
        red.ColUEHs.Agrega(u);
    };
    unidad("u-1", 10, "c-1");
    unidad("u-2", 30, "c-1");
    unidad("u-3", 60, "c-2");
    unidad("u-4", 100, "0");
    for (const auto& [nombre, a] : {std::pair{"c-1", "c-2"}, std::pair{"c-2", "0"}}) {
        model::Cauce c;
        c.NombreCauce = nombre;
        c.Cauce_aa = a;
        red.ColCauces.Agrega(c);
    }
    return red;
}

TEST(Recesion, Q0SeReparteSegunElAreaEntreLasUnidadesQueLleganAlComponente)
{
    const AjusteDeRecesion a{.Q0 = 2, .K = 15, .lecturas = 9};
    const model::Red red = Cuenca();
    EXPECT_EQ(RepartoDe(red, "c-1", a).unidades,
              (std::vector<BaseDeUnidad>{{"u-1", 10, 0.5F, 15}, {"u-2", 30, 1.5F, 15}}));
    EXPECT_EQ(
        RepartoDe(red, "c-2", a).unidades,
        (std::vector<BaseDeUnidad>{{"u-1", 10, 0.2F, 15}, {"u-2", 30, 0.6F, 15}, {"u-3", 60, 1.2F, 15}}));
    EXPECT_EQ(RepartoDe(red, "u-3", a).unidades, (std::vector<BaseDeUnidad>{{"u-3", 60, 2, 15}}));
    EXPECT_EQ(RepartoDe(red, "c-9", a).motivo, "A ese componente no llega ninguna unidad con área.");
    EXPECT_EQ(
        RepartoDe(red, "c-1", {.Q0 = 1001, .K = 15}).motivo,
        "Q0 pasa de 1000 m3/s: la recta, llevada al comienzo de la tormenta, no es la de un caudal base.");
    EXPECT_EQ(RepartoDe(red, "c-1", {.Q0 = 1, .K = 10000}).motivo,
              "K pasa de 9999 h: entre los dos tiempos el caudal casi no baja.");
}

TEST(Recesion, SoloCambianLasUnidadesDelReparto)
{
    model::Red red = Cuenca();
    const model::Red antes = red;
    const Reparto r = RepartoDe(red, "c-1", {.Q0 = 2, .K = 15});
    EXPECT_EQ(Aplica(red, r), 2);
    EXPECT_EQ(red.ColUEHs.Item(2).Q0Recesion, 1.5F);
    EXPECT_EQ(red.ColUEHs.Item(2).KRecesion, 15);
    EXPECT_EQ(red.ColUEHs.Item(3), antes.ColUEHs.Item(3));
    EXPECT_EQ(Aplica(red, r), 0);
    red.ColUEHs.Item(1).Cauce_aa = "c-2";
    red.ColCauces.Item(2).Cauce_aa = "c-1";  // a ring has an end all the same
    EXPECT_EQ(RepartoDe(red, "c-1", {.Q0 = 2, .K = 15}).unidades.size(), 3U);
}

TEST(Recesion, UnEmbalseEnElCaminoSeDice)
{
    model::Red red = Cuenca();
    EXPECT_EQ(RepartoDe(red, "c-2", {.Q0 = 2, .K = 15}).aviso, "");
    model::Represa r;
    r.NombreRepresa = "r-1";
    r.Cauce_aa = "c-2";
    red.ColRepresas.Agrega(r);
    red.ColCauces.Item(1).Cauce_aa = "r-1";
    EXPECT_NE(RepartoDe(red, "c-2", {.Q0 = 2, .K = 15}).aviso, "");
    EXPECT_EQ(RepartoDe(red, "c-1", {.Q0 = 2, .K = 15}).aviso, "");
}

}  // namespace
}  // namespace calibration
