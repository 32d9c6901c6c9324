// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Sorteos.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

namespace runs {
namespace {

using study::Parametro;

// mpmath 1.3, 40 digits: sqrt(2) erfinv(2p - 1), of p as a double.
TEST(LaNormalInversa, LlegaAQuinceCifras)
{
    const std::pair<double, double> casos[] = {
        {1e-10, -6.3613409024040561991},  {0.0001, -3.7190164854556805523},
        {0.001, -3.0902323061678135354},  {0.05, -1.644853626951472688},
        {0.25, -0.6744897501960817432},   {0.5000001, 2.5066282733116483012e-7},
        {0.7, 0.52440051270804065631},    {0.95, 1.6448536269514722843},
        {0.9999, 3.7190164854557083867},  {1e-16, -8.2220822161304356152},
        {1e-300, -37.047096299361199237}, {0.0749999, -1.4395321773759005864},
        {0.925, 1.4395314709384562291},   {0.4999999, -2.5066282747031065135e-7}};
    for (const auto& [p, z] : casos)
        EXPECT_NEAR(NormalInversa(p) / z, 1, 1e-15) << p;
    EXPECT_EQ(NormalInversa(0.5), 0);
}

RC_GTEST_PROP(LaPermutacion, DaCadaLugarUnaVez, (std::uint64_t semilla))
{
    const auto n = *rc::gen::inRange<std::uint64_t>(1, 3000);
    const Permutacion p(n, semilla, 3);
    std::vector<bool> visto(n);
    for (std::uint64_t k = 0; k < n; ++k) {
        const std::uint64_t lugar = p(k);
        RC_ASSERT(lugar < n);
        RC_ASSERT(!visto[lugar]);
        visto[lugar] = true;
    }
}

// Each member falls upon each of 10 places in a tenth of the keys: chi squared of 9 degrees, 27.88 at 1 in
// 1000.
TEST(LaPermutacion, NoPrefiereNingunLugar)
{
    constexpr int Claves = 20000;
    for (std::uint64_t k = 0; k < 10; ++k) {
        std::vector<int> cuenta(10);
        for (std::uint64_t clave = 0; clave < Claves; ++clave)
            ++cuenta[Permutacion(10, 77, clave)(k)];
        double chi = 0;
        for (const int c : cuenta)
            chi += (c - Claves / 10.0) * (c - Claves / 10.0) / (Claves / 10.0);
        EXPECT_LT(chi, 27.88) << k;
    }
}

std::vector<std::vector<double>> Saca(const std::vector<Parametro>& ps, const study::Incertidumbre& i,
                                      const study::Calibracion& c = {})
{
    const Sorteos sorteos(ps, i, c);
    std::vector<std::vector<double>> columnas(ps.size(), std::vector<double>(sorteos.Miembros()));
    std::vector<double> valores(ps.size());
    for (std::size_t k = 0; k < sorteos.Miembros(); ++k) {
        sorteos.Valores(k, valores);
        for (std::size_t d = 0; d < ps.size(); ++d)
            columnas[d][k] = valores[d];
    }
    return columnas;
}

TEST(ElHipercubo, TieneUnoEnCadaEstratoDeCadaParametro)
{
    for (const int n : {10, 97, 1000}) {
        const auto columnas =
            Saca(std::vector<Parametro>(5, Parametro{.campo = "x", .minimo = 0, .maximo = 1}),
                 {.miembros = n, .semilla = 5});
        for (const auto& columna : columnas) {
            std::set<int> estratos;
            for (const double x : columna)
                estratos.insert(static_cast<int>(x * n));
            EXPECT_EQ(estratos.size(), static_cast<std::size_t>(n));
        }
        // Two columns aren't the same order: their correlation is that of chance, below 4 / sqrt(n).
        for (std::size_t d = 1; d < columnas.size(); ++d) {
            double suma = 0;
            for (std::size_t k = 0; k < columnas[0].size(); ++k)
                suma += (columnas[0][k] - 0.5) * (columnas[d][k] - 0.5);
            EXPECT_LT(std::fabs(suma / n * 12), 4 / std::sqrt(n)) << d;
        }
    }
}

TEST(LosSorteos, UnMiembroDependeDeSuNumeroYLaSemillaNadaMas)
{
    const std::vector<Parametro> ps{{.campo = "x", .minimo = 0, .maximo = 1},
                                    {.campo = "y", .minimo = 1, .maximo = 9, .distribucion = "normal"}};
    for (const char* muestreo : {"lhs", "simple"}) {
        const Sorteos uno(ps, {.miembros = 50, .muestreo = muestreo, .semilla = 8}, {});
        const Sorteos otro(ps, {.miembros = 50, .muestreo = muestreo, .semilla = 8}, {});
        const Sorteos ajeno(ps, {.miembros = 50, .muestreo = muestreo, .semilla = 9}, {});
        std::vector<double> a(2), b(2), c(2);
        for (std::size_t k = 50; k-- > 0;) {
            uno.Valores(k, a);
            uno.Valores(49 - k, c);
            otro.Valores(k, b);
            ajeno.Valores(k, c);
            EXPECT_EQ(a, b);
            EXPECT_NE(a, c);
        }
    }
}

/// Mean and deviation of a column.
std::pair<double, double> Momentos(const std::vector<double>& x)
{
    const auto n = static_cast<double>(x.size());
    const double media = std::accumulate(x.begin(), x.end(), 0.0) / n;
    double s = 0;
    for (const double v : x)
        s += (v - media) * (v - media);
    return {media, std::sqrt(s / n)};
}

// Means and deviations by the formulas of each law, of the cut ones by mpmath's quadrature; 20,000 strata.
TEST(LosSorteos, TienenLosMomentosDeSuDistribucion)
{
    struct Caso {
        Parametro p;
        double media, desvio;
    };
    const Caso casos[] = {
        {{.minimo = 2, .maximo = 5}, 3.5, 3 / std::sqrt(12.0)},
        {{.minimo = 1, .maximo = 10, .logaritmica = true},
         9 / std::log(10.0),
         std::sqrt(99 / (2 * std::log(10.0)) - 81 / std::pow(std::log(10.0), 2))},
        {{.minimo = 0, .maximo = 10, .distribucion = "triangular", .centro = 2},
         4,
         std::sqrt((100 + 4 - 20) / 18.0)},
        {{.minimo = 0, .maximo = 10, .distribucion = "triangular"}, 5, std::sqrt(25 / 6.0)},
        {{.minimo = -100, .maximo = 100, .distribucion = "normal", .centro = 3, .dispersion = 2}, 3, 2},
        {{.minimo = 0, .maximo = 6, .distribucion = "normal"}, 3, 0.98657839255811},
        {{.minimo = 4, .maximo = 9, .distribucion = "normal", .centro = 4, .dispersion = 1},
         4.7978820447921,
         0.60280127355097},
        {{.minimo = 1e-3, .maximo = 1e5, .distribucion = "lognormal", .centro = 2, .dispersion = 0.5},
         2 * std::exp(0.125),
         2 * std::exp(0.125) * std::sqrt(std::exp(0.25) - 1)},
        {{.minimo = 0,
          .maximo = 9,
          .distribucion = "discreta",
          .valores = {{.valor = 1, .peso = 1}, {.valor = 5, .peso = 2}, {.valor = 9, .peso = 1}}},
         5,
         std::sqrt(8.0)},
    };
    for (const Caso& c : casos) {
        const auto columna = Saca({c.p}, {.miembros = 20000, .semilla = 3}).front();
        const auto [media, desvio] = Momentos(columna);
        EXPECT_NEAR(media, c.media, 1e-3 * c.desvio) << c.p.distribucion << c.p.minimo;
        EXPECT_NEAR(desvio, c.desvio, 4e-3 * c.desvio) << c.p.distribucion << c.p.minimo;
        const auto [menor, mayor] = std::minmax_element(columna.begin(), columna.end());
        EXPECT_GE(*menor, c.p.minimo);
        EXPECT_LE(*mayor, c.p.maximo);
    }
}

// All of a normal law in a tail: mpmath, ncdf and its inverse with 40 digits.
TEST(LosSorteos, UnaNormalCortadaEnSuColaNoPierdeCifras)
{
    const Parametro p{.minimo = 8, .maximo = 12, .distribucion = "normal", .centro = 0, .dispersion = 1};
    const Parametro q{.minimo = -12, .maximo = -8, .distribucion = "normal", .centro = 0, .dispersion = 1};
    EXPECT_NEAR(CuantilDe(p, 0.5), 8.0849110073915441, 1e-12);
    EXPECT_DOUBLE_EQ(CuantilDe(p, 0.5), -CuantilDe(q, 0.5));
    EXPECT_GE(CuantilDe(p, 1e-12), 8);
    EXPECT_LE(CuantilDe(p, 1 - 1e-12), 12);
}

TEST(LosSorteos, LosCercanosSalenJuntos)
{
    const std::vector<Parametro> ps{
        {.componentes = "u-1", .campo = "area", .maximo = 9, .distribucion = "cercanos"},
        {.componentes = "u-1", .campo = "kostiakov_a"},
        {.componentes = "u-1", .campo = "kostiakov_b", .distribucion = "cercanos"}};
    const study::Calibracion c{
        .campos = {"u-1.kostiakov_b.valor", "u-1.area.valor"},
        .cercanos = {{{0.1, 1}, 0.9}, {{0.2, 2}, 0.8}, {{0.3, 3}, 0.7}, {{0.4, 4}, 0.6}}};
    EXPECT_TRUE(ReparosDeSorteo(ps, c).empty());
    const auto columnas = Saca(ps, {.miembros = 100}, c);
    std::multiset<double> areas;
    for (std::size_t k = 0; k < 100; ++k) {
        EXPECT_DOUBLE_EQ(columnas[0][k], 10 * columnas[2][k]);
        areas.insert(columnas[0][k]);
    }
    for (const double area : {1.0, 2.0, 3.0, 4.0})
        EXPECT_EQ(areas.count(area), 25U);  // a quarter of the strata each
    EXPECT_EQ(ReparosDeSorteo(ps, {}),
              (std::vector<std::string>{
                  "No hay juegos cercanos al mejor de los que sortear u-1.area (valor).",
                  "No hay juegos cercanos al mejor de los que sortear u-1.kostiakov_b (valor)."}));
    EXPECT_EQ(ReparosDeSorteo(ps, {.campos = {"u-1.area.valor"}, .cercanos = {{{1}, 0}}}),
              std::vector<std::string>{"Los juegos cercanos al mejor no tienen u-1.kostiakov_b (valor)."});
}

TEST(LosSorteos, LoQueNoSePuedeSortearDicePorQue)
{
    const auto reparo = [](Parametro p) {
        p.componentes = "u-1";
        p.campo = "area";
        const auto reparos = ReparosDeSorteo(std::vector{p}, {});
        return reparos.empty() ? std::string{} : reparos.front();
    };
    EXPECT_EQ(reparo({}), "");
    EXPECT_EQ(reparo({.distribucion = "beta"}), "La distribución de u-1.area (valor) no se conoce: «beta».");
    EXPECT_EQ(reparo({.distribucion = "lognormal"}),
              "El mínimo de u-1.area (valor) no es mayor que 0, y se sortea por su logaritmo.");
    EXPECT_EQ(reparo({.distribucion = "triangular", .centro = 2}),
              "El centro de u-1.area (valor) está fuera de su rango.");
    EXPECT_EQ(reparo({.distribucion = "normal", .dispersion = 0}),
              "La dispersión de u-1.area (valor) no es mayor que 0.");
    EXPECT_EQ(reparo({.distribucion = "discreta"}),
              "La distribución discreta de u-1.area (valor) no tiene valores con peso.");
    EXPECT_EQ(reparo({.distribucion = "discreta", .valores = {{.valor = 3}}}),
              "Un valor de u-1.area (valor) está fuera de su rango.");
    for (const Distribucion& d : Distribuciones())
        EXPECT_EQ(DistribucionDe(d.clave), &d);
}

}  // namespace
}  // namespace runs
