// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Potencia.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <limits>
#include <string>
#include <string_view>
#include <tuple>

using namespace model;

namespace {

constexpr double Infinito = std::numeric_limits<double>::infinity();
constexpr double Menor = std::numeric_limits<double>::denorm_min();
constexpr double Mayor = std::numeric_limits<double>::max();
constexpr double NoEsNumero = std::numeric_limits<double>::quiet_NaN();

std::uint64_t Bits(double x)
{
    return std::bit_cast<std::uint64_t>(x);
}

struct Caso {
    double base, exponente, potencia;
};

/// Equal bit for bit, the sign of a zero included; what is no number equals its kind.
void Compara(const Caso& c)
{
    const double potencia = PotenciaRedondeada(c.base, c.exponente);
    const bool igual = std::isnan(c.potencia) ? std::isnan(potencia) : Bits(potencia) == Bits(c.potencia);
    EXPECT_TRUE(igual) << std::hexfloat << c.base << " ^ " << c.exponente << " is " << c.potencia << ", not "
                       << potencia;
}

// --- special cases: ISO/IEC 9899:2018, F.10.4.4 ---

TEST(PotenciaRedondeada, CasosDeLaNormaDeC)
{
    constexpr auto Casos = std::to_array<Caso>({
        {0.0, -3, Infinito},
        {-0.0, -3, -Infinito},
        {0.0, -2, Infinito},
        {-0.0, -2, Infinito},
        {-0.0, -0.5, Infinito},
        {0.0, -Infinito, Infinito},
        {-0.0, -Infinito, Infinito},
        {0.0, 3, 0.0},
        {-0.0, 3, -0.0},
        {0.0, 2, 0.0},
        {-0.0, 2, 0.0},
        {-0.0, 0.5, 0.0},
        {-0.0, Infinito, 0.0},
        {-1, Infinito, 1},
        {-1, -Infinito, 1},
        {1, NoEsNumero, 1},
        {1, Infinito, 1},
        {1, -Mayor, 1},
        {NoEsNumero, 0.0, 1},
        {NoEsNumero, -0.0, 1},
        {0.0, 0.0, 1},
        {Infinito, 0.0, 1},
        {-7.5, -0.0, 1},
        {-8, 1.0 / 3, NoEsNumero},
        {-Menor, 0.5, NoEsNumero},
        {-1, 0.5, NoEsNumero},
        {NoEsNumero, 1, NoEsNumero},
        {2, NoEsNumero, NoEsNumero},
        {0.5, -Infinito, Infinito},
        {-0.5, -Infinito, Infinito},
        {1.5, -Infinito, 0.0},
        {-1.5, -Infinito, 0.0},
        {0.5, Infinito, 0.0},
        {1.5, Infinito, Infinito},
        {-1.5, Infinito, Infinito},
        {-Infinito, -3, -0.0},
        {-Infinito, -2, 0.0},
        {-Infinito, -0.5, 0.0},
        {-Infinito, 3, -Infinito},
        {-Infinito, 2, Infinito},
        {-Infinito, 0.5, Infinito},
        {Infinito, -0.1, 0.0},
        {Infinito, 0.1, Infinito},
    });
    for (const Caso& c : Casos)
        Compara(c);
}

TEST(PotenciaRedondeada, BaseNegativaConExponenteEntero)
{
    constexpr double Par = 0x1p53;     // every float from here on is even
    constexpr double Impar = Par - 1;  // the largest odd one
    for (const Caso& c : std::to_array<Caso>({{-3, 3, -27},
                                              {-3, 4, 81},
                                              {-2, -3, -0.125},
                                              {-1, Impar, -1},
                                              {-1, Par, 1},
                                              {-1, -Impar, -1},
                                              {-1, Mayor, 1},
                                              {-2, Impar, -Infinito},
                                              {-2, Par, Infinito},
                                              {-2, -Impar, -0.0},
                                              {-0.5, Impar, -0.0}}))
        Compara(c);
}

// --- both ends of the type ---

// The largest float is (2 - 2^-52)·2^1023; the least 2^-1074, and a tie with 0 half of it.
TEST(PotenciaRedondeada, EnLosExtremosDelTipo)
{
    for (const Caso& c : std::to_array<Caso>({{2, 1023, 0x1p1023},
                                              {2, 1024, Infinito},
                                              {Mayor, 1, Mayor},
                                              {std::nextafter(0x1p512, 0), 2, 0x1.ffffffffffffep+1023},
                                              {0x1p512, 2, Infinito},
                                              {10, 308, 1e308},
                                              {10, 309, Infinito},
                                              {10, -308, 1e-308},
                                              {10, -323, 1e-323},
                                              {10, -324, 0},
                                              {2, -1022, 0x1p-1022},
                                              {2, -1074, Menor},
                                              {2, -1075, 0},
                                              {std::nextafter(2.0, 0), -1075, Menor},
                                              {Menor, 1, Menor},
                                              {Menor, 0.5, 0x1p-537},
                                              {Menor, -0.5, 0x1p537},
                                              {Menor, -1, Infinito},
                                              {3, -1e300, 0},
                                              {3, 1e300, Infinito},
                                              {std::nextafter(1.0, 2), 0x1p63, Infinito},
                                              {std::nextafter(1.0, 0), 0x1p64, 0}}))
        Compara(c);
}

// 3^5 = 243 halves of the least float: a tie between 121 and 122 of it. 5^3 = 125 eighths: 15.625 of it.
TEST(PotenciaRedondeada, EmpateDeSubnormales)
{
    Compara({3 * 0x1p-215, 5, 122 * Menor});
    Compara({std::nextafter(3 * 0x1p-215, 0), 5, 121 * Menor});
    Compara({5 * 0x1p-359, 3, 16 * Menor});
}

// --- near 1 ---

TEST(PotenciaRedondeada, JuntoAUno)
{
    const double masDeUno = std::nextafter(1.0, 2);
    const double menosDeUno = std::nextafter(1.0, 0);
    for (const Caso& c : std::to_array<Caso>({{masDeUno, 1, masDeUno},
                                              {masDeUno, 0.5, 1},
                                              {masDeUno, 0.6, masDeUno},
                                              {menosDeUno, 1, menosDeUno},
                                              {menosDeUno, 0.49, 1},
                                              {menosDeUno, 0.51, menosDeUno},
                                              {Mayor, Menor, 1},
                                              {Menor, Menor, 1},
                                              {Menor, 0x1p-66, 1},
                                              {Mayor, -0x1p-66, 1}}))
        Compara(c);
}

// --- exact powers and ties ---

/// m^n as long as it has no more than `bits` bits; 0 beyond.
std::uint64_t PotenciaEntera(std::uint64_t m, int n, int bits)
{
    std::uint64_t p = 1;
    for (int i = 0; i < n; ++i) {
        if (p > (std::uint64_t{1} << bits) / m) return 0;
        p *= m;
    }
    return p;
}

// The conversion of a whole number of 54 bits is rounded to even by the processor.
RC_GTEST_PROP(PotenciaRedondeada, PotenciasEnterasHastaElEmpate, ())
{
    const int n = *rc::gen::inRange(1, 35);
    const auto mayor = static_cast<int>(std::exp2(std::min(54.0 / n, 30.0)));
    const auto m = static_cast<std::uint64_t>(*rc::gen::inRange(2, mayor + 1));
    const std::uint64_t p = PotenciaEntera(m, n, 54);
    RC_PRE(p != 0U);
    const int doses = *rc::gen::inRange(-1000 / n, 900 / n);
    const double esperada = std::ldexp(static_cast<double>(p), doses * n);
    RC_ASSERT(PotenciaRedondeada(std::ldexp(static_cast<double>(m), doses), n) == esperada);
    RC_ASSERT(PotenciaRedondeada(-std::ldexp(static_cast<double>(m), doses), n) ==
              (n % 2 == 0 ? esperada : -esperada));
}

// x^(n / 2^k) of x = m^(2^k): the root is exact, its power a whole number.
RC_GTEST_PROP(PotenciaRedondeada, RaicesExactasYSusPotencias, ())
{
    const int k = *rc::gen::inRange(1, 6);
    const auto mayor = static_cast<int>(std::exp2(53.0 / (1 << k)));
    const int m = *rc::gen::inRange(2, mayor + 1);
    const int n = *rc::gen::inRange(1, static_cast<int>(54 / std::log2(m)) + 1);
    const std::uint64_t x = PotenciaEntera(static_cast<std::uint64_t>(m), 1 << k, 53);
    const std::uint64_t p = PotenciaEntera(static_cast<std::uint64_t>(m), n, 54);
    RC_PRE((x != 0U && p != 0U));
    RC_ASSERT(PotenciaRedondeada(static_cast<double>(x), std::ldexp(n, -k)) == static_cast<double>(p));
}

// (2^27 + 1)^2 = 2^54 + 2^28 + 1 is a quarter of a unit beyond a float, (2^27 - 1)^2 = 2^54 - 2^28 + 1 half
// of one.
TEST(PotenciaRedondeada, EmpatesPorUnBit)
{
    Compara({134217729, 2, 0x1p54 + 0x1p28});
    Compara({134217727, 2, 0x1p54 - 0x1p28});
    // 3^34 = 16677181699666569 is odd and of 54 bits, between ...568 and ...570: to the one
    // that 4 divides.
    Compara({3, 34, 16677181699666568.0});
    // 5^23 = 11920928955078125, between ...124 and ...126.
    Compara({5, 23, 11920928955078124.0});
    // 7^19 = 11398895185373143, between ...142 and ...144.
    Compara({7, 19, 11398895185373144.0});
}

// The one operation of the processor that is a power, and rounded correctly by itself.
RC_GTEST_PROP(PotenciaRedondeada, LosCuadradosLasRaicesYLosInversosSonLosDelProcesador, ())
{
    const double x =
        std::ldexp(1 + std::ldexp(*rc::gen::inRange<std::int64_t>(0, std::int64_t{1} << 52), -52),
                   *rc::gen::inRange(-500, 500));
    RC_ASSERT(PotenciaRedondeada(x, 2) == x * x);
    RC_ASSERT(PotenciaRedondeada(x, 1) == x);
    RC_ASSERT(PotenciaRedondeada(x, 0.5) == std::sqrt(x));
    RC_ASSERT(PotenciaRedondeada(x, -1) == 1 / x);
}

// --- printed and independently calculated powers ---

double DeCifras(std::string_view cifras)
{
    std::uint64_t bits = 0;
    std::from_chars(cifras.data(), cifras.data() + cifras.size(), bits, 16);
    return std::bit_cast<double>(bits);
}

// potencias.py tells where they are from; its first row is a hard case in print.
TEST(PotenciaRedondeada, TablaDePotenciasDeOtroCalculo)
{
    std::ifstream archivo(std::string(SIRO_TESTS_DIR) + "/model/potencias.txt");
    std::string base;
    std::string exponente;
    std::string potencia;
    int filas = 0;
    for (; archivo >> base >> exponente >> potencia; ++filas)
        Compara({DeCifras(base), DeCifras(exponente), DeCifras(potencia)});
    EXPECT_GT(filas, 2500);
}

// Kornerup, Lauter, Lefevre, Louvet and Muller (2010) print base and power in binary: 53 bits, a 1, 61 zeros,
// a 1 ...
TEST(PotenciaRedondeada, CasoDificilImpreso)
{
    constexpr double Base =
        static_cast<double>(0b10000111100111000110011111010101011001011011100011010) * 0x1p-52;
    constexpr double Antes = static_cast<double>(0b10001111100001011000010000111011010111010000000100101);
    // A tie but for the bits behind the 61 zeros, which make it go up.
    EXPECT_EQ(PotenciaRedondeada(Base, 458), std::ldexp(Antes + 1, 38 - 52));
}

// --- the parts agree, and keep what they promise ---

struct Azar {
    double x, y;
};

rc::Gen<Azar> Argumentos()
{
    return rc::gen::map(
        rc::gen::tuple(rc::gen::inRange<std::int64_t>(1, std::int64_t{1} << 52),
                       rc::gen::inRange(-1020, 1020),
                       rc::gen::inRange<std::int64_t>(-(std::int64_t{1} << 53), std::int64_t{1} << 53)),
        [](const std::tuple<std::int64_t, int, std::int64_t>& t) {
            const auto& [mantisa, exponente, parte] = t;
            const double x = std::ldexp(1 + std::ldexp(mantisa, -52), exponente);
            return Azar{x, 745 * std::ldexp(parte, -53) / std::log(x)};
        });
}

RC_GTEST_PROP(PotenciaLenta, DaLoMismoQueLaRapida, ())
{
    const Azar a = *Argumentos();
    RC_PRE(std::fabs(a.y) > 0x1p-65);
    RC_ASSERT(Bits(PotenciaLenta(a.x, a.y)) == Bits(PotenciaRedondeada(a.x, a.y)));
}

// The square of a float is known exactly: it has 106 bits, those of the product and what Dekker's halves make
// of its rest.
RC_GTEST_PROP(AproximaPotencia, ElErrorQuedaDentroDeSuCota, ())
{
    const auto mantisa = *rc::gen::inRange<std::int64_t>(0, std::int64_t{1} << 52);
    const double x = std::ldexp(1 + std::ldexp(mantisa, -52), *rc::gen::inRange(-480, 480));
    RC_PRE(x != 1.0);
    const double xh = std::bit_cast<double>(Bits(x) >> 27 << 27);
    const double xl = x - xh;
    const double cuadrado = x * x;
    const double resto = ((xh * xh - cuadrado) + 2 * xh * xl) + xl * xl;

    const PotenciaAproximada p = AproximaPotencia(x, 2);
    const double error = ((std::ldexp(cuadrado, -p.escala) - p.alto) - p.bajo) + std::ldexp(resto, -p.escala);
    RC_ASSERT(std::fabs(error) <= p.cota);
    RC_ASSERT(p.cota <= 0x1p-61);
    RC_ASSERT((p.alto > 0.99 && p.alto < 2));
}

RC_GTEST_PROP(PotenciaRedondeada, EsMonotona, ())
{
    const Azar a = *Argumentos();
    const double potencia = PotenciaRedondeada(a.x, a.y);
    const double conMasBase = PotenciaRedondeada(std::nextafter(a.x, Infinito), a.y);
    const double conMasExponente = PotenciaRedondeada(a.x, std::nextafter(a.y, Infinito));
    RC_ASSERT((a.y < 0 ? conMasBase <= potencia : conMasBase >= potencia));
    RC_ASSERT((a.x < 1 ? conMasExponente <= potencia : conMasExponente >= potencia));
}

}  // namespace
