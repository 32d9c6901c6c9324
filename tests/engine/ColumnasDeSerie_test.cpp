// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/ColumnasDeSerie.h"

#include <gtest/gtest.h>

namespace engine {
namespace {

/// Two UEHs and a reach in four storms.
model::Resultados DeUnaSerie()
{
    model::Resultados r;
    r.NroComponentes = 3;
    r.DimensionaTormentas(2, 4);
    r.QMax(3, 4) = 30.5F;
    r.EscUEH(2, 4) = 2004;
    r.CoefEscUEH(2, 4) = 12.5F;
    r.EscTotal(4) = 5004;
    r.CoefEscTotal(4) = 25;
    return r;
}

constexpr ValorDeSerie Nada{};

TEST(ColumnasDeSerie, PicoEscorrentiaYCoeficiente)
{
    const model::Resultados r = DeUnaSerie();
    const auto& [Q, E, C] = ColumnasDeSerie;
    EXPECT_EQ(DelComponente(Q, r, 2, 3, 4), ValorDeSerie(30.5F));
    EXPECT_EQ(DelComponente(E, r, 2, 2, 4), ValorDeSerie(2004));
    EXPECT_EQ(DelComponente(C, r, 2, 2, 4), ValorDeSerie(12.5F));
    EXPECT_EQ(Q.deLaCuenca(r, 4), Nada);
    EXPECT_EQ(E.deLaCuenca(r, 4), ValorDeSerie(5004));
    EXPECT_EQ(C.deLaCuenca(r, 4), ValorDeSerie(25.0F));
}

TEST(ColumnasDeSerie, SobreLasUEHsSoloHayPico)
{
    model::Resultados r = DeUnaSerie();
    r.EscUEH.Dimensiona(3, 4);
    EXPECT_EQ(DelComponente(ColumnasDeSerie[1], r, 2, 3, 4), Nada);
    EXPECT_EQ(DelComponente(ColumnasDeSerie[2], r, 2, 3, 4), Nada);
}

TEST(ColumnasDeSerie, UnResultadoFueraDeLosArreglosNoEsta)
{
    const model::Resultados r = DeUnaSerie();
    const auto escorrentia = [&](int fila, int tormenta) { return ValorDe(r.EscUEH, fila, tormenta); };
    EXPECT_EQ(escorrentia(3, 4), Nada);
    EXPECT_EQ(escorrentia(-1, 4), Nada);
    EXPECT_EQ(escorrentia(2, 5), Nada);
    EXPECT_EQ(escorrentia(2, -1), Nada);
    EXPECT_EQ(ValorDe(r.EscTotal, 5), Nada);
    EXPECT_EQ(ValorDe(r.EscTotal, -1), Nada);
    EXPECT_EQ(ValorDe(model::Resultados{}.QMax, 0, 0), Nada);
}

TEST(ColumnasDeSerie, UnaTormentaSeTraeDeOtraCorrida)
{
    const model::Resultados otra = DeUnaSerie();
    model::Resultados r;
    r.NroComponentes = 3;
    r.DimensionaTormentas(2, 4);
    r.QMax(3, 1) = 7;
    r.TraeTormenta(otra, 4, 4);
    EXPECT_EQ(r.QMax(3, 1), 7);
    for (const ColumnaDeSerie& columna : ColumnasDeSerie) {
        for (int fila = 1; fila <= 3; ++fila)
            EXPECT_EQ(DelComponente(columna, r, 2, fila, 4), DelComponente(columna, otra, 2, fila, 4));
        EXPECT_EQ(columna.deLaCuenca(r, 4), columna.deLaCuenca(otra, 4));
    }
}

}  // namespace
}  // namespace engine
