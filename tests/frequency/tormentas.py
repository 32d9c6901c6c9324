#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Storms a second time, with 20 digits, against siro-lote over random curves, durations, steps, peaks.

  tormentas.py --siro-lote COMMAND [--muestras N] [--semilla S]

Chicago's and the balanced storm are integrals of Keifer and Chu's intensities over each step; alternating blocks are
sorted and laid out anew; periods are cut with fractions. A depth that differs by more than 1e-9 of the storm's is a
failure, and so are whole percentages that don't add up to 100 or aren't those of the largest remainders.
"""
import argparse
import csv
import io
import random
import shlex
import subprocess
import sys
from fractions import Fraction

try:
    import mpmath as mp
    from mpmath import mpf
except ImportError:
    print("no mpmath")
    sys.exit(77)

mp.mp.dps = 20
TOLERANCIA = mpf("1e-9")


class Curva:
    """i = k T^a / (d + b)^c in mm/h, d in minutes."""

    def __init__(self, azar):
        self.k, self.a = azar.randint(300, 2000), round(azar.uniform(0.1, 0.3), 3)
        self.b, self.c = azar.randint(1, 30), round(azar.uniform(0.5, 0.95), 3)
        self.T = azar.choice((2, 5, 10, 25, 50, 100, 1000))
        self.cabeza = mpf(self.k) * mpf(self.T)**mpf(str(self.a)) / 60

    def texto(self):
        return ["--coeficientes", f"k={self.k},a={self.a},b={self.b},c={self.c}", "--rec", str(self.T)]

    def lamina(self, d):
        return self.cabeza * d / (d + self.b)**mpf(str(self.c))

    def instante(self, d):
        """How fast the depth grows with the duration [mm/min]."""
        c = mpf(str(self.c))
        return self.cabeza * ((1 - c) * d + self.b) / (d + self.b)**(1 + c)


def con_pico(curva, duracion, paso, r):
    pico = r * duracion

    def intensidad(t):
        return curva.instante((pico - t) / r if t < pico else (t - pico) / (1 - r))

    laminas = []
    for i in range(duracion // paso):
        lugares = [mpf(i * paso), mpf((i + 1) * paso)]
        if lugares[0] < pico < lugares[1]:
            lugares.insert(1, pico)
        laminas.append(mp.quad(intensidad, lugares))
    return laminas


def bloques(curva, duracion, paso):
    acumulada = [curva.lamina(mpf(i * paso)) for i in range(duracion // paso + 1)]
    orden = sorted((b - a for a, b in zip(acumulada, acumulada[1:])), reverse=True)
    izquierda, derecha = [], []
    for i, x in enumerate(orden[1:]):
        (derecha if i % 2 == 0 else izquierda).append(x)
    return izquierda[::-1] + orden[:1] + derecha


def por_periodos(periodos, n, total):
    def hasta(parte):
        lugar, suma = parte * len(periodos), Fraction(0)
        for i, x in enumerate(periodos):
            suma += x * min(max(lugar - i, Fraction(0)), Fraction(1))
        return suma / sum(periodos)

    return [mpf(p.numerator) / p.denominator * total
            for p in (hasta(Fraction(i + 1, n)) - hasta(Fraction(i, n)) for i in range(n))]


def sortea(azar):
    paso = azar.choice((1, 5, 6, 10, 15, 30))
    duracion = paso * azar.randint(1, min(24, 1440 // paso))
    patron = azar.choice(("bloques", "chicago", "equilibrada", "propia"))
    orden = ["--patron", patron, "--dur", str(duracion), "--paso", str(paso)]
    if patron == "propia":
        periodos = [Fraction(azar.randint(0, 400), 10) for _ in range(azar.randint(1, 20))]
        periodos[azar.randrange(len(periodos))] += 1
        total = mpf(azar.randint(1, 3000)) / 10
        orden += ["--pp", mp.nstr(total, 10), "--periodos", ",".join(str(float(x)) for x in periodos)]
        return patron, orden, por_periodos(periodos, duracion // paso, total)
    curva = Curva(azar)
    orden += curva.texto()
    if patron == "bloques":
        return patron, orden, bloques(curva, duracion, paso)
    r = mpf("0.5")
    if patron == "chicago":
        r = mpf(azar.randint(5, 95)) / 100
        orden += ["--avance", mp.nstr(r, 4)]
    return patron, orden, con_pico(curva, duracion, paso, r)


def por_mayor_resto(porcentajes, laminas):
    """Whether they add up to 100 and none was raised that had less left over than one that was cut."""
    exactos = [100 * x / sum(laminas) for x in laminas]
    subidos = [e - mp.floor(e) for e, p in zip(exactos, porcentajes) if p > e]
    cortados = [e - mp.floor(e) for e, p in zip(exactos, porcentajes) if p <= e]
    return (sum(porcentajes) == 100 and all(abs(e - p) < 1 for e, p in zip(exactos, porcentajes))
            and (not subidos or not cortados or min(subidos) > max(cortados) - mpf("1e-9")))


def main():
    opciones = argparse.ArgumentParser()
    opciones.add_argument("--siro-lote", required=True, metavar="COMMAND")
    opciones.add_argument("--muestras", type=int, default=60)
    opciones.add_argument("--semilla", type=int, default=1)
    o = opciones.parse_args()
    azar = random.Random(o.semilla)
    peores, cuantas, mal = {}, {}, 0
    for _ in range(o.muestras):
        patron, orden, suyas = sortea(azar)
        pedido = [*shlex.split(o.siro_lote), "tormenta", "--csv", *orden]
        texto = subprocess.run(pedido, capture_output=True, check=True, text=True)
        filas = list(csv.DictReader(io.StringIO(texto.stdout)))
        total = sum(suyas)
        desvio = max(abs(mpf(f["lamina"]) - x) for f, x in zip(filas, suyas, strict=True)) / total
        peores[patron] = max(peores.get(patron, mpf(0)), desvio)
        cuantas[patron] = cuantas.get(patron, 0) + len(filas)
        porcentajes = [int(f["porcentaje"]) for f in filas]
        corre = max(abs(mpf(f["corrida"]) - total * p / 100) for f, p in zip(filas, porcentajes)) / total
        if desvio > TOLERANCIA or corre > mpf("1e-6") or not por_mayor_resto(porcentajes, suyas):
            print("differs:", *orden, mp.nstr(desvio, 3), mp.nstr(corre, 3))
            mal += 1
    for patron in sorted(peores):
        print(f"{patron:12} {cuantas[patron]:6} steps {mp.nstr(peores[patron], 3):>10}")
    print(f"{o.muestras} storms")
    return 1 if mal or len(peores) < 4 else 0


if __name__ == "__main__":
    sys.exit(main())
