// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "model/Potencia.h"

// The power in whole-number arithmetic: first what is a float or halfway between two, which no number of
// digits would decide; anything else by more and more digits until both ends of what is known round to the
// same float.
namespace model {
namespace {

using Palabra = std::uint32_t;
constexpr int BitsDePalabra = 32;

/// A natural number, least word first. As a fixed-point number its last word is the whole part.
using Natural = std::vector<Palabra>;

bool EsCero(const Natural& a)
{
    for (const Palabra p : a)
        if (p != 0) return false;
    return true;
}

/// a += b, both of one length; what is carried out of it is lost.
void Suma(Natural& a, const Natural& b)
{
    std::uint64_t lleva = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        lleva += std::uint64_t{a[i]} + b[i];
        a[i] = static_cast<Palabra>(lleva);
        lleva >>= BitsDePalabra;
    }
}

/// a -= b, both of one length, b the smaller.
void Resta(Natural& a, const Natural& b)
{
    std::uint64_t debe = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::uint64_t queda = std::uint64_t{a[i]} - b[i] - debe;
        a[i] = static_cast<Palabra>(queda);
        debe = queda >> 63;
    }
}

/// a /= d, the fraction dropped.
void Divide(Natural& a, Palabra d)
{
    std::uint64_t resto = 0;
    for (std::size_t i = a.size(); i-- > 0;) {
        resto = resto << BitsDePalabra | a[i];
        a[i] = static_cast<Palabra>(resto / d);
        resto %= d;
    }
}

Natural Producto(const Natural& a, const Natural& b)
{
    Natural p(a.size() + b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::uint64_t lleva = 0;
        for (std::size_t j = 0; j < b.size(); ++j) {
            lleva += std::uint64_t{a[i]} * b[j] + p[i + j];
            p[i + j] = static_cast<Palabra>(lleva);
            lleva >>= BitsDePalabra;
        }
        p[i + b.size()] = static_cast<Palabra>(lleva);
    }
    return p;
}

/// a·2^bits in so many words, the fraction dropped.
Natural Desplaza(const Natural& a, int bits, std::size_t palabras)
{
    Natural b(palabras);
    const int saltadas = bits >= 0 ? bits / BitsDePalabra : -((-bits + BitsDePalabra - 1) / BitsDePalabra);
    const int sueltos = bits - saltadas * BitsDePalabra;
    const auto palabra = [&](std::ptrdiff_t i) {
        return i >= 0 && i < std::ssize(a) ? std::uint64_t{a[static_cast<std::size_t>(i)]} : 0;
    };
    for (std::size_t i = 0; i < palabras; ++i) {
        const std::ptrdiff_t de = static_cast<std::ptrdiff_t>(i) - saltadas;
        const std::uint64_t dos = palabra(de) << BitsDePalabra | palabra(de - 1);
        b[i] = static_cast<Palabra>(dos << sueltos >> BitsDePalabra);
    }
    return b;
}

Natural Palabras(std::uint64_t n)
{
    return {static_cast<Palabra>(n), static_cast<Palabra>(n >> BitsDePalabra)};
}

int LargoEnBits(const Natural& a)
{
    for (std::size_t i = a.size(); i-- > 0;)
        if (a[i] != 0) return static_cast<int>(i) * BitsDePalabra + static_cast<int>(std::bit_width(a[i]));
    return 0;
}

/// The float nearest to n·2^exponente, n > 0, a tie going to the even one.
double Redondeado(const Natural& n, int exponente)
{
    constexpr int MenorExponente = -1074;
    const int ultimo =
        std::max(exponente + LargoEnBits(n) - 53, MenorExponente);  // place of the last bit kept
    const int sobran = ultimo - exponente;
    if (sobran <= 0) {
        const Natural todo = Desplaza(n, 0, 2);
        return std::ldexp(static_cast<double>(std::uint64_t{todo[1]} << BitsDePalabra | todo[0]), exponente);
    }
    const Natural alto = Desplaza(n, 1 - sobran, 2);  // what is kept and one bit more
    std::uint64_t q = std::uint64_t{alto[1]} << BitsDePalabra | alto[0];
    const bool mitad = (q & 1) != 0;
    const bool exacta = Desplaza(alto, sobran - 1, n.size()) == n;
    q >>= 1;
    if (mitad && (!exacta || (q & 1) != 0)) ++q;
    return std::ldexp(static_cast<double>(q), ultimo);
}

/// A positive float as n·2^exponente.
struct Partes {
    std::uint64_t n;
    int exponente;

    explicit Partes(double x)
    {
        int e = 0;
        n = static_cast<std::uint64_t>(std::ldexp(std::frexp(x, &e), 53));
        exponente = e - 53;
    }
    void HazImpar()
    {
        const int ceros = std::countr_zero(n);
        n >>= ceros;
        exponente += ceros;
    }
};

/// The power where it is a whole number of at most 54 bits times a power of two, and so maybe a tie. With x =
/// m·2^e and y = n·2^f, m and n odd, that asks for a whole y once the root of 2^-f has been taken of x
/// without a rest, and for a y above 0 unless m is 1 (Lauter and Lefevre, "An efficient rounding boundary
/// test for pow(x,y) in double precision", IEEE Trans. Comput. 58, 2009, tell the cases).
std::optional<double> PotenciaExacta(double x, double y)
{
    constexpr std::uint64_t MasDeUnEmpate = std::uint64_t{1} << 54;
    Partes base{x};
    Partes exponente{std::fabs(y)};
    base.HazImpar();
    exponente.HazImpar();
    if (base.n > 1 && y < 0) return std::nullopt;
    for (; exponente.exponente < 0; ++exponente.exponente) {
        const auto raiz = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(base.n)));
        if (base.exponente % 2 != 0 || raiz * raiz != base.n) return std::nullopt;
        base.n = raiz;
        base.exponente /= 2;
    }
    if (exponente.exponente >= 11)
        return std::nullopt;  // a whole y of 2048 or more has nothing to do with ties
    const std::uint64_t veces = exponente.n << exponente.exponente;
    std::uint64_t potencia = 1;
    if (base.n > 1) {
        for (std::uint64_t i = 0; i < veces; ++i) {
            if (potencia > MasDeUnEmpate / base.n) return std::nullopt;
            potencia *= base.n;
        }
    }
    const int doses = base.exponente * static_cast<int>(veces);
    return Redondeado(Palabras(potencia), y < 0 ? -doses : doses);
}

/// Fixed-point arithmetic of F = 32·palabras bits behind the point. Every result is too small by what is
/// said, in units of 2^-F, or off by it.
class PuntoFijo {
  public:
    explicit PuntoFijo(std::size_t palabras) : fraccion(palabras) {}

    [[nodiscard]] int Bits() const { return static_cast<int>(fraccion) * BitsDePalabra; }
    [[nodiscard]] Natural Uno() const
    {
        Natural uno(fraccion + 1);
        uno.back() = 1;
        return uno;
    }
    /// 2^-bits.
    [[nodiscard]] Natural Unidad(int bits) const { return Desplaza(Uno(), -bits, fraccion + 1); }
    /// a·b·2^exponente: 1 unit.
    [[nodiscard]] Natural Por(const Natural& a, const Natural& b, int exponente = 0) const
    {
        return Desplaza(Producto(a, b), exponente, fraccion + 1);
    }
    /// a·b of two fixed-point numbers: 1 unit.
    [[nodiscard]] Natural PorFijo(const Natural& a, const Natural& b) const { return Por(a, b, -Bits()); }

    /// num/den of num < den < 2^63: 1 unit.
    [[nodiscard]] Natural Cociente(std::uint64_t num, std::uint64_t den) const
    {
        Natural cociente(fraccion + 1);
        for (std::size_t i = fraccion; i-- > 0;) {
            for (int bit = 0; bit < BitsDePalabra; ++bit) {
                num <<= 1;
                cociente[i] <<= 1;
                if (num >= den) {
                    num -= den;
                    cociente[i] |= 1;
                }
            }
        }
        return cociente;
    }

    /// log of num/den, from 1 to 2, = 2 atanh u, u = (num - den) / (num + den) <= 1/3: u + u^3/3 + u^5/5 +
    /// ... Each power is off by 2 units at most and each term by 2; there are F/3 terms at most, and what is
    /// cut off is less than a unit: 2 F units.
    [[nodiscard]] Natural Log(std::uint64_t num, std::uint64_t den) const
    {
        Natural potencia = Cociente(num - den, num + den);
        const Natural cuadrado = PorFijo(potencia, potencia);
        Natural suma = potencia;
        for (Palabra k = 3; !EsCero(potencia = PorFijo(potencia, cuadrado)); k += 2) {
            Natural termino = potencia;
            Divide(termino, k);
            Suma(suma, termino);
        }
        return Desplaza(suma, 1, fraccion + 1);
    }

    /// exp f of f < 0.7: 1 + f + f^2/2 + ... Each term is off by 4 units at most, there are fewer than F: 4 F
    /// units.
    [[nodiscard]] Natural Exp(const Natural& f) const
    {
        Natural suma = Uno();
        Natural termino = suma;
        for (Palabra k = 1;; ++k) {
            termino = PorFijo(termino, f);
            Divide(termino, k);
            if (EsCero(termino)) return suma;
            Suma(suma, termino);
        }
    }

  private:
    std::size_t fraccion;
};

/// The power where numbers of so many correct bits behind the point decide.
//
// log x = k log 2 +- log w, w from 1 to 1.5 or 4/3, is off by 1076·2 F units and y log x by 2^d times that,
// 2^d > |y| >= 1 or d = 0; 1100 log 2, which makes it positive, and the part taken off for the scale by
// 2200·2 F each; the power, at most 2.01 times as much, by 4 F more: below 2^(d + 14) F, and so below 2^(d +
// 32) for all F up to 2^18, 12 doublings. With F >= bits + 32 + d that is less than 2^-bits.
std::optional<double> Decide(double x, double y, int bits)
{
    const Partes base{x};
    const Partes exponente{std::fabs(y)};
    const int d = std::max(0, exponente.exponente + 53);
    const PuntoFijo fijo(static_cast<std::size_t>((bits + 32 + d + BitsDePalabra - 1) / BitsDePalabra));
    const Natural log2 = fijo.Log(2, 1);

    // w = n / 2^52, or 2^53 / n where n is the larger part of its range.
    constexpr std::uint64_t Uno = std::uint64_t{1} << 52;
    const bool cerca = base.n <= Uno + Uno / 2;
    const int k = base.exponente + (cerca ? 52 : 53);
    const Natural logW = cerca ? fijo.Log(base.n, Uno) : fijo.Log(2 * Uno, base.n);
    const bool negativo = k < 0 || (k == 0 && !cerca);
    Natural log = fijo.Por(log2, {static_cast<Palabra>(std::abs(k))});
    if (k == 0 || cerca != negativo) {
        Suma(log, logW);
    } else {
        Resta(log, logW);
    }

    Natural e = fijo.Por(log, Palabras(exponente.n), exponente.exponente);
    int escala = 0;
    if (negativo != (y < 0)) {
        escala = -1100;
        Natural positivo = fijo.Por(log2, {1100});
        Resta(positivo, e);
        e = positivo;
    }
    // Quotient of the whole part and 32 bits more, never too large.
    const std::size_t ultima = e.size() - 1;
    const std::uint64_t q =
        (std::uint64_t{e[ultima]} << BitsDePalabra | e[ultima - 1]) / (std::uint64_t{log2[ultima - 1]} + 1);
    Resta(e, fijo.Por(log2, {static_cast<Palabra>(q)}));
    escala += static_cast<int>(q);

    const Natural potencia = fijo.Exp(e);
    Natural menor = potencia;
    Natural mayor = potencia;
    Resta(menor, fijo.Unidad(bits));
    Suma(mayor, fijo.Unidad(bits));
    const double hacia = Redondeado(menor, escala - fijo.Bits());
    if (hacia != Redondeado(mayor, escala - fijo.Bits())) return std::nullopt;
    return hacia;
}

}  // namespace

double PotenciaLenta(double x, double y)
{
    if (const std::optional<double> exacta = PotenciaExacta(x, y)) return *exacta;
    constexpr int PrimerosBits = 96;
    for (int bits = PrimerosBits;; bits *= 2)
        if (const std::optional<double> potencia = Decide(x, y, bits)) return *potencia;
}

}  // namespace model
