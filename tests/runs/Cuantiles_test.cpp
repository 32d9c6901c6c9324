// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/Cuantiles.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace runs {
namespace {

struct Pesado {
    float valor;
    Peso peso;
};

/// Values of a few orders of magnitude and both signs, zeros, equal ones; weights, some 0.
std::vector<Pesado> AlAzar(std::uint32_t semilla, std::size_t cuantos)
{
    std::mt19937 motor(semilla);
    std::uniform_real_distribution<double> entre(0, 1);
    const double centro = 12 * entre(motor) - 4, ancho = 4 * entre(motor), negativos = entre(motor);
    std::vector<Pesado> v;
    for (std::size_t i = 0; i < cuantos; ++i) {
        const double x =
            std::pow(10, centro + ancho * entre(motor)) * (entre(motor) < negativos / 3 ? -1 : 1);
        v.push_back({static_cast<float>(entre(motor) < 0.1 ? 0 : x),
                     static_cast<Peso>(entre(motor) < 0.5 ? 1 : entre(motor) * PesoMayor)});
    }
    return v;
}

/// The quantile of sorted values by definition, with 64-bit whole numbers.
double Exacto(std::vector<Pesado> v, double p)
{
    std::ranges::sort(v, {}, &Pesado::valor);
    std::uint64_t total = 0, suma = 0;
    for (const Pesado& x : v)
        total += x.peso;
    for (const Pesado& x : v)
        if (x.peso > 0 && static_cast<double>(suma += x.peso) >= p * static_cast<double>(total) - 1e-6)
            return x.valor;
    return 0;
}

RC_GTEST_PROP(LosCuantiles, EstanAUnMilesimoDeLosExactos, (std::uint32_t semilla))
{
    const auto v = AlAzar(semilla, *rc::gen::inRange<std::size_t>(1, 400));
    Cuantiles c;
    long double suma = 0, absoluta = 0;
    std::uint64_t total = 0;
    double menor = HUGE_VAL, mayor = -HUGE_VAL;
    for (const Pesado& x : v) {
        c.Suma(x.valor, x.peso);
        if (x.peso == 0) continue;
        suma += static_cast<long double>(x.valor) * x.peso;
        absoluta += std::fabs(static_cast<long double>(x.valor)) * x.peso;
        total += x.peso;
        menor = std::min(menor, double{x.valor});
        mayor = std::max(mayor, double{x.valor});
    }
    RC_ASSERT(c.Total() == total);
    if (total == 0) return;
    RC_ASSERT(c.Minimo() == menor && c.Maximo() == mayor);
    const long double W = static_cast<long double>(total);
    RC_ASSERT(std::fabs(c.Media() - static_cast<double>(suma / W)) <=
              1e-14 * static_cast<double>(absoluta / W) + 1e-13);
    for (const double p : {0.05, 0.25, 0.5, 0.75, 0.95, 1.0}) {
        const double exacto = Exacto(v, p);
        RC_ASSERT(std::fabs(c.Cuantil(p) - exacto) <= std::max(std::fabs(exacto) / 1024, 1e-6));
    }
}

RC_GTEST_PROP(LosCuantiles, NoDependenDelOrdenNiDeComoSeJuntan, (std::uint32_t semilla))
{
    auto v = AlAzar(semilla, 300);
    Cuantiles entero;
    for (const Pesado& x : v)
        entero.Suma(x.valor, x.peso);
    std::ranges::shuffle(v, std::mt19937(semilla + 1));
    std::vector<Cuantiles> partes(7);
    for (std::size_t i = 0; i < v.size(); ++i)
        partes[i % partes.size()].Suma(v[i].valor, v[i].peso);
    Cuantiles junto;
    for (const Cuantiles& parte : partes) {
        std::string texto;
        parte.Escribe(texto);
        Cuantiles vuelto;
        RC_ASSERT(vuelto.Lee(texto.substr(0, texto.size() - 1)));
        junto.Junta(vuelto);
    }
    std::string uno, otro;
    entero.Escribe(uno);
    junto.Escribe(otro);
    RC_ASSERT(uno == otro);
    RC_ASSERT(entero.Media() == junto.Media());
}

TEST(LosCuantiles, LosEnterosHasta1024SonExactos)
{
    Cuantiles c;
    for (int x = 1; x <= 1024; ++x)
        c.Suma(static_cast<float>(-x), 1);
    for (int x = 1; x <= 1024; ++x)
        EXPECT_EQ(c.Cuantil(x / 1024.0), x - 1025.0);
    EXPECT_EQ(c.Media(), -512.5);
}

TEST(LosCuantiles, DeUnoSoloSonElYDeNingunoNinguno)
{
    Cuantiles c;
    EXPECT_TRUE(std::isnan(c.Media()) && std::isnan(c.Cuantil(0.5)) && std::isnan(c.Minimo()));
    c.Suma(3.14159F, 0);
    EXPECT_EQ(c.Total(), 0U);
    c.Suma(3.14159F, 7);
    for (const double p : {0.01, 0.5, 1.0})
        EXPECT_EQ(c.Cuantil(p), double{3.14159F});
    EXPECT_EQ(c.Media(), double{3.14159F});
    Cuantiles extremos;
    extremos.Suma(std::numeric_limits<float>::max(), 1);
    extremos.Suma(std::numeric_limits<float>::lowest(), 1);
    extremos.Suma(1e-40F, 1);
    EXPECT_EQ(extremos.Cuantil(1), double{std::numeric_limits<float>::max()});
    EXPECT_EQ(extremos.Cuantil(0.1), double{std::numeric_limits<float>::lowest()});
    EXPECT_EQ(extremos.Cuantil(0.5), 0);
}

TEST(LosCuantiles, UnTextoDanadoNoSeLee)
{
    Cuantiles c, otro;
    c.Suma(2, 3);
    c.Suma(-5, 1);
    std::string texto;
    c.Escribe(texto);
    texto.pop_back();
    ASSERT_TRUE(otro.Lee(texto));
    EXPECT_EQ(otro.Cuantil(0.2), -5);
    for (std::size_t n = 0; n < texto.size(); ++n)
        EXPECT_FALSE(otro.Lee(texto.substr(0, n))) << n;
    EXPECT_FALSE(otro.Lee(texto + " 1"));
    EXPECT_FALSE(otro.Lee("5" + texto.substr(1)));
}

// A million members of a spread of one power of 10: the pages of 10 members, less than 32 of them.
TEST(LosCuantiles, LaMemoriaNoCreceConLosMiembros)
{
    std::mt19937 motor(1);
    std::uniform_real_distribution<float> entre(1, 10);
    Cuantiles c;
    std::string antes, despues;
    for (int i = 0; i < 20000; ++i)
        c.Suma(entre(motor), 1);
    c.Escribe(antes);
    for (int i = 0; i < 1000000; ++i)
        c.Suma(entre(motor), 1);
    c.Escribe(despues);
    EXPECT_LT(despues.size(), antes.size() * 2);  // the same counters, each with up to two more digits
    EXPECT_NEAR(c.Cuantil(0.5), 5.5, 0.02);
}

}  // namespace
}  // namespace runs
