#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The rows of eficiencia_busqueda as the table and the chart of docs/calibracion.md.

    eficiencia.py filas.csv docs/img/eficiencia_busqueda.svg

Prints the table; what is lost is against the best score that any row of the same network and noise has.
"""
import csv
import statistics
import sys
from collections import defaultdict

NOMBRES = {"sce": "SCE-UA", "subplex": "Subplex", "dds": "DDS"}
TRAZOS = {"sce": ("#1b4f8a", ""), "subplex": ("#b5541c", "6 3"), "dds": ("#3d7a3d", "2 3")}
ANCHO, ALTO, MARGEN, PISO = 330, 250, 52, 1e-6


def lee(ruta):
    filas = list(csv.DictReader(open(ruta, encoding="utf-8")))
    mejor = defaultdict(lambda: -9e9)
    for f in filas:
        clave = (f["parametros"], f["ruido"])
        mejor[clave] = max(mejor[clave], float(f["nse"]))
    perdidas = defaultdict(list)
    for f in filas:
        clave = (f["parametros"], f["ruido"])
        perdidas[clave, f["metodo"], int(f["corridas"])].append(mejor[clave] - float(f["nse"]))
    return perdidas


def tabla(perdidas):
    print("| Parámetros | Ruido | Método | Corridas | Semillas | Mediana | Peor |\n|---|---|---|---|---|---|---|")
    for ((parametros, ruido), metodo, corridas), x in perdidas.items():
        print(f"| {parametros} | {float(ruido):.0%} | {NOMBRES[metodo]} | {corridas} | {len(x)} "
              f"| {statistics.median(x):.5f} | {max(x):.5f} |")


def panel(perdidas, cual, desde, salida):
    from math import log10
    presupuestos = sorted({c for (k, _, c) in perdidas if k == cual})
    x = lambda c: desde + MARGEN + (ANCHO - MARGEN - 14) * log10(c / presupuestos[0]) / log10(
        presupuestos[-1] / presupuestos[0])
    y = lambda p: 34 + (ALTO - 74) * (0 - log10(max(p, PISO))) / 6
    texto = lambda a, b, t, ancla="middle": salida.append(
        f'<text x="{a:.1f}" y="{b:.1f}" text-anchor="{ancla}">{t}</text>')
    texto(desde + ANCHO / 2, 18, f"{cual[0]} parámetros, ruido {float(cual[1]):.0%}".replace("%", " %"))
    for e in range(0, -7, -1):
        salida.append(f'<path d="M{desde + MARGEN} {y(10.0 ** e):.1f}H{desde + ANCHO - 14}" stroke="#ddd"/>')
        texto(desde + MARGEN - 5, y(10.0 ** e) + 4, f"1e{e}" if e else "1", "end")
    for c in presupuestos:
        texto(x(c), ALTO - 22, str(c))
    texto(desde + ANCHO / 2, ALTO - 6, "corridas")
    for metodo, (color, trazo) in TRAZOS.items():
        puntos = [(c, statistics.median(perdidas[cual, metodo, c])) for c in presupuestos
                  if (cual, metodo, c) in perdidas]
        linea = " ".join(f"{x(c):.1f},{y(p):.1f}" for c, p in puntos)
        salida.append(f'<polyline points="{linea}" fill="none" stroke="{color}" stroke-width="2" '
                      f'stroke-dasharray="{trazo}"/>')
        for c, p in puntos:
            salida.append(f'<circle cx="{x(c):.1f}" cy="{y(p):.1f}" r="3" fill="{color}"/>')


def dibuja(perdidas, ruta):
    cuales = list(dict.fromkeys(k for (k, _, _) in perdidas))
    salida = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{ANCHO * len(cuales)}" height="{ALTO + 22}" '
              'font-family="sans-serif" font-size="11"><rect width="100%" height="100%" fill="white"/>']
    for i, cual in enumerate(cuales):
        panel(perdidas, cual, ANCHO * i, salida)
    for i, (metodo, (color, trazo)) in enumerate(TRAZOS.items()):
        salida.append(f'<path d="M{20 + 110 * i} {ALTO + 10}h30" stroke="{color}" stroke-width="2" '
                      f'stroke-dasharray="{trazo}"/><text x="{55 + 110 * i}" y="{ALTO + 14}">{NOMBRES[metodo]}</text>')
    open(ruta, "w", encoding="utf-8").write("\n".join(salida) + "\n</svg>\n")


if __name__ == "__main__":
    datos = lee(sys.argv[1])
    tabla(datos)
    dibuja(datos, sys.argv[2])
