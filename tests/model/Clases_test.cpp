// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Clases.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

using namespace model;

namespace {

Red DeCuatro()
{
    Red red;
    red.ColUEHs.Agrega({.NombreUEH = "u-1", .numUEH = 1, .IconoUEHx = 1, .IconoUEHy = 2, .Cauce_aa = "c-1"});
    red.ColCauces.Agrega({.numCauce = 2, .NombreCauce = "c-1", .Cauce_aa = "l-1"});
    red.ColLagos.Agrega(
        {.NombreLAGO = "l-1", .numLAGO = 3, .IconoLAGOx = 3, .IconoLAGOy = 4, .Cauce_aa = "0"});
    red.ColRepresas.Agrega({.NombreRepresa = "r-1", .numRepresa = 4, .IconoRepresaX = 5, .IconoRepresaY = 6});
    return red;
}

TEST(Clases, ElRecorridoVaPorUEHsCaucesLagosYRepresas)
{
    const Red red = DeCuatro();
    std::vector<std::string> nombres;
    std::vector<int> numeros;
    CadaComponente(red, [&](const auto& c) {
        nombres.push_back(Nombre(c));
        numeros.push_back(Numero(c));
    });
    EXPECT_EQ(nombres, (std::vector<std::string>{"u-1", "c-1", "l-1", "r-1"}));
    EXPECT_EQ(numeros, (std::vector<int>{1, 2, 3, 4}));
}

TEST(Clases, CadaNombreEmpiezaConElPrefijoDeSuClase)
{
    const Red red = DeCuatro();
    std::vector<Clase> clases;
    CadaComponente(red, [&](const auto& c) {
        using De = DeClase<std::remove_cvref_t<decltype(c)>>;
        EXPECT_TRUE(Nombre(c).starts_with(De::prefijo)) << Nombre(c);
        EXPECT_EQ(&Todos<std::remove_cvref_t<decltype(c)>>(red).Item(1), &c);
        clases.push_back(De::clase);
    });
    EXPECT_EQ(clases, (std::vector<Clase>{Clase::UEH, Clase::Cauce, Clase::Lago, Clase::Represa}));
}

TEST(Clases, LoQueSeEscribePorElAccesoQuedaEnElComponente)
{
    Red red = DeCuatro();
    Nombre(red.ColRepresas.Item(1)) = "r-otra";
    IconoX(red.ColLagos.Item(1)) = 30;
    IconoY(red.ColUEHs.Item(1)) = 20;
    EXPECT_EQ(red.ColRepresas.Item(1).NombreRepresa, "r-otra");
    EXPECT_EQ(red.ColLagos.Item(1).IconoLAGOx, 30);
    EXPECT_EQ(red.ColUEHs.Item(1).IconoUEHy, 20);
}

TEST(Clases, ElNumeroDeUnNombreEsElDelPrimeroQueLoLleva)
{
    Red red = DeCuatro();
    red.ColLagos.Agrega({.NombreLAGO = "l-2"});
    red.ColLagos.Agrega({.NombreLAGO = "l-2"});
    EXPECT_EQ(NumeroDe<Lago>(red, "l-2"), 2);
    EXPECT_EQ(NumeroDe<Lago>(red, "l-3"), 0);
    EXPECT_EQ(NumeroDe<UEH>(red, "l-2"), 0);
}

TEST(Clases, NadieDrenaAlVacioNiAlCero)
{
    const Red red = DeCuatro();
    EXPECT_TRUE(DrenaA(red.ColUEHs.Item(1), "c-1"));
    EXPECT_FALSE(DrenaA(red.ColUEHs.Item(1), "c-2"));
    EXPECT_FALSE(DrenaA(red.ColLagos.Item(1), "0"));
    EXPECT_FALSE(DrenaA(red.ColRepresas.Item(1), ""));
    EXPECT_FALSE(DrenaA("", ""));
    EXPECT_FALSE(DrenaA("0", "0"));
    EXPECT_TRUE(DrenaA("c-1", "c-1"));
}

TEST(Clases, LasUEHsNoSonReceptoras)
{
    const Red red = DeCuatro();
    std::vector<std::string> nombres;
    CadaReceptor(red, [&](const auto& c) { nombres.push_back(Nombre(c)); });
    EXPECT_EQ(nombres, (std::vector<std::string>{"c-1", "l-1", "r-1"}));
}

}  // namespace
