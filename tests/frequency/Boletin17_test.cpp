// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/leyes/Boletin17.h"

#include <gtest/gtest.h>

#include <vector>

#include "frequency/Analisis.h"
#include "frequency/casos/Muestras.h"

namespace {

using namespace frequency;
using casos::MooseRiver;
using casos::Orestimba;

Muestra Con(std::vector<double> x, Bajos bajos, std::optional<AsimetriaRegional> regional = {})
{
    Muestra m = HazMuestra(std::move(x));
    m.tratamiento = {bajos, regional, {}};
    return m;
}

/// Bulletin 17C, example 1: mean 3.3286, deviation 0.1403, skew 0.397, its error 0.101; weighted with 0.44 of
/// error 0.078, 0.421.
TEST(Boletin17, PonderaLaAsimetriaComoElEjemplo1)
{
    const Estimado sola = Ajusta(LogPearsonIII, Con(MooseRiver, Bajos::Quedan), Metodo::Momentos);
    ASSERT_TRUE(sola.p);
    EXPECT_EQ(sola.nota, "");
    EXPECT_NEAR((*sola.p)[0], 3.3286, 5e-5);
    EXPECT_NEAR((*sola.p)[1], 0.1403, 5e-5);
    EXPECT_NEAR((*sola.p)[2], 0.397, 5e-4);
    EXPECT_NEAR(boletin17::EcmDeAsimetria(68, (*sola.p)[2]), 0.101, 5e-4);
    const Estimado e = Ajusta(LogPearsonIII, Con(MooseRiver, Bajos::Quedan, AsimetriaRegional{0.44, 0.078}),
                              Metodo::Momentos);
    EXPECT_NEAR((*e.p)[2], 0.421, 5e-4);
    EXPECT_EQ(e.nota, "Asimetría de la estación 0.397, ponderada con la regional 0.44");
}

/// A long record or a poor map leave the station's skew, a good map takes its place. By hand from equation 6:
/// of 10 years and no skew the error is 10^-0.33.
TEST(Boletin17, ElErrorDeLaAsimetriaEsElDeLaEcuacion6)
{
    EXPECT_NEAR(boletin17::EcmDeAsimetria(10, 0), 0.467735, 1e-6);
    EXPECT_NEAR(boletin17::EcmDeAsimetria(100, -1.2), 0.162930, 1e-6);
    EXPECT_NEAR(boletin17::EcmDeAsimetria(100, 2), 0.338844, 1e-6);
    EXPECT_NEAR(boletin17::AsimetriaPonderada(0.7, 24, {0.1, 1e9}), 0.7, 1e-6);
    EXPECT_NEAR(boletin17::AsimetriaPonderada(0.7, 24, {0.1, 1e-9}), 0.1, 1e-6);
}

/// Cohn and others 2013 print no table; two of their values: 58 years, the second, 0.1 % at -3.561; and of
/// the Orestimba's values 30 and 31 of 82 a count over 300,000 samples, 0.00049 (0.00004) and 0.0387
/// (0.0004).
TEST(Boletin17, ElValorPEsElDeLaCuenta)
{
    EXPECT_NEAR(boletin17::ValorP(58, 2, -3.561143), 0.001, 5e-6);
    EXPECT_NEAR(boletin17::ValorP(82, 30, -2.04091670), 0.00049, 0.00008);
    EXPECT_NEAR(boletin17::ValorP(82, 31, -1.70491268), 0.0387, 0.0012);
}

/// Bulletin 17C, example 2: 30 low ones, 12 of them without flow, below 782 cfs; moments 3.0227, 0.6821,
/// -0.929.
TEST(Boletin17, ElEjemplo2TieneTreintaBajosYSusMomentos)
{
    const Muestra m = Con(Orestimba, Bajos::Boletin17C);
    EXPECT_EQ(m.secos, 12U);
    EXPECT_EQ(boletin17::BajosDe17C(m.x, m.secos), 30U);
    EXPECT_EQ(m.x[18], 782);
    EXPECT_EQ(boletin17::BajosDe17C(HazMuestra(MooseRiver).x, 0), 0U);
    const Estimado e = Ajusta(LogPearsonIII, m, Metodo::Momentos);
    ASSERT_TRUE(e.p) << e.nota;
    EXPECT_NEAR((*e.p)[0], 3.022663, 1e-6);
    EXPECT_NEAR((*e.p)[1], 0.682087, 1e-6);
    EXPECT_NEAR((*e.p)[2], -0.92911, 5e-6);
    EXPECT_EQ(e.nota,
              "Bulletin 17C cuenta 18 valores bajos (menos de 782) y 12 años sin lluvia sólo por debajo de "
              "los demás (momentos esperados)");
    ASSERT_TRUE(e.bajos);
    EXPECT_NEAR(*e.bajos, 30.0 / 82, 1e-12);
}

/// The first 42 years by Bulletin 17B, appendix 5, worked out apart: 6 years without flow, one low one (16),
/// 35 with the mean 3.1321, 0.5665, -0.4396, and the synthetic moments.
TEST(Boletin17, LaProbabilidadCondicionalEsLaCalculadaAparte)
{
    const std::vector<double> x(Orestimba.begin(), Orestimba.begin() + 42);
    const Estimado e = Ajusta(LogPearsonIII, Con(x, Bajos::Boletin17B), Metodo::Momentos);
    ASSERT_TRUE(e.p) << e.nota;
    EXPECT_NEAR((*e.p)[0], 2.9645955954236167, 1e-9);
    EXPECT_NEAR((*e.p)[1], 0.6711067031538658, 1e-9);
    EXPECT_NEAR((*e.p)[2], -0.5758496312547023, 1e-9);
    EXPECT_NEAR(*e.bajos, 7.0 / 42, 1e-12);
    EXPECT_EQ(e.nota,
              "Bulletin 17B deja aparte 1 valor bajo (menos de 115) y 6 años sin lluvia; la probabilidad de "
              "los demás es condicional");
    const Estimado f =
        Ajusta(LogPearsonIII, Con(x, Bajos::Boletin17B, AsimetriaRegional{-0.3, 0.302}), Metodo::Momentos);
    EXPECT_NEAR((*f.p)[2], -0.47750790314755415, 1e-9);
    EXPECT_NEAR(LogPearsonIII.cuantil(*f.p, 0.99), 19394.53984679661, 1e-4);
}

/// Without anything low nothing changes.
TEST(Boletin17, SinValoresBajosEsElAjusteDeSiempre)
{
    const Estimado antes = Ajusta(LogPearsonIII, HazMuestra(MooseRiver), Metodo::Momentos);
    for (const Bajos bajos : {Bajos::Boletin17B, Bajos::Boletin17C}) {
        const Estimado e = Ajusta(LogPearsonIII, Con(MooseRiver, bajos), Metodo::Momentos);
        EXPECT_EQ(*e.p, *antes.p);
        EXPECT_FALSE(e.bajos);
        EXPECT_EQ(e.nota, "");
    }
}

TEST(Boletin17, DemasiadosBajosSeDicen)
{
    std::vector<double> x(Orestimba.begin(), Orestimba.begin() + 20);
    x.insert(x.end(), 10, 0);
    const Estimado e = Ajusta(LogPearsonIII, Con(x, Bajos::Boletin17B), Metodo::Momentos);
    EXPECT_FALSE(e.p);
    EXPECT_EQ(e.nota, "Más de la cuarta parte de los años quedan fuera: Bulletin 17B no los admite");
}

/// The whole way: other laws are of the years with rain, log-Pearson III of all of them; bands and p-values
/// are there.
TEST(Boletin17, ElAnalisisLoLlevaHastaLasBandas)
{
    Serie s;
    for (std::size_t i = 0; i < Orestimba.size(); ++i)
        s.maximos.push_back({1932 + static_cast<int>(i), Orestimba[i]});
    PedidoDeAnalisis pedido;
    pedido.metodo = Metodo::Momentos;
    pedido.leyes = {&LogPearsonIII, &Gumbel};
    pedido.remuestreo = {1, 200, 2};
    pedido.tratamiento.bajos = Bajos::Boletin17C;
    const Analisis a = *Analiza(s, pedido);
    EXPECT_EQ(a.ajustes[0].p0, 0);
    EXPECT_NEAR(a.ajustes[1].p0, 12.0 / 82, 1e-12);
    ASSERT_TRUE(a.ajustes[0].remuestreo.Hay());
    EXPECT_NEAR(a.ajustes[0].cuantiles[7], 13820, 5);
    EXPECT_LT(a.ajustes[0].remuestreo.banda5[7], 13820);
    EXPECT_GT(a.ajustes[0].remuestreo.banda95[7], 13820);
    EXPECT_GT(a.ajustes[0].remuestreo.p.ad, 0.05);
    EXPECT_NEAR(CuantilDe(a.ajustes[0], 100), a.ajustes[0].cuantiles[7], 1e-9);
}

}  // namespace
