#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Curves of intensity a second time, with 25 digits, against siro-lote over random stations.

  independiente_idf.py --siro-lote COMMAND [--estaciones N] [--semilla S]

Of each station: the quantiles of Gumbel's law by its formula and their disaggregation by the methods' formulas are the
points; of each family and criterion, the coefficients by Newton's method on the squares' gradient in 25 digits, from
those of the program; the intensities with both. The sum of squares must not be less anywhere on a coarse lattice of the
coefficients that the problem isn't linear in. More than 1e-6 of a value is a failure.
"""
import argparse
import functools
import json
import os
import random
import shlex
import subprocess
import sys
import tempfile

try:
    import mpmath as mp
    from mpmath import mpf
except ImportError:
    print("no mpmath")
    sys.exit(77)

mp.mp.dps = 25
TOLERANCIA = mpf("1e-6")


@functools.cache
def phi(T):
    return mpf("2.584458") * mp.log(T) ** mpf("0.375") - mpf("2.252573")


@functools.cache
def delta(d):
    return mp.log(d) ** (mpf(5) / 3)


# Symbols of the coefficients; logarithm of the intensity, exp(x[0]) being the scale where there is one.
FAMILIAS = {
    "sherman": ("kabc", lambda x, d, T: x[0] + x[1] * mp.log(T) - x[3] * mp.log(d + x[2])),
    "bernard": ("kan", lambda x, d, T: x[0] + x[1] * mp.log(T) - x[2] * mp.log(d)),
    "talbot": ("kab", lambda x, d, T: x[0] + x[1] * mp.log(T) - mp.log(d + x[2])),
    "wenzel": ("kafe", lambda x, d, T: x[0] + x[1] * mp.log(T) - mp.log(d ** x[3] + x[2])),
    "dit": ("ABC", lambda x, d, T: x[0] * phi(T) - x[1] * delta(d) + x[2]),
    "libre": ("abc", lambda x, d, T: x[0] - x[2] * mp.log(d + x[1])),
}
CORRIMIENTO = {"sherman": 2, "talbot": 2, "wenzel": 2, "libre": 1}  # bounded by 0


# --- disaggregation ----------------------------------------------------------------------------------------------------
def parte(metodo, d, c):
    t, u = d / 60, mpf(28) ** mpf("0.1")
    if metodo == "dick-peschke":
        return (d / 1440) ** mpf("0.25")
    if metodo == "5.2-ic":
        return t / 24 * c["I1Id"] ** ((u - t ** mpf("0.1")) / (u - 1))
    if metodo == "5.2-ic-2016":
        return t / 24 * c["I1Id"] ** (mpf("3.5287") - mpf("2.5287") * t ** mpf("0.1"))
    return d / 1440 * mp.exp(c["B"] * (delta(mpf(1440)) - delta(d)))


def corre(programa, archivo, opciones):
    orden = [*shlex.split(programa), "idf", archivo, "--ley", "gumbel", "--json", *opciones]
    salida = subprocess.run(orden, capture_output=True, check=True, text=True).stdout
    return json.loads(salida)


# --- fits --------------------------------------------------------------------------------------------------------------
def costo(f, x, puntos, relativo):
    suma = mpf(0)
    for d, T, i in puntos:
        r = f(x, d, T) - mp.log(i)
        suma += (mp.expm1(r) if relativo else r) ** 2
    return suma


def minimo(f, x, puntos, relativo, fijos):
    """Newton on the gradient, its derivatives by differences in 25 digits."""
    libres = [k for k in range(len(x)) if k not in fijos]
    h = mpf("1e-8")

    def g(y):
        lista = []
        for k in libres:
            a, b = list(y), list(y)
            a[k] += h
            b[k] -= h
            lista.append((costo(f, a, puntos, relativo) - costo(f, b, puntos, relativo)) / (2 * h))
        return lista

    x = list(x)
    for _ in range(2):
        g0 = g(x)
        H = mp.matrix(len(libres), len(libres))
        for j, k in enumerate(libres):
            a, b = list(x), list(x)
            a[k] += h
            b[k] -= h
            ga, gb = g(a), g(b)
            for i in range(len(libres)):
                H[i, j] = (ga[i] - gb[i]) / (2 * h)
        paso = mp.lu_solve(H, mp.matrix(g0))
        for j, k in enumerate(libres):
            x[k] -= paso[j]
        if max(abs(p) for p in paso) < mpf("1e-15"):
            break
    return x


def compara(familia, coeficientes, puntos, relativo):
    """The farthest intensity, and whether a lattice knows a smaller sum."""
    simbolos, f = FAMILIAS[familia]
    x = [mpf(coeficientes[s]) for s in simbolos]
    if familia != "dit":
        x[0] = mp.log(x[0])
    lugar = CORRIMIENTO.get(familia)
    fijos = {lugar} if lugar is not None and x[lugar] == 0 else set()
    y = minimo(f, x, puntos, relativo, fijos)
    peor = max(abs(mp.expm1(f(x, d, T) - f(y, d, T))) for d, T, _ in puntos)
    suyo = costo(f, x, puntos, relativo)
    menos = False
    if lugar is not None:
        for b in (0, 10, 100):
            otro = list(x)
            otro[lugar] = mpf(b)
            try:
                otro = minimo(f, otro, puntos, False, {lugar} | ({3} if familia == "wenzel" else set()))
            except ZeroDivisionError:
                continue
            menos = menos or costo(f, otro, puntos, relativo) < suyo * (1 - mpf("1e-9")) - mpf("1e-20")
    return peor, menos


def una(programa, azar, numero):
    alfa, xi = azar.uniform(8, 30), azar.uniform(40, 90)
    metodo = azar.choice(("dick-peschke", "5.2-ic", "5.2-ic-2016", "dit"))
    c = {"I1Id": mpf(str(round(azar.uniform(6, 13), 1))), "B": mpf(str(round(azar.uniform(0.12, 0.18), 3)))}
    familia, relativo = list(FAMILIAS)[numero % len(FAMILIAS)], numero // len(FAMILIAS) % 2 == 1
    with tempfile.NamedTemporaryFile("w", suffix=".csv", delete=False) as archivo:
        for i in range(azar.randint(15, 50)):
            archivo.write(f"{1960 + i};{round(xi - alfa * float(mp.log(azar.expovariate(1))), 1)}\n")
    try:
        r = corre(programa, archivo.name,
                  ["--familia", familia, "--criterio", "relativo" if relativo else "log", "--desagregacion", metodo,
                   "--coeficientes", ",".join(f"{k}={mp.nstr(v, 10)}" for k, v in c.items())])
    finally:
        os.unlink(archivo.name)
    p = {k: mpf(v) for k, v in r["leyes"][0]["parametros"].items()}
    factor = mpf(1) if metodo.startswith("5.2") else mpf("1.13")
    peor = mpf(0)
    puntos = []
    for q in r["puntos"]:
        d, T = mpf(q["duracion"]), mpf(q["recurrencia"])
        i = (p["xi"] - p["alfa"] * mp.log(-mp.log(1 - 1 / T))) * factor * parte(metodo, d, c) * 60 / d
        peor = max(peor, abs(mpf(q["intensidad"]) / i - 1))
        puntos.append((d, T, mpf(q["intensidad"])))
    menos = False
    for k in r["curvas"]["coeficientes"][:: 5 if familia == "libre" else 1]:
        suyos = [q for q in puntos if "recurrencia" not in k or q[1] == k["recurrencia"]]
        lejos, otro = compara(familia, k, suyos, relativo)
        peor, menos = max(peor, lejos), menos or otro
    return f"{metodo}, {familia}{', relativo' if relativo else ''}", peor, menos


def main():
    lee = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    lee.add_argument("--siro-lote", required=True, metavar="COMMAND")
    lee.add_argument("--estaciones", type=int, default=12)
    lee.add_argument("--semilla", type=int, default=1)
    pedido = lee.parse_args()
    azar = random.Random(pedido.semilla)
    mal, peor = 0, mpf(0)
    for numero in range(pedido.estaciones):
        que, lejos, menos = una(pedido.siro_lote, azar, numero)
        peor = max(peor, lejos)
        if lejos > TOLERANCIA or menos:
            print(f"station {numero + 1} ({que}): {mp.nstr(lejos, 3)}{', a smaller sum elsewhere' if menos else ''}")
            mal += 1
    print(f"{pedido.estaciones} stations, {mal} differ, the farthest by {mp.nstr(peor, 3)}")
    return mal > 0


if __name__ == "__main__":
    sys.exit(main())
