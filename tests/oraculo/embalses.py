# SPDX-License-Identifier: GPL-3.0-or-later
"""Routing through a reservoir or a lake by the Muskingum, level-pool or third-order Runge-Kutta method."""
from hidraulica import TablasLago, TablasRepresa
from modelo import FinDelPrograma
from numeros import (
    con_blanco,
    div,
    f32,
    izquierda,
    por16,
    redondea32,
    texto32,
)
from red import SALTO, drena_a

METODOS = ("Muskingum", "Piscina Nivelada", "Runge Kutta")
ADVERTENCIA = "Advertencia !"
_CINCO_MILESIMAS = f32(0.005)


def texto_muskingum_erroneo(nombre):
    # kept as it stands: no blank before the name
    return (
        "Error, Los parámetros de Muskingum utilizados en el tramo de cauce"
        + nombre
        + " son erróneos. Verifique, o cambie a propagación Directa desde el Editor de UEHs "
    )


class _Tipo:
    """What tells a Represa from a Lago in the routing."""

    def __init__(self, nombre, tablas, constante_k, unidad_entrada):
        self.nombre = nombre
        self.tablas = tablas
        self.constante_k = constante_k
        self.unidad_entrada = unidad_entrada


_REPRESA = _Tipo("Represa", TablasRepresa, "Represa_k_Musk", "Qentra[m3/s]")
_LAGO = _Tipo("Lago", TablasLago, "Lago_k_Musk", "Qentra[mm]")


def Proceso_en_Represa(s, i):
    _proceso(s, i, _REPRESA, s.ColRepresas)


def Proceso_en_Lago(s, i):
    _proceso(s, i, _LAGO, s.ColLagos)


def _proceso(s, i, tipo, coleccion):
    for componente in coleccion:
        if componente.Metodo not in METODOS:
            s.anfitrion.avisa(
                "Error, Seleccione el método de propagación de la represa en el formulario de Propiedades"
                + componente.nombre
                + ". ",
                ADVERTENCIA,
            )
            return
        s.QBaseEntra = 0.0
        if componente.nombre != s.Secuencia[i]:
            continue
        transito = _Transito(s, i, tipo, componente)
        transito.junta_entrada()
        if componente.Metodo == "Muskingum":
            if not transito.muskingum():
                return
        elif componente.Metodo == "Piscina Nivelada":
            transito.piscina_nivelada()
        else:
            transito.runge_kutta()
        transito.escribe_tabla()


class _Transito:
    """One passage of a flood through one component, at place i of Secuencia."""

    def __init__(self, s, i, tipo, componente):
        self.s, self.i, self.tipo, self.componente = s, i, tipo, componente
        self.tablas = tipo.tablas(s, componente)
        self.n = self.tablas.numero
        self.H = s.HRepresa if tipo is _REPRESA else s.HLago
        self.S = s.SRepresa if tipo is _REPRESA else s.SLago

    def junta_entrada(self):
        s, i, nombre = self.s, self.i, self.componente.nombre
        for ueh in s.ColUEHs:
            if not drena_a(ueh.Cauce_aa, nombre):
                continue
            for j in range(1, s.NroUEHs + 1):
                if s.Secuencia[j] == ueh.NombreUEH:
                    for k in range(1, s.NroPasosQ + 1):
                        s.QEntra[i, k] = s.QSale[j, k] + s.QEntra[i, k]
                    s.QBaseEntra = f32(s.QBaseEntra + s.UEHs[j].Q0Recesion)
                    break
        for cauce in s.ColCauces:
            if not drena_a(cauce.Cauce_aa, nombre):
                continue
            for j in range(s.NroUEHs + 1, s.NroComponentes + 1):
                if s.Secuencia[j] == cauce.NombreCauce:
                    for k in range(1, s.NroPasosQ + 1):
                        s.QEntra[i, k] = s.QSale[j, k] + s.QEntra[i, k]
                    break

    # -------------------------------------------------------------------------------- methods

    def muskingum(self):
        """False where the parameters are refused."""
        s, i, n = self.s, self.i, self.n
        K = getattr(self.componente, self.tipo.constante_k)
        X = 0  # the weight is a constant
        dt = s.PasoQ
        Den = f32(K - K * X + 0.5 * dt)
        if Den == 0:
            s.anfitrion.avisa(texto_muskingum_erroneo(self.componente.nombre), ADVERTENCIA)
            return False
        C0 = f32(div(0.5 * dt - K * X, Den))
        C1 = f32(div(K * X + 0.5 * dt, Den))
        C2 = f32(div(K - K * X - 0.5 * dt, Den))
        if f32(C1 + C0 + C2) != 1:
            s.anfitrion.avisa(texto_muskingum_erroneo(self.componente.nombre), ADVERTENCIA)
            return False
        for k in range(1, s.NroPasosQ + 1):
            if k == 1:
                s.QSale[i, 1] = s.QEntra[i, 1]
            else:
                s.QSale[i, k] = (
                    s.QSale[i, k] + C0 * s.QEntra[i, k] + C1 * s.QEntra[i, k - 1] + C2 * s.QSale[i, k - 1]
                )
            self.H[n, k] = self.tablas.HdeQalma(s.QSale[i, k])
            s.HActual = self.H[n, k]
            self.S[n, k] = self.tablas.SdeH(s.HActual)
        return True

    def _almacenado_por_paso(self):
        """2S/dt [m3/s], rounded to 32 bits at each of its two divisions."""
        return f32(f32(div(2 * self.s.SActual, self.s.PasoQ)) / 60.0)

    def piscina_nivelada(self):
        s, i, n, tablas = self.s, self.i, self.n, self.tablas
        T = U = I = 0.0
        s.HActual = self.componente.HInicialEmb
        s.SActual = f32(tablas.SdeH(s.HActual))
        s.QEntra[i, 0] = s.QBaseEntra
        T = f32(self._almacenado_por_paso() - s.QSale[i, 0])
        H_tope = tablas.H(tablas.filas())
        H_base = tablas.H(1)
        self._abre_planilla(
            "k - t[mi] - qe(i, k)[m3/s] - I1+I2 - 2S1/dt+Q1  2S2/dt+Q2    q(i, k)[m3/s] -  H[m]    S[m3]"
        )
        Q = f32(tablas.QdeH(s.HActual))
        self.H[n, 0] = s.HActual
        self.S[n, 0] = s.SActual
        s.QSale[i, 0] = Q
        self._fila_planilla(0, I, T, U)
        for k in range(1, s.NroPasosQ + 1):
            I = f32(s.QEntra[i, k] + s.QEntra[i, k - 1])
            W = f32(T + I)
            tablas.HdeS(s.SActual)
            alto, bajo, cuenta = H_tope, H_base, 0
            while f32(abs(alto - bajo)) > _CINCO_MILESIMAS:
                cuenta += 1
                if cuenta > 1000:
                    self._biseccion_sin_fin()
                s.HActual = f32((alto - bajo) / 2 + bajo)
                s.SActual = f32(tablas.SdeH(s.HActual))
                Q = f32(tablas.QdeH(s.HActual))
                U = f32(self._almacenado_por_paso() + Q)
                if U > W:
                    alto = s.HActual
                else:
                    bajo = s.HActual
            self.H[n, k] = s.HActual
            self.S[n, k] = s.SActual
            T = f32(W - 2 * Q)
            s.QSale[i, k] = Q
            self._fila_planilla(k, I, T, U)
        self._cierra_planilla()

    def _biseccion_sin_fin(self):
        tipo = self.tipo.nombre
        self.s.anfitrion.avisa(
            "Error <Proceso_en_%s>, inconsistencia en el cálculo de <2S/dt + Q> en propagación %s " % (tipo, tipo)
            + self.componente.nombre
            + ". Es posible que deba ampliar el rango de altura-caudal o altura-superficie -volumen de embalse",
            "Error,...",
        )
        raise FinDelPrograma

    def runge_kutta(self):
        s, i, n, tablas = self.s, self.i, self.n, self.tablas
        dH1 = dH2 = dH3 = 0.0
        s.HActual = self.componente.HInicialEmb
        Hk = s.HActual
        s.QEntra[i, 0] = s.QBaseEntra
        tablas.H(tablas.filas())  # top and base are read, and nothing uses them
        tablas.H(1)
        self._abre_planilla("k    t     qe(i, k)    dH1   dH2  dH3   q(i, k)")
        self.H[n, 0] = s.HActual
        self.S[n, 0] = s.SActual
        self._fila_planilla(0, dH1, dH2, dH3)
        for k in range(1, s.NroPasosQ + 1):
            I1 = s.QEntra[i, k - 1]
            d = f32(s.QEntra[i, k] - s.QEntra[i, k - 1])
            I2 = f32(d / 3 + I1)
            I3 = f32(2 * d / 3 + I1)
            s.HActual = Hk
            dH1 = self._etapa(I1, "?  ")
            s.HActual = f32(dH1 / 3 + Hk)
            dH2 = self._etapa(I2, "? ")
            s.HActual = f32(2 * dH2 / 3 + Hk)
            dH3 = self._etapa(I3, "?  ")
            dH = f32(dH3 * 3 / 4 + dH1 / 4)
            Hk = f32(Hk + dH)
            s.HActual = Hk
            Q = f32(tablas.QdeH(s.HActual))
            s.QSale[i, k] = Q
            self.H[n, k] = s.HActual
            s.SActual = f32(tablas.SdeH(s.HActual))
            self.S[n, k] = s.SActual
            self._fila_planilla(k, dH1, dH2, dH3)
        self._cierra_planilla()

    def _etapa(self, I, cola):
        """Rise of the water at HActual with inflow I over one step [m]."""
        s = self.s
        Q = f32(self.tablas.QdeH(s.HActual))
        s.ACalc = f32(self.tablas.AdeH(s.HActual))
        if s.ACalc > 0:
            return f32(div(I - Q, s.ACalc * 10000.0) * s.PasoQ * 60.0)
        seguir = s.anfitrion.pregunta(
            "La superficie a(h) obtenida para h= "
            + texto32(s.HActual)
            + " de la "
            + self.tipo.nombre
            + " "
            + self.componente.nombre
            + " es CERO. ¿Desea continuar"
            + cola,
            "Error...Verifique función Altura Superficie de la " + self.tipo.nombre,
        )
        if not seguir:
            raise FinDelPrograma
        s.ACalc = 0.0
        return 0.0

    # ----------------------------------------------------------------------------------- text

    def _encabezado(self):
        return (
            "Componente: "
            + self.tipo.nombre
            + " "
            + self.s.Secuencia[self.i]
            + "     Método de Propagación: "
            + self.componente.Metodo
        )

    def _abre_planilla(self, columnas):
        s = self.s
        s.anade(SALTO + "Planilla detallada de cálculo de propagación en " + self.tipo.nombre + " ")
        s.anade(SALTO + columnas)
        s.anade(SALTO + self._encabezado())

    def _fila_planilla(self, k, c1, c2, c3):
        s, i = self.s, self.i
        s.anade(
            SALTO
            + con_blanco(str(k))
            + "   "
            + con_blanco(str(por16(k, s.PasoQ)))
            + "   "
            + con_blanco(texto32(s.QEntra[i, k]))
            + "   "
            + con_blanco(texto32(c1))
            + "   "
            + con_blanco(texto32(c2))
            + "   "
            + con_blanco(texto32(c3))
            + "        "
            + con_blanco(texto32(s.QSale[i, k]))
            + "  "
            + con_blanco(texto32(s.HActual))
            + "  "
            + con_blanco(texto32(s.SActual))
        )

    def _cierra_planilla(self):
        self.s.anade(SALTO + " Fin detalle cálculo proaga en " + self.tipo.nombre + " ")

    def escribe_tabla(self):
        s, i, n = self.s, self.i, self.n
        s.VolEntra = s.VolSale = 0.0
        if s.SalidaPizarra:
            s.anade(SALTO)
            s.anade(SALTO + self._encabezado())
            s.anade(
                SALTO + "Per.k  t[min]  " + self.tipo.unidad_entrada + " Qsale[m3/s]   H[m]     Vol.Alm.[m3]"
            )
        for k in range(0, s.NroPasosQ + 1):
            s.LineaPizarra = (
                izquierda(str(k), 7)
                + izquierda(str(por16(k, s.PasoQ)), 7)
                + izquierda(texto32(redondea32(s.QEntra[i, k], 3)), 11)
                + izquierda(texto32(redondea32(s.QSale[i, k], 3)), 13)
                + izquierda(texto32(redondea32(self.H[n, k], 2)), 10)
                + izquierda(texto32(redondea32(self.S[n, k], 0)), 10)
            )
            if s.SalidaPizarra:
                s.anade(SALTO + " " + s.LineaPizarra)
            if s.QSale[i, k] > s.QMax[i, s.IndSerie]:
                s.QMax[i, s.IndSerie] = s.QSale[i, k]
            s.VolEntra = f32(s.PasoQ * s.QEntra[i, k] * 60 + s.VolEntra)
            s.VolSale = f32(s.PasoQ * s.QSale[i, k] * 60 + s.VolSale)
        if s.SalidaPizarra:
            s.anade(resumen(s, i))
            s.anfitrion.Text1 = s.TextoPizarra


def resumen(s, c):
    """Volumes and peak of component c, then an empty line."""
    return (
        SALTO
        + "Volumen Escurrido. Entra = "
        + texto32(redondea32(s.VolEntra, 0))
        + " m3 ; Sale = "
        + texto32(redondea32(s.VolSale, 0))
        + " m3"
        + SALTO
        + "Caudal Máximo = "
        + texto32(redondea32(s.QMax[c, s.IndSerie], 2))
        + " m3/s "
        + SALTO
    )
