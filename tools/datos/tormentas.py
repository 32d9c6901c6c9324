# SPDX-License-Identifier: GPL-3.0-or-later
"""The rain that is delivered: table of storms of the region, personal distributions, sample storms, short list."""

import random

from registros import Guarda

RECURRENCIAS = (2, 5, 10, 20, 25, 40, 50, 100, 200, 1000)
DURACIONES = (10, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440)
DURACIONES_VALIDAS = (5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1440, 2880, 1080)
RECURRENCIAS_VALIDAS = (2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000)


def Lamina(recurrencia, duracion):
    """Depth [mm] of a storm of that recurrence [years] and duration [min]: Sherman's relation
    i = 822*R^0.2/(D + 10)^0.8 mm/h, taken over D."""
    return 13.7 * recurrencia ** 0.2 * duracion / (duracion + 10) ** 0.8


def FilasPDR(recurrencias, duraciones):
    filas = [(round(Lamina(r, d)), d, r) for r in recurrencias for d in duraciones]
    for antes, fila in zip(filas, filas[1:]):
        if fila[2] == antes[2]:
            assert fila[0] > antes[0] and fila[1] > antes[1], fila
    por_duracion = {}
    for p, d, r in filas:
        assert d in DURACIONES_VALIDAS and r in RECURRENCIAS_VALIDAS and p > por_duracion.get(d, 0), (p, d, r)
        por_duracion[d] = p
    return filas


def GuardaTablasPDR(datos):
    tablas = [
        ("Tabla por defecto: Valle Inferior del Río Sorelo (Ruvera). Intensidad i [mm/h] = 822 * R^0.2 / (D+10)^0.8, "
         "con R en años y D en minutos; láminas en mm enteros",
         FilasPDR(RECURRENCIAS, DURACIONES)),
        ("Serie corta de prueba, con la misma relación que la Tabla 0", FilasPDR((10, 50, 100), (30, 60, 120, 240))),
        ("", []), ("", [])]
    filas = [tuple(len(f) for _, f in tablas)]
    for notas, tabla in tablas:
        filas += [(notas,)] + tabla
    Guarda(datos / "TablasPDRs_pdr.vlm", filas)


def Enteros(partes, total):
    """Whole numbers in proportion to partes that add up to total, by largest remainders."""
    exactos = [p * total / sum(partes) for p in partes]
    enteros = [int(e) for e in exactos]
    for i in sorted(range(len(partes)), key=lambda i: enteros[i] - exactos[i])[:total - sum(enteros)]:
        enteros[i] += 1
    return enteros


def BloquesAlternos(bloques, minutos):
    """Shares [%] of a storm of equal blocks by the alternating block method (Chow, Maidment and Mays, 1988, 14.4):
    the increments of the depth-duration curve, the largest in the middle, the next to its right and left in turn."""
    laminas = [Lamina(1, k * minutos) for k in range(bloques + 1)]
    incrementos = sorted((b - a for a, b in zip(laminas, laminas[1:])), reverse=True)
    orden = []
    for k, incremento in enumerate(incrementos):
        orden = orden + [incremento] if k % 2 == 0 else [incremento] + orden
    return Enteros(orden, 100)


def GuardaDistribuciones(datos):
    tablas = [
        ("Chaparrón convectivo: lo más intenso en la primera mitad", 10, 180,
         [8, 22, 26, 15, 9, 7, 5, 4, 3, 1]),
        ("Bloques alternos de la relación intensidad-duración de la Tabla 0, tormenta de 12 horas", 360, 1440,
         BloquesAlternos(12, 60)),
        ("Temporal frontal: lluvia suave que crece hasta el último tercio", 360, 1440,
         [3, 4, 5, 6, 8, 10, 13, 18, 15, 9, 6, 3])]
    filas = [tuple(len(p) for *_, p in tablas)]
    for notas, desde, hasta, partes in tablas:
        assert sum(partes) == 100, notas
        filas += [(notas,), (desde, hasta)] + [(p,) for p in partes]
    Guarda(datos / "distriPp_dpt.vlm", filas)


def Pluviograma(total, resolucion, intervalos, partes, semilla):
    """Depths [mm] of a recorded storm: the shares partes [%] over equal parts of its duration, gusty inside them, read
    to the instrument's resolution."""
    azar = random.Random(semilla)
    pesos = [0.4 + azar.random() ** 2 * 1.6 for _ in range(intervalos)]
    por_bloque = intervalos / len(partes)
    lluvia = [0.0] * intervalos
    for b, parte in enumerate(partes):
        # an interval on the edge of two blocks takes from each by the length that lies in it
        largos = [max(0.0, min(j + 1, (b + 1) * por_bloque) - max(j, b * por_bloque)) for j in range(intervalos)]
        suma = sum(largo * peso for largo, peso in zip(largos, pesos))
        for j in range(intervalos):
            lluvia[j] += total * parte / 100 * largos[j] * pesos[j] / suma
    leido, acumulado, hasta = [], 0.0, 0
    for h in lluvia:
        acumulado += h
        marcas = round(acumulado / resolucion)
        leido.append((marcas - hasta) * resolucion)
        hasta = marcas
    assert sum(leido) == total
    return leido


def MinutosDelDia(hora):
    """Minutes since midnight of an hour hh:mm."""
    return int(hora[:2]) * 60 + int(hora[3:])


def GuardaTormentas(datos, proyectos):
    GuardaTablasPDR(datos)
    GuardaDistribuciones(datos)
    # name, notes, step [min], start, end, depth [mm], reading [mm], shares [%], seed
    tormentas = [
        ("Ruvera 100592 EVIS",
         "Ruvera, temporal del 10 al 12/5/92, estación EVIS: las 24 horas más lluviosas, leídas el 12/5/92 a las 8 h",
         30, ("11/05/1992", "08:00"), ("12/05/1992", "08:00"), 86.5, 0.5, [34, 31, 18, 9, 8], 1992),
        ("Ruvera 170276 ",
         "Ruvera, tormenta de verano del 17/2/76, 24 horas, banda de pluviógrafo leída cada hora",
         60, ("17/02/1976", "16:00"), ("18/02/1976", "16:00"), 104.0, 0.5, [42, 26, 23, 7, 2], 1976),
        ("Ruvera 230498 EVIS",
         "Ruvera, temporal del 23 y 24/4/98, estación EVIS, 48 horas, lecturas horarias",
         60, ("23/04/1998", "00:00"), ("25/04/1998", "00:00"), 142.5, 0.5, [6, 20, 18, 34, 22], 1998),
        ("Ruvera 060402 AERO",
         "Ruvera, tormenta del 6/4/02, estación del aeródromo, 8 horas, registro cada 10 minutos",
         10, ("06/04/2002", "13:30"), ("06/04/2002", "21:30"), 58.25, 0.25, [3, 8, 21, 33, 17, 10, 6, 2], 2002)]
    for nombre, notas, paso, inicio, fin, total, resolucion, partes, semilla in tormentas:
        dias = int(fin[0][:2]) - int(inicio[0][:2])
        minutos = dias * 1440 + MinutosDelDia(fin[1]) - MinutosDelDia(inicio[1])
        laminas = Pluviograma(total, resolucion, minutos // paso, partes, semilla)
        Guarda(proyectos / f"{nombre}_pt.vlm",
               [(notas,), (len(laminas), paso), inicio, fin] + [(h,) for h in laminas])
    lista = [(60, 50), (60, 10), (120, 25), (120, 100), (360, 100), (1440, 100)]
    Guarda(proyectos / "ListaPDR.vlm", [(float(round(Lamina(r, d))), d, r) for d, r in lista])
