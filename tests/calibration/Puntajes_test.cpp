// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Puntajes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "study/Ajuste.h"

namespace {

using calibration::Par;

constexpr double Paso = 10;  // [min]

std::vector<Par> Pares(const std::vector<double>& simulados, const std::vector<double>& observados,
                       const std::vector<double>& pesos = {})
{
    std::vector<Par> pares;
    for (std::size_t i = 0; i < simulados.size(); ++i)
        pares.push_back(
            {Paso * static_cast<double>(i), simulados[i], observados[i], pesos.empty() ? 1 : pesos[i]});
    return pares;
}

std::optional<double> Valor(std::string_view clave, const std::vector<Par>& pares)
{
    return calibration::PuntajeDe(clave)->valor(pares);
}

using Esperados = std::vector<std::pair<std::string_view, double>>;

void Compara(const std::vector<Par>& pares, const Esperados& esperados)
{
    for (const auto& [clave, esperado] : esperados) {
        const std::optional<double> valor = Valor(clave, pares);
        ASSERT_TRUE(valor) << clave;
        EXPECT_NEAR(*valor, esperado, 1e-12 * (1 + std::abs(esperado))) << clave;
    }
}

const std::vector<double> Simulada{0.4, 0.4, 1.9, 5.2, 9.6, 12.7, 10.3, 6.1, 3.3, 1.8, 1.1, 0.8};
const std::vector<double> Observada{0.4, 0.6, 2.5, 7.1, 11.2, 10.4, 8.0, 5.6, 3.6, 2.2, 1.4, 0.8};

// W. Roberts, G. Williams, E. Jackson, E. Nelson, D. Ames (2018), Hydrostats, Hydrology 5(4), 66: the series
// and the printed figures of its package's checks, kge_2009 and kge_2012. The others with 30 digits in
// Python.
TEST(Puntajes, SeriesPublicadas)
{
    Compara(Pares({5, 7, 9, 2, 4.5, 6.7}, {4.7, 6, 10, 2.5, 4, 6.8}), {{"kge", 0.9181073779138655},
                                                                       {"kge2012", 0.9132923608280753},
                                                                       {"mae", 0.5666666666666665},
                                                                       {"nse", 0.923333988598388},
                                                                       {"log_nse", 0.9105298090703131},
                                                                       {"kge_np", 0.9264011248166224},
                                                                       {"rsr", 0.2768862788251017},
                                                                       {"rmse", 0.6582805886043833},
                                                                       {"volumen", 0.5882352941176471},
                                                                       {"pico", -10},
                                                                       {"tiempo_pico", 0}});
}

// 1..10 against 2..11: 1 - 10/82.5; r and the ratio of deviations are 1, so that 1 - (6.5/5.5 - 1) is left.
TEST(Puntajes, UnaCrecienteAMano)
{
    Compara(Pares({2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
            {{"nse", 1 - 10 / 82.5},
             {"kge", 1 - 1 / 5.5},
             {"rsr", std::sqrt(10 / 82.5)},
             {"mae", 1},
             {"rmse", 1},
             {"volumen", 100 * 10.0 / 55},
             {"pico", 10}});
}

// In Python with 30 digits, by the printed formulas.
TEST(Puntajes, CrecidaContraCalculoIndependiente)
{
    Compara(Pares(Simulada, Observada), {{"nse", 0.8927037761335447},
                                         {"log_nse", 0.9605941318081636},
                                         {"kge", 0.8804994337670697},
                                         {"kge2012", 0.8766182263063878},
                                         {"kge_np", 0.9335864047268614},
                                         {"rsr", 0.3275610231185241},
                                         {"mae", 0.8666666666666667},
                                         {"rmse", 1.2158673173226318},
                                         {"volumen", -0.3717472118959108},
                                         {"pico", 13.392857142857142},
                                         {"tiempo_pico", 10}});
}

// The same pairs, some of them twice or three times and one left out, as a list of 19.
TEST(Puntajes, ElPesoEsLaMismaParejaVariasVeces)
{
    Compara(Pares(Simulada, Observada, {1, 1, 2, 3, 3, 3, 2, 1, 0, 1, 1, 1}),
            {{"nse", 0.8447770585802309},
             {"log_nse", 0.9514517964639031},
             {"kge", 0.8603864476987969},
             {"kge2012", 0.8552213775365599},
             {"kge_np", 0.8640874963418001},
             {"rsr", 0.3939834278491533},
             {"mae", 1.2947368421052632},
             {"rmse", 1.5596895777517295},
             {"volumen", -0.508044030482642},
             {"pico", 13.392857142857142},
             {"tiempo_pico", 10}});
}

TEST(Puntajes, DosSeriesIgualesDanElMejor)
{
    for (const calibration::Puntaje& p : calibration::Puntajes()) {
        const std::optional<double> valor = p.valor(Pares(Observada, Observada));
        ASSERT_TRUE(valor) << p.clave;
        EXPECT_NEAR(*valor, p.mejor, 1e-14) << p.clave;
        EXPECT_NEAR(calibration::Perdida(p, valor), 0, 1e-14) << p.clave;
        EXPECT_EQ(p.masEsMejor, p.mejor == 1) << p.clave;
    }
}

// W. Knoben, J. Freer, R. Woods (2019), HESS 23, 4323-4331: the mean flow scores 0 and 1 - sqrt(2).
TEST(Puntajes, ElCaudalMedioComoModelo)
{
    const std::vector<double> media(4, 2.5);
    const std::vector<Par> pares = Pares(media, {1, 2, 3, 4});
    Compara(pares, {{"nse", 0}, {"kge", 1 - std::sqrt(2)}, {"kge2012", 1 - std::sqrt(2)}, {"rsr", 1}});
    // Its curve of duration is 1 everywhere: (0.6 + 0.2 + 0.2 + 0.6)/4/2 off, and ranks that say nothing.
    Compara(pares, {{"kge_np", 1 - std::sqrt(1 + 0.04)}});
}

// A network from which nothing runs off: a search has to see that it is bad, and how bad.
TEST(Puntajes, SinEscurrimiento)
{
    const std::vector<Par> pares = Pares({0, 0, 0, 0}, {1, 2, 3, 4});
    Compara(pares, {{"kge", 1 - std::sqrt(3)},
                    {"kge2012", 1 - std::sqrt(3)},
                    {"nse", 1 - 30 / 5.0},
                    {"volumen", -100},
                    {"pico", -100}});
    EXPECT_FALSE(Valor("tiempo_pico", pares));
}

TEST(Puntajes, LoQueNoEstaDefinidoNoEsNaN)
{
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    const std::vector<std::pair<std::vector<Par>, std::set<std::string_view>>> casos{
        {{}, {}},
        {Pares({1, 2}, {1, 2}, {0, 0}), {}},
        {Pares({1, NaN}, {1, 2}), {}},
        // 0.1 + 0.1 + 0.1 isn't 0.3: the spread of equal numbers must not be rounding.
        {Pares({1, 2, 3}, {0.1, 0.1, 0.1}), {"mae", "rmse", "volumen", "pico"}},
        {Pares({1}, {2}), {"mae", "rmse", "volumen", "pico"}},
        {Pares({1, 2, 3}, {0, 0, 0}), {"mae", "rmse"}},
        {Pares({1, 2, 3}, {0, 1, 0}),
         {"nse", "log_nse", "kge", "kge2012", "kge_np", "rsr", "mae", "rmse", "volumen", "pico",
          "tiempo_pico"}},
    };
    for (const auto& [pares, definidos] : casos)
        for (const calibration::Puntaje& p : calibration::Puntajes()) {
            const std::optional<double> valor = p.valor(pares);
            EXPECT_EQ(valor.has_value(), definidos.contains(p.clave)) << p.clave << " " << pares.size();
            const double perdida = calibration::Perdida(p, valor);
            EXPECT_FALSE(std::isnan(perdida)) << p.clave;
            EXPECT_EQ(std::isinf(perdida), !valor) << p.clave;
            EXPECT_EQ(calibration::Texto(p, valor) == "no está definido", !valor) << p.clave;
        }
}

TEST(Puntajes, CadaFilaSeNombra)
{
    const std::vector<std::string_view> claves{"nse", "log_nse", "kge",     "kge2012", "kge_np",     "rsr",
                                               "mae", "rmse",    "volumen", "pico",    "tiempo_pico"};
    ASSERT_EQ(calibration::Puntajes().size(), claves.size());
    for (std::size_t i = 0; i < claves.size(); ++i) {
        const calibration::Puntaje& p = calibration::Puntajes()[i];
        EXPECT_EQ(p.clave, claves[i]);
        EXPECT_EQ(calibration::PuntajeDe(claves[i]), &p);
        EXPECT_FALSE(p.nombre.empty() || p.formula.empty() || p.fuente.empty() || p.unidad.empty());
    }
    EXPECT_EQ(calibration::PuntajeDe("otro"), nullptr);
}

TEST(Puntajes, Textos)
{
    EXPECT_EQ(calibration::Texto(*calibration::PuntajeDe("nse"), 0.912345), "0.9123");
    EXPECT_EQ(calibration::Texto(*calibration::PuntajeDe("volumen"), 6.04), "+6.0");
    EXPECT_EQ(calibration::Texto(*calibration::PuntajeDe("tiempo_pico"), -20), "-20.0");
}

// Two floods: the first comes 10 % too high and in time, the second 20 % too low and 10 min late.
TEST(Puntajes, ElPicoSeBuscaEnCadaVentana)
{
    std::vector<Par> pares = Pares({0, 11, 0, 0, 4, 8}, {0, 10, 0, 0, 10, 5});
    for (std::size_t i = 3; i < pares.size(); ++i)
        pares[i].ventana = 1;
    EXPECT_NEAR(*Valor("pico", pares), -20, 1e-12);
    EXPECT_EQ(Valor("tiempo_pico", pares), 10);
}

// --- in words ---

// 106 against 100 in volume; the same peak two steps later.
TEST(EnPalabras, DiceVolumenPicoYHora)
{
    EXPECT_EQ(calibration::EnPalabras(Pares({16, 10, 20, 60, 0}, {20, 60, 10, 10, 0})),
              "sobrestima el volumen 6 %, el pico llega 20 min tarde");
    EXPECT_EQ(calibration::EnPalabras(Pares({0, 5, 0}, {0, 4, 6})),
              "subestima el volumen 50 %, subestima el pico 17 %, el pico llega 10 min temprano");
    EXPECT_EQ(calibration::EnPalabras(Pares(Observada, Observada)), "acierta el volumen, el pico y su hora");
    EXPECT_EQ(calibration::EnPalabras({}), "");
}

// --- pairs ---

constexpr std::array<float, 4> Recta{0, 10, 20, 10};  // at 0, 10, 20, 30 min

calibration::Emparejados Empareja(const study::Observacion& o)
{
    return calibration::Empareja({Recta, Paso}, o, o.puntos);
}

TEST(Empareja, InterpolaEnElInstante)
{
    study::Observacion o;
    o.puntos = {{0, 1}, {4, 2}, {10, 3}, {25, 4}, {30, 5}};
    const calibration::Emparejados e = Empareja(o);
    ASSERT_EQ(e.pares.size(), 5);
    const std::array<double, 5> simulados{0, 4, 10, 15, 10};
    for (std::size_t i = 0; i < simulados.size(); ++i) {
        EXPECT_NEAR(e.pares[i].simulado, simulados[i], 1e-12);
        EXPECT_EQ(e.pares[i].observado, o.puntos[i].valor);
        EXPECT_EQ(e.pares[i].minuto, o.puntos[i].minuto);
        EXPECT_EQ(e.pares[i].peso, 1);
    }
}

// Mean over the 15 min before: to 15 min (0 to 15)/2 = 7.5; from 10 to 25 min (10 to 20) over 10 min and
// (20 to 15) over 5, that is (150 + 87.5)/15.
TEST(Empareja, PromediaElIntervaloAnterior)
{
    study::Observacion o;
    o.promedio = 15;
    o.puntos = {{10, 1}, {15, 1}, {25, 1}};
    const calibration::Emparejados e = Empareja(o);
    ASSERT_EQ(e.pares.size(), 2);
    EXPECT_NEAR(e.pares[0].simulado, 7.5, 1e-12);
    EXPECT_NEAR(e.pares[1].simulado, 237.5 / 15, 1e-12);
    EXPECT_EQ(e.fuera, 1);  // it would begin before the storm
}

TEST(Empareja, VentanasPesosYHuecos)
{
    study::Observacion o;
    o.ventanas = {{0, 20, 2}, {10, 10, 0}, {20, 30, 0.5}};
    o.puntos = {
        {-5, 1}, {0, 1}, {10, 1}, {20, 1}, {30, 1}, {35, 1}, {20, std::numeric_limits<double>::quiet_NaN()}};
    const calibration::Emparejados e = Empareja(o);
    ASSERT_EQ(e.pares.size(), 3);
    EXPECT_EQ(e.pares[0].peso, 2);
    EXPECT_EQ(e.pares[0].ventana, 0);
    EXPECT_EQ(e.pares[1].peso, 0.5);  // at 20 min: the later window
    EXPECT_EQ(e.pares[1].ventana, 2);
    EXPECT_EQ(e.sinPeso, 3);
    EXPECT_EQ(e.sinValor, 1);
    EXPECT_EQ(calibration::CuantosPares(e), "3 pares; 3 observaciones sin peso; 1 observación sin valor.");
}

TEST(Empareja, FueraDelTiempoCalculado)
{
    study::Observacion o;
    o.puntos = {{-1, 1}, {30.5, 1}};
    EXPECT_EQ(Empareja(o).fuera, 2);
    EXPECT_EQ(calibration::CuantosPares(Empareja(o)),
              "Ningún par; 2 observaciones fuera del tiempo calculado.");
    const calibration::Emparejados e = calibration::Empareja({{}, Paso}, o, o.puntos);
    EXPECT_TRUE(e.pares.empty());
}

}  // namespace
