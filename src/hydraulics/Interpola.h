// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "model/Arreglo.h"
#include "model/Numeros.h"

// The row of a table, or the line between two.
namespace hydraulics {

/// Two columns of one component's table, as they lie in memory: rows from 1, n of them; row 0 is unused and
/// holds 0, and room beyond row n is common.
template <typename TX, typename TY>
struct Columnas {
    std::span<const TX> X{};  ///< searched
    std::span<const TY> Y{};  ///< read
    int n = 0;                ///< rows in use
};

/// The columns of the component with a number. Throws Falla 9 where the arrays don't know the number.
template <typename TX, typename TY>
Columnas<TX, TY> ColumnasDe(const model::Matriz<TX>& X, const model::Matriz<TY>& Y,
                            const model::Arreglo<std::int16_t>& filas, int numero)
{
    const int n = filas(numero);
    return {{X.Fila(numero), static_cast<std::size_t>(X.TopeColumna()) + 1},
            {Y.Fila(numero), static_cast<std::size_t>(Y.TopeColumna()) + 1},
            n};
}

/// Row k of a column. Throws Falla 9 outside it.
template <typename T>
T RenglonDe(std::span<const T> columna, int k)
{
    if (k < 0 || static_cast<std::size_t>(k) >= columna.size())
        throw model::Falla{model::NumeroFalla::Subindice};
    return columna[static_cast<std::size_t>(k)];
}

/// a - b as a whole number of 32 bits, widened. Throws Falla 6 outside the type.
inline double Resta(std::int32_t a, std::int32_t b)
{
    return model::Entero32(double{1} * a - b);
}

/// a - b in 64 bits.
inline double Resta(float a, float b)
{
    return double{1} * a - b;
}

/// a - b rounded to a 32-bit float, widened. Throws Falla 6 outside the type.
inline double RestaSimple(float a, float b)
{
    return model::Simple(Resta(a, b));
}

/// What a lookup found: where the value fell, and the reading, 0 unless it fell inside.
struct Lectura {
    enum class Lugar { Dentro, Encima, Debajo };
    Lugar lugar = Lugar::Dentro;
    double valor = 0;
    bool operator==(const Lectura&) const = default;
};

/// Reads column Y where column X takes the value x: a row as it stands, or the line between two.
/// `restaY` takes the difference of two of Y; the quotient and what follows are 64-bit.
///
/// Nothing is extrapolated: outside the rows the reading names the side, "above" being looked at first.
/// Comparisons are exact. Without rows, row 0 stands for the last one and row 1 for the first. Of equal rows
/// the first is taken; rows out of order are walked as they stand, and where none is taken the reading is 0.
/// Throws Falla 6 where a difference is outside its type, Falla 9 where the rows aren't there.
template <typename TX, typename TY, typename RestaY>
Lectura Interpola(const Columnas<TX, TY>& t, double x, RestaY restaY)
{
    if (x > RenglonDe(t.X, t.n)) return {Lectura::Lugar::Encima};
    const TX primero = RenglonDe(t.X, 1);
    if (x < primero) return {Lectura::Lugar::Debajo};
    if (x == primero) return {Lectura::Lugar::Dentro, static_cast<double>(RenglonDe(t.Y, 1))};

    for (int k = 2; k <= t.n; ++k) {
        const TX Xk = RenglonDe(t.X, k);
        if (x == Xk) return {Lectura::Lugar::Dentro, static_cast<double>(RenglonDe(t.Y, k))};
        if (Xk > x) {  // every row before k lies below x, in whatever order: the divisor is above 0
            const TX Xa = RenglonDe(t.X, k - 1);
            const TY Ya = RenglonDe(t.Y, k - 1);
            return {Lectura::Lugar::Dentro, restaY(RenglonDe(t.Y, k), Ya) / Resta(Xk, Xa) * (x - Xa) + Ya};
        }
    }
    return {};
}

/// The same with the plain difference of Y: whole for whole numbers, 64-bit for floats.
template <typename TX, typename TY>
Lectura Interpola(const Columnas<TX, TY>& t, double x)
{
    return Interpola(t, x, [](TY a, TY b) { return Resta(a, b); });
}

}  // namespace hydraulics
