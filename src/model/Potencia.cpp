// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/Potencia.h"

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "model/TablasPotencia.h"

// x^y = exp(y log x), worked out in sums of two floats with a bound of the error; where every number within
// that bound rounds to the same float, this is the answer (Ziv, "Fast evaluation of elementary mathematical
// functions with correctly rounded last bit", ACM TOMS 17, 1991), and PotenciaLenta decides otherwise, once
// in some thousands.
//
// Logarithm and exponential are table driven (Tang, ACM TOMS 15 and 16, 1989 and 1990). Sums of two floats
// follow Dekker (Numer. Math. 18, 1971): s = a + b, e = b - (s - a) gives a + b = s + e exactly where a isn't
// the smaller (Muller et al., "Handbook of Floating-Point Arithmetic", 4.3). A product that enters a head is
// of factors so short that it is exact: it makes no difference there whether a processor fuses it with a sum.
// In a tail that may change a bit within the bound, never the answer.
static_assert(FLT_EVAL_METHOD == 0 && std::numeric_limits<double>::is_iec559,
              "The bounds hold for arithmetic that rounds each operation to 64 bits");
#ifdef __FAST_MATH__
#error "-ffast-math leaves nothing of a sum of two floats"
#endif

namespace model {
namespace {

constexpr int BitsDeMantisa = 52;
constexpr std::uint64_t UnidadDeExponente = std::uint64_t{1} << BitsDeMantisa;
/// Beyond it no power of two is a float: |log| of the largest and of half the least is 709.8 and 745.2.
constexpr double LogDesmedido = 746;
/// Up to here a power lies within the normal floats.
constexpr double LogNormal = 708;

/// The first 26 bits of a float.
double Cabeza(double x)
{
    constexpr std::uint64_t Mascara = ~((std::uint64_t{1} << 27) - 1);
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) & Mascara);
}

/// A float rounded to a multiple of a power of two: `iman` is 1.5·2^52 times that.
double Multiplo(double x, double iman)
{
    return (x + iman) - iman;
}

struct Logaritmo {
    double alto, bajo;  ///< their sum; |bajo| is at most half a unit of the last place of alto
    double cubo;        ///< the part that is rounded most, of which the bound is made
};

// Error of Log(x) as compared with log x, u = 2^-53 being the largest relative error of an operation.
//
// x = 2^k z with z in an interval of the table, c short and near 1/z: z c is 1 + r with |r| < 2^-7.46, and r
// is a float (tablas.py takes c so short that z c - 1 has at most 53 bits). So log x = k log 2 - log c +
// log(1 + r).
//  1. t = k log 2 - log c is exact in the heads: multiples of 2^-42 below 2^10. With r the sum is exact too,
//     s + e1. The tails, below 2^-32.9 together, are off by 2^-86.9 at most for the table's log 2 and by
//     2^-86 per operation.
//  2. r^2 / 2 = a + b: a = rh^2 / 2 is exact since rh, a multiple of 2^-33, has 26 bits, and so is suma + e2.
//     b = rl (r + rh) / 2, below 2^-41.5, is off by 2 u b.
//  3. cubo = r^3 (1/3 - r/4 + ... - r^7/10): the series cut off is less than r^11 / 11 < u cubo / 100. The
//     cube is off by 2 u, the bracket by 3.5 u (two sums and one more, and half a u of 1/3), their product by
//     1 u, and the sum that takes it in by 1 u: less than 2^-50.08 |cubo|.
//  4. The other sums of tails, six of them: less than 2^-83 where t is not 0; |log x| is above 2^-9.03 then
//     (tablas.py), which makes it 2^-73.9 |log x|. Where t is 0 there are only e2 and b, 2^-33 |r| at most,
//     and the error is below 2^-85 |r|.
// Together: |error| < 2^-50.08 |cubo| + 2^-73.9 |log x|.
Logaritmo Log(double x)
{
    std::uint64_t bits = std::bit_cast<std::uint64_t>(x);
    if (bits < UnidadDeExponente)  // a subnormal: made normal, and the exponent mended
        bits = std::bit_cast<std::uint64_t>(x * 0x1p52) - BitsDeMantisa * UnidadDeExponente;
    const std::uint64_t lugar = bits - PrimeraZ;
    const EntradaLog& tabla = TablaLog[(lugar >> BitsDelIntervalo) % TablaLog.size()];
    const std::int64_t exponente = static_cast<std::int64_t>(lugar) >> BitsDeMantisa;
    const auto k = static_cast<double>(exponente);
    const auto z = std::bit_cast<double>(bits - (static_cast<std::uint64_t>(exponente) << BitsDeMantisa));

    const double zh = Cabeza(z);
    const double r = (zh * tabla.inverso - 1) + (z - zh) * tabla.inverso;
    const double t = k * Log2Alto + tabla.alto;
    const double s = t + r;
    const double e1 = r - (s - t);

    const double rh = Multiplo(r, 0x1.8p19);
    const double a = 0.5 * rh * rh;
    const double b = 0.5 * (r - rh) * (r + rh);
    const double suma = s - a;
    const double e2 = (s - suma) - a;

    const double r2 = r * r;
    const double r4 = r2 * r2;
    const double cubo = r * r2 *
                        (((1.0 / 3 - r * (1.0 / 4)) + r2 * (1.0 / 5 - r * (1.0 / 6))) +
                         r4 * ((1.0 / 7 - r * (1.0 / 8)) + r2 * (1.0 / 9 - r * (1.0 / 10))));
    const double cola = cubo + ((((k * Log2Bajo + tabla.bajo) + e1) + e2) - b);
    const double alto = suma + cola;
    return {alto, cola - (alto - suma), cubo};
}

}  // namespace

// Error of the whole, E being y log x and |E| <= 708.
//  1. E = alto + bajo: the product of the heads of 26 bits is exact, as that of the tail of y and the head of
//     log x. What is left, 2^-25 |E| each, is rounded three times: 2^-76 |E|. With the logarithm's:
//     2^-50.08 |y cubo| + 2^-73.5 |E|.
//  2. E = n log 2 / 128 + z, |z| < 2^-8.52: n times the head of log 2 / 128 is exact (17 and 36 bits), and so
//     is alto less it: a multiple of 2^-61 below 2^-8. n times the tail is below 2^-26.9: table, product and
//     two sums are off by 2^-79.
//  3. exp(z) = 1 + z + q, q = z^2 (1/2 + ... + z^5 / 5040) < 2^-18.05: cut off 2^-83; z is off by u, z^2 by
//     3 u, the bracket by 1.02 u, their product by 1 u: 5.05 u q.
//  4. T (1 + z + q), T = 2^(i/128) < 2 to 2^-81: the head of T, 27 bits, by that of z, 26 bits, is exact, and
//     so is its sum with the head of T, h + e. T times (rest of z + q), below 2^-17.04, is off by (5.05 + 3)
//     u of it: 2^-67.03. Three sums of numbers below 2^-17 and the one with the bound: 4·2^-70.03 = 2^-68.03.
// A relative error d of exp(E) makes 2.02 d at most here. Together less than
//     2^-66.4 + 2.02 (2^-50.08 |y cubo| + 2^-73.5 |E| + 2^-79),
// and the bound that is told is 2^-66 + 2^-49 |y cubo| + 2^-72 |E|.
PotenciaAproximada AproximaPotencia(double x, double y)
{
    const Logaritmo log = Log(x);
    const double yh = Cabeza(y);
    const double lh = Cabeza(log.alto);
    const double producto = yh * lh;
    const double resto = (y - yh) * lh + y * ((log.alto - lh) + log.bajo);
    const double alto = producto + resto;
    const double bajo = resto - (alto - producto);
    if (!(std::fabs(alto) <= LogNormal)) return {alto, 0, 0, std::numeric_limits<int>::max()};

    constexpr double Iman = 0x1.8p52;
    constexpr double EntradasPorUnidad = 0x1.71547652b82fep7;  // 128 / log 2
    const double conIman = alto * EntradasPorUnidad + Iman;
    const double n = conIman - Iman;
    const std::int64_t entero = std::bit_cast<std::int64_t>(conIman) - std::bit_cast<std::int64_t>(Iman);
    const EntradaExp& tabla = TablaExp[static_cast<std::uint64_t>(entero) % TablaExp.size()];

    const double zAlto = alto - n * Log2Entre128Alto;
    const double zh = Multiplo(zAlto, 0x1.8p18);
    const double zl = (zAlto - zh) + (bajo - n * Log2Entre128Bajo);
    const double z = zh + zl;
    const double z2 = z * z;
    const double q =
        z2 *
        (0.5 + z * ((1.0 / 6 + z * (1.0 / 24)) + z2 * ((1.0 / 120 + z * (1.0 / 720)) + z2 * (1.0 / 5040))));

    const double primero = tabla.alto * zh;
    const double h = tabla.alto + primero;
    const double e = primero - (h - tabla.alto);
    const double cola = e + (tabla.bajo + (tabla.bajo * zh + (tabla.alto + tabla.bajo) * (zl + q)));
    const double cota = 0x1p-66 + std::fabs(y * log.cubo) * 0x1p-49 + std::fabs(alto) * 0x1p-72;
    return {h, cola, cota, static_cast<int>(entero >> 7)};
}

namespace {

/// x^y of a positive, finite x other than 1 and a finite y other than 0.
double PotenciaPositiva(double x, double y)
{
    constexpr double Infinito = std::numeric_limits<double>::infinity();
    const bool crece = (x > 1) == (y > 0);
    // |log x| lies between 2^-53 and 745, so the power is nearer to 1 than a quarter of a unit, or beyond
    // all.
    if (std::fabs(y) < 0x1p-65) return 1;
    if (std::fabs(y) > 0x1p63) return crece ? Infinito : 0;

    const PotenciaAproximada p = AproximaPotencia(x, y);
    if (p.escala == std::numeric_limits<int>::max()) {
        if (std::fabs(p.alto) > LogDesmedido) return crece ? Infinito : 0;
        return PotenciaLenta(x, y);
    }
    const double menor = p.alto + (p.bajo - p.cota);
    const double mayor = p.alto + (p.bajo + p.cota);
    if (menor != mayor) return PotenciaLenta(x, y);
    const auto escala = static_cast<std::uint64_t>(static_cast<std::int64_t>(p.escala)) << BitsDeMantisa;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(menor) + escala);
}

bool EsEntero(double x)
{
    return x == std::floor(x);
}

}  // namespace

double PotenciaRedondeada(double base, double exponente)
{
    if (exponente == 0 || base == 1) return 1;
    if (std::isnan(base) || std::isnan(exponente)) return base + exponente;
    const double x = std::fabs(base);
    const bool cambiaSigno = std::signbit(base) && std::isfinite(exponente) && EsEntero(exponente) &&
                             std::fabs(std::fmod(exponente, 2)) == 1;
    double potencia = 1;
    if (x == 0 || std::isinf(x) || std::isinf(exponente)) {
        if (x != 1) potencia = (x > 1) == (exponente > 0) ? std::numeric_limits<double>::infinity() : 0;
    } else {
        if (base < 0 && !EsEntero(exponente)) return std::numeric_limits<double>::quiet_NaN();
        if (x != 1) potencia = PotenciaPositiva(x, exponente);
    }
    return cambiaSigno ? -potencia : potencia;
}

}  // namespace model
