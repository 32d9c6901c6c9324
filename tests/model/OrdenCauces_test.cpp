// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/OrdenCauces.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "apoyo/Compara.h"
#include "model/Componentes.h"
#include "model/Siro.h"

using namespace model;

namespace {

struct Tramo {
    const char* nombre;
    const char* destino;
};

/// Orders of a collection of reaches, in its order.
std::vector<int> Ordenes(const std::vector<Tramo>& tramos, const std::vector<Tramo>& lagos = {},
                         const std::vector<Tramo>& represas = {})
{
    Siro s;
    for (const auto& [nombre, destino] : tramos)
        s.Red.ColCauces.Agrega({.NombreCauce = nombre, .Cauce_aa = destino, .OrdenCauce = 77});
    for (const auto& [nombre, destino] : lagos)
        s.Red.ColLagos.Agrega({.NombreLAGO = nombre, .Cauce_aa = destino});
    for (const auto& [nombre, destino] : represas)
        s.Red.ColRepresas.Agrega({.NombreRepresa = nombre, .Cauce_aa = destino});
    CalculaOrdenCauces(s.Red);
    std::vector<int> ordenes;
    for (const Cauce& cauce : s.Red.ColCauces)
        ordenes.push_back(cauce.OrdenCauce);
    return ordenes;
}

TEST(OrdenDeCauces, UnCauceSinAfluentesEsDePrimerOrden)
{
    EXPECT_EQ(Ordenes({{"c-1", ""}}), (std::vector<int>{1}));
    EXPECT_EQ(Ordenes({}), (std::vector<int>{}));
}

TEST(OrdenDeCauces, UnAfluenteSoloDaSuOrden)
{
    EXPECT_EQ(Ordenes({{"a", "b"}, {"b", "c"}, {"c", ""}}), (std::vector<int>{1, 1, 1}));
}

TEST(OrdenDeCauces, DosIgualesSubenUnOrdenYDosDistintosNo)
{
    // a, b -> d (2); d, c -> e: 2 and 1 give 2; e, and the like f of order 2 -> g: 3.
    EXPECT_EQ(Ordenes({{"a", "d"},
                       {"b", "d"},
                       {"c", "e"},
                       {"d", "e"},
                       {"e", "g"},
                       {"x", "f"},
                       {"y", "f"},
                       {"f", "g"},
                       {"g", ""}}),
              (std::vector<int>{1, 1, 1, 2, 2, 1, 1, 2, 3}));
}

TEST(OrdenDeCauces, ElOrdenDeLosAfluentesCuenta)
{
    // 1, 1 then 2: the first two rise to 2, the third equals that and rises to 3. 2, 1, 1 stay at 2.
    EXPECT_EQ(Ordenes({{"a", "m"}, {"b", "m"}, {"p", "q"}, {"r", "q"}, {"q", "m"}, {"m", ""}}).back(), 3);
    EXPECT_EQ(Ordenes({{"p", "q"}, {"r", "q"}, {"q", "m"}, {"a", "m"}, {"b", "m"}, {"m", ""}}).back(), 2);
}

TEST(OrdenDeCauces, UnOrdenMayorReemplazaSinSubir)
{
    // q of order 2 behind a of order 1: replaced, not raised.
    EXPECT_EQ(Ordenes({{"p", "q"}, {"r", "q"}, {"a", "m"}, {"q", "m"}, {"m", ""}}).back(), 2);
}

TEST(OrdenDeCauces, LagosYRepresasPasanLosOrdenesDeSusAfluentes)
{
    const std::vector<Tramo> tramos{{"a", "l"}, {"b", "r"}, {"m", ""}};
    EXPECT_EQ(Ordenes(tramos, {{"l", "m"}}, {{"r", "m"}}), (std::vector<int>{1, 1, 2}));
    EXPECT_EQ(Ordenes(tramos, {{"l", "m"}}, {}), (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(Ordenes({{"a", "l"}, {"b", "l"}, {"m", ""}}, {{"l", "m"}}), (std::vector<int>{1, 1, 2}));
}

TEST(OrdenDeCauces, UnEmbalseDetrasDeOtroCortaElOrden)
{
    // a -> l -> r -> m: only the reaches of r itself count, and there are none.
    EXPECT_EQ(Ordenes({{"a", "l"}, {"b", "l"}, {"m", ""}}, {{"l", "r"}}, {{"r", "m"}}),
              (std::vector<int>{1, 1, 1}));
}

TEST(OrdenDeCauces, AfluentesDirectosVanAntesQueLosDeLagosYEstosAntesQueLosDeRepresas)
{
    // d (2) direct, then a (1) by the lake: 2. Were the lake first: 1, then 2: 2. To tell them apart three
    // are needed: direct 1, lake 1, dam 2 gives 1, 2, 3; any order with the 2 before the second 1 gives 2.
    const std::vector<Tramo> tramos{{"x", "d"}, {"y", "d"}, {"d", "r"}, {"a", "m"}, {"b", "l"}, {"m", ""}};
    EXPECT_EQ(Ordenes(tramos, {{"l", "m"}}, {{"r", "m"}}).back(), 3);
}

TEST(OrdenDeCauces, UnCauceNoEsAfluenteDeSiMismoPeroSiPorUnLago)
{
    EXPECT_EQ(Ordenes({{"a", "a"}}), (std::vector<int>{1}));
    // a -> l -> a: its own order of the pass before, 0 at first: k is 1 and r stays 0 through all passes.
    EXPECT_EQ(Ordenes({{"a", "l"}}, {{"l", "a"}}), (std::vector<int>{0}));
}

TEST(OrdenDeCauces, DosCaucesDelMismoNombreNoSonAfluentesEntreSi)
{
    EXPECT_EQ(Ordenes({{"a", "a"}, {"a", "a"}}), (std::vector<int>{1, 1}));
}

TEST(OrdenDeCauces, VacioYCeroNoSonDestinoAunqueAlguienSeLlameAsi)
{
    EXPECT_EQ(Ordenes({{"a", "0"}, {"b", "0"}, {"0", ""}}), (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(Ordenes({{"a", ""}, {"b", ""}, {"", "x"}}), (std::vector<int>{1, 1, 1}));
}

TEST(OrdenDeCauces, DiezPasadasNoAlcanzanParaUnaCadenaLargaAlReves)
{
    // The mouth first: each pass carries an order one reach downstream. Twelve reaches, the last fed by two
    // springs that stand behind it: a reach has its order 2 after as many passes as it is away from them.
    std::vector<std::string> nombres;
    for (int i = 0; i <= 12; ++i)
        nombres.push_back("c" + std::to_string(i));
    std::vector<Tramo> tramos;
    for (std::size_t i = 0; i < 12; ++i)
        tramos.push_back({nombres[i].c_str(), i == 0 ? "" : nombres[i - 1].c_str()});
    tramos.push_back({"s1", "c11"});
    tramos.push_back({"s2", "c11"});
    // Pass 1: c11 sees springs of order 0: 0, then 0 = 0 at the second: 1. Springs become 1. Pass 2: c11
    // is 2. c10 is 2 in pass 3, c9 in pass 4 ... c3 in pass 10. c2 has in pass 10 what c3 had in pass 9: the
    // 1 of c11's first pass, which reaches c10 in pass 2, ... c3 in pass 9, c2 in pass 10. c1 and c0: 0.
    EXPECT_EQ(Ordenes(tramos), (std::vector<int>{0, 0, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 1, 1}));
    std::reverse(tramos.begin(), tramos.end());  // downstream: one pass is enough
    EXPECT_EQ(Ordenes(tramos), (std::vector<int>{1, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}));
}

TEST(OrdenDeCauces, UnOrdenFueraDelTipoEsUnaFalla)
{
    // Each reach drains into a lake that stands twice in the collection and so comes twice to the next
    // reach: 1, 2, 3 ... in the order of the collection, up to 32768.
    Siro s;
    for (int i = 1; i <= 32768; ++i) {
        const std::string lago = "l-" + std::to_string(i);
        s.Red.ColCauces.Agrega({.NombreCauce = "c-" + std::to_string(i), .Cauce_aa = lago});
        for (int doble = 0; doble < 2; ++doble)
            s.Red.ColLagos.Agrega({.NombreLAGO = lago, .Cauce_aa = "c-" + std::to_string(i + 1)});
    }
    EXPECT_EQ(apoyo::NumeroDeFalla([&] { CalculaOrdenCauces(s.Red); }), 6);
    EXPECT_EQ(s.Red.ColCauces.Item(32767).OrdenCauce, 32767);
}

}  // namespace
