#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes src/model/TablasPotencia.h, the tables of the power, from whole-number arithmetic of 200 bits.

    tablas.py > src/model/TablasPotencia.h
    tablas.py --comprueba src/model/TablasPotencia.h     exit status 1 where the file isn't what would be written

What the proof in Potencia.cpp takes for granted of the tables is asserted here, entry by entry.
"""
import sys
from fractions import Fraction

BITS = 200
UNO = 1 << BITS
DESDE = 0x3FE6900000000000  # bits of the least z, 361/512: 1 lies inside an interval, not at its border
ENTRADAS = 128
PASO = 1 << 45  # between the bits of two intervals
UNIDAD_LOG = Fraction(1, 2**42)  # a head of a logarithm is a multiple of it
UNIDAD_EXP = Fraction(1, 2**26)
UNIDAD_PASO = Fraction(1, 2**43)


def logaritmo(x):
    """log x of a fraction in 1/2..2, to 2^-190: 2 atanh((x-1)/(x+1))."""
    u = int((x - 1) / (x + 1) * UNO)
    suma, termino, k = 0, u, 1
    while termino not in (0, -1):
        suma += termino // k
        termino = termino * u // UNO * u // UNO
        k += 2
    return Fraction(2 * suma, UNO)


def exponencial(x):
    f = int(x * UNO)
    suma, termino, k = 0, UNO, 1
    while termino:
        suma += termino
        termino = termino * f // UNO // k
        k += 1
    return Fraction(suma, UNO)


def doble(bits):
    return Fraction(float.fromhex("0x1p-52")) * ((bits & (2**52 - 1)) + 2**52) * Fraction(2) ** ((bits >> 52) - 1023)


def cabeza_y_cola(x, unidad):
    """x as a multiple of the unit and the 64-bit float nearest to what is left."""
    cabeza = round(x / unidad) * unidad
    assert Fraction(float(cabeza)) == cabeza
    return cabeza, Fraction(float(x - cabeza))


def inverso(a, b):
    """A short c near 1/z for a <= z < b, such that z c - 1 is a 64-bit float for every z of 53 bits."""
    if a < 1 < b:
        return Fraction(1)
    ulp = Fraction(1, 2 ** (53 if a < 1 else 52))
    for p in (9, 8, 7):
        unidad = Fraction(1, 2**p)
        c = round(2 / (a + b) / unidad) * unidad
        if max(abs(a * c - 1), abs(b * c - 1)) <= 2**53 * ulp * unidad:
            return c
    raise AssertionError("no short inverse")


def escribe():
    ln2 = logaritmo(Fraction(2))
    lineas = [
        "// SPDX-License-Identifier: GPL-3.0-or-later",
        "#pragma once",
        "",
        "#include <array>",
        "#include <cstdint>",
        "",
        "// Tables of the power, written by tools/potencia/tablas.py; Potencia.cpp tells what they are for.",
        "namespace model {",
        "",
        "/// c near 1/z for the z of an interval, and -log c: a multiple of 2^-42 and the rest.",
        "struct EntradaLog {",
        "    double inverso, alto, bajo;",
        "};",
        "/// 2^(i/128): a multiple of 2^-26 and the rest.",
        "struct EntradaExp {",
        "    double alto, bajo;",
        "};",
        "",
        "/// Bits of the least z, and how far one interval is from the next.",
        "inline constexpr std::uint64_t PrimeraZ = 0x%016x;" % DESDE,
        "inline constexpr int BitsDelIntervalo = 45;",
        "",
        "// clang-format off",
        "/// log 2, and log 2 / 128.",
    ]
    for nombre, x, unidad in (("Log2", ln2, UNIDAD_LOG), ("Log2Entre128", ln2 / ENTRADAS, UNIDAD_PASO)):
        cabeza, cola = cabeza_y_cola(x, unidad)
        lineas.append("inline constexpr double %sAlto = %s;" % (nombre, float(cabeza).hex()))
        lineas.append("inline constexpr double %sBajo = %s;" % (nombre, float(cola).hex()))
    lineas.append("")
    lineas.append("inline constexpr std::array<EntradaLog, %d> TablaLog = {{" % ENTRADAS)
    for i in range(ENTRADAS):
        a, b = doble(DESDE + i * PASO), doble(DESDE + (i + 1) * PASO)
        c = inverso(a, b)
        r = max(abs(a * c - 1), abs(b * c - 1))
        cabeza, cola = cabeza_y_cola(-logaritmo(c), UNIDAD_LOG)
        assert r < Fraction(5657, 10**6)  # 2^-7.466
        assert c == 1 or (abs(cabeza) >= r and min(abs(logaritmo(a)), abs(logaritmo(b))) > Fraction(1, 520))
        lineas.append("    {%s, %s, %s}," % tuple(float(x).hex() for x in (c, cabeza, cola)))
    lineas.append("}};")
    lineas.append("")
    lineas.append("inline constexpr std::array<EntradaExp, %d> TablaExp = {{" % ENTRADAS)
    for i in range(ENTRADAS):
        cabeza, cola = cabeza_y_cola(exponencial(ln2 * i / ENTRADAS), UNIDAD_EXP)
        lineas.append("    {%s, %s}," % tuple(float(x).hex() for x in (cabeza, cola)))
    lineas += ["}};", "// clang-format on", "", "}  // namespace model", ""]
    return "\n".join(lineas)


def principal(palabras):
    if not palabras:
        sys.stdout.write(escribe())
        return 0
    with open(palabras[1], encoding="utf-8") as archivo:
        if archivo.read() == escribe():
            return 0
    print("%s isn't what tablas.py writes" % palabras[1])
    return 1


if __name__ == "__main__":
    sys.exit(principal(sys.argv[1:]))
