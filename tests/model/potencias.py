#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes potencias.txt: powers rounded correctly, worked out in decimal digits and, where the exponent is whole, as
fractions.

    potencias.py > potencias.txt

A row is base, exponent and power, each the 16 hexadecimal digits of a 64-bit float. The digits suffice where the power of
60 of them and that of 120 round to the same float; a row where they don't ends the program.
"""
import decimal
import math
import random
import struct
from fractions import Fraction

azar = random.Random(20240229)


def simple(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


def bits(x):
    return "%016x" % struct.unpack("<Q", struct.pack("<d", x))[0]


def flotante(x):
    """The 64-bit float nearest to a fraction, a tie going to the even one."""
    try:
        return x.numerator / x.denominator
    except OverflowError:
        return math.inf


def con_cifras(x, y, cifras):
    with decimal.localcontext() as c:
        c.prec, c.Emax, c.Emin = cifras, decimal.MAX_EMAX, decimal.MIN_EMIN
        return flotante(Fraction((decimal.Decimal(y) * decimal.Decimal(x).ln()).exp()))


def potencia(x, y):
    if y == int(y) and abs(y) <= 1100:
        return flotante(Fraction(x) ** int(y))
    r = con_cifras(x, y, 60)
    assert r == con_cifras(x, y, 120), (x, y)
    return r


def decimal_simple(hasta, digitos):
    return simple(azar.randint(1, hasta * 10**digitos) / 10**digitos)


def argumentos():
    # Kornerup, Lauter, Lefevre, Louvet and Muller, "Computing correctly rounded integer powers in floating-point
    # arithmetic", ACM TOMS 37, 2010: the hardest base of exponent 458, 61 equal bits behind the rounding bit.
    yield int("10000111100111000110011111010101011001011011100011010", 2) / 2**52, 458.0
    for n in range(-330, 315):
        yield 10.0, float(n)
    for _ in range(600):
        yield azar.randint(1, 200000) / 2, decimal_simple(1, azar.randint(1, 4))
    for _ in range(300):
        yield simple(azar.uniform(0, 300)), simple(azar.uniform(0.5, 4))
        yield simple(azar.uniform(0, 300)), simple(0.5 + azar.randint(0, 350) / 100)
    for _ in range(200):
        yield simple(azar.uniform(0, 300)), float(azar.choice([-3, -2, -1, 1, 2, 3, 4, 5, 7, 10, 20]))
    for _ in range(150):
        yield 0.01, -azar.uniform(0, 20)
        yield azar.uniform(0, 10000), azar.choice([0.5, 0.6, 0.75, 0.385, 0.77, 2 / 3, 5 / 6])
        yield 1 + azar.choice([-1, 1]) * 2.0 ** -azar.randint(5, 52) * azar.uniform(0.5, 1), azar.uniform(-1e6, 1e6)
    # at both ends of the type and beyond
    for _ in range(150):
        x = math.ldexp(azar.uniform(0.5, 1), azar.randint(-1073, 1024))
        yield x, azar.choice([azar.uniform(705, 712), azar.uniform(-747, -705), azar.uniform(-747, 712)]) / math.log(x)


def principal():
    for x, y in argumentos():
        if x not in (0, 1) and y != 0:
            print(bits(x), bits(y), bits(potencia(x, y)))


if __name__ == "__main__":
    principal()
