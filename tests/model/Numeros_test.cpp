// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Numeros.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "apoyo/Compara.h"

using apoyo::NumeroDeFalla;
using namespace model;

namespace {

constexpr float MayorSimple = std::numeric_limits<float>::max();
constexpr double MayorDoble = std::numeric_limits<double>::max();
const double NoEsNumero = std::nan("");

// --- storing ---

TEST(Numeros, SimpleLlegaHastaDondeElRedondeoQuedaDentroDelTipo)
{
    // The largest float is (2 - 2^-23)·2^127. Half a unit of its last place further on, at
    // (2 - 2^-24)·2^127, lies the tie that goes to the even neighbour 2^128, outside the type.
    const double empate = std::ldexp(2 - std::ldexp(1, -24), 127);
    EXPECT_EQ(Simple(MayorSimple), MayorSimple);
    EXPECT_EQ(Simple(std::nextafter(empate, 0)), MayorSimple);
    EXPECT_EQ(NumeroDeFalla([&] { Simple(empate); }), 6);
    EXPECT_EQ(Simple(-std::nextafter(empate, 0)), -MayorSimple);
    EXPECT_EQ(NumeroDeFalla([&] { Simple(-empate); }), 6);
    EXPECT_EQ(NumeroDeFalla([&] { Simple(MayorDoble); }), 6);
    EXPECT_EQ(NumeroDeFalla([&] { Simple(NoEsNumero); }), 6);
}

TEST(Numeros, SimpleRedondeaAlMasCercanoYElEmpateAlPar)
{
    const double unidad = std::ldexp(1, -23);  // of the last place of 1
    EXPECT_EQ(Simple(1 + unidad / 2), 1.0F);
    EXPECT_EQ(Simple(1 + 3 * unidad / 2), static_cast<float>(1 + 2 * unidad));
    EXPECT_EQ(Simple(1 + unidad * 0.51), static_cast<float>(1 + unidad));
    EXPECT_EQ(Simple(1e-60), 0.0F);
}

struct CasoEntero {
    double x;
    int n;  ///< where `falla` is 0
    int falla;
};

TEST(Numeros, Entero16EnSusLimitesYEnLosEmpates)
{
    for (const CasoEntero& c : std::vector<CasoEntero>{{0, 0, 0},
                                                       {0.5, 0, 0},
                                                       {1.5, 2, 0},
                                                       {2.5, 2, 0},
                                                       {-0.5, 0, 0},
                                                       {-1.5, -2, 0},
                                                       {-2.5, -2, 0},
                                                       {0.500001, 1, 0},
                                                       {32766.5, 32766, 0},
                                                       {32767, 32767, 0},
                                                       {32767.4999, 32767, 0},
                                                       {32767.5, 0, 6},
                                                       {32768, 0, 6},
                                                       {-32768, -32768, 0},
                                                       {-32768.5, -32768, 0},  // the even neighbour is inside
                                                       {-32768.50001, 0, 6},
                                                       {-32769, 0, 6},
                                                       {1e300, 0, 6},
                                                       {NoEsNumero, 0, 6}}) {
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(Entero16(c.x), c.n) << c.x; }), c.falla) << c.x;
    }
}

TEST(Numeros, Entero32EnSusLimitesYEnLosEmpates)
{
    constexpr int Mayor = std::numeric_limits<std::int32_t>::max();
    constexpr int Menor = std::numeric_limits<std::int32_t>::min();
    for (const CasoEntero& c : std::vector<CasoEntero>{{2.5, 2, 0},
                                                       {3.5, 4, 0},
                                                       {2147483646.5, Mayor - 1, 0},
                                                       {2147483647, Mayor, 0},
                                                       {2147483647.4, Mayor, 0},
                                                       {2147483647.5, 0, 6},
                                                       {2147483648.0, 0, 6},
                                                       {-2147483648.0, Menor, 0},
                                                       {-2147483648.5, Menor, 0},
                                                       {-2147483648.6, 0, 6},
                                                       {-1e20, 0, 6},
                                                       {NoEsNumero, 0, 6}}) {
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(Entero32(c.x), c.n) << c.x; }), c.falla) << c.x;
    }
}

TEST(Numeros, Piso16VaSiempreHaciaAbajo)
{
    for (const CasoEntero& c : std::vector<CasoEntero>{{0.999, 0, 0},
                                                       {-0.001, -1, 0},
                                                       {-1, -1, 0},
                                                       {32767.999, 32767, 0},
                                                       {32768, 0, 6},
                                                       {-32768, -32768, 0},
                                                       {-32768.001, 0, 6}}) {
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(Piso16(c.x), c.n) << c.x; }), c.falla) << c.x;
    }
}

struct CasoPar {
    std::int16_t a, b;
    int resultado;
    int falla;
};

TEST(Numeros, Producto16DesbordaAunqueQuepaEnTreintaYDosBits)
{
    for (const CasoPar& c : std::vector<CasoPar>{{181, 181, 32761, 0},  // 181² is the largest square inside
                                                 {182, 181, 0, 6},      // 32942
                                                 {7, 4681, 32767, 0},   // 32767 = 7·4681
                                                 {16384, 2, 0, 6},      // 32768
                                                 {-16384, 2, -32768, 0},
                                                 {-32768, -1, 0, 6},
                                                 {-32768, 1, -32768, 0},
                                                 {-3, 10923, 0, 6},  // -32769
                                                 {0, -32768, 0, 0}}) {
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(Producto16(c.a, c.b), c.resultado); }), c.falla)
            << c.a << "·" << c.b;
    }
}

TEST(Numeros, Suma16DesbordaAunqueQuepaEnTreintaYDosBits)
{
    for (const CasoPar& c : std::vector<CasoPar>{{32766, 1, 32767, 0},
                                                 {32767, 1, 0, 6},
                                                 {32767, 32767, 0, 6},
                                                 {-32767, -1, -32768, 0},
                                                 {-32768, -1, 0, 6},
                                                 {32767, -32768, -1, 0}}) {
        EXPECT_EQ(NumeroDeFalla([&] { EXPECT_EQ(Suma16(c.a, c.b), c.resultado); }), c.falla)
            << c.a << "+" << c.b;
    }
}

// --- arithmetic ---

TEST(Numeros, DividirPorCeroEsFallaTambienConFlotantes)
{
    EXPECT_EQ(Cociente(1, 4), 0.25);
    EXPECT_EQ(Cociente(0, -5), 0);
    EXPECT_EQ(NumeroDeFalla([] { Cociente(1, 0); }), 11);
    EXPECT_EQ(NumeroDeFalla([] { Cociente(1, -0.0); }), 11);
    EXPECT_EQ(NumeroDeFalla([] { Cociente(0, 0); }), 11);
    EXPECT_EQ(Cociente(1, std::numeric_limits<float>::denorm_min()), std::ldexp(1, 149));
}

TEST(Numeros, PotenciaYLosArgumentosQueNoAdmite)
{
    EXPECT_EQ(Potencia(2, 10), 1024);
    EXPECT_EQ(Potencia(0, 0), 1);
    EXPECT_EQ(Potencia(5, 0), 1);
    EXPECT_EQ(Potencia(0, 2.5), 0);
    EXPECT_EQ(Potencia(-2, 3), -8);
    EXPECT_EQ(Potencia(-2, -2), 0.25);
    EXPECT_EQ(Potencia(4, 0.5), 2);
    EXPECT_EQ(Potencia(10, -400), 0);  // below the smallest: 0, no fault
    EXPECT_EQ(NumeroDeFalla([] { Potencia(0, -1); }), 5);
    EXPECT_EQ(NumeroDeFalla([] { Potencia(0, -0.5); }), 5);
    EXPECT_EQ(NumeroDeFalla([] { Potencia(-2, 0.5); }), 5);
    EXPECT_EQ(NumeroDeFalla([] { Potencia(-1e-9, -1.5); }), 5);
    EXPECT_EQ(NumeroDeFalla([] { Potencia(10, 309); }), 6);
    EXPECT_EQ(NumeroDeFalla([] { Potencia(-10, 309); }), 6);
}

TEST(Numeros, RedondeaLosEmpatesAlPar)
{
    // All of these are exact in binary, and so are their products with 100 and 10.
    EXPECT_EQ(Redondea(0.125, 2), 0.12);
    EXPECT_EQ(Redondea(0.375, 2), 0.38);
    EXPECT_EQ(Redondea(-0.125, 2), -0.12);
    EXPECT_EQ(Redondea(0.25, 1), 0.2);
    EXPECT_EQ(Redondea(0.75, 1), 0.8);
    EXPECT_EQ(Redondea(2.5, 0), 2);
    EXPECT_EQ(Redondea(3.5, 0), 4);
    EXPECT_EQ(Redondea(1234.0625, 3), 1234.062);
    EXPECT_EQ(Redondea(123.456, 2), 123.46);
    EXPECT_EQ(Redondea(0.0, 2), 0);
}

TEST(Numeros, RedondeaElProductoTalComoSaleEnSesentaYCuatroBits)
{
    // 0.35 is 0.35 - 0.8·2^-55 as a 64-bit float. Ten times that is 3.5 - 2^-52, half way between 3.5 and
    // its lower neighbour, so the product is 3.5, a tie that goes to 4.
    EXPECT_EQ(Redondea(0.35, 1), 0.4);
    // As a 32-bit float it is 0.3499999940...; the product is below 3.5.
    EXPECT_EQ(Redondea(0.35F, 1), 0.3F);
}

TEST(Numeros, RedondeaUnSimpleDaUnSimple)
{
    EXPECT_EQ(Redondea(0.125F, 2), 0.12F);
    EXPECT_EQ(Redondea(2.345678F, 3), 2.346F);
    EXPECT_EQ(Redondea(16777215.0F, 2), 16777215.0F);
    EXPECT_EQ(Redondea(MayorSimple, 4), MayorSimple);
    EXPECT_EQ(Redondea(std::numeric_limits<float>::denorm_min(), 2), 0.0F);
}

TEST(Numeros, RedondeaUnNumeroSinDecimalesPorLoGrande)
{
    EXPECT_EQ(Redondea(MayorDoble, 4), MayorDoble);  // the product with 10^4 is outside the type
    EXPECT_EQ(Redondea(-1e306, 4), -1e306);
    EXPECT_EQ(NumeroATexto(Redondea(-0.04, 1)), "0");  // -0
}

TEST(Numeros, Trunca2RedondeaCadaOperacionATreintaYDosBits)
{
    // 4.35F is 4.34999990...; times 100 it is 434.99999, and the nearest float is 435, not 434.99997. In 64
    // bits the whole part would be 434.
    EXPECT_EQ(Trunca2(4.35F), 4.35F);
    EXPECT_EQ(Trunca2(1.239F), 1.23F);
    EXPECT_EQ(Trunca2(-1.001F), -1.01F);  // the floor of -100.1 is -101
    EXPECT_EQ(Trunca2(0.009F), 0.0F);
    EXPECT_EQ(Trunca2(0.0F), 0.0F);
    EXPECT_EQ(NumeroDeFalla([] { Trunca2(3.4e36F); }), 0);
    EXPECT_EQ(NumeroDeFalla([] { Trunca2(3.5e36F); }), 6);  // 3.5E+38
}

// --- number to text ---

/// What C writes, but for negative zero.
template <typename T>
std::string ComoEnC(const char* forma, T x)
{
    std::array<char, 64> texto{};
    std::snprintf(texto.data(), texto.size(), forma, static_cast<double>(x));
    return x == 0 ? "0" : texto.data();
}

void ComparaConC(float x)
{
    ASSERT_EQ(NumeroATexto(x), ComoEnC("%.7G", x)) << std::bit_cast<std::uint32_t>(x);
}
void ComparaConC(double x)
{
    ASSERT_EQ(NumeroATexto(x), ComoEnC("%.15G", x)) << std::bit_cast<std::uint64_t>(x);
}

TEST(Numeros, TextoDeUnSimple)
{
    struct Caso {
        float x;
        std::string_view texto;
    };
    for (const Caso& c : std::vector<Caso>{
             {0.0F, "0"},
             {-0.0F, "0"},
             {0.05F, "0.05"},
             {12345678.0F, "1.234568E+07"},
             {1, "1"},
             {-1.5F, "-1.5"},
             {100, "100"},
             {123.25F, "123.25"},
             {1.0F / 3, "0.3333333"},
             {2.0F / 3, "0.6666667"},
             {0.01F, "0.01"},  // 0.00999999977...: the rounding carries into a new first digit
             {1e-4F, "0.0001"},
             {0.00012345678F, "0.0001234568"},
             {1e-5F, "1E-05"},
             {1.25e-5F, "1.25E-05"},
             {-1e-11F, "-1E-11"},
             {1e-12F, "1E-12"},
             {9999999, "9999999"},
             {10000000, "1E+07"},
             {1e10F, "1E+10"},
             {-3.5e20F, "-3.5E+20"},
             {MayorSimple, "3.402823E+38"},
             {std::numeric_limits<float>::min(), "1.175494E-38"},
             {std::numeric_limits<float>::denorm_min(), "1.401298E-45"},
         })
        EXPECT_EQ(NumeroATexto(c.x), c.texto);
}

TEST(Numeros, TextoDeUnSimpleEnLosEmpates)
{
    // Eight digits of which the last is a 5, exact in binary: the seventh becomes even.
    EXPECT_EQ(NumeroATexto(1234566.5F), "1234566");
    EXPECT_EQ(NumeroATexto(1234567.5F), "1234568");
    EXPECT_EQ(NumeroATexto(-1234567.5F), "-1234568");
    EXPECT_EQ(NumeroATexto(8388606.5F), "8388606");
    EXPECT_EQ(NumeroATexto(8388607.5F), "8388608");
    EXPECT_EQ(NumeroATexto(10000005.0F), "1E+07");
    EXPECT_EQ(NumeroATexto(10000015.0F), "1.000002E+07");
    EXPECT_EQ(NumeroATexto(16777215.0F), "1.677722E+07");
    EXPECT_EQ(NumeroATexto(0.00048828125F), "0.0004882812");      // 2^-11
    EXPECT_EQ(NumeroATexto(0.000030517578125F), "3.051758E-05");  // 2^-15, no tie
}

TEST(Numeros, TextoDeUnDoble)
{
    struct Caso {
        double x;
        std::string_view texto;
    };
    for (const Caso& c : std::vector<Caso>{
             {0, "0"},
             {-0.0, "0"},
             {0.1, "0.1"},
             {0.05, "0.05"},
             {12.34, "12.34"},
             {-2.5, "-2.5"},
             {1.0 / 3, "0.333333333333333"},
             {2.0 / 3, "0.666666666666667"},
             {1e14, "100000000000000"},
             {999999999999999, "999999999999999"},
             {1e15, "1E+15"},
             {123456789012345.5, "123456789012346"},  // a tie: 5 is odd
             {123456789012344.5, "123456789012344"},
             {1e-4, "0.0001"},
             {1e-5, "1E-05"},
             {1e-13, "1E-13"},
             {1e-14, "1E-14"},
             {1e100, "1E+100"},
             {-1e-100, "-1E-100"},
             {MayorDoble, "1.79769313486232E+308"},
             {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
         })
        EXPECT_EQ(NumeroATexto(c.x), c.texto);
}

TEST(Numeros, TextoDeUnEntero)
{
    EXPECT_EQ(NumeroATexto(std::int32_t{0}), "0");
    EXPECT_EQ(NumeroATexto(std::int32_t{-7}), "-7");
    EXPECT_EQ(NumeroATexto(std::int32_t{10000000}), "10000000");
    EXPECT_EQ(NumeroATexto(std::numeric_limits<std::int32_t>::max()), "2147483647");
    EXPECT_EQ(NumeroATexto(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(Numeros, TextoComoElDeCEnTodosLosExponentesDeUnSimple)
{
    std::mt19937 azar(20110403);
    for (std::uint32_t exponente = 0; exponente < 255; ++exponente) {
        for (int i = 0; i < 1000; ++i) {
            // The ends of each exponent, then mantissas at random, a third of them short.
            const auto bits = static_cast<std::uint32_t>(azar());
            std::uint32_t mantisa = i == 0 ? 0 : i == 1 ? 0x7FFFFF : bits & 0x7FFFFF;
            if (i % 3 == 2) mantisa &= 0x7FFFFFU << (i % 23) & 0x7FFFFF;
            ComparaConC(std::bit_cast<float>((bits & 0x80000000) | exponente << 23 | mantisa));
            if (HasFatalFailure()) return;
        }
    }
}

TEST(Numeros, TextoComoElDeCEnMillonesDeSimples)
{
    std::mt19937 azar(17);
    std::uniform_real_distribution<double> logaritmo(-6, 8);
    for (int i = 0; i < 1000000; ++i) {
        ComparaConC(static_cast<float>(std::pow(10.0, logaritmo(azar))));  // everyday magnitudes
        ComparaConC(static_cast<float>(azar() % 100000000) / 8);           // ties among them
        ComparaConC(static_cast<float>(azar() % 10000000) / 1000);         // rounded values
        if (HasFatalFailure()) return;
    }
}

TEST(Numeros, TextoComoElDeCJuntoALasPotenciasDeDiez)
{
    for (int n = -44; n <= 38; ++n) {
        auto x = static_cast<float>(std::pow(10.0, n));
        for (int i = 0; i < 20; ++i)
            x = std::nextafter(x, 0.0F);
        for (int i = 0; i < 40; ++i, x = std::nextafter(x, MayorSimple))
            ComparaConC(x);
    }
    for (int n = -322; n <= 307; ++n) {
        double x = std::pow(10.0, n);
        for (int i = 0; i < 20; ++i)
            x = std::nextafter(x, 0.0);
        for (int i = 0; i < 40; ++i, x = std::nextafter(x, MayorDoble))
            ComparaConC(x);
    }
}

TEST(Numeros, TextoComoElDeCEnDobles)
{
    std::mt19937_64 azar(4711);
    std::uniform_real_distribution<double> logaritmo(-14, 16);
    for (int i = 0; i < 200000; ++i) {
        const double x = std::pow(10.0, logaritmo(azar));
        ComparaConC(x);
        ComparaConC(-Redondea(x, static_cast<int>(azar() % 5)));
        ComparaConC(static_cast<double>(azar() % 4000000000000000) / 8);  // 15 digits and a tie among them
        const auto cualquiera = std::bit_cast<double>(azar());
        if (std::isfinite(cualquiera)) ComparaConC(cualquiera);
        if (HasFatalFailure()) return;
    }
}

TEST(Numeros, EscribeNumeroCabeEnSuLargo)
{
    // The longest of each kind, written where a neighbour would notice.
    for (const double x : {-1.23456789012345e-300, -0.000123456789012345, -12345678901234.5, -MayorDoble}) {
        std::array<char, LargoNumero + 1> texto{};
        texto.back() = '!';
        const char* fin = EscribeNumero(texto.data(), x);
        EXPECT_EQ(std::string(texto.data(), static_cast<std::size_t>(fin - texto.data())),
                  ComoEnC("%.15G", x));
        EXPECT_EQ(texto.back(), '!') << x;
    }
}

// --- text to number ---

TEST(Numeros, ValTomaElNumeroConQueEmpiezaElTexto)
{
    struct Caso {
        std::string_view texto;
        double valor;
    };
    for (const Caso& c : std::vector<Caso>{{"", 0},          {"0", 0},           {"12", 12},
                                           {"12x", 12},      {" \t 12", 12},     {"+12", 12},
                                           {"-12.5", -12.5}, {"12,5", 12},       {"12.5.3", 12.5},
                                           {".5", 0.5},      {"-.5", -0.5},      {"5.", 5},
                                           {"5.E1", 50},     {"1E3", 1000},      {"1e-3", 0.001},
                                           {"1D3", 1000},    {"1d+3", 1000},     {"1E", 1},
                                           {"1E+", 1},       {"1Ex", 1},         {"1E2.5", 100},
                                           {"1 2", 1},       {"- 1", 0},         {"+-1", 0},
                                           {"--1", 0},       {".", 0},           {"-", 0},
                                           {"-.", 0},        {"E5", 0},          {".E5", 0},
                                           {"D3", 0},        {"abc", 0},         {"inf", 0},
                                           {"nan", 0},       {"0x10", 0},        {"&H10", 0},
                                           {"\n1", 0},       {"007", 7},         {"1D2E3", 100},
                                           {"50 %", 50},     {"\xEF\xBC\x91", 0}})
        EXPECT_EQ(Val(c.texto), c.valor) << c.texto;
}

TEST(Numeros, ValEnLosLimitesDelTipo)
{
    const std::string ceros(400, '0');
    EXPECT_EQ(Val("1.7976931348623157E308"), MayorDoble);
    // The tie above the largest is 1.797693134862315807...E308.
    EXPECT_EQ(Val("1.7976931348623158E308"), MayorDoble);
    EXPECT_EQ(NumeroDeFalla([] { Val("1.7976931348623159E308"); }), 6);
    EXPECT_EQ(NumeroDeFalla([] { Val("-1E309"); }), 6);
    EXPECT_EQ(NumeroDeFalla([] { Val("1D309"); }), 6);
    EXPECT_EQ(NumeroDeFalla([] { Val("1E99999999999999999999"); }), 6);
    EXPECT_EQ(NumeroDeFalla([] { Val("1E9223372036854775807"); }), 6);  // the greatest 64-bit whole number
    EXPECT_EQ(Val("1E-9223372036854775807"), 0);
    EXPECT_EQ(NumeroDeFalla([&] { Val("1" + ceros); }), 6);
    EXPECT_EQ(NumeroDeFalla([&] { Val("1" + ceros + ".5"); }), 6);
    EXPECT_EQ(NumeroDeFalla([&] { Val("0.01E311"); }), 6);
    EXPECT_EQ(Val("0.01E310"), 1e308);
    EXPECT_EQ(Val("1" + ceros + "E-400"), 1);
    EXPECT_EQ(Val("0." + ceros + "1E401"), 1);

    EXPECT_EQ(Val("5E-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(Val("2E-324"), 0);  // below half of the smallest
    EXPECT_EQ(Val("-1E-400"), 0);
    EXPECT_EQ(Val("1E-99999999999999999999"), 0);
    EXPECT_EQ(Val("0." + ceros + "1"), 0);
    EXPECT_EQ(Val("100E-400"), 0);
    EXPECT_EQ(Val("0E999"), 0);
    EXPECT_EQ(Val("0E99999999999999999999"), 0);
}

TEST(Numeros, NumeroEnteroQuiereElTextoEnteroComoUnNumero)
{
    for (const std::string_view texto : {"12", " 12", "12 ", "\t12\t ", "+.5", "5.", "1E3", "-1d-3"})
        EXPECT_TRUE(NumeroEntero(texto).has_value()) << texto;
    EXPECT_EQ(NumeroEntero("\t-12.5E1 "), std::optional<double>(-125));
    for (const std::string_view texto :
         {"",    " ",     "12x",  "x12", "1 2",  "1,5",    ".",      "-",    "+",   "E5", "1E",
          "1E+", "1E2.5", "1..2", "- 1", "12\n", "#TRUE#", "\"12\"", "1e5e", "nan", "inf"})
        EXPECT_FALSE(NumeroEntero(texto).has_value()) << texto;
    EXPECT_FALSE(NumeroEntero(std::string_view("12\0", 3)).has_value());
    EXPECT_EQ(NumeroDeFalla([] { static_cast<void>(NumeroEntero("1E999")); }), 6);
    EXPECT_EQ(NumeroEntero("1E-999"), std::optional<double>(0));
}

TEST(Numeros, EsNumericoTomaLaComaPorPunto)
{
    for (const std::string_view texto : {"1,5", "1.5", ",5", "5,", " -1,5E2 ", "0", "1E999"})
        EXPECT_TRUE(EsNumerico(texto)) << texto;
    for (const std::string_view texto :
         {"", "  ", ",", ".", "-", "1,5,3", "1.5,3", "1,5x", "E5", "1,5E", "1 ,5"})
        EXPECT_FALSE(EsNumerico(texto)) << texto;
}

RC_GTEST_PROP(Numeros, UnSimpleDeSeisCifrasVuelveDeSuTexto, ())
{
    // Six digits always survive: C's FLT_DIG.
    const int cifras = *rc::gen::inRange(-999999, 1000000);
    const int escala = *rc::gen::inRange(0, 20);
    const auto x = static_cast<float>(cifras / std::pow(10.0, escala));
    RC_ASSERT(Simple(Val(NumeroATexto(x))) == x);
}

RC_GTEST_PROP(Numeros, UnEnteroVuelveDeSuTexto, (std::int32_t n))
{
    RC_ASSERT(Val(NumeroATexto(n)) == n);
}

RC_GTEST_PROP(Numeros, ElTextoDeUnDobleEsUnNumeroYEstaCerca, (double x))
{
    RC_PRE(std::isfinite(x));
    const auto vuelto = NumeroEntero(NumeroATexto(x));
    RC_ASSERT(vuelto.has_value());
    // Half a unit of the fifteenth digit; below the smallest normal number there are fewer.
    RC_ASSERT(std::fabs(*vuelto - x) <= 5e-15 * std::fabs(x) + std::numeric_limits<double>::denorm_min());
}

std::string CifrasAlAzar(int hasta)
{
    std::string cifras;
    for (int n = *rc::gen::inRange(0, hasta + 1); n > 0; --n)
        cifras += *rc::gen::inRange('0', char{'9' + 1});
    return cifras;
}

std::string UnoDe(const std::vector<std::string>& textos)
{
    return *rc::gen::elementOf(textos);
}

RC_GTEST_PROP(Numeros, LeeLoMismoQueC, ())
{
    std::string mantisa = CifrasAlAzar(25) + UnoDe({"", "."}) + CifrasAlAzar(25);
    if (mantisa.find_first_not_of('.') == std::string::npos) mantisa = "7" + mantisa;
    const std::string exponente = UnoDe({"", "-", "+"}) + "3" + CifrasAlAzar(2);
    const std::string numero = UnoDe({"", "-", "+"}) + mantisa;
    const bool conExponente = *rc::gen::arbitrary<bool>();
    const std::string paraC = conExponente ? numero + "e" + exponente : numero;
    const std::string texto = conExponente ? numero + UnoDe({"e", "E", "d", "D"}) + exponente : numero;
    const std::string antes = UnoDe({"", " ", "\t "});

    const double esperado = std::strtod(paraC.c_str(), nullptr);
    if (std::isinf(esperado)) {
        RC_ASSERT(NumeroDeFalla([&] { static_cast<void>(NumeroEntero(texto)); }) == 6);
        RC_ASSERT(NumeroDeFalla([&] { Val(texto); }) == 6);
        return;
    }
    RC_ASSERT(NumeroEntero(antes + texto + antes) == std::optional<double>(esperado));
    RC_ASSERT(Val(antes + texto) == esperado);
    RC_ASSERT(Val(antes + texto + UnoDe({"x", " 9", ",5", "_", "\n"})) == esperado);
    RC_ASSERT(EsNumerico(antes + texto + antes));
    RC_ASSERT(!EsNumerico(texto + "x"));
}

}  // namespace
