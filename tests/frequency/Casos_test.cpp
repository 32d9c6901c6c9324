// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"
#include "calibration/casos/Familias.h"
#include "checks/Verifica.h"
#include "frequency/casos/Familias.h"

namespace {

using checks::Caso;

class CasosDeFrecuencia : public testing::Test {
  protected:
    static void SetUpTestSuite()
    {
        todos = checks::Verifica({}, checks::Junta({frequency::Familias(), calibration::Familias()}));
        suyos.assign(todos.begin() + static_cast<std::ptrdiff_t>(checks::Verifica().size()), todos.end());
    }
    static inline std::vector<Caso> todos{}, suyos{};
};

TEST_F(CasosDeFrecuencia, VanDetrasDeLosDelMotorYNingunoEstaFuera)
{
    EXPECT_GE(suyos.size(), 27U);
    EXPECT_EQ(suyos.front().nombre, "GEV por máxima verosimilitud, Port Pirie");
    for (const Caso& c : suyos)
        EXPECT_FALSE(c.Fuera()) << c.nombre << ": " << c.impreso << " / " << c.nuestro << " en " << c.x;
}

TEST_F(CasosDeFrecuencia, CadaUnoDiceTodoYSuToleranciaJuzga)
{
    std::set<std::string_view> nombres;
    for (const Caso& c : todos)
        EXPECT_TRUE(nombres.insert(c.nombre).second) << c.nombre;
    for (const Caso& c : suyos) {
        for (const std::string_view texto : {c.fuente, c.entrada, c.magnitud, c.porque, c.serie.eje})
            EXPECT_FALSE(texto.empty()) << c.nombre;
        ASSERT_FALSE(c.serie.x.empty()) << c.nombre;
        ASSERT_EQ(c.serie.x.size(), c.serie.impreso.size()) << c.nombre;
        ASSERT_EQ(c.serie.x.size(), c.serie.nuestro.size()) << c.nombre;
        EXPECT_TRUE(std::is_sorted(c.serie.x.begin(), c.serie.x.end())) << c.nombre;
        double mide = 0;
        for (const double cifra : c.serie.impreso)
            mide = std::max(mide, std::isnan(cifra) ? 0 : std::abs(cifra));
        EXPECT_GT(c.tolerancia, 0) << c.nombre;
        EXPECT_LT(c.tolerancia, 0.2 * mide) << c.nombre;
    }
}

TEST_F(CasosDeFrecuencia, LaPaginaEsElTextoDelPrograma)
{
    const std::string pagina = apoyo::BytesDeArchivo(SIRO_DOCS "/verificacion.md");
    const std::string cerca = "```\n";
    const std::size_t desde = pagina.find(cerca), hasta = pagina.rfind(cerca);
    ASSERT_NE(desde, std::string::npos);
    ASSERT_LT(desde, hasta);
    EXPECT_TRUE(apoyo::MismoTexto(pagina.substr(desde + cerca.size(), hasta - desde - cerca.size()),
                                  checks::TextoDeVerifica(todos)));
}

}  // namespace
