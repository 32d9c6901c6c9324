# SPDX-License-Identifier: GPL-3.0-or-later
"""Numbers of the model: 32-bit floats, 16-bit and 32-bit whole numbers, their text, and the run-time faults.

Python computes in 64-bit floats; every store into a narrower type goes through a function of this module, which
rounds and raises a Falla where the value doesn't fit.
"""
import functools
import math
import re
import struct
from fractions import Fraction

DESCRIPCIONES = {
    5: "Argumento o llamada a procedimiento no válidos",
    6: "Desbordamiento",
    9: "El subíndice está fuera del intervalo",
    11: "División por cero",
    13: "No coinciden los tipos",
    53: "No se encontró el archivo",
    62: "La entrada de datos sobrepasó el final del archivo",
    75: "Error de acceso a la ruta o al archivo",
    76: "No se encontró la ruta de acceso",
    91: "Variable de objeto no establecida",
}


class Falla(Exception):
    """A run-time fault, known by its number."""

    def __init__(self, numero):
        super().__init__(numero)
        self.numero = numero

    @property
    def descripcion(self):
        return DESCRIPCIONES[self.numero]


# ---------------------------------------------------------------------------------------------- widths

MAXIMO_F32 = 3.4028234663852886e38
_FLOTANTE = struct.Struct("<f")


def f32(x):
    """x rounded to the nearest 32-bit float, a tie to the even one. Falla 6 beyond its range."""
    try:
        y = _FLOTANTE.unpack(_FLOTANTE.pack(x))[0]
    except OverflowError:
        raise Falla(6) from None
    if y - y != 0:
        raise Falla(6)
    return y


def entero_en(x, minimo, maximo):
    if not minimo <= x <= maximo:
        raise Falla(6)
    return x


def i16(n):
    """A whole number checked against 16 bits."""
    return entero_en(n, -32768, 32767)


def i32(n):
    """A whole number checked against 32 bits."""
    return entero_en(n, -2147483648, 2147483647)


def _finito(x):
    if x - x != 0:
        raise Falla(6)
    return x


def redondea_i16(x):
    """x to the nearest whole number, a tie to the even one, in 16 bits."""
    return i16(round(_finito(x)))


def redondea_i32(x):
    return i32(round(_finito(x)))


def piso_i16(x):
    """Int(x) in 16 bits."""
    return i16(math.floor(_finito(x)))


def suma16(a, b):
    return i16(a + b)


def resta16(a, b):
    return i16(a - b)


def por16(a, b):
    return i16(a * b)


def suma32(a, b):
    return i32(a + b)


def resta32(a, b):
    return i32(a - b)


def div(a, b):
    """a / b in 64 bits. Falla 11 where b is 0."""
    if b == 0:
        raise Falla(11)
    return a / b


def potencia(base, exponente):
    """base ^ exponente in 64 bits; 0^0 is 1. Falla 5: 0 to a negative power, a negative base with a fraction."""
    if base == 0 and exponente < 0:
        raise Falla(5)
    if base < 0 and exponente != math.floor(exponente):
        raise Falla(5)
    try:
        return math.pow(base, exponente)
    except OverflowError:
        raise Falla(6) from None


# ------------------------------------------------------------------------------------------- rounding


def redondea64(x, decimales):
    """x rounded to decimals as a 64-bit value, a tie to the even digit."""
    escala = 10.0**decimales
    return float(round(_finito(x * escala))) / escala


def redondea32(x, decimales):
    """The same for a 32-bit variable: the result is a 32-bit float again."""
    return f32(redondea64(x, decimales))


def trunca2(x):
    """Int(x * 100) / 100, every operation in 32 bits."""
    centesimos = f32(math.floor(f32(x * 100)))
    return f32(centesimos / 100)


# ------------------------------------------------------------------------------------- number to text


def texto32(x):
    return "0" if x == 0 else "%.7G" % x


def texto64(x):
    return "0" if x == 0 else "%.15G" % x


def con_blanco(texto):
    """The form of the detail sheets: a number that isn't negative takes one leading blank."""
    return texto if texto.startswith("-") else " " + texto


def _cifras_cortas(x):
    """Shortest decimal digits that read back as the 32-bit float x > 0, nearest to x: (digits, exponent of ten)."""
    if math.frexp(x)[0] != 0.5:  # both neighbours as far: the nearest text of some length reads back, or none does
        for cifras in range(1, 10):
            mantisa, exponente = ("%.*e" % (cifras - 1, x)).split("e")
            leido = float(mantisa + "e" + exponente)
            if leido <= MAXIMO_F32 and f32(leido) == x:
                return mantisa.replace(".", ""), int(exponente)
    exacto = Fraction(x)
    for cifras in range(1, 18):
        exponente = int(("%.*e" % (cifras - 1, x)).split("e")[1])
        unidad = Fraction(10) ** (exponente - cifras + 1)
        centro = math.floor(exacto / unidad)
        mejor = None
        for candidato in (centro - 1, centro, centro + 1, centro + 2):
            if candidato <= 0:
                continue
            if _lee_f32(candidato * unidad) != x:
                continue
            cercania = (abs(candidato * unidad - exacto), candidato % 2)  # of two as near, the even one
            if mejor is None or cercania < mejor[0]:
                mejor = (cercania, candidato)
        if mejor is not None:
            digitos = str(mejor[1])
            exponente10 = exponente - cifras + len(digitos)
            return digitos.rstrip("0") or "0", exponente10
    raise AssertionError("a 32-bit float needs at most 9 digits")


def _lee_f32(valor):
    """The 32-bit float nearest to an exact fraction, a tie to the even one; None where it overflows."""
    # Exact: scale by the unit of the float's binade and round the fraction itself.
    if valor <= 0:
        return 0.0
    e = math.frexp(float(valor))[1]
    for exponente in (e - 1, e, e + 1):
        if Fraction(2) ** (exponente - 1) <= valor < Fraction(2) ** exponente:
            break
    unidad = Fraction(2) ** max(exponente - 24, -149)
    y = float(round(valor / unidad) * unidad)
    return None if y > MAXIMO_F32 else y


@functools.lru_cache(maxsize=65536)
def _corto32_positivo(x):
    digitos, exponente = _cifras_cortas(x)
    resto = digitos[1:]
    cientifico = digitos[0] + ("." + resto if resto else "") + "e%+03d" % exponente
    if exponente >= len(digitos) - 1:
        # A whole number is written with its exact digits, not filled up with zeros.
        fijo = "%d" % int(x)
    elif exponente >= 0:
        fijo = digitos[: exponente + 1] + "." + digitos[exponente + 1 :]
    else:
        fijo = "0." + "0" * (-exponente - 1) + digitos
    return fijo if len(fijo) <= len(cientifico) else cientifico


def corto32(x):
    """The shortest text that reads back as the 32-bit float x; plain notation unless exponent form is shorter."""
    if x == 0:
        return "-0" if math.copysign(1, x) < 0 else "0"
    return ("-" if x < 0 else "") + _corto32_positivo(abs(x))


# ------------------------------------------------------------------------------------- text to number

_NUMERO = re.compile(r" *([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eEdD][+-]?[0-9]+)?)")


def _valor(texto):
    return _finito(float(texto.replace("d", "e").replace("D", "e")))


def numero_inicial(texto):
    """The number at the start of a text, 0 where there is none. Falla 6 beyond 64-bit floats."""
    hallado = _NUMERO.match(texto)
    return _valor(hallado.group(1)) if hallado else 0.0


def numero_entero(texto):
    """The number that the whole text is, blanks at both ends apart; None if it isn't one."""
    hallado = _NUMERO.fullmatch(texto.rstrip(" "))
    return _valor(hallado.group(1)) if hallado else None


# ----------------------------------------------------------------------------------------------- text


def izquierda(texto, ancho):
    """Left-justified: blanks on the right; a longer text stands whole."""
    return texto + " " * (ancho - len(texto))


def derecha(texto, ancho):
    return " " * (ancho - len(texto)) + texto


# --------------------------------------------------------------------------------------------- arrays


class Vector:
    """One-dimensional array from minimo to maximo, filled with 0; guarda converts what is stored."""

    def __init__(self, minimo, maximo, guarda=f32):
        if maximo < minimo:
            raise Falla(9)
        self.minimo, self.maximo, self.guarda = minimo, maximo, guarda
        self.datos = [guarda(0)] * (maximo - minimo + 1)

    def __getitem__(self, i):
        if not self.minimo <= i <= self.maximo:
            raise Falla(9)
        return self.datos[i - self.minimo]

    def __setitem__(self, i, valor):
        if not self.minimo <= i <= self.maximo:
            raise Falla(9)
        self.datos[i - self.minimo] = self.guarda(valor)

    def redimensiona(self, maximo):
        """A new upper bound, shorter or longer, keeping the contents."""
        if maximo < self.minimo:
            raise Falla(9)
        largo = maximo - self.minimo + 1
        self.datos = self.datos[:largo] + [self.guarda(0)] * (largo - len(self.datos))
        self.maximo = maximo


class Matriz:
    """Two-dimensional array (minimo1..maximo1, 0..maximo2), filled with 0."""

    def __init__(self, minimo1, maximo1, maximo2, guarda=f32):
        if maximo1 < minimo1 or maximo2 < 0:
            raise Falla(9)
        self.minimo1, self.maximo1, self.maximo2, self.guarda = minimo1, maximo1, maximo2, guarda
        self.filas = [[guarda(0)] * (maximo2 + 1) for _ in range(maximo1 - minimo1 + 1)]

    def _revisa(self, indices):
        i, k = indices
        if not (self.minimo1 <= i <= self.maximo1 and 0 <= k <= self.maximo2):
            raise Falla(9)
        return i - self.minimo1, k

    def __getitem__(self, indices):
        i, k = self._revisa(indices)
        return self.filas[i][k]

    def __setitem__(self, indices, valor):
        i, k = self._revisa(indices)
        self.filas[i][k] = self.guarda(valor)

    def redimensiona(self, maximo2):
        """A new upper bound of the second index, keeping the contents."""
        if maximo2 < 0:
            raise Falla(9)
        largo = maximo2 + 1
        for i, fila in enumerate(self.filas):
            self.filas[i] = fila[:largo] + [self.guarda(0)] * (largo - len(fila))
        self.maximo2 = maximo2


class SinDimensionar:
    """An array that no statement has allocated yet: every access is out of bounds."""

    def __getitem__(self, indices):
        raise Falla(9)

    def __setitem__(self, indices, valor):
        raise Falla(9)

    def redimensiona(self, maximo):
        raise Falla(9)


class Textos:
    """Array of texts from 0 on."""

    def __init__(self, datos):
        self.datos = datos

    def __getitem__(self, i):
        if not 0 <= i < len(self.datos):
            raise Falla(9)
        return self.datos[i]

    def __setitem__(self, i, texto):
        if not 0 <= i < len(self.datos):
            raise Falla(9)
        self.datos[i] = texto
