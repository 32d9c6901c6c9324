#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Tests of the oracle itself. Every expected value is worked out by hand; the comments show how."""
import contextlib
import io
import os
import stat
import sys
import tempfile
import unittest
from types import SimpleNamespace

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
sys.dont_write_bytecode = True

import compara
import generador
import lote
from hidraulica import TablasLago, TablasRepresa
from hietograma import ConstruyeHietograma, PpDelPaso
from modelo import Anfitrion, FinDelPrograma, Lago, Represa, Siro
from numeros import (
    Falla,
    Matriz,
    Vector,
    con_blanco,
    corto32,
    derecha,
    div,
    f32,
    i16,
    i32,
    izquierda,
    numero_entero,
    numero_inicial,
    piso_i16,
    por16,
    potencia,
    redondea32,
    redondea64,
    redondea_i16,
    resta32,
    suma16,
    texto32,
    texto64,
    trunca2,
)
from red import ArmaSecuencia, ComponenteFinal, OrdenSecuencia, RedCiclica, drena_a
from registros import Lector, a_1252, campos, como_f32, como_i16, como_logico, como_texto, de_1252


def numero_de_falla(f):
    """The number of the fault that f raises, None if it raises none."""
    try:
        f()
    except Falla as falla:
        return falla.numero
    return None


class Anchos(unittest.TestCase):
    def test_RedondeoA32Bits(self):
        # 2^24 = 16777216; above it a 32-bit float has steps of 2. 16777217 is a tie between 16777216 (mantissa
        # 2^23, even) and 16777218; 16777219 is a tie between ...218 (odd mantissa) and ...220 (even).
        self.assertEqual(f32(16777217), 16777216.0)
        self.assertEqual(f32(16777219), 16777220.0)
        # 0.1 = 0x3DCCCCCD in 32 bits: 13421773 / 2^27.
        self.assertEqual(f32(0.1), 13421773 / 2**27)

    def test_DesbordeDe32Bits(self):
        # The largest float is (2 - 2^-23) 2^127 = 3.40282347e38; from (2 - 2^-24) 2^127 on it rounds beyond.
        self.assertEqual(f32(3.4028234663852886e38), 3.4028234663852886e38)
        self.assertEqual(numero_de_falla(lambda: f32(3.5e38)), 6)
        self.assertEqual(numero_de_falla(lambda: f32((2 - 2**-24) * 2.0**127)), 6)
        self.assertEqual(numero_de_falla(lambda: f32(float("inf"))), 6)
        self.assertEqual(f32(1e-50), 0.0)

    def test_Enteros(self):
        self.assertEqual(i16(-32768), -32768)
        self.assertEqual(numero_de_falla(lambda: i16(32768)), 6)
        self.assertEqual(numero_de_falla(lambda: i32(2**31)), 6)
        self.assertEqual(por16(181, 181), 32761)
        self.assertEqual(numero_de_falla(lambda: por16(200, 164)), 6)  # 32800
        self.assertEqual(numero_de_falla(lambda: suma16(32767, 1)), 6)
        self.assertEqual(numero_de_falla(lambda: resta32(-2147483648, 1)), 6)

    def test_MitadesAlPar(self):
        self.assertEqual([redondea_i16(x) for x in (0.5, 1.5, 2.5, -0.5, -1.5)], [0, 2, 2, 0, -2])
        self.assertEqual(numero_de_falla(lambda: redondea_i16(32767.5)), 6)  # to the even 32768
        self.assertEqual([piso_i16(2.999), piso_i16(-0.1)], [2, -1])

    def test_Divisiones(self):
        self.assertEqual(numero_de_falla(lambda: div(1.0, 0)), 11)
        self.assertEqual(numero_de_falla(lambda: div(0.0, 0.0)), 11)

    def test_Potencias(self):
        self.assertEqual(potencia(0.0, 0.0), 1.0)
        self.assertEqual(potencia(0.0, 0.5), 0.0)
        self.assertEqual(numero_de_falla(lambda: potencia(0.0, -1.0)), 5)
        self.assertEqual(numero_de_falla(lambda: potencia(-2.0, 0.5)), 5)
        self.assertEqual(potencia(-2.0, 3.0), -8.0)
        self.assertEqual(numero_de_falla(lambda: potencia(1e30, 20.0)), 6)


class Redondeos(unittest.TestCase):
    def test_DecimalesDe64Bits(self):
        # Exact halves in binary: 0.125 * 100 = 12.5 to 12, 0.375 * 100 = 37.5 to 38.
        self.assertEqual(redondea64(0.125, 2), 0.12)
        self.assertEqual(redondea64(0.375, 2), 0.38)
        self.assertEqual([redondea64(x, 0) for x in (2.5, 3.5, -2.5)], [2.0, 4.0, -2.0])

    def test_VariableDe32BitsSigueDe32Bits(self):
        self.assertEqual(redondea32(f32(0.125), 2), f32(0.12))

    def test_TruncadoEn32Bits(self):
        # 0.29 in 32 bits is 0.28999999166; times 100 it is 28.999999166, whose nearest float is 29 (step 2^-19
        # = 1.9e-6 there, and 29 - 28.999999166 = 8.3e-7 is under half a step), so nothing is cut off.
        self.assertEqual(texto32(trunca2(f32(0.29))), "0.29")
        self.assertEqual(texto32(trunca2(f32(1.999))), "1.99")
        # Int is the floor: -0.5 goes to -1.
        self.assertEqual(texto32(trunca2(f32(-0.005))), "-0.01")


class NumeroATexto(unittest.TestCase):
    def test_SieteCifras(self):
        self.assertEqual(texto32(f32(0.05)), "0.05")
        self.assertEqual(texto32(f32(12345678.0)), "1.234568E+07")
        self.assertEqual(texto32(f32(9999999.0)), "9999999")
        self.assertEqual(texto32(f32(1e7)), "1E+07")
        self.assertEqual(texto32(f32(0.0001)), "0.0001")  # exponent -4 is still written plain
        self.assertEqual(texto32(f32(0.00001)), "1E-05")
        self.assertEqual(texto32(-0.0), "0")
        self.assertEqual(texto32(f32(-2.5)), "-2.5")

    def test_QuinceCifras(self):
        self.assertEqual(texto64(1 / 3), "0.333333333333333")
        self.assertEqual(texto64(0.1 + 0.2), "0.3")  # 0.30000000000000004
        self.assertEqual(texto64(1e15), "1E+15")
        self.assertEqual(texto64(-0.0), "0")

    def test_Columnas(self):
        self.assertEqual(izquierda("12", 5) + "|", "12   |")
        self.assertEqual(derecha("12", 5), "   12")
        self.assertEqual(izquierda("123456", 5), "123456")
        self.assertEqual([con_blanco("0"), con_blanco("-1.5")], [" 0", "-1.5"])

    def test_MasCorto(self):
        # Plain and exponent form: the shorter one, plain where both are as long.
        esperados = {
            0.0: "0",
            0.1: "0.1",
            0.001: "0.001",  # 5 characters against the 5 of 1e-03
            0.0001: "1e-04",  # 5 against 6
            0.00012: "0.00012",  # 7 against 7
            10000.0: "10000",  # 5 against 5
            100000.0: "1e+05",  # 5 against 6
            15000000.0: "1.5e+07",  # 7 against 8
            16777216.0: "16777216",
            123456792.0: "123456792",  # exact digits, though 1.2345679e+08 reads back too
            -2.5: "-2.5",
            3.4028234663852886e38: "3.4028235e+38",
            2.0**-149: "1e-45",  # smallest of all: one digit reads back
        }
        for valor, texto in esperados.items():
            self.assertEqual(corto32(f32(valor)), texto)
        self.assertEqual(corto32(-0.0), "-0")
        # 497356.375 lies between ...37 and ...38 with equal distance: the even digit.
        self.assertEqual(corto32(497356.375), "497356.38")

    def test_MasCortoVuelveAlMismoNumero(self):
        for valor in (1 / 3, 2.7183, 0.166667, 65535.996, 1e-38, 8388607.5):
            self.assertEqual(f32(float(corto32(f32(valor)))), f32(valor))


class TextoANumero(unittest.TestCase):
    def test_NumeroInicial(self):
        casos = {"12,5": 12.0, " -3.5x": -3.5, ".5": 0.5, "5.": 5.0, "1e2": 100.0, "1D-1": 0.1, "1e": 1.0, "": 0.0}
        casos.update({"x1": 0.0, "- 1": 0.0, ".": 0.0, "+7km": 7.0})
        for texto, valor in casos.items():
            self.assertEqual(numero_inicial(texto), valor, texto)

    def test_TextoEnteramenteNumero(self):
        self.assertEqual(numero_entero(" 12 "), 12.0)
        for texto in ("12x", "1 2", "-", ".", "", "e5", "#TRUE#"):
            self.assertIsNone(numero_entero(texto), texto)


class Campos(unittest.TestCase):
    def test_ComaYFinDeLineaCierranIgual(self):
        self.assertEqual(campos("1,2\r\n3\r4\n5"), [(False, c) for c in "12345"])

    def test_CampoVacio(self):
        self.assertEqual(campos(",\r\n\r\n"), [(False, ""), (False, ""), (False, "")])
        self.assertEqual(campos(""), [])
        self.assertEqual(campos("1\r\n"), [(False, "1")])  # none behind the last line end
        self.assertEqual(campos("1,"), [(False, "1"), (False, "")])
        self.assertEqual(campos('1,"a'), [(False, "1"), (True, "a")])
        self.assertEqual(campos("1,\r\n"), [(False, "1"), (False, "")])

    def test_Comillas(self):
        self.assertEqual(campos('"a, b\r\nc" sobra,2'), [(True, "a, b\r\nc"), (False, "2")])
        self.assertEqual(campos('  "a"'), [(True, "a")])
        self.assertEqual(campos('1,"sin fin,2\r\n'), [(False, "1"), (True, "sin fin,2\r\n")])
        self.assertEqual(campos("  7  ,8"), [(False, "7"), (False, "8")])

    def test_Tipos(self):
        self.assertEqual(como_i16((False, "2.5")), 2)
        self.assertEqual(como_i16((False, "3.5")), 4)
        self.assertEqual(como_i16((False, "")), 0)
        self.assertEqual(como_f32((False, "16777217")), 16777216.0)
        fallas = {
            6: [(como_i16, False, "32768"), (como_i16, False, "32767.5"), (como_f32, False, "1E39")],
            13: [(como_i16, True, "12"), (como_f32, False, "12x"), (como_i16, False, "#TRUE#")],
        }
        for numero, casos in fallas.items():
            for tipo, comillas, texto in casos:
                self.assertEqual(numero_de_falla(lambda: tipo((comillas, texto))), numero, texto)

    def test_Logicos(self):
        casos = {"#TRUE#": True, "#FALSE#": False, "": False, "0": False, "0.0": False, "-1": True}
        for texto, valor in casos.items():
            self.assertIs(como_logico((False, texto)), valor)
        self.assertEqual(numero_de_falla(lambda: como_logico((True, "#TRUE#"))), 13)
        self.assertEqual(numero_de_falla(lambda: como_logico((False, "sí"))), 13)

    def test_PaginaDeCodigos(self):
        self.assertEqual(a_1252("ñ€\u0141"), b"\xf1\x80?")  # the code page has no L with stroke
        self.assertEqual(de_1252(b"\xf1\x80\x81"), "ñ€\u0081")
        self.assertEqual(a_1252("\u0081"), b"\x81")

    def test_RegistroConTipoErradoSeConsumeEntero(self):
        with tempfile.TemporaryDirectory() as directorio:
            ruta = os.path.join(directorio, "a.vlm")
            with open(ruta, "wb") as archivo:
                archivo.write(b'x,"b"\r\n7\r\n')
            lector = Lector(ruta)
            self.assertEqual(numero_de_falla(lambda: lector.registro(como_f32, como_texto)), 13)
            self.assertEqual(lector.uno(como_i16), 7)
            self.assertEqual(numero_de_falla(lambda: lector.uno(como_texto)), 62)
            self.assertEqual(numero_de_falla(lambda: Lector(os.path.join(directorio, "no"))), 53)
            self.assertEqual(numero_de_falla(lambda: Lector(os.path.join(directorio, "no", "a"))), 76)
            self.assertEqual(numero_de_falla(lambda: Lector(directorio)), 75)


class Arreglos(unittest.TestCase):
    def test_Limites(self):
        v = Vector(0, 2)
        v[2] = 16777217
        self.assertEqual(v[2], 16777216.0)
        self.assertEqual(numero_de_falla(lambda: v[3]), 9)
        self.assertEqual(numero_de_falla(lambda: v[-1]), 9)
        v.redimensiona(3)
        self.assertEqual([v[2], v[3]], [16777216.0, 0.0])
        m = Matriz(3, 4, 1)
        m[4, 1] = 5
        m.redimensiona(2)
        self.assertEqual([m[4, 1], m[4, 2]], [5.0, 0.0])
        self.assertEqual(numero_de_falla(lambda: m[2, 0]), 9)
        self.assertEqual(numero_de_falla(lambda: Vector(0, -1)), 9)


class AnfitrionDePrueba(Anfitrion):
    """Remembers the lines instead of writing them."""

    def __init__(self, responde_si=True):
        super().__init__(responde_si, io.BytesIO())

    @property
    def lineas(self):
        return self.salida.getvalue().decode("utf-8").splitlines()


def con_tabla(filas_HAS, filas_HQ=(), responde_si=True, **campos_represa):
    """A Represa numbered 1 with its tables: rows of H, A, S and of H, Q."""
    s = Siro(AnfitrionDePrueba(responde_si))
    represa = Represa()
    represa.numRepresa, represa.NombreRepresa, represa.optTabla = 1, "r-1", True
    for campo, valor in campos_represa.items():
        setattr(represa, campo, valor)
    s.RepresaFilasHAS, s.RepresaFilasHQ = Vector(0, 1, i16), Vector(0, 1, i16)
    s.RepresaFilasHAS[1], s.RepresaFilasHQ[1] = len(filas_HAS), len(filas_HQ)
    s.RepresaH, s.RepresaA, s.RepresaS = Matriz(0, 1, 10), Matriz(0, 1, 10), Matriz(0, 1, 10, i32)
    s.RepresaQH, s.RepresaQQ = Matriz(0, 1, 10), Matriz(0, 1, 10)
    for k, (H, A, S) in enumerate(filas_HAS, 1):
        s.RepresaH[1, k], s.RepresaA[1, k], s.RepresaS[1, k] = H, A, S
    for k, (H, Q) in enumerate(filas_HQ, 1):
        s.RepresaQH[1, k], s.RepresaQQ[1, k] = H, Q
    return s, TablasRepresa(s, represa)


class Embalses(unittest.TestCase):
    TABLA = [(0, 1, 0), (2, 3, 100), (4, 3, 500)]

    def test_EntreNodosYEnNodos(self):
        s, t = con_tabla(self.TABLA, [(0, 0), (4, 8)])
        self.assertEqual([t.SdeH(0.0), t.SdeH(2.0), t.SdeH(4.0), t.SdeH(3.0)], [0, 100, 500, 300.0])
        self.assertEqual([t.HdeS(300.0), t.AdeH(1.0), t.AdeH(3.0), t.QdeH(1.0)], [3.0, 2.0, 3.0, 2.0])
        self.assertEqual(s.anfitrion.lineas, [])

    def test_FueraDeLaTablaPregunta(self):
        s, t = con_tabla(self.TABLA)
        self.assertEqual([t.SdeH(4.5), t.AdeH(-1.0)], [0, 0])
        self.assertEqual(
            s.anfitrion.lineas,
            [
                "[Error, la función HSV es inconsistente...] Error, la altura de embalse supera el máximo de la"
                " Tabla Altura-Superficie-Almacenamiento de la Represa r-1. Corrija la tabla y vuelva a procesar."
                " ¿Desea Continuar?  -> Sí",
                "[Error, la tabla HSV es inconsistente...] Error, la tabla Altura-Superficie-Almacenamiento de la"
                " Represa r-1 tiene un valor inicial más elevado que el de cálculo. Corrija la tabla y vuelva a"
                " procesar. ¿Desea continaur?  -> Sí",
            ],
        )

    def test_RespuestaNoTerminaElPrograma(self):
        _, t = con_tabla(self.TABLA, responde_si=False)
        self.assertRaises(FinDelPrograma, t.HdeS, 501.0)

    def test_SinFilas(self):
        s, t = con_tabla([])
        self.assertEqual([t.SdeH(0.0), t.SdeH(1.0), t.QdeH(7.0), t.HdeQalma(7.0)], [0, 0, 0.0, 0.0])
        self.assertEqual(len(s.anfitrion.lineas), 1)  # of SdeH(1) alone

    def test_TablaDesordenadaSinFilaDaCero(self):
        # 5 lies under the last row and above the first; no row equals it and none of rows 2.. is above it.
        _, t = con_tabla([(1, 1, 10), (3, 1, 20), (2, 1, 30), (9, 1, 40)])
        self.assertEqual(t.SdeH(2.0), 15.0)  # row 2 (height 3) is the first above: (20-10)/(3-1)*(2-1)+10
        _, t = con_tabla([(1, 1, 10), (6, 1, 20), (5, 1, 30)])
        self.assertEqual(t.SdeH(5.0), 18.0)  # 10/5*4 + 10

    def test_Funciones(self):
        funciones = {"optTabla": False, "chkFQ": [0, 1, 2, 0, 0, 1, 0, 0, 0]}
        funciones["FQa"] = [0.0, 2.0, 50.0, 0, 0, 1.0, 0, 0, 0]
        funciones["FQb"] = [0.0, 0.5, 1.0, 0, 0, 2.0, 0, 0, 0]
        funciones["FQc"] = [0.0, 0, 0, 0, 0, 3.0, 0, 0, 0]
        funciones["FQmin"] = [0.0, 10.0, 0, 0, 0, 13.0, 0, 0, 0]
        funciones["FQMax"] = [0.0, 20.0, 99.0, 0, 0, 14.0, 0, 0, 0]
        _, t = con_tabla([], **funciones)
        # Function 1: 2 (h-10)^0.5; function 2 has chk 2 and is not in use; function 5 at 14: 1 + 2*1 + 3*1 = 6.
        self.assertEqual([t.QdeH(14.0), t.QdeH(10.0), t.QdeH(20.5)], [10.0, 0.0, 0.0])
        # At 13 function 5 counts with its a alone: 2 * 3^0.5 + 1 = 4.46410 rounded after each function.
        self.assertEqual(t.QdeH(13.0), f32(f32(2 * 3**0.5) + 1))

    def test_PotenciaMalaDaCeroConMensaje(self):
        funciones = {"optTabla": False, "chkFQ": [0, 1] + [0] * 7, "FQb": [0.0, -1.0] + [0.0] * 7}
        funciones.update(FQa=[0.0, 1.0] + [0.0] * 7, FQmin=[0.0] * 9, FQMax=[0.0, 5.0] + [0.0] * 7)
        s, t = con_tabla([], **funciones)
        self.assertEqual(t.QdeH(0.0), 0.0)
        self.assertEqual(
            s.anfitrion.lineas, ["[SIRO] Error Nro. 5Argumento o llamada a procedimiento no válidos ,Verifique"]
        )

    def test_InversaPorBiseccion(self):
        _, t = con_tabla([], [(0, 0), (8, 8)])
        # Q = H; q = 3: midpoints 4 2 3 (3 is not above 3, so low) 3.5 3.25 ... down to a bracket of 2^-10 = 0.000977:
        # 13 halvings of 8; from 3 on the bracket is [3, 3 + 2^-n] and the last midpoint is 3 + 8/2^13.
        self.assertEqual(t.HdeQalma(3.0), 3 + 8 / 2**13)

    def test_InversaDeLagoSinFilas(self):
        s = Siro(AnfitrionDePrueba())
        lago = Lago()
        lago.numLAGO, lago.NombreLAGO = 1, "l-1"
        s.LagoFilas = Vector(0, 1, i16)
        self.assertEqual(TablasLago(s, lago).HdeQalma(1.0), 0.0)


class Hietogramas(unittest.TestCase):
    def _tormenta(self, P, D, paso, distribucion):
        s = Siro(AnfitrionDePrueba())
        s.PpTormenta, s.DurTormenta, s.PasoPp, s.DistriPp = P, D, paso, distribucion
        ConstruyeHietograma(s)
        return s

    def test_ConstanteConUltimoPasoParcial(self):
        # 25 min of 50 mm: 2 mm/min; steps of 10 min give 20, 20, 10, and t = 40 is past 25 + 10.
        s = self._tormenta(50.0, 25, 10, 0)
        self.assertEqual([round(PpDelPaso(s, k), 9) for k in (1, 2, 3, 4)], [20.0, 20.0, 10.0, 0])

    def test_CincoBloques(self):
        # 100 mm in 100 min by 34 31 18 9 8: blocks of 20 min, steps of 20 min, so the steps give the percentages.
        s = self._tormenta(100.0, 100, 20, 2)
        lluvias = [f32(PpDelPaso(s, k)) for k in range(1, 7)]
        for lluvia, esperada in zip(lluvias, (34, 31, 18, 9, 8, 0)):
            self.assertAlmostEqual(lluvia, esperada, places=4)
        self.assertEqual(s.NroPpReal, 5)

    def test_TresBloquesDesde151Minutos(self):
        self.assertEqual(self._tormenta(10.0, 150, 10, 1).NroBloquesPp, 1)
        self.assertEqual(self._tormenta(10.0, 151, 10, 1).NroBloquesPp, 3)
        self.assertEqual(self._tormenta(10.0, 2880, 60, 1).NroBloquesPp, 24)
        self.assertEqual(self._tormenta(10.0, 2881, 60, 1).NroBloquesPp, 48)  # Int(2881/60), no table


def red_de(**destinos):
    """A network by names: u_1 stands for "u-1"; the value is the destination."""
    s = Siro(AnfitrionDePrueba())
    colecciones = {"u": s.ColUEHs, "c": s.ColCauces, "l": s.ColLagos, "r": s.ColRepresas}
    for nombre, destino in destinos.items():
        componente = SimpleNamespace(nombre=nombre.replace("_", "-"), Cauce_aa=destino)
        colecciones[nombre[0]].append(componente)
    s.NroUEHs = len(s.ColUEHs)
    s.AvisoDescargasVisto = True
    return s


class Redes(unittest.TestCase):
    def test_DestinosQueNoLoSon(self):
        self.assertTrue(drena_a("c-1", "c-1"))
        self.assertFalse(drena_a("", ""))
        self.assertFalse(drena_a("0", "0"))

    def test_AguasArribaPrimero(self):
        # c-1 <- c-2 <- c-3 listed downstream first. Place 2 (one UEH): c-2 drains into c-1, swapped: 2 1 3; c-3 drains
        # into c-2, swapped: 3 1 2; nothing drains into c-3. Place 3: c-2 drains into c-1, swapped: 3 2 1.
        s = red_de(u_1="c-3", c_1="", c_2="c-1", c_3="c-2")
        ArmaSecuencia(s)
        OrdenSecuencia(s)
        self.assertEqual(s.Secuencia.datos, ["", "u-1", "c-3", "c-2", "c-1"])

    def test_CicloDeTres(self):
        s = red_de(u_1="c-1", c_1="c-2", c_2="c-3", c_3="c-1")
        ArmaSecuencia(s)
        self.assertRaises(RedCiclica, OrdenSecuencia, s)

    def test_DosSolosNoCuelgan(self):
        s = red_de(c_1="c-2", c_2="c-1")
        ArmaSecuencia(s)
        OrdenSecuencia(s)
        self.assertEqual(s.Secuencia.datos, ["", "c-2", "c-1"])

    def test_UnaSalida(self):
        s = red_de(u_1="c-1", c_1="0")
        ComponenteFinal(s)
        self.assertEqual((s.NroSalidas, s.ErrorRed, s.RedOk, s.Salidas[1]), (1, False, True, "c-1"))

    def test_SinAportes(self):
        s = red_de(u_1="", c_1="0", c_2="c-1", l_1="c-1")
        ComponenteFinal(s)
        self.assertTrue(s.ErrorRed)
        self.assertEqual(len(s.anfitrion.lineas), 2)
        self.assertIn("aportes: c-2             ¿Desea volver", s.anfitrion.lineas[0])
        self.assertIn("Hay Lagos/Mallines sin aportes de UEHs.", s.anfitrion.lineas[1])

    def test_OnceSalidas(self):
        s = red_de(**{"u_%d" % n: "" for n in range(1, 12)})
        ComponenteFinal(s)
        self.assertEqual(s.NroSalidas, 11)
        self.assertEqual(
            s.anfitrion.lineas, ["[SIRO] Error Nro. 9 ,El subíndice está fuera del intervaloVerifique"]
        )


class CorridaEntera(unittest.TestCase):
    """One UEH of 600 ha without losses that drains into a direct reach."""

    def _corre(self, directorio, *opciones):
        p = generador.Proyecto(1, directorio)
        p.opciones["--paso-q"] = "10"
        p.UEHs = [
            {"nombre": "u-1", "area": 600, "longitud": 600, "velocidad": 1, "aa": "c-1, río"}
            | dict.fromkeys(("a", "b", "i", "q0", "k", "z"), 0)
        ]
        p.cauces = [
            {"nombre": "c-1, río", "aa": "", "directo": True, "longitud": 1200, "velocidad": 1, "vertices": 0}
            | {"K": 0, "x": 0}
        ]
        p.N0Dur = 30
        generador.arma_configuracion(p)
        generador.arma_componentes(p)
        generador.escribe(p)
        conf = os.path.join(directorio, "Cuenca_Conf.vlm")
        salida = io.TextIOWrapper(io.BytesIO(), encoding="utf-8")
        with contextlib.redirect_stdout(salida):
            estado = lote.corre(["una", conf, "--trabajo", directorio, *opciones])
        return estado, salida.buffer.getvalue().decode("utf-8")

    def test_HidrogramaAMano(self):
        # 60 mm in 60 min: 10 mm a step of 10 min. 10/10 * 0.166667 * 600 = 100.0002 m3/s for 6 steps. The slope takes
        # 600/1/60 = 10 min: one point a step, the full flow, in steps 1 to 6. The run has (60+30)/10 = 9 steps. The
        # reach takes 1200/1/60 = 20 min = 2 steps: its flow stands in steps 3 to 8.
        with tempfile.TemporaryDirectory() as directorio:
            csv = os.path.join(directorio, "r.csv")
            estado, _ = self._corre(directorio, "--resultados", csv)
            self.assertEqual(estado, 0)
            with open(csv, encoding="utf-8") as archivo:
                renglones = archivo.read().split("\n")
        q = corto32(f32(100.0002))
        esperados = ["componente,p,minutos,qentra,qsale,h,s"]
        for p in range(0, 10):
            esperados.append("u-1,%d,%d,,%s,," % (p, p * 10, q if 1 <= p <= 6 else "0"))
        for p in range(0, 10):
            entra, sale = (q if 1 <= p <= 6 else "0"), (q if 3 <= p <= 8 else "0")
            esperados.append('"c-1, río",%d,%d,%s,%s,,' % (p, p * 10, entra, sale))
        self.assertEqual(renglones, esperados + [""])

    def test_PizarraDelHietograma(self):
        with tempfile.TemporaryDirectory() as directorio:
            estado, texto = self._corre(directorio, "--pizarra")
        self.assertEqual(estado, 0)
        # One block of 60 mm; the time column shows the step of 10 min; 60/60 = 1 mm/min.
        self.assertIn("\r\n 1    10    60         60                       1\r\n", texto)
        # 6 * 100.0002 * 600 s = 360000.72 m3, kept in 32 bits at each step: 360001 rounded to a whole number.
        self.assertIn("\r\nEscorrentía total[m3]    = 360001 m3\r\n", texto)
        self.assertIn("\r\nVolumen Escurrido. Entra = 360001 m3 ; Sale = 360001 m3\r\n", texto)

    def test_LluviaCeroMuestraElEncabezado(self):
        with tempfile.TemporaryDirectory() as directorio:
            estado, texto = self._corre(directorio, "--pizarra", "--pp", "0")
            self.assertFalse(os.path.exists(os.path.join(directorio, "SalePizarra1_tem.txt")))
        self.assertEqual(estado, 1)
        self.assertTrue(texto.startswith("SIRO - Modelo de Simulación Hidrológica\r\n" + directorio + os.sep + "Cuenca"))
        self.assertTrue(texto.endswith("\r\n\r\nSIMULACION LLUVIA-CAUDAL PARA UNA TORMENTA\r\n"))

    def test_LineaDeComandoErrada(self):
        for mal in (["una"], ["una", "a.txt"], ["una", "a_Conf.vlm", "--forma", "2"], ["dos", "a_Conf.vlm"]):
            with contextlib.redirect_stderr(io.StringIO()) as errores:
                self.assertEqual(lote.corre(mal), 2)
            self.assertIn("uso:", errores.getvalue())


class Comparador(unittest.TestCase):
    """The comparer must see what is planted, and nothing else."""

    MOTOR = """#!{python}
import subprocess, sys
hecho = subprocess.run([{python!r}, "-B", {oraculo!r}] + sys.argv[1:], capture_output=True)
{cambio}
sys.stdout.buffer.write(hecho.stdout)
sys.stderr.buffer.write(hecho.stderr)
sys.exit(hecho.returncode)
"""

    SEMILLA = 60  # a sound project: its run leaves a result file

    def _compara(self, cambio):
        semilla = self.SEMILLA
        with tempfile.TemporaryDirectory() as directorio:
            motor = os.path.join(directorio, "motor.py")
            with open(motor, "w", encoding="utf-8") as archivo:
                archivo.write(self.MOTOR.format(python=sys.executable, oraculo=compara.ORACULO, cambio=cambio))
            os.chmod(motor, stat.S_IRWXU)
            carpeta = os.path.join(directorio, "semillas")
            with contextlib.redirect_stdout(io.StringIO()) as dicho:
                estado = compara.principal(
                    ["--siro-lote", motor, "--semillas", str(semilla), "--carpeta", carpeta]
                )
            guardada = os.path.isdir(os.path.join(carpeta, "semilla-%d" % semilla))
        return estado, dicho.getvalue(), guardada

    def test_SinDiferencia(self):
        estado, dicho, guardada = self._compara("")
        self.assertEqual((estado, guardada), (0, False), dicho)

    def test_EstadoDistinto(self):
        estado, dicho, guardada = self._compara("hecho.returncode = 7")
        self.assertEqual((estado, guardada), (1, True))
        self.assertIn("engine 7", dicho)

    def test_ByteCambiadoEnUnArchivo(self):
        cambio = (
            "import glob\n"
            "for ruta in glob.glob('**/Sale*_tem.txt', recursive=True):\n"
            "    datos = open(ruta, 'rb').read()\n"
            "    open(ruta, 'wb').write(datos[:-3] + b'!' + datos[-2:])"
        )
        estado, dicho, _ = self._compara(cambio)
        self.assertEqual(estado, 1)
        self.assertRegex(dicho, r"Sale[A-Za-z0-9]+_tem\.txt, line \d+")

    def test_ErroresDistintos(self):
        estado, dicho, _ = self._compara("hecho.stderr += b'[SIRO] de sobra\\n'")
        self.assertEqual(estado, 1)
        self.assertIn("<stderr>, line", dicho)
        self.assertIn("de sobra", dicho)

    def test_ArchivoDeMas(self):
        estado, dicho, _ = self._compara("open('nuevo.txt', 'w').close()")
        self.assertEqual(estado, 1)
        self.assertIn("nuevo.txt: only the engine left it", dicho)

    def test_LaHoraYElTiempoNoCuentan(self):
        pizarra = b"SIRO - Modelo\r\na\r\nA. P - B - 1/2/26 10:00\r\n\r\nSIMULACION LLUVIA\r\nresto - 5"
        self.assertEqual(
            compara.enmascara(pizarra),
            b"SIRO - Modelo\r\na\r\nA. P - B - (hora)\r\n\r\nSIMULACION LLUVIA\r\nresto - 5",
        )
        tabla = b'"SIRO - Modelo"\r\n"A. P - 1/2/26"\r\n"SIMULACION PARA"\r\n'
        self.assertEqual(
            compara.enmascara(tabla), b'"SIRO - Modelo"\r\n"A. P - (hora)"\r\n"SIMULACION PARA"\r\n'
        )
        self.assertEqual(
            compara.enmascara(b"proceso: Tiempo total del proceso: 0:1:12"),
            b"proceso: Tiempo total del proceso: (tiempo)",
        )

    def test_PrimeraDiferencia(self):
        self.assertIsNone(compara.primera_diferencia(b"a\nb", b"a\nb"))
        self.assertEqual(compara.primera_diferencia(b"a\nb", b"a\nc"), (2, b"b", b"c"))
        self.assertEqual(compara.primera_diferencia(b"a", b"a\n"), (2, None, b""))


class Generador(unittest.TestCase):
    def test_LaMismaSemillaDaLosMismosBytes(self):
        with tempfile.TemporaryDirectory() as directorio:
            lugar = os.path.join(directorio, "p")
            arboles = []
            for _ in range(2):
                orden = generador.genera(11, lugar)
                arboles.append((orden, compara._lee_arbol(lugar)))
                for carpeta, _, nombres in os.walk(lugar, topdown=False):
                    for nombre in nombres:
                        os.remove(os.path.join(carpeta, nombre))
            self.assertEqual(arboles[0], arboles[1])
            self.assertIn("Conf.vlm", arboles[0][0])


if __name__ == "__main__":
    unittest.main()
