// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers to text, digit by digit as C's %.7G and %.15G. A float is mantissa·2^e; its first digits are
// floor(mantissa·2^e·10^k) for the right k, and 10^k = 5^k·2^k, so that one product of whole numbers and one
// shift give them exactly, and the bits shifted out tell how to round. That covers everyday magnitudes; the
// library does the others.
#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "model/Numeros.h"

namespace model {

namespace {

template <std::size_t N>
constexpr std::array<std::uint64_t, N> PotenciasDe(std::uint64_t base)
{
    std::array<std::uint64_t, N> tabla{};
    std::uint64_t potencia = 1;
    for (std::uint64_t& lugar : tabla) {
        lugar = potencia;
        potencia *= base;
    }
    return tabla;
}

constexpr auto CincoA = PotenciasDe<28>(5);
constexpr auto DiezA = PotenciasDe<20>(10);

/// floor(log10(2^e)), good for every exponent of a 64-bit float.
constexpr int DecimalDeBinario(int e)
{
    return (e * 315653) >> 20;
}

/// A number rounded to so many significant digits: the digits as one whole number, and the power of ten of
/// the first of them.
struct Decimal {
    std::uint64_t cifras;
    int orden;
};

/// Takes the digits cut off, and whether what lies behind them rounds them up.
template <int Cifras>
Decimal Redondeado(std::uint64_t cortadas, bool sube, int orden)
{
    const std::uint64_t cifras = cortadas + (sube ? 1 : 0);
    if (cifras == DiezA[Cifras]) return {DiezA[Cifras - 1], orden + 1};
    return {cifras, orden};
}

// --- 32-bit floats ---

// 24 bits of mantissa times 5^17 fill a 64-bit word, which reaches down to 1E-11.
constexpr int Cifras32 = 7;
constexpr int BinarioMinimo32 = -36;
constexpr int BinarioEntero32 = 23;  ///< from here up a float is a whole number
constexpr int BinarioMaximo32 = 62;

Decimal DecimalConFraccion(std::uint64_t mantisa, int binario)
{
    int orden = DecimalDeBinario(binario);
    int k = Cifras32 - 1 - orden;
    int s = BinarioEntero32 - binario - k;
    // Where a power of ten lies between 2^binario and x there is a digit too many. The second product is
    // cheaper than a branch that no processor can guess.
    const int unaMas = (mantisa * CincoA[static_cast<std::size_t>(k)] >> s) >= DiezA[Cifras32] ? 1 : 0;
    orden += unaMas;
    k -= unaMas;
    s += unaMas;
    const std::uint64_t producto = mantisa * CincoA[static_cast<std::size_t>(k)];
    const std::uint64_t cifras = producto >> s;
    const std::uint64_t resto = producto - (cifras << s);
    const std::uint64_t mitad = std::uint64_t{1} << (s - 1);
    return Redondeado<Cifras32>(cifras, resto + (cifras & 1) > mitad, orden);  // a tie to the even digit
}

Decimal DecimalEntero(std::uint64_t mantisa, int binario)
{
    const std::uint64_t n = mantisa << (binario - BinarioEntero32);
    int orden = DecimalDeBinario(binario);
    if (n >= DiezA[static_cast<std::size_t>(orden) + 1]) ++orden;
    if (orden < Cifras32) return {n * DiezA[static_cast<std::size_t>(Cifras32 - 1 - orden)], orden};
    const std::uint64_t divisor = DiezA[static_cast<std::size_t>(orden - (Cifras32 - 1))];
    const std::uint64_t cifras = n / divisor;
    const std::uint64_t resto = n % divisor;
    return Redondeado<Cifras32>(cifras, 2 * resto + (cifras & 1) > divisor, orden);
}

// --- 64-bit floats ---

/// Whole number of 128 bits, as far as a product and its digits need one.
struct Ancho {
    std::uint64_t alto;
    std::uint64_t bajo;
};

Ancho Producto(std::uint64_t a, std::uint64_t b)
{
    constexpr std::uint64_t Mitad = 0xFFFFFFFF;
    const std::uint64_t bajos = (a & Mitad) * (b & Mitad);
    const std::uint64_t cruce1 = (a >> 32) * (b & Mitad);
    const std::uint64_t cruce2 = (a & Mitad) * (b >> 32);
    const std::uint64_t medio = (bajos >> 32) + (cruce1 & Mitad) + (cruce2 & Mitad);
    return {(a >> 32) * (b >> 32) + (cruce1 >> 32) + (cruce2 >> 32) + (medio >> 32),
            (medio << 32) | (bajos & Mitad)};
}

/// n / 2^s, 0 < s < 128, where it fits one word.
std::uint64_t Corre(const Ancho& n, int s)
{
    return s >= 64 ? n.alto >> (s - 64) : (n.alto << (64 - s)) | (n.bajo >> s);
}

/// Whether any of the lowest s bits is set, 0 <= s < 128.
bool HayBitsDebajo(const Ancho& n, int s)
{
    if (s >= 64) return n.bajo != 0 || (n.alto & ((std::uint64_t{1} << (s - 64)) - 1)) != 0;
    return (n.bajo & ((std::uint64_t{1} << s) - 1)) != 0;
}

// 53 bits times 5^27 are 116, which reaches down to 1E-13.
constexpr int Cifras64 = 15;
constexpr int BinarioMinimo64 = -43;
constexpr int BinarioEntero64 = 52;
constexpr int BinarioMaximo64 = 48;  ///< below 10^15, so that k isn't negative

Decimal DecimalAncho(std::uint64_t mantisa, int binario)
{
    int orden = DecimalDeBinario(binario);
    int k = Cifras64 - 1 - orden;
    int s = BinarioEntero64 - binario - k;
    Ancho producto = Producto(mantisa, CincoA[static_cast<std::size_t>(k)]);
    if (Corre(producto, s) >= DiezA[Cifras64]) {
        ++orden;
        --k;
        ++s;
        producto = Producto(mantisa, CincoA[static_cast<std::size_t>(k)]);
    }
    const std::uint64_t cifras = Corre(producto, s);
    const bool mitad = (Corre(producto, s - 1) & 1) != 0;
    return Redondeado<Cifras64>(cifras, mitad && (HayBitsDebajo(producto, s - 1) || (cifras & 1) != 0),
                                orden);
}

// --- layout ---

/// Eight decimal digits in the bytes of a word, the first in the lowest. Each step halves the groups: the
/// number into two of four digits, these into pairs, the pairs into digits. 10486/2^20 and 103/2^10 stand
/// for 1/100 and 1/10, near enough for numbers of four and of two digits.
std::uint64_t OchoCifras(std::uint32_t n)
{
    const std::uint64_t cuartetos = n / 10000 | (std::uint64_t{n % 10000} << 32);
    const std::uint64_t cientos = (cuartetos * 10486 >> 20) & 0x0000007F0000007F;
    const std::uint64_t pares = cientos | ((cuartetos - 100 * cientos) << 16);
    const std::uint64_t dieces = (pares * 103 >> 10) & 0x000F000F000F000F;
    return dieces | ((pares - 10 * dieces) << 8);
}

/// Up to 16 digits of a number, in words, so that they go from the registers straight to their places.
struct Tira {
    std::uint64_t primeras;
    std::uint64_t ultimas;

    /// Digits up to the last that isn't zero, from 1.
    [[nodiscard]] int Largo() const
    {
        return ultimas != 0 ? 16 - std::countl_zero(ultimas) / 8 : 8 - std::countl_zero(primeras) / 8;
    }
    /// What is left without the first n, 0 < n < 16.
    [[nodiscard]] Tira Sin(int n) const
    {
        if (n >= 8) return {ultimas >> 8 * (n - 8), 0};
        return {primeras >> 8 * n | ultimas << 8 * (8 - n), ultimas >> 8 * n};
    }
    /// Writes 16 characters.
    void Pon(char* p) const
    {
        PonPalabra(p, primeras + Ceros);
        PonPalabra(p + 8, ultimas + Ceros);
    }

  private:
    static constexpr std::uint64_t Ceros = 0x3030303030303030;
    static void PonPalabra(char* p, std::uint64_t palabra)
    {
        if constexpr (std::endian::native == std::endian::little)
            std::memcpy(p, &palabra, 8);
        else
            for (int i = 0; i < 8; ++i)
                p[i] = static_cast<char>(palabra >> 8 * i & 0xFF);
    }
};

/// Lays out digits as %G does: no zeros at the end, exponent form below 1E-04 and from 10^Cifras up. The
/// bytes behind the text's end are used as room.
template <int Cifras>
char* Compone(char* p, const Tira& tira, int orden)
{
    const int largo = tira.Largo();
    if (orden >= 0 && orden < Cifras) {
        tira.Pon(p);
        if (largo <= orden + 1) return p + orden + 1;
        p[orden + 1] = '.';
        tira.Sin(orden + 1).Pon(p + orden + 2);
        return p + largo + 1;
    }
    if (orden < 0 && orden >= -4) {
        std::copy_n("0.000", 5, p);
        p += 1 - orden;
        tira.Pon(p);
        return p + largo;
    }
    tira.Pon(p++);
    if (largo > 1) {
        *p++ = '.';
        tira.Sin(1).Pon(p);
        p += largo - 1;
    }
    *p++ = 'E';
    *p++ = orden < 0 ? '-' : '+';
    *p++ = static_cast<char>('0' + std::abs(orden) / 10);
    *p++ = static_cast<char>('0' + std::abs(orden) % 10);
    return p;
}

char* EscribeDeBiblioteca(char* p, double x, int cifras)
{
    char* fin = std::to_chars(p, p + LargoNumero, x, std::chars_format::general, cifras).ptr;
    std::replace(p, fin, 'e', 'E');
    return fin;
}

template <typename T>
std::string ATexto(T x)
{
    std::array<char, LargoNumero> texto;
    return {texto.data(), EscribeNumero(texto.data(), x)};
}

}  // namespace

char* EscribeNumero(char* p, float x)
{
    const auto bits = std::bit_cast<std::uint32_t>(x);
    if ((bits << 1) == 0) {
        *p = '0';
        return p + 1;
    }
    const int binario = static_cast<int>((bits >> 23) & 0xFF) - 127;
    if (binario < BinarioMinimo32 || binario > BinarioMaximo32) return EscribeDeBiblioteca(p, x, Cifras32);
    *p = '-';
    p += bits >> 31;

    const std::uint64_t mantisa = (bits & 0x7FFFFF) | 0x800000;
    const Decimal d =
        binario < BinarioEntero32 ? DecimalConFraccion(mantisa, binario) : DecimalEntero(mantisa, binario);
    return Compone<Cifras32>(p, {OchoCifras(static_cast<std::uint32_t>(d.cifras * 10)), 0}, d.orden);
}

char* EscribeNumero(char* p, double x)
{
    const auto bits = std::bit_cast<std::uint64_t>(x);
    if ((bits << 1) == 0) {
        *p = '0';
        return p + 1;
    }
    const int binario = static_cast<int>((bits >> 52) & 0x7FF) - 1023;
    if (binario < BinarioMinimo64 || binario > BinarioMaximo64) return EscribeDeBiblioteca(p, x, Cifras64);
    *p = '-';
    p += bits >> 63;

    const std::uint64_t mantisa = (bits & 0xFFFFFFFFFFFFF) | 0x10000000000000;
    const Decimal d = DecimalAncho(mantisa, binario);
    const Tira tira = {OchoCifras(static_cast<std::uint32_t>(d.cifras / DiezA[7])),
                       OchoCifras(static_cast<std::uint32_t>(d.cifras % DiezA[7] * 10))};
    return Compone<Cifras64>(p, tira, d.orden);
}

char* EscribeNumero(char* p, std::int32_t x)
{
    return std::to_chars(p, p + LargoNumero, x).ptr;
}

std::string NumeroATexto(float x)
{
    return ATexto(x);
}
std::string NumeroATexto(double x)
{
    return ATexto(x);
}
std::string NumeroATexto(std::int32_t x)
{
    return ATexto(x);
}

}  // namespace model
