# SPDX-License-Identifier: GPL-3.0-or-later
"""Lookups over the height-area-storage tables and outflow functions of reservoirs and lakes.

The component is handed in where the program keeps it in CompActual.
"""
from modelo import FinDelPrograma, texto_error_lector
from numeros import Falla, div, f32, potencia, resta32

_TITULO_FUNCION = "Error, la función HSV es inconsistente..."
_TITULO_TABLA = "Error, la tabla HSV es inconsistente..."
_TITULO_SHV = "Error, la tabla SHV es inconsistente"
_TITULO_HQ = "Error, la tabla HQ es inconsistente..."

_ALTURA_SUPERA = "Error, la altura de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento "
_VOLUMEN_SUPERA = "Error, el volumen de embalse supera el máximo de la Tabla Altura-Superficie-Almacenamiento "
_TABLA_HAS = "Error, la tabla Altura-Superficie-Almacenamiento "

# Per function: (first text, second text, title) too high, then the same too low. Uneven on purpose.
_TEXTOS = {
    "SdeHRepresa": (
        (
            _ALTURA_SUPERA + "de la Represa ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
            _TITULO_FUNCION,
        ),
        (
            _TABLA_HAS + "de la Represa ",
            " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar."
            " ¿Desea continuar ?",
            _TITULO_FUNCION,
        ),
    ),
    "SdeHLago": (
        (
            _ALTURA_SUPERA + "del Lago ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea Continuar? ",
            _TITULO_FUNCION,
        ),
        (
            _TABLA_HAS + "del Lago ",
            " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar."
            " ¿Desea continuar ?",
            _TITULO_FUNCION,
        ),
    ),
    "HdeSRepresa": (
        (
            _VOLUMEN_SUPERA + "de la Represa ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea continuar?",
            _TITULO_TABLA,
        ),
        (
            _TABLA_HAS + "de la Represa ",
            " tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y"
            " vuelva a procesar. ¿Desea continuar? ",
            _TITULO_TABLA,
        ),
    ),
    "HdeSLago": (
        (
            _VOLUMEN_SUPERA + "del Lago ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea continuar?",
            _TITULO_TABLA,
        ),
        (
            _TABLA_HAS + "del Lago ",
            " tiene un valor inicial del volumen almacenado más elevado que el de cálculo. Corrija la tabla y"
            " vuelva a procesar. ¿Desea continuar? ",
            _TITULO_TABLA,
        ),
    ),
    "AdeHRepresa": (
        (
            _ALTURA_SUPERA + "de la Represa ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
            _TITULO_SHV,
        ),
        (
            _TABLA_HAS + "de la Represa ",
            " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar."
            " ¿Desea continaur? ",
            _TITULO_TABLA,
        ),
    ),
    "AdeHLago": (
        (
            _ALTURA_SUPERA + "de la Lago ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
            _TITULO_SHV,
        ),
        (
            _TABLA_HAS + "de la Lago ",
            " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar."
            " ¿Desea continaur? ",
            _TITULO_TABLA,
        ),
    ),
    "QdeHRepresa": (
        (
            "Error, la altura de embalse supera el máximo de la Tabla H-Q dada para la Represa ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
            _TITULO_HQ,
        ),
        (
            "Error, la tabla H-Q de la Represa ",
            " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar",
            _TITULO_HQ,
        ),
    ),
    "QdeHLago": (
        (
            "Error, la altura de embalse supera el máximo de la Tabla H-Q dada para la Lago ",
            ". Corrija la tabla y vuelva a procesar. ¿Desea continuar? ",
            _TITULO_HQ,
        ),
        (
            "Error, la tabla H-Q de la Lago ",
            " tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a procesar",
            _TITULO_HQ,
        ),
    ),
}

ENCIMA, DEBAJO = 0, 1


def _pregunta(s, funcion, caso, nombre):
    """The question of a value outside the table: Yes goes on with 0, No ends the program."""
    primero, segundo, titulo = _TEXTOS[funcion][caso]
    if not s.anfitrion.pregunta(primero + nombre + segundo, titulo):
        raise FinDelPrograma
    return 0


def _busca(s, funcion, columnas, valor, interpola):
    """The search shared by the lookups; columnas are the searched and the read column and the number of rows."""
    X, Y, n, nombre = columnas
    if valor > X(n):
        return _pregunta(s, funcion, ENCIMA, nombre)
    if valor < X(1):
        return _pregunta(s, funcion, DEBAJO, nombre)
    if valor == X(1):
        return Y(1)
    for k in range(2, n + 1):
        if valor == X(k):
            return Y(k)
        if X(k) > valor:
            return interpola(k)
    return 0


class TablasRepresa:
    """The lookups of one Represa."""

    def __init__(self, s, represa):
        self.s = s
        self.represa = represa
        self.numero = represa.numRepresa
        self.nombre = represa.NombreRepresa
        self.funcion_Q = "QdeHRepresa"

    def filas(self):
        return self.s.RepresaFilasHAS[self.numero]

    def H(self, k):
        return self.s.RepresaH[self.numero, k]

    def A(self, k):
        return self.s.RepresaA[self.numero, k]

    def S(self, k):
        return self.s.RepresaS[self.numero, k]

    def filas_Q(self):
        return self.s.RepresaFilasHQ[self.numero]

    def QH(self, k):
        return self.s.RepresaQH[self.numero, k]

    def QQ(self, k):
        return self.s.RepresaQQ[self.numero, k]

    def SdeH(self, h):
        return _SdeH(self, "SdeHRepresa", h)

    def HdeS(self, almacenado):
        return _HdeS(self, "HdeSRepresa", almacenado)

    def AdeH(self, h):
        return _AdeH(self, "AdeHRepresa", h)

    def QdeH(self, h):
        if self.represa.optTabla:
            return _con_manejador(self.s, lambda: _QdeH_por_tabla(self, h))
        return _con_manejador(self.s, lambda: _QdeH_por_funciones(self.represa, h))

    def HdeQalma(self, q):
        return _con_manejador(self.s, lambda: self._HdeQalma(q))

    def _HdeQalma(self, q):
        r = self.represa
        bajo = alto = 0.0
        if r.optTabla:
            n = self.filas_Q()
            if n < 1:
                return 0.0
            alto = self.QH(n)
            bajo = self.QH(1)
        else:
            if r.chkFQ[1] == 1:
                bajo, alto = r.FQmin[1], r.FQMax[1]
            for i in range(2, 9):
                if r.chkFQ[i] == 1:
                    bajo = min(bajo, r.FQmin[i])
                    alto = max(alto, r.FQMax[i])
        return _biseccion_HdeQ(self, (bajo, alto), q, ("Represa", "HdeQalmaRepresa"))


class TablasLago:
    """The lookups of one Lago; its outflow is a column of the same table."""

    def __init__(self, s, lago):
        self.s = s
        self.numero = lago.numLAGO
        self.nombre = lago.NombreLAGO
        self.funcion_Q = "QdeHLago"

    def filas(self):
        return self.s.LagoFilas[self.numero]

    def H(self, k):
        return self.s.LagoH[self.numero, k]

    def A(self, k):
        return self.s.LagoA[self.numero, k]

    def S(self, k):
        return self.s.LagoS[self.numero, k]

    filas_Q = filas
    QH = H

    def QQ(self, k):
        return self.s.LagoQ[self.numero, k]

    def SdeH(self, h):
        return _SdeH(self, "SdeHLago", h)

    def HdeS(self, almacenado):
        return _HdeS(self, "HdeSLago", almacenado)

    def AdeH(self, h):
        return _AdeH(self, "AdeHLago", h)

    def QdeH(self, h):
        return _con_manejador(self.s, lambda: _QdeH_por_tabla(self, h))

    def HdeQalma(self, q):
        return _con_manejador(self.s, lambda: self._HdeQalma(q))

    def _HdeQalma(self, q):
        n = self.filas_Q()
        if n < 1:
            return 0.0
        return _biseccion_HdeQ(self, (self.QH(1), self.QH(n)), q, ("Lago", "HdeQalmaLago"))


# ----------------------------------------------------------------------------------- height, area, storage


def _SdeH(t, funcion, h):
    def interpola(k):
        pendiente = div(resta32(t.S(k), t.S(k - 1)), t.H(k) - t.H(k - 1))
        return pendiente * (h - t.H(k - 1)) + t.S(k - 1)

    return _busca(t.s, funcion, (t.H, t.S, t.filas(), t.nombre), h, interpola)


def _HdeS(t, funcion, almacenado):
    def interpola(k):
        pendiente = div(f32(t.H(k) - t.H(k - 1)), resta32(t.S(k), t.S(k - 1)))
        return pendiente * (almacenado - t.S(k - 1)) + t.H(k - 1)

    return _busca(t.s, funcion, (t.S, t.H, t.filas(), t.nombre), almacenado, interpola)


def _AdeH(t, funcion, h):
    def interpola(k):
        return f32(div(t.A(k) - t.A(k - 1), t.H(k) - t.H(k - 1)) * (h - t.H(k - 1)) + t.A(k - 1))

    return _busca(t.s, funcion, (t.H, t.A, t.filas(), t.nombre), h, interpola)


# ------------------------------------------------------------------------------------------------ outflow


def _con_manejador(s, calcula):
    """The functions of outflow report a fault themselves and give 0."""
    try:
        return calcula()
    except Falla as falla:
        s.anfitrion.avisa(texto_error_lector(falla))
        return 0.0


def _QdeH_por_funciones(r, h):
    Q = 0.0
    for i in range(1, 9):
        if r.chkFQ[i] == 1 and r.FQmin[i] <= h and h <= r.FQMax[i]:
            sobre = h - r.FQmin[i]
            if i <= 4:
                Q = f32(Q + r.FQa[i] * potencia(sobre, r.FQb[i]))
            else:
                Q = f32(Q + r.FQa[i] + r.FQb[i] * sobre + r.FQc[i] * potencia(sobre, 2))
    return Q


def _QdeH_por_tabla(t, h):
    n = t.filas_Q()
    if n < 1:
        return 0.0
    if h > t.QH(n):
        return _pregunta(t.s, t.funcion_Q, ENCIMA, t.nombre)
    if h < t.QH(1):
        return _pregunta(t.s, t.funcion_Q, DEBAJO, t.nombre)
    if h == t.QH(1):
        return t.QQ(1)
    for k in range(1, n + 1):
        if h == t.QH(k):
            return t.QQ(k)
        if t.QH(k) > h:
            pendiente = div(t.QQ(k) - t.QQ(k - 1), t.QH(k) - t.QH(k - 1))
            return f32(pendiente * (h - t.QH(k - 1)) + t.QQ(k - 1))
    return 0.0


_MILESIMA = f32(0.001)


def _biseccion_HdeQ(t, limites, q, nombres):
    """The height whose outflow is q: the last midpoint."""
    bajo, alto = limites
    tipo, funcion = nombres
    medio = 0.0
    cuenta = 0
    while f32(abs(alto - bajo)) > _MILESIMA:
        cuenta += 1
        if cuenta > 1000:
            t.s.anfitrion.avisa(
                "Error <Proceso_en_%s>, inconsistencia en el cálculo de H=f(Q)> en Sub %s " % (tipo, funcion)
                + t.nombre
                + ". Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
                "Error,...",
            )
            raise FinDelPrograma
        medio = f32((alto - bajo) / 2 + bajo)
        Q = f32(t.QdeH(medio))
        if Q > q:
            alto = medio
        else:
            bajo = medio
    return medio
