# SPDX-License-Identifier: GPL-3.0-or-later
"""The ground under the drawing: which unit each place belongs to, how far its water runs, how high it lies.

Every place belongs to the unit of the nearest stream, and its height grows with the distance to that stream. So
divides run along ridges and streams along valley floors, and what is measured on the map is what the project says.
Arrays are indexed [row, column] on a grid of CELDAS cells per drawing unit, cell centres at (column + 0.5)/CELDAS.
"""

import math

import numpy as np
from PIL import Image, ImageDraw

import cuenca

CELDAS = 2
FILAS, COLUMNAS = cuenca.ALTO * CELDAS, cuenca.ANCHO * CELDAS
AJENO = -1  # label of ground outside the basin
PENDIENTE_ARROYO = 0.075  # of a creek at its foot [m/m]


def Remuestrea(puntos, paso):
    """Points every paso units along a polyline, its vertices included. Rows: x, y, length so far [units]."""
    filas = [(puntos[0][0], puntos[0][1], 0.0)]
    largo = 0.0
    for (x0, y0), (x1, y1) in zip(puntos, puntos[1:]):
        tramo = math.hypot(x1 - x0, y1 - y0)
        n = max(1, math.ceil(tramo / paso))
        for k in range(1, n + 1):
            filas.append((x0 + (x1 - x0) * k / n, y0 + (y1 - y0) * k / n, largo + tramo * k / n))
        largo += tramo
    return np.array(filas)


def CurvaSuave(puntos, partes=8):
    """Uniform Catmull-Rom curve through the points: the stream as a map shows it."""
    p = [puntos[0]] + list(puntos) + [puntos[-1]]
    curva = []
    for a, b, c, d in zip(p, p[1:], p[2:], p[3:]):
        for k in range(partes):
            t = k / partes
            curva.append(tuple(
                0.5 * (2 * b[i] + (c[i] - a[i]) * t + (2 * a[i] - 5 * b[i] + 4 * c[i] - d[i]) * t * t
                       + (3 * b[i] - a[i] - 3 * c[i] + d[i]) * t * t * t) for i in (0, 1)))
    curva.append(tuple(puntos[-1]))
    return curva


def ContornoSuave(contorno):
    """Smooth closed outline through the points."""
    vuelta = CurvaSuave([contorno[-2], contorno[-1]] + list(contorno) + [contorno[0], contorno[1]])
    return vuelta[16:16 + 8 * len(contorno)]


def Lado(puntos, distancia):
    """The polyline shifted to one side: to the left bank of a reach drawn from its mouth where distancia > 0."""
    salida = []
    for i, (x, y) in enumerate(puntos):
        x0, y0 = puntos[max(i - 1, 0)]
        x1, y1 = puntos[min(i + 1, len(puntos) - 1)]
        largo = math.hypot(x1 - x0, y1 - y0)
        salida.append((x - (y1 - y0) / largo * distancia, y + (x1 - x0) / largo * distancia))
    return salida


class Fuentes:
    """Stream points from which ground is measured. Columns: x, y [units], label, distance still to run to the first
    reach or water body [m], bed level [m]."""

    def __init__(self):
        self.filas = []

    def Agrega(self, puntos, etiqueta, recorrido, cota):
        for (x, y, s) in Remuestrea(CurvaSuave(puntos), 0.5):
            metros = s * cuenca.METROS_POR_UNIDAD
            self.filas.append((x, y, etiqueta, recorrido(metros), cota(metros, x, y)))

    def Cercana(self, x, y):
        return min(self.filas, key=lambda f: (f[0] - x) ** 2 + (f[1] - y) ** 2)


def CotasDeCauces():
    """Bed level at the mouth of each reach [m]."""
    alta = {c.nombre: c.cota_alta for c in cuenca.CAUCES}
    cuerpos = {"r-Quelmar": 730, "l-Huillín": 790, "0": 612}
    return {c.nombre: alta.get(c.aguas_abajo, cuerpos.get(c.aguas_abajo)) for c in cuenca.CAUCES}


def ReuneFuentes():
    fuentes = Fuentes()
    bajas = CotasDeCauces()
    cauces = {c.nombre: c for c in cuenca.CAUCES}
    for i, ueh in enumerate(cuenca.UEHS):
        for nombre, lado in ueh.laderas:
            c = cauces[nombre]
            largo = Remuestrea(c.vertices, 1)[-1, 2] * cuenca.METROS_POR_UNIDAD
            baja, alta = bajas[nombre], c.cota_alta
            desvio = {"ambas": 0, "derecha": -0.4, "izquierda": 0.4}[lado]
            puntos = Lado(c.vertices, desvio) if desvio else c.vertices
            fuentes.Agrega(puntos, i, lambda s: 0.0, lambda s, x, y: baja + (alta - baja) * min(1, s / largo))
    nombres = [u.nombre for u in cuenca.UEHS]
    for espejo in cuenca.ESPEJOS:
        cota = espejo.cota
        fuentes.Agrega(list(espejo.contorno) + [espejo.contorno[0]], nombres.index(espejo.ueh), lambda s: 0.0,
                       lambda s, x, y: cota)
    for i, ueh in enumerate(cuenca.UEHS):
        for arroyo in ueh.arroyos:
            pie = fuentes.Cercana(*arroyo[0])
            z0, r0 = pie[4], pie[3] if pie[2] == i else 0.0
            fuentes.Agrega(arroyo, i, lambda s: r0 + s,
                           lambda s, x, y: z0 + PENDIENTE_ARROYO * s + 0.00004 * s * s)
    for vecino in cuenca.VECINOS:
        fuentes.Agrega(vecino, AJENO, lambda s: 0.0,
                       lambda s, x, y: 790 + 0.36 * (cuenca.ANCHO - x) - 0.5 * abs(y - cuenca.ALTO / 2))
    fuentes.Agrega(cuenca.AGUAS_ABAJO, AJENO, lambda s: 0.0, lambda s, x, y: 612 - 0.02 * s)
    return np.array(fuentes.filas)


def MasCercana(fuentes):
    """Index of the nearest source of every cell, by jump flooding (Rong and Tan, 2006), and its distance [units]."""
    indice = np.full((FILAS, COLUMNAS), -1, dtype=np.int32)
    col = np.clip((fuentes[:, 0] * CELDAS).astype(int), 0, COLUMNAS - 1)
    fil = np.clip((fuentes[:, 1] * CELDAS).astype(int), 0, FILAS - 1)
    indice[fil[::-1], col[::-1]] = np.arange(len(fuentes))[::-1]  # the first of several in a cell stays
    x = (np.arange(COLUMNAS) + 0.5) / CELDAS
    y = ((np.arange(FILAS) + 0.5) / CELDAS)[:, None]

    def Distancia(i):
        return np.where(i >= 0, (fuentes[i, 0] - x) ** 2 + (fuentes[i, 1] - y) ** 2, np.inf)

    mejor = Distancia(indice)
    salto = 1024
    saltos = []
    while salto:
        saltos.append(salto)
        salto //= 2
    for salto in saltos + [2, 1]:
        previo = indice.copy()
        for df in (-salto, 0, salto):
            for dc in (-salto, 0, salto):
                if df == dc == 0:
                    continue
                otro = np.full_like(previo, -1)
                fd, ff = slice(max(0, df), FILAS + min(0, df)), slice(max(0, -df), FILAS + min(0, -df))
                cd, cf = slice(max(0, dc), COLUMNAS + min(0, dc)), slice(max(0, -dc), COLUMNAS + min(0, -dc))
                if fd.start >= fd.stop or cd.start >= cd.stop:
                    continue
                otro[fd, cd] = previo[ff, cf]
                d = Distancia(otro)
                gana = d < mejor
                indice[gana] = otro[gana]
                mejor[gana] = d[gana]
    return indice, np.sqrt(mejor)


def Promedia(z, radio, vueltas=3):
    """Box blur repeated, close to a Gaussian; radio in cells."""
    for _ in range(vueltas):
        for eje in (0, 1):
            relleno = [(0, 0), (0, 0)]
            relleno[eje] = (radio + 1, radio)
            suma = np.cumsum(np.pad(z, relleno, mode="edge"), axis=eje)
            if eje == 0:
                z = (suma[2 * radio + 1:] - suma[:-2 * radio - 1]) / (2 * radio + 1)
            else:
                z = (suma[:, 2 * radio + 1:] - suma[:, :-2 * radio - 1]) / (2 * radio + 1)
    return z


def Ruido(octavas, base, semilla, persistencia=0.55):
    """Value noise of several octaves, the longest of base cells, seldom beyond -1..1, the same on every machine."""
    rng = np.random.RandomState(semilla)  # its stream is frozen by its authors
    total = np.zeros((FILAS, COLUMNAS))
    for o in range(octavas):
        paso = max(2, base >> o)
        nudos = rng.uniform(-1, 1, (FILAS // paso + 3, COLUMNAS // paso + 3))
        f, c = np.arange(FILAS) / paso, np.arange(COLUMNAS) / paso
        fi, ci = f.astype(int), c.astype(int)
        ft, ct = f - fi, c - ci
        ft, ct = (ft * ft * (3 - 2 * ft))[:, None], ct * ct * (3 - 2 * ct)
        arriba = nudos[fi][:, ci] * (1 - ct) + nudos[fi][:, ci + 1] * ct
        abajo = nudos[fi + 1][:, ci] * (1 - ct) + nudos[fi + 1][:, ci + 1] * ct
        total += (arriba * (1 - ft) + abajo * ft) * persistencia ** o
    return total


def Ondula(indice, distancia):
    """Makes divides wander as they do in nature: each place looks up its stream a little to one side. The shift
    is shorter than the distance to the stream, so that no stream is ever crossed, and none at the stream itself."""
    amplitud = CELDAS * 8 * np.minimum(distancia / 20, 1)
    f = np.arange(FILAS)[:, None] + amplitud * Ruido(3, 72, 11, 0.36)
    c = np.arange(COLUMNAS) + amplitud * Ruido(3, 72, 12, 0.36)
    f = np.clip(np.rint(f), 0, FILAS - 1).astype(int)
    c = np.clip(np.rint(c), 0, COLUMNAS - 1).astype(int)
    return indice[f, c], distancia[f, c]


def Mascara(contorno):
    """Cells inside a closed outline."""
    imagen = Image.new("1", (COLUMNAS, FILAS))
    ImageDraw.Draw(imagen).polygon([(x * CELDAS, y * CELDAS) for x, y in contorno], fill=1)
    return np.array(imagen, dtype=bool)


def AreaEspejo(espejo):
    """Water surface as the map draws it [ha]."""
    p = ContornoSuave(espejo.contorno)
    doble = sum(x0 * y1 - x1 * y0 for (x0, y0), (x1, y1) in zip(p, p[1:] + p[:1]))
    return abs(doble) / 2 * cuenca.METROS_POR_UNIDAD ** 2 / 10000


class Terreno:
    def __init__(self):
        fuentes = ReuneFuentes()
        indice, distancia = Ondula(*MasCercana(fuentes))
        self.etiqueta = fuentes[indice, 2].astype(int)
        metros = distancia * cuenca.METROS_POR_UNIDAD
        self.recorrido = metros + fuentes[indice, 3]
        self.cota = self._Cota(fuentes[indice, 4], metros)
        nombres = [u.nombre for u in cuenca.UEHS]
        for espejo in cuenca.ESPEJOS:  # rain on the water counts with the slopes around it
            agua = Mascara(ContornoSuave(espejo.contorno))
            self.etiqueta[agua] = nombres.index(espejo.ueh)
            self.recorrido[agua] = 0
            self.cota[agua] = espejo.cota

    def _Cota(self, lecho, metros):
        x = (np.arange(COLUMNAS) + 0.5) / COLUMNAS
        empinado = 0.42 - 0.27 * x  # valley sides get gentler towards the plain [m/m]
        relieve = empinado * metros * (1 - 0.18 * np.minimum(metros / 900, 1))
        ondas = Ruido(5, 64, 7)
        return Promedia(lecho, 9) + Promedia(relieve, 2, 2) * (1 + 0.22 * ondas) + 2.5 * ondas

    def Area(self, i):
        """Area of unit i [ha], whole."""
        celdas = np.count_nonzero(self.etiqueta == i)
        return round(celdas * (cuenca.METROS_POR_UNIDAD / CELDAS) ** 2 / 10000)

    def LongitudMax(self, i):
        """Longest way of a drop of unit i to its reach or water body [m], to 10 m."""
        return round(float(self.recorrido[self.etiqueta == i].max()) / 10) * 10
