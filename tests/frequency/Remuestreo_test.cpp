// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/Remuestreo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "frequency/Analisis.h"
#include "frequency/EscribeAnalisis.h"
#include "frequency/casos/Muestras.h"
#include "study/Philox.h"

namespace {

using namespace frequency;
using frequency::casos::PortPirie;

Serie SerieDePortPirie()
{
    Serie s;
    for (std::size_t i = 0; i < PortPirie.size(); ++i)
        s.maximos.push_back({1923 + static_cast<int>(i), PortPirie[i]});
    return s;
}

Remuestreo Con(int hilos, std::uint64_t semilla, int cuantas = 200)
{
    const Muestra m = HazMuestra(PortPirie);
    const Estimado e = Ajusta(Gev, m, Metodo::Verosimilitud);
    return *Remuestrea(Gev, e, Metodo::Verosimilitud, m, {semilla, cuantas, hilos});
}

TEST(Remuestreo, LosMismosBitsConCualquierNumeroDeHilos)
{
    const Remuestreo uno = Con(1, 5);
    EXPECT_EQ(uno.sirven, 200);
    for (const int hilos : {2, 3, 7}) {
        const Remuestreo otro = Con(hilos, 5);
        for (std::size_t i = 0; i < uno.banda5.size(); ++i) {
            EXPECT_EQ(std::bit_cast<std::uint64_t>(uno.banda5[i]),
                      std::bit_cast<std::uint64_t>(otro.banda5[i]));
            EXPECT_EQ(std::bit_cast<std::uint64_t>(uno.banda95[i]),
                      std::bit_cast<std::uint64_t>(otro.banda95[i]));
        }
        EXPECT_EQ(uno.p.ad, otro.p.ad);
        EXPECT_EQ(uno.p.ks, otro.p.ks);
    }
    EXPECT_NE(uno.banda95, Con(2, 6).banda95);
}

/// Coles 2001, page 60: the 10-year level has the variance 0.00303, 90 % of a normal law within 1.645 of its
/// root.
TEST(Remuestreo, LaBandaEsComoLaDeColes)
{
    const Remuestreo r = Con(2, 1, 1000);
    const std::size_t diez = 2;
    ASSERT_EQ(model::Recurrencias[diez], 10);
    EXPECT_NEAR(r.banda95[diez] - r.banda5[diez], 2 * 1.645 * 0.05505, 0.02);
    EXPECT_LT(r.banda5[diez], 4.30);
    EXPECT_GT(r.banda95[diez], 4.30);
}

/// A law that isn't the sample's is refused, one that is isn't.
TEST(Remuestreo, ElValorPDistingueLasLeyes)
{
    std::vector<double> x;
    constexpr std::size_t Cuantos = 60;
    for (std::size_t i = 1; i <= Cuantos; ++i)
        x.push_back(Gumbel.cuantil({60, 15, 0}, Posicion(i, Cuantos, 0.44)));
    const Muestra m = HazMuestra(x);
    const PedidoDeRemuestreo pedido{1, 200, 0};
    const auto p = [&](const Ley& ley) {
        return Remuestrea(ley, Ajusta(ley, m, Metodo::MomentosL), Metodo::MomentosL, m, pedido)->p;
    };
    EXPECT_GT(p(Gumbel).ad, 0.5);
    EXPECT_GT(p(Gumbel).ppcc, 0.5);
    EXPECT_LT(p(Exponencial).ad, 0.05);
}

/// Cancelled, it leaves nothing, and at once; asked of, it tells how far it has come.
TEST(Remuestreo, SeDetieneAlInstanteYNoDejaNada)
{
    using Reloj = std::chrono::steady_clock;
    PedidoDeAnalisis pedido;
    pedido.metodo = Metodo::Verosimilitud;
    pedido.remuestreo = {1, 2000, 2};
    std::size_t antes = 0, total = 0;
    Reloj::time_point parado{};
    const auto a = Analiza(SerieDePortPirie(), pedido, [&](std::size_t hechos, std::size_t todos) {
        EXPECT_GE(hechos, antes);
        antes = hechos;
        total = todos;
        if (hechos < 2500) return true;
        parado = Reloj::now();
        return false;
    });
    EXPECT_FALSE(a);
    EXPECT_LT(std::chrono::duration<double>(Reloj::now() - parado).count(), 0.1);
    EXPECT_EQ(total, 2000 * Leyes().size());
    EXPECT_GE(antes, 2500U);
}

/// Twenty dry years among forty: by hand F = 1/2 + G/2, so the median year has none, and of 10 years G is
/// 0.8.
TEST(Analisis, LosAniosSinLluviaEntranEnLasRecurrencias)
{
    Serie s;
    std::vector<double> lluvias;
    for (int i = 0; i < 40; ++i) {
        const double x = i % 2 == 0 ? 0 : 60 + 15 * ((i * 7) % 11);
        s.maximos.push_back({1980 + i, x});
        if (x > 0) lluvias.push_back(x);
    }
    PedidoDeAnalisis pedido;
    pedido.remuestreo.cuantas = 200;
    pedido.leyes = {&Gumbel, &LogPearsonIII, &SqrtEtmax};
    const Analisis a = *Analiza(s, pedido);
    EXPECT_EQ(a.muestra.secos, 20U);
    const Parametros g = *Ajusta(Gumbel, HazMuestra(lluvias), Metodo::MomentosL).p;
    for (const AjusteDeLey& f : a.ajustes) {
        ASSERT_TRUE(f.estimado.p) << f.estimado.nota;
        EXPECT_EQ(f.p0, 0.5);
        EXPECT_EQ(f.cuantiles[0], 0);
        EXPECT_EQ(CuantilDe(f, 1.5), 0);
        ASSERT_TRUE(f.remuestreo.Hay());
        EXPECT_EQ(f.remuestreo.banda5[0], 0);  // in most samples the dry years are about a half
        EXPECT_GT(f.remuestreo.banda95[0], 0);
        EXPECT_GT(f.remuestreo.banda5[2], 0);
    }
    EXPECT_NEAR(a.ajustes[0].cuantiles[2], g[0] - g[1] * std::log(-std::log(0.8)), 1e-9);
    EXPECT_NE(TextoDe(a).find("de los 20 años con lluvia"), std::string::npos);
    EXPECT_NE(JsonDe(a).find("\"secos\":20,\"p0\":0.5}"), std::string::npos);
    EXPECT_EQ(TextoDe(a).find("nan"), std::string::npos);
}

/// Samples that no gauge gives: a law has its quantiles, rising with the recurrence, or a reason in words.
TEST(Analisis, NingunaMuestraDaUnNumeroQueNoEs)
{
    const auto repite = [](std::size_t n, double x, std::vector<double> mas) {
        mas.insert(mas.end(), n, x);
        return mas;
    };
    std::vector<double> apenas, muchos, enormes;
    study::Sorteo sorteo(3, 1);
    for (int i = 0; i < 1000; ++i)
        muchos.push_back(20 - 30 * std::log(-std::log(sorteo.Uniforme())) + 80);
    for (int i = 0; i < 15; ++i) {
        apenas.push_back(60 + 1e-6 * i * (i % 3));
        enormes.push_back(1e5 - i * i);
    }
    const std::vector<std::vector<double>> muestras{repite(11, 50, {51}),
                                                    repite(11, 50, {1}),
                                                    repite(11, 1, {1e5}),
                                                    repite(6, 10, repite(6, 90, {})),
                                                    repite(30, 0, repite(9, 40, {41})),
                                                    repite(10, 1e-9, {2e-9, 3e-9}),
                                                    apenas,
                                                    enormes,
                                                    muchos};
    for (std::size_t k = 0; k < muestras.size(); ++k) {
        Serie s;
        for (std::size_t i = 0; i < muestras[k].size(); ++i)
            s.maximos.push_back({1200 + static_cast<int>(i), muestras[k][i]});
        for (const Metodo metodo : {Metodo::Momentos, Metodo::MomentosL, Metodo::Verosimilitud})
            for (const Bajos bajos : {Bajos::Quedan, Bajos::Boletin17B, Bajos::Boletin17C}) {
                PedidoDeAnalisis pedido;
                pedido.metodo = metodo;
                pedido.tratamiento = {bajos, AsimetriaRegional{0.2, 0.3}, {}};
                pedido.remuestreo.cuantas = muestras[k].size() < 100 ? 30 : 0;
                const Analisis a = *Analiza(s, pedido);
                for (const AjusteDeLey& f : a.ajustes) {
                    if (!f.estimado.p) {
                        EXPECT_FALSE(f.estimado.nota.empty()) << f.ley->clave;
                        continue;
                    }
                    for (std::size_t i = 0; i < f.cuantiles.size(); ++i) {
                        EXPECT_TRUE(std::isfinite(f.cuantiles[i])) << k << " " << f.ley->clave;
                        if (i > 0) {
                            EXPECT_GE(f.cuantiles[i], f.cuantiles[i - 1]) << k << " " << f.ley->clave;
                        }
                    }
                }
                for (const std::string& t : {TextoDe(a), JsonDe(a), CsvDe(a)})
                    for (const char* no : {"nan", "inf"})
                        EXPECT_EQ(t.find(no), std::string::npos) << k << t.substr(0, 3000);
                if (bajos == Bajos::Quedan && metodo != Metodo::Momentos) break;
            }
    }
}

/// To be watched changes nothing.
TEST(Remuestreo, MirarloNoCambiaNada)
{
    PedidoDeAnalisis pedido;
    pedido.remuestreo.cuantas = 100;
    const auto siga = [](std::size_t, std::size_t) { return true; };
    EXPECT_EQ(JsonDe(*Analiza(SerieDePortPirie(), pedido, siga)),
              JsonDe(*Analiza(SerieDePortPirie(), pedido)));
}

TEST(Analisis, RecomiendaConSuMotivo)
{
    PedidoDeAnalisis pedido;
    pedido.metodo = Metodo::Verosimilitud;
    pedido.remuestreo.cuantas = 100;
    const Analisis a = *Analiza(SerieDePortPirie(), pedido);
    ASSERT_EQ(a.ajustes.size(), Leyes().size());
    ASSERT_NE(a.recomendacion.ley, nullptr);
    for (const AjusteDeLey& f : a.ajustes)
        if (f.estimado.p && f.remuestreo.p.ad >= 0.05) {
            const auto mejor = std::find_if(a.ajustes.begin(), a.ajustes.end(), [&](const AjusteDeLey& g) {
                return g.ley == a.recomendacion.ley;
            });
            EXPECT_LE(mejor->criterios.aicc, f.criterios.aicc);
        }
    EXPECT_TRUE(
        a.recomendacion.motivo.starts_with(std::string(a.recomendacion.ley->nombre) + ": el menor AICc, "))
        << a.recomendacion.motivo;
    EXPECT_EQ(a.recomendacion.motivo.find("pruebas de la muestra"), std::string::npos);
    const std::string texto = TextoDe(a);
    EXPECT_NE(texto.find("Máximos anuales [mm]: 65, de 1923 a 1987\n"), std::string::npos) << texto;
    EXPECT_NE(texto.find("(de Coles -0.050"), std::string::npos) << texto;
}

/// One far value among equal ones: the likelihoods of the sharpest shapes are the greatest and mean nothing.
TEST(Analisis, UnaFormaExtremaNoSeRecomienda)
{
    Serie s;
    for (int i = 0; i < 12; ++i)
        s.maximos.push_back({1990 + i, i == 3 ? 1.0 : 50.0});
    PedidoDeAnalisis pedido;
    pedido.metodo = Metodo::Momentos;
    pedido.remuestreo.cuantas = 0;
    pedido.leyes = {&Gumbel, &Gev, &PearsonIII};
    const Analisis a = *Analiza(s, pedido);
    ASSERT_TRUE(a.ajustes[2].estimado.p);
    EXPECT_LT((*a.ajustes[2].estimado.p)[2], -2);
    EXPECT_EQ(a.recomendacion.ley, &Gumbel);
}

TEST(Analisis, SinNingunaLeyQueSirvaNoRecomienda)
{
    PedidoDeAnalisis pedido;
    pedido.leyes = {&Exponencial};
    pedido.remuestreo.cuantas = 200;
    const Analisis a = *Analiza(SerieDePortPirie(), pedido);
    EXPECT_EQ(a.recomendacion.ley, nullptr);
    EXPECT_TRUE(a.recomendacion.motivo.starts_with("Ninguna ley se puede recomendar"))
        << a.recomendacion.motivo;
}

}  // namespace
