// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Verifica.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace checks {
namespace {

bool Contiene(const std::string& texto, const std::string& parte)
{
    return texto.find(parte) != std::string::npos;
}

class LosCasos : public testing::Test {
  protected:
    static void SetUpTestSuite() { casos = Verifica(); }
    static void TearDownTestSuite() { casos.clear(); }
    static inline std::vector<Caso> casos{};
};

TEST_F(LosCasos, NingunoFueraDeTolerancia)
{
    EXPECT_GE(casos.size(), 30U);
    for (const Caso& c : casos)
        EXPECT_FALSE(c.Fuera()) << c.nombre << ": " << c.impreso << " / " << c.nuestro << " en " << c.x;
    EXPECT_EQ(CuantosFuera(casos), 0);
}

// What a source prints alone is compared alone; the chart has the curve around it.
TEST_F(LosCasos, UnPicoImpresoLlevaSuCurva)
{
    int solos = 0;
    for (const Caso& c : casos) {
        if (CuantasCifras(c) != 1 || c.serie.x.size() == 1) continue;
        ++solos;
        const std::size_t lugar = static_cast<std::size_t>(c.x);
        EXPECT_EQ(c.serie.impreso.at(lugar), c.impreso) << c.nombre;
        EXPECT_EQ(c.serie.nuestro.at(lugar), c.nuestro) << c.nombre;
        EXPECT_EQ(*std::max_element(c.serie.nuestro.begin(), c.serie.nuestro.end()), c.nuestro) << c.nombre;
    }
    EXPECT_EQ(solos, 3);
}

TEST_F(LosCasos, CadaUnoDiceTodoYMuestraElPeor)
{
    std::set<std::string_view> nombres;
    for (const Caso& c : casos) {
        EXPECT_TRUE(nombres.insert(c.nombre).second) << c.nombre;
        for (const std::string_view texto : {c.fuente, c.entrada, c.magnitud, c.porque, c.serie.eje})
            EXPECT_FALSE(texto.empty()) << c.nombre;
        EXPECT_GT(c.tolerancia, 0) << c.nombre;
        const Serie& s = c.serie;
        ASSERT_FALSE(s.x.empty()) << c.nombre;
        ASSERT_EQ(s.x.size(), s.impreso.size()) << c.nombre;
        ASSERT_EQ(s.x.size(), s.nuestro.size()) << c.nombre;
        EXPECT_TRUE(std::is_sorted(s.x.begin(), s.x.end())) << c.nombre;
        double peor = 0;
        for (std::size_t k = 0; k < s.x.size(); ++k)
            peor = std::max(peor, std::abs(s.impreso[k] - s.nuestro[k]));
        EXPECT_EQ(c.desvio, peor) << c.nombre;
        EXPECT_EQ(c.desvio, std::abs(c.impreso - c.nuestro)) << c.nombre;
    }
}

// A tolerance as wide as what it judges would say nothing.
TEST_F(LosCasos, LaToleranciaEsMenorQueLoQueSeCompara)
{
    for (const Caso& c : casos) {
        double mide = 0;
        for (const double cifra : c.serie.impreso)
            mide = std::max(mide, std::isnan(cifra) ? 0 : std::abs(cifra));
        if (mide == 0) continue;  // of a balance, 0 is printed
        EXPECT_LT(c.tolerancia, 0.2 * mide) << c.nombre;
    }
}

Caso UnCaso(double desvio)
{
    Caso c{.nombre = "Uno",
           .fuente = "Un \"libro\"",
           .entrada = "nada",
           .magnitud = "caudal [m3/s]",
           .porque = "sí",
           .tolerancia = 0.5,
           .recalculado = true,
           .x = 20,
           .impreso = 3,
           .nuestro = 3 + desvio,
           .desvio = desvio,
           .serie = {}};
    c.serie = {.eje = "tiempo [min]", .x = {10, 20}, .impreso = {1, 3}, .nuestro = {1, 3 + desvio}};
    return c;
}

TEST(TextoDeVerifica, CuentaLosQueEstanFuera)
{
    const std::vector<Caso> casos{UnCaso(0.5), UnCaso(0.75)};
    EXPECT_FALSE(casos[0].Fuera());  // the tolerance itself is within
    EXPECT_TRUE(casos[1].Fuera());
    const std::string texto = TextoDeVerifica(casos);
    EXPECT_TRUE(Contiene(texto, " 2  Uno           3        3.75        0.75         0.5  FUERA\n")) << texto;
    EXPECT_TRUE(Contiene(texto, "2 cifras; la peor en tiempo [min] = 20\n")) << texto;
    EXPECT_TRUE(Contiene(texto, "recalculada, no está impresa en la fuente\n")) << texto;
    EXPECT_TRUE(texto.ends_with("\n2 casos, 1 fuera de tolerancia\n")) << texto;
}

TEST(TextoDeVerifica, LoQueNoLlegoAlFinEstaFuera)
{
    Caso c = UnCaso(0);
    c.desvio = c.nuestro = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(c.Fuera());
    EXPECT_EQ(CuantosFuera({c}), 1);
    EXPECT_TRUE(Contiene(TextoDeVerifica({c}), "           -           -         0.5  FUERA\n"));
    EXPECT_TRUE(Contiene(JsonDeVerifica({c}), "\"nuestro\":null,\"desvio\":null,"));
}

TEST(JsonDeVerifica, UnRenglonPorCaso)
{
    EXPECT_EQ(JsonDeVerifica({UnCaso(0.25)}),
              "{\"version\":1,\"casos\":[\n"
              "{\"nombre\":\"Uno\",\"fuente\":\"Un \\\"libro\\\"\",\"entrada\":\"nada\","
              "\"magnitud\":\"caudal [m3/s]\",\"recalculado\":true,\"impreso\":3,\"nuestro\":3.25,"
              "\"desvio\":0.25,\"tolerancia\":0.5,\"porque\":\"sí\",\"fuera\":false,\"eje\":\"tiempo [min]\","
              "\"x\":[10,20],\"impresos\":[1,3],\"nuestros\":[1,3.25]}\n"
              "],\"fuera\":0}\n");
}

}  // namespace
}  // namespace checks
