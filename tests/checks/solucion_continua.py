#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The continuous solutions against which the reservoir methods are held, worked out without the program.

Without arguments: writes the header that the cases include. With the path of that header: says whether it is
what this writes, by its exit status.

A triangular flood, 0 to 100 m3/s in 60 min and back to 0 at 180 min, enters a reservoir empty at first:

  linear    S = K O with K = 60 min, in closed form: under an inflow p + q t from an outflow o the outflow is
            p + q (t - K) + (o - p + q K) e^(-t/K);
  weir      walls around 1 ha and Q = 0.2 H^1.5 [m3/s, m], dH/dt = (I - Q)/A by the classic fourth-order
            Runge-Kutta scheme with steps of one second. Steps of half a second give the same figures.
"""
import math
import sys

PICO, SUBE, FIN = 100.0, 60.0, 180.0  # [m3/s], [min]
TIEMPOS = range(20, 241, 20)  # [min]


def entra(t):
    if t <= SUBE:
        return PICO * t / SUBE
    return max(0.0, PICO * (FIN - t) / (FIN - SUBE))


def lineal(k=60.0):
    def tramo(t, desde, i0, pendiente, o):
        u = t - desde
        return i0 + pendiente * (u - k) + (o - i0 + pendiente * k) * math.exp(-u / k)

    o_pico = tramo(SUBE, 0, 0, PICO / SUBE, 0)
    baja = -PICO / (FIN - SUBE)
    o_fin = tramo(FIN, SUBE, PICO, baja, o_pico)
    valores = []
    for t in TIEMPOS:
        if t <= SUBE:
            valores.append(tramo(t, 0, 0, PICO / SUBE, 0))
        elif t <= FIN:
            valores.append(tramo(t, SUBE, PICO, baja, o_pico))
        else:
            valores.append(tramo(t, FIN, 0, 0, o_fin))
    return valores


def vertedero(dt=1.0, area=10000.0, c=0.2):
    def dh(t, h):
        return (entra(t / 60) - c * max(h, 0.0) ** 1.5) / area

    h, t, valores = 0.0, 0.0, []
    for fin in TIEMPOS:
        while t < fin * 60 - 1e-9:
            k1 = dh(t, h)
            k2 = dh(t + dt / 2, h + dt / 2 * k1)
            k3 = dh(t + dt / 2, h + dt / 2 * k2)
            k4 = dh(t + dt, h + dt * k3)
            h += dt / 6 * (k1 + 2 * k2 + 2 * k3 + k4)
            t += dt
        valores.append(c * h**1.5)
    return valores


def arreglo(nombre, comentario, valores):
    cifras = [f"{v:.4f}" for v in valores]
    renglones = [", ".join(cifras[i : i + 6]) for i in range(0, len(cifras), 6)]
    cuerpo = ",\n     ".join(renglones)
    return f"/// {comentario}\ninline constexpr auto {nombre} = std::to_array<double>(\n    {{{cuerpo}}});\n"


def encabezado():
    return (
        "// SPDX-License-Identifier: GPL-3.0-or-later\n#pragma once\n\n#include <array>\n\n"
        "// Written by tests/checks/solucion_continua.py, which tells what of.\n"
        "namespace checks::casos::continua {\n\n// clang-format off\n"
        + arreglo("Lineal", "Outflow [m3/s] each 20 min from 20.", lineal())
        + "\n"
        + arreglo("Vertedero", "The same over the weir.", vertedero())
        + "// clang-format on\n\n}  // namespace checks::casos::continua\n"
    )


def main():
    if len(sys.argv) == 1:
        sys.stdout.write(encabezado())
        return 0
    with open(sys.argv[1], encoding="utf-8") as archivo:
        return 0 if archivo.read() == encabezado() else 1


if __name__ == "__main__":
    sys.exit(main())
