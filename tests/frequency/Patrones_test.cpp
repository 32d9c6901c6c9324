// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <set>
#include <string>
#include <vector>

#include "frequency/tormenta/Patron.h"

namespace {

using frequency::PedidoDeTormenta;

/// A curve a·d/(d+b)^c/60 [mm].
frequency::LaminaPorDuracion Sherman(double a, double b, double c)
{
    return [=](double d) { return a * d / std::pow(d + b, c) / 60; };
}

PedidoDeTormenta Pedido(double duracion, double paso)
{
    PedidoDeTormenta p;
    p.lamina = Sherman(1000, 10, 0.8);
    p.total = p.lamina(duracion);
    p.duracion = duracion;
    p.paso = paso;
    p.periodos = {3, 1, 0, 4};
    return p;
}

std::vector<double> Reparte(std::string_view clave, const PedidoDeTormenta& p)
{
    const frequency::Reparto r = frequency::Reparte(*frequency::PatronDeClave(clave), p);
    EXPECT_EQ(r.error, "") << clave;
    return r.laminas;
}

void EsperaCerca(const std::vector<double>& dadas, const std::vector<double>& esperadas, double tolerancia)
{
    ASSERT_EQ(dadas.size(), esperadas.size());
    for (std::size_t i = 0; i < dadas.size(); ++i)
        EXPECT_NEAR(dadas[i], esperadas[i], tolerancia) << i;
}

// Chow, Maidment and Mays (1988), example 14.4.1: two hours in Denver, ten years, inches.
TEST(Patrones, BloquesAlternosDelLibro)
{
    PedidoDeTormenta p = Pedido(120, 10);
    p.lamina = [](double d) { return 96.6 / (std::pow(d, 0.97) + 13.90) * d / 60; };
    p.total = p.lamina(120);
    EsperaCerca(Reparte("bloques", p),
                {0.024, 0.033, 0.050, 0.084, 0.178, 0.693, 0.308, 0.117, 0.063, 0.040, 0.028, 0.021}, 0.0006);
}

TEST(Patrones, BloquesImparesTienenElMayorAlMedio)
{
    PedidoDeTormenta p = Pedido(50, 10);
    p.lamina = [](double d) { return std::sqrt(d); };
    p.total = p.lamina(50);
    const auto b = Reparte("bloques", p);
    EXPECT_GT(b[2], b[3]);
    EXPECT_GT(b[3], b[1]);
    EXPECT_GT(b[1], b[4]);
    EXPECT_GT(b[4], b[0]);
}

// The intensities of Keifer and Chu integrated over each step, with thirty digits.
TEST(Patrones, ChicagoEsLaIntegralDeSusIntensidades)
{
    EsperaCerca(Reparte("chicago", Pedido(120, 10)),
                {0.9990734814237603, 1.3282587228012164, 2.0114221373347703, 4.228025645915372,
                 14.958384250767423, 6.632486272896198, 3.337425802241754, 2.2079234407309767,
                 1.6499403019152248, 1.3202282210111358, 1.1032768465237117, 0.9498884257518626},
                1e-12);
}

TEST(Patrones, LaEquilibradaAnidaAlCentro)
{
    PedidoDeTormenta p = Pedido(60, 10);
    p.lamina = [](double d) { return 12 * std::pow(d, 0.25); };
    p.total = p.lamina(60);
    EsperaCerca(Reparte("equilibrada", p),
                {1.6097449460872149, 2.4007459949084584, 12.688455161286768, 12.688455161286768,
                 2.4007459949084584, 1.6097449460872149},
                1e-12);
}

// Whatever its peak's place, the greatest rain of as many steps as one likes is never above the curve; around
// the peak of Chicago's it is the curve's where the window is cut by r.
TEST(Patrones, NingunaVentanaDeChicagoPasaLaCurva)
{
    for (const double r : {0.1, 0.375, 0.5, 0.9}) {
        PedidoDeTormenta p = Pedido(360, 1);
        p.avance = r;
        const auto laminas = Reparte("chicago", p);
        for (std::size_t ancho = 10; ancho <= 360; ancho += 50) {
            double mayor = 0;
            for (std::size_t i = 0; i + ancho <= laminas.size(); ++i) {
                const auto desde = laminas.begin() + static_cast<std::ptrdiff_t>(i);
                mayor =
                    std::max(mayor, std::accumulate(desde, desde + static_cast<std::ptrdiff_t>(ancho), 0.0));
            }
            const double curva = p.lamina(static_cast<double>(ancho));
            EXPECT_LE(mayor, curva * (1 + 1e-12)) << r << ' ' << ancho;
            EXPECT_GE(mayor, curva * 0.98) << r << ' ' << ancho;
        }
    }
}

/// What has fallen by an hour of a day of 100 mm, in steps of 6 min.
double HastaLaHora(const std::vector<double>& laminas, double hora)
{
    return std::accumulate(laminas.begin(), laminas.begin() + std::lround(hora * 10), 0.0);
}

// Ordinates of the table in the same book; the finest differ by what the two tabulations do.
TEST(Patrones, LosTiposDelScsTienenSusOrdenadas)
{
    PedidoDeTormenta p = Pedido(1440, 6);
    p.total = 100;
    struct Ordenada {
        const char* clave;
        double hora, porcentaje;
    };
    for (const auto& [clave, hora, porcentaje] : {Ordenada{"scs-i", 6, 12.5},
                                                  {"scs-i", 9.5, 30.3},
                                                  {"scs-i", 10, 51.5},
                                                  {"scs-i", 10.5, 58.3},
                                                  {"scs-ia", 4, 11.6},
                                                  {"scs-ia", 8, 42.5},
                                                  {"scs-ia", 10, 57.7},
                                                  {"scs-ia", 16, 80.0},
                                                  {"scs-ii", 6, 8.0},
                                                  {"scs-ii", 11.5, 28.3},
                                                  {"scs-ii", 12, 66.3},
                                                  {"scs-ii", 12.5, 73.5},
                                                  {"scs-ii", 20, 95.2},
                                                  {"scs-iii", 6, 7.2},
                                                  {"scs-iii", 12, 50.0},
                                                  {"scs-iii", 12.5, 70.2},
                                                  {"scs-iii", 20, 95.7}})
        EXPECT_NEAR(HastaLaHora(Reparte(clave, p), hora), porcentaje, 0.051) << clave << ' ' << hora;
}

TEST(Patrones, HuffPorCuartilConRectasEntreSusCincoPorCientos)
{
    PedidoDeTormenta p = Pedido(200, 5);
    p.total = 100;
    p.cuartil = 2;
    const auto laminas = Reparte("huff", p);
    EXPECT_NEAR(std::accumulate(laminas.begin(), laminas.begin() + 20, 0.0), 70, 1e-9);
    EXPECT_NEAR(laminas[0], 1.5, 1e-9);
    p.cuartil = 4;
    const auto tardia = Reparte("huff", p);
    EXPECT_NEAR(std::accumulate(tardia.begin(), tardia.begin() + 30, 0.0), 51, 1e-9);
}

/// What the printed table of a duration gives at parts of it.
TEST(Patrones, Noaa14PorCuartilYProbabilidad)
{
    const auto hasta = [](double minutos, int cuartil, int probabilidad, double parte) {
        PedidoDeTormenta p = Pedido(minutos, minutos / 12);
        p.total = 100;
        p.cuartil = cuartil;
        p.probabilidad = probabilidad;
        const auto laminas = Reparte("noaa14", p);
        return std::accumulate(laminas.begin(), laminas.begin() + static_cast<std::ptrdiff_t>(12 * parte),
                               0.0);
    };
    EXPECT_NEAR(hasta(360, 1, 10, 0.25), 84.4, 1e-9);
    EXPECT_NEAR(hasta(360, 1, 50, 0.25), 53.9, 1e-9);
    EXPECT_NEAR(hasta(360, 1, 90, 0.25), 32.8, 1e-9);
    EXPECT_NEAR(hasta(360, 4, 50, 0.75), 58.7, 1e-9);
    EXPECT_NEAR(hasta(720, 2, 50, 0.5), 68.9, 1e-9);
    EXPECT_NEAR(hasta(720, 3, 20, 0.75), 92.0, 1e-9);
    EXPECT_NEAR(hasta(1440, 3, 50, 0.5), 35.8, 1e-9);
    EXPECT_NEAR(hasta(1440, 4, 80, 0.75), 35.8, 1e-9);
    EXPECT_NEAR(hasta(120, 1, 50, 0.25), 53.9, 1e-9);
    EXPECT_NEAR(hasta(540, 1, 50, 0.25), 53.9, 1e-9);
    EXPECT_NEAR(hasta(600, 1, 50, 0.25), 59.6, 1e-9);
    EXPECT_NEAR(hasta(2880, 1, 50, 0.25), 60.9, 1e-9);
}

TEST(Patrones, LosPeriodosPropiosSeReparten)
{
    PedidoDeTormenta p = Pedido(80, 10);
    p.total = 16;
    EsperaCerca(Reparte("propia", p), {3, 3, 1, 1, 0, 0, 4, 4}, 1e-12);
    p = Pedido(60, 20);
    p.total = 24;
    EsperaCerca(Reparte("registrada", p), {10, 2, 12}, 1e-12);
}

TEST(Patrones, LaSumaEsLaLaminaHastaElUltimoBit)
{
    for (const frequency::Patron* patron : frequency::Patrones())
        for (const double total : {0.1, 33.333333333333336, 87.4, 512.0, 1e4 / 7})
            for (const auto& [duracion, paso] :
                 {std::pair{1440.0, 10.0}, {90.0, 1.0}, {35.0, 7.0}, {5.0, 5.0}}) {
                PedidoDeTormenta p = Pedido(duracion, paso);
                p.total = total;
                const auto laminas = Reparte(patron->clave, p);
                EXPECT_EQ(std::accumulate(laminas.begin(), laminas.end(), 0.0), total) << patron->clave;
                EXPECT_EQ(std::accumulate(laminas.rbegin(), laminas.rend(), 0.0), total) << patron->clave;
                EXPECT_TRUE(std::all_of(laminas.begin(), laminas.end(), [](double x) { return x >= 0; }));
            }
}

TEST(Patrones, CadaUnoSeNombraYDiceDeDondeSale)
{
    std::set<std::string_view> claves;
    for (const frequency::Patron* patron : frequency::Patrones()) {
        claves.insert(patron->clave);
        EXPECT_EQ(frequency::PatronDeClave(patron->clave), patron);
        for (const std::string_view texto :
             {patron->nombre, patron->formula, patron->fuente, patron->limites})
            EXPECT_FALSE(texto.empty()) << patron->clave;
    }
    EXPECT_EQ(claves.size(), 11U);
    EXPECT_EQ(frequency::PatronDeClave("otra"), nullptr);
}

TEST(Patrones, LoQueNoPuedeSerSeDice)
{
    const auto error = [](std::string_view clave, const std::function<void(PedidoDeTormenta&)>& cambia) {
        PedidoDeTormenta p = Pedido(120, 10);
        cambia(p);
        const frequency::Reparto r = frequency::Reparte(*frequency::PatronDeClave(clave), p);
        EXPECT_TRUE(r.laminas.empty());
        return r.error;
    };
    static constexpr double NoEsNumero = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(error("huff", [](auto& p) { p.duracion = 0; }),
              "La duración debe ser un número entero de minutos entre 1 y 14400.");
    EXPECT_EQ(error("huff", [](auto& p) { p.duracion = 14410; }),
              "La duración debe ser un número entero de minutos entre 1 y 14400.");
    EXPECT_EQ(error("huff", [](auto& p) { p.paso = 2.5; }),
              "El paso debe ser un número entero de minutos, 1 o más.");
    EXPECT_EQ(error("huff", [](auto& p) { p.paso = 7; }), "La duración debe ser un múltiplo del paso.");
    EXPECT_EQ(error("huff", [](auto& p) { p.duracion = 1000, p.paso = 1; }),
              "Son más de 999 períodos: hace falta un paso más largo.");
    EXPECT_EQ(error("huff", [](auto& p) { p.total = 0; }), "La lámina debe ser mayor que 0.");
    EXPECT_EQ(error("huff", [](auto& p) { p.total = NoEsNumero; }), "La lámina debe ser mayor que 0.");
    EXPECT_EQ(error("huff", [](auto& p) { p.cuartil = 5; }), "El cuartil debe ser 1, 2, 3 o 4.");
    EXPECT_EQ(error("noaa14", [](auto& p) { p.cuartil = 0; }), "El cuartil debe ser 1, 2, 3 o 4.");
    for (const int probabilidad : {0, 15, 100})
        EXPECT_EQ(error("noaa14", [&](auto& p) { p.probabilidad = probabilidad; }),
                  "La probabilidad debe ser 10, 20, 30, 40, 50, 60, 70, 80 o 90 %.");
    EXPECT_EQ(error("bloques", [](auto& p) { p.lamina = {}; }),
              "Este patrón se hace de curvas de intensidad y no las hay.");
    EXPECT_EQ(error("chicago", [](auto& p) { p.avance = 1; }), "El avance debe estar entre 0 y 1.");
    for (const char* clave : {"bloques", "chicago", "equilibrada"})
        EXPECT_EQ(error(clave, [](auto& p) { p.lamina = [](double d) { return d < 60 ? d : 60 - d / 10; }; }),
                  "La lámina de las curvas decrece con la duración: no sirven para un patrón.")
            << clave;
    EXPECT_EQ(error("bloques", [](auto& p) { p.lamina = [](double) { return NoEsNumero; }; }),
              "La lámina de las curvas decrece con la duración: no sirven para un patrón.");
    EXPECT_EQ(error("propia", [](auto& p) { p.periodos = {}; }),
              "La tormenta de la que sale el patrón no tiene períodos.");
    EXPECT_EQ(error("propia",
                    [](auto& p) {
                        p.periodos = {1, -1};
                    }),
              "Un período de la tormenta de la que sale el patrón es negativo.");
    EXPECT_EQ(error("registrada",
                    [](auto& p) {
                        p.periodos = {0, 0};
                    }),
              "La tormenta de la que sale el patrón no tiene lluvia.");
}

TEST(Patrones, DejarLosLimitesSeAvisa)
{
    PedidoDeTormenta p = Pedido(720, 10);
    const auto avisos = [&](const char* clave) {
        return frequency::Reparte(*frequency::PatronDeClave(clave), p).avisos;
    };
    EXPECT_EQ(avisos("scs-ii"), (std::vector<std::string>{"El patrón es de 1440 min y se llevó a 720 min: su "
                                                          "fuente no respalda ese uso."}));
    EXPECT_EQ(avisos("scs-ia").size(), 2U);
    EXPECT_TRUE(avisos("chicago").empty());
    p = Pedido(1440, 10);
    EXPECT_TRUE(avisos("scs-ii").empty());
    EXPECT_EQ(avisos("scs-ia"),
              (std::vector<std::string>{
                  "El paso es más corto que el de la tabla del patrón: entre sus valores se interpola."}));
}

}  // namespace
