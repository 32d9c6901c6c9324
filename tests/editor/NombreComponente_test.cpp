// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/NombreComponente.h"

#include "editor/fichas/FichasDePrueba.h"

namespace editor {
namespace {

TEST(NombreConPrefijo, ElPrefijoSePoneDondeFalta)
{
    EXPECT_EQ(NombreConPrefijo("u-", "ladera"), "u-ladera");
    EXPECT_EQ(NombreConPrefijo("u-", "u-ladera"), "u-ladera");
    EXPECT_EQ(NombreConPrefijo("u-", "U-1"), "u-U-1");
    EXPECT_EQ(NombreConPrefijo("u-", "u"), "u-u");
    EXPECT_EQ(NombreConPrefijo("u-", "c-1"), "u-c-1");
    EXPECT_EQ(NombreConPrefijo("u-", ""), "u-");
}

TEST(NombreConPrefijo, DesdeDieciseisCaracteresSeCortaEnQuince)
{
    EXPECT_EQ(NombreConPrefijo("u-", "u-3456789012345"), "u-3456789012345");
    EXPECT_EQ(NombreConPrefijo("u-", "u-34567890123456"), "u-3456789012345");
    EXPECT_EQ(NombreConPrefijo("r-", "12345678901234567890"), "r-1234567890123");
}

TEST(NombreConPrefijo, CuentaCaracteresYNoBytes)
{
    EXPECT_EQ(NombreConPrefijo("l-", "ñandúñandúñand"), "l-ñandúñandúñan");
    EXPECT_EQ(NombreConPrefijo("l-", "ñandúñandúñan"), "l-ñandúñandúñan");
}

struct Renombre : RedDeFichas {
    Textos Destinos() const
    {
        Textos t;
        for (const auto& u : s.Red.ColUEHs)
            t.push_back(u.Cauce_aa);
        for (const auto& c : s.Red.ColCauces)
            t.push_back(c.Cauce_aa);
        for (const auto& r : s.Red.ColRepresas)
            t.push_back(r.Cauce_aa);
        for (const auto& l : s.Red.ColLagos)
            t.push_back(l.Cauce_aa);
        return t;
    }
};

TEST_F(Renombre, VaPorTodosLosDestinosQueTenianElNombre)
{
    RenombraDestinos(s.Red, "c-1", "c-x", {});
    EXPECT_EQ(Destinos(), (Textos{"c-x", "", "", "0", "c-x", "0", "c-x", "", "c-x", ""}));
}

TEST_F(Renombre, LosDeUEHsQuedanSiNoSiguen)
{
    RenombraDestinos(s.Red, "c-1", "c-x", {.UEHs = false});
    EXPECT_EQ(Destinos(), (Textos{"c-1", "", "", "0", "c-x", "0", "c-x", "", "c-x", ""}));
}

TEST_F(Renombre, UnCauceExceptuadoQueda)
{
    s.Red.Cauces(3).Cauce_aa = "c-1";
    RenombraDestinos(s.Red, "c-1", "c-x", {.salvoCauce = 3});
    EXPECT_EQ(s.Red.Cauces(2).Cauce_aa, "c-x");
    EXPECT_EQ(s.Red.Cauces(3).Cauce_aa, "c-1");
}

TEST_F(Renombre, ElNombreVacioYElCeroNoLosTieneNadie)
{
    const Textos antes = Destinos();
    RenombraDestinos(s.Red, "", "c-x", {});
    RenombraDestinos(s.Red, "0", "c-x", {});
    EXPECT_EQ(Destinos(), antes);
}

TEST_F(Renombre, SoloElNombreEntero)
{
    s.Red.UEHs(2).Cauce_aa = "c-11";
    RenombraDestinos(s.Red, "c-1", "c-x", {});
    EXPECT_EQ(s.Red.UEHs(2).Cauce_aa, "c-11");
}

}  // namespace
}  // namespace editor
