# SPDX-License-Identifier: GPL-3.0-or-later
"""Components, run-wide state, message boxes, and the two ways in which a routine handles a fault."""
import os
import re
import sys

from numeros import Falla, Matriz, SinDimensionar, Textos, Vector, f32, i16, i32

MAXIMO_UEHS = 70
MAXIMO_CAUCES = 70
MAXIMO_LAGOS = 70
MAXIMO_REPRESAS = 20
MAXIMO_NRO_VERTICES = 100
MAXIMO_SALIDAS = 10

RECURRENCIAS = (2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000)
DURACIONES = (5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440, 2880)


class UEH:
    def __init__(self):
        self.numUEH = 0
        self.NombreUEH = ""
        self.Area = 0.0
        self.Referencia = ""
        self.LongitudMax = 0.0
        self.VelMedia = 0.0
        self.Metodo = ""
        self.IconoUEHx = self.IconoUEHy = 0.0
        self.XCauce = self.YCauce = 0.0
        self.Cauce_aa = ""
        self.KostiakovA = self.KostiakovB = self.KostiakovI = 0.0
        self.Q0Recesion = self.KRecesion = 0.0
        self.RetensionZ = 0.0

    @property
    def nombre(self):
        return self.NombreUEH


class Cauce:
    def __init__(self):
        self.numCauce = 0
        self.NombreCauce = ""
        self.numVertices = 0
        self.IndiceParInicial = 0
        self.Cauce_aa = ""
        self.VelMediaCauce = self.LongCauce = 0.0
        self.OrdenCauce = 0
        self.Cauce_k_Musk = self.Cauce_n_Musk = 0.0
        self.optDirMusk = False

    @property
    def nombre(self):
        return self.NombreCauce


class Represa:
    def __init__(self):
        self.numRepresa = 0
        self.NombreRepresa = ""
        self.IconoRepresaX = self.IconoRepresaY = 0.0
        self.Metodo = ""
        self.XCauce = self.YCauce = 0.0
        self.Cauce_aa = ""
        self.optTabla = False
        self.chkFQ = [0] * 9  # functions 1 to 8; slot 0 unused
        self.FQa = [0.0] * 9
        self.FQb = [0.0] * 9
        self.FQc = [0.0] * 9  # functions 5 to 8
        self.Represa_k_Musk = self.Represa_n_Musk = 0.0
        self.FQmin = [0.0] * 9
        self.FQMax = [0.0] * 9
        self.HInicialEmb = 0.0

    @property
    def nombre(self):
        return self.NombreRepresa


class Lago:
    def __init__(self):
        self.numLAGO = 0
        self.NombreLAGO = ""
        self.Referencia = ""
        self.Metodo = ""
        self.IconoLAGOx = self.IconoLAGOy = 0.0
        self.XCauce = self.YCauce = 0.0
        self.Cauce_aa = ""
        self.Lago_k_Musk = 0.0
        self.HInicialEmb = 0.0

    @property
    def nombre(self):
        return self.NombreLAGO


class Ranuras:
    """Array of components by number, 1 to maximo. Falla 9 beyond it, Falla 91 where a slot holds nothing."""

    def __init__(self, maximo):
        self.maximo = maximo
        self.objetos = {}

    def __getitem__(self, i):
        if not 0 <= i <= self.maximo:
            raise Falla(9)
        if i not in self.objetos:
            raise Falla(91)
        return self.objetos[i]

    def __setitem__(self, i, objeto):
        if not 0 <= i <= self.maximo:
            raise Falla(9)
        self.objetos[i] = objeto


class FinDelPrograma(Exception):
    """An answer of No, or a fatal message, ends the program."""


class Anfitrion:
    """Message boxes and questions, a line each on standard error, equal ones 999 times; the Slate's text box."""

    def __init__(self, responde_si=True, salida=None):
        self.responde_si = responde_si
        self.salida = salida if salida is not None else sys.stderr.buffer
        self.Text1 = ""
        self._veces = {}  # by line; a line comes in at its 1000th time
        self._muchas = []

    def _linea(self, titulo, texto, cola=""):
        linea = "[" + titulo + "] " + re.sub("\r\n|\r|\n", " / ", texto) + cola
        veces = self._veces[linea] = self._veces.get(linea, 0) + 1
        if veces < 1000:
            self._escribe(linea)
        elif veces == 1000:
            self._muchas.append(linea)

    def _escribe(self, linea):
        self.salida.write((linea + "\n").encode("utf-8", "surrogateescape"))
        self.salida.flush()

    def cuenta_repetidas(self):
        for linea in self._muchas:
            self._escribe("%s (%d veces más)" % (linea, self._veces[linea] - 999))

    def avisa(self, texto, titulo="SIRO"):
        self._linea(titulo, texto)

    def pregunta(self, texto, titulo):
        """True for Yes."""
        self._linea(titulo, texto, " -> Sí" if self.responde_si else " -> No")
        return self.responde_si


class Manejador:
    """A handler that reports a fault and resumes at the next statement.

    `with manejador:` marks one statement; `manejador.cierto(f)` is a test, false where it faults.
    """

    def __init__(self, informa):
        self._informa = informa

    def __enter__(self):
        return self

    def __exit__(self, tipo, falla, traza):
        if tipo is Falla:
            self._informa(falla)
            return True
        return False

    def cierto(self, prueba):
        with self:
            return bool(prueba())
        return False


def texto_error_motor(falla):
    return "Error Nro. %d ,%sVerifique" % (falla.numero, falla.descripcion)


def texto_error_lector(falla):
    return "Error Nro. %d%s ,Verifique" % (falla.numero, falla.descripcion)


def camino(directorio, nombre):
    return directorio + os.sep + nombre


class Siro:
    """The run-wide state of one program."""

    def __init__(self, anfitrion):
        self.anfitrion = anfitrion
        # Directories and project
        self.DirTrabajo = ""
        self.DirProyecto = ""
        self.DirProyectoConf = ""
        self.NombreProyecto = ""
        # Configuration
        self.TituloProyecto = self.Ubicacion = self.Cuenca = self.Subcuenca = self.Operador = ""
        self.DriveProyecto = ""
        self.N0Dur = 10.0
        self.controles = {}
        self.marca_reescribir = False
        self.FlagR = {r: 0 for r in RECURRENCIAS}
        self.FlagD = {d: 0 for d in DURACIONES}
        # Components
        self.vacia_componentes()
        self.UEHs = Ranuras(MAXIMO_UEHS)
        self.Cauces = Ranuras(MAXIMO_CAUCES)
        self.Represas = Ranuras(MAXIMO_REPRESAS)
        self.Lagos = Ranuras(MAXIMO_LAGOS)
        self.NroVertices = Vector(0, MAXIMO_NRO_VERTICES, i16)
        # Tables of reservoirs and lakes
        self.RepresaFilasHAS = self.RepresaH = self.RepresaA = self.RepresaS = SinDimensionar()
        self.RepresaFilasHQ = self.RepresaQH = self.RepresaQQ = SinDimensionar()
        self.LagoFilas = self.LagoH = self.LagoA = self.LagoS = self.LagoQ = SinDimensionar()
        # Storm
        self.PpTormenta = 0.0
        self.DurTormenta = self.RecTormenta = 0
        self.FormaPp = self.DistriPp = self.TablaPDR = 0
        self.PasoPp = self.PasoQ = 0
        self.PpUEH = Vector(0, MAXIMO_UEHS)
        self.PpReal = Vector(0, 0)
        self.NroPpReal = 0
        self.NroSeriePDR = self.IndSerie = 0
        self.SerieP, self.SerieD, self.SerieR = [None], [None], [None]
        self.NroFilasTabla = [0, 0, 0, 0]
        self.DisPerso = Matriz(0, 3, 0, f32)
        self.SaltarTormenta = False
        # Hyetograph
        self.NroBloquesPp = 0
        self.PpAcum = Vector(0, 0)
        self.IntensidadPp = Vector(0, 0)
        self.PpAcumPrevia = 0.0
        # Network
        self.NroComponentes = 0
        self.Secuencia = Textos([""])
        self.NroSalidas = 0
        self.Salidas = [""] * (MAXIMO_SALIDAS + 1)
        self.ErrorRed = self.AvisoDescargasVisto = self.ContinuarSinCorregir = self.RedOk = False
        # Results
        self.NroPasosQ = 0
        self.QSale = self.QEntra = self.PpUEHPaso = SinDimensionar()
        self.QMax = self.EscUEH = self.CoefEscUEH = self.EscTotal = self.CoefEscTotal = SinDimensionar()
        self.VolUEH = self.VolBaseUEH = self.CoefUEH = SinDimensionar()
        self.PasosInfiltra = Vector(0, 0)
        self.HRepresa = self.SRepresa = self.HLago = self.SLago = SinDimensionar()
        self.HActual = self.SActual = self.ACalc = 0.0
        self.VolEntra = self.VolSale = 0.0
        self.QBaseEntra = 0.0
        # Slate
        self.SalidaPizarra = False
        self.TextoPizarra = ""
        self.LineaPizarra = ""

    @property
    def TextoPizarra(self):
        return "".join(self._piezas_pizarra)

    @TextoPizarra.setter
    def TextoPizarra(self, texto):
        self._piezas_pizarra = [texto]

    def anade(self, texto):
        """Adds to the end of TextoPizarra."""
        self._piezas_pizarra.append(texto)

    def vacia_componentes(self):
        self.ColUEHs, self.ColCauces, self.ColRepresas, self.ColLagos = [], [], [], []
        self.NroUEHs = self.NroCauces = self.NroRepresas = self.NroLagos = 0


def vector_f32(maximo):
    return Vector(0, maximo, f32)


def vector_i32(maximo):
    return Vector(0, maximo, i32)


def matriz_f32(maximo1, maximo2, minimo1=0):
    return Matriz(minimo1, maximo1, maximo2, f32)
