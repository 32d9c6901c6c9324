// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "model/Falla.h"

// The arithmetic of the model: statements are worked out in 64-bit floats and rounded once when their
// value is stored in a 32-bit variable; whole numbers are checked against their type.
namespace model {

/// Stores a value in a 32-bit float. Throws Falla 6 where it lies outside the type.
inline float Simple(double x)
{
    const float f = static_cast<float>(x);
    if (!(std::fabs(f) <= std::numeric_limits<float>::max())) throw Falla{NumeroFalla::Desbordamiento};
    return f;
}

/// Stores a value in a 16-bit whole number, a tie going to the even one. Throws Falla 6 outside
/// -32768..32767.
inline std::int16_t Entero16(double x)
{
    const double n = std::nearbyint(x);
    if (!(n >= -32768 && n <= 32767)) throw Falla{NumeroFalla::Desbordamiento};
    return static_cast<std::int16_t>(n);
}

/// Stores a value in a 32-bit whole number, a tie going to the even one. Throws Falla 6 outside the type.
inline std::int32_t Entero32(double x)
{
    const double n = std::nearbyint(x);
    if (!(n >= -2147483648.0 && n <= 2147483647.0)) throw Falla{NumeroFalla::Desbordamiento};
    return static_cast<std::int32_t>(n);
}

/// Int(x) stored in a 16-bit whole number: the floor. Throws Falla 6 outside the type.
inline std::int16_t Piso16(double x)
{
    return Entero16(std::floor(x));
}

/// Product of two 16-bit numbers, worked out in 16 bits. Throws Falla 6 outside the type.
inline std::int16_t Producto16(std::int16_t a, std::int16_t b)
{
    const int n = a * b;
    if (n < -32768 || n > 32767) throw Falla{NumeroFalla::Desbordamiento};
    return static_cast<std::int16_t>(n);
}

/// Sum of two 16-bit numbers, worked out in 16 bits. Throws Falla 6 outside the type.
inline std::int16_t Suma16(std::int16_t a, std::int16_t b)
{
    return Entero16(double{1} * a + b);
}

/// Quotient. Throws Falla 11 where the divisor is 0, for floats too.
inline double Cociente(double a, double b)
{
    if (b == 0) throw Falla{NumeroFalla::DivisionPorCero};
    return a / b;
}

/// base^exponente in 64-bit floats; 0^0 is 1. Throws Falla 5 for 0 to a negative power and for a
/// negative base with a fractional exponent, Falla 6 where the power is outside the type.
double Potencia(double base, double exponente);

/// Rounds to n decimals: nearbyint(x·10^n)/10^n in 64 bits, a tie going to the even digit.
double Redondea(double x, int decimales);
/// The same of a 32-bit variable: widened, rounded, and a 32-bit float again.
float Redondea(float x, int decimales);

/// Int(x·100)/100, each operation rounded to 32 bits. Throws Falla 6 where x·100 is outside the type.
float Trunca2(float x);

// --- text ---

/// Longest text of a number in characters.
inline constexpr int LargoNumero = 32;

/// Writes a number at `p` (room for LargoNumero characters) and returns its end. A 32-bit float is written
/// as %.7G, a 64-bit float as %.15G, a whole number in plain digits; point as decimal sign, no negative zero.
char* EscribeNumero(char* p, float x);
char* EscribeNumero(char* p, double x);
char* EscribeNumero(char* p, std::int32_t x);

/// The same as text.
std::string NumeroATexto(float x);
std::string NumeroATexto(double x);
std::string NumeroATexto(std::int32_t x);

/// The leading number of a text: optional blanks, sign, digits, point, digits, optional exponent (E or D).
/// Returns 0 where there is none. Throws Falla 6 where the number is outside 64-bit floats.
double Val(std::string_view texto);

/// Returns the number that the whole text is, blanks at both ends apart; nothing where it is anything else.
/// The point is the decimal sign. Throws Falla 6 where the number is outside 64-bit floats.
std::optional<double> NumeroEntero(std::string_view texto);

/// A field's text is numeric: wholly one number, where a comma counts as a point.
bool EsNumerico(std::string_view texto);

}  // namespace model
