# SPDX-License-Identifier: GPL-3.0-or-later
"""What the publications' own models score on the observed floods, worked out from the parameters that they print.

    /usr/bin/python3 publicados.py

docs/eventos.md holds the figures. Plain sums, no library: an independent calculation.
"""

import math

import eventos

MM2_A_M3 = 1000.0  # a depth of 1 mm on 1 km2 [m3]


def Nse(observado, simulado):
    media = sum(observado) / len(observado)
    return 1 - (sum((s - o) ** 2 for o, s in zip(observado, simulado))
                / sum((o - media) ** 2 for o in observado))


def Cascada(filas, n, k, area):
    """Linear cascade of n reservoirs of k hours on all rain (Boessenkool, berryFunctions, ?lsc): flows [m3/s] by the
    hour, on top of the first one observed."""
    lluvia = [p for _, p in filas]
    onda = [t ** (n - 1) / k ** n / math.gamma(n) * math.exp(-t / k) for t in range(1, len(filas) + 1)]
    return [filas[0][0] + area * MM2_A_M3 / 3600 * sum(lluvia[j] * onda[i - j] for j in range(i + 1))
            for i in range(len(filas))]


def Lienhard(horas_lluvia, pulgadas, fraccion, n, tm, minutos):
    """Rain times a fraction, by the minute, through Lienhard's kernel 2/(tm G(n)) (t/tm)^(2n-1) exp(-(t/tm)^2)
    (Cleveland, CE 5361, spring 2023, exercise 2): inches per minute."""
    acumulada = [eventos.Interpola(t, [60 * h for h in horas_lluvia], pulgadas) for t in range(minutos + 1)]
    exceso = [0.0] + [fraccion * (b - a) for a, b in zip(acumulada, acumulada[1:])]
    onda = [2 / tm / math.gamma(n) * (t / tm) ** (2 * n - 1) * math.exp(-(t / tm) ** 2) for t in range(minutos + 1)]
    sale = [0.0] * (minutos + 1)
    for i, e in enumerate(exceso):
        for j in range(i, minutos) if e else ():
            sale[j] += e * onda[j - i + 1]
    return sale


def main():
    tramos = (eventos.TABLAS / "Q_P.txt").read_text(encoding="ascii").split("Q\tP\n")[1].split("\n\n\n\n")
    filas = [[[float(c.replace(",", ".")) for c in f.split("\t")] for f in t.splitlines()] for t in tramos]
    primera, segunda = filas[0], filas[1][26:]
    for nombre, f, n, k in (("Weisseritz 1, n 0.41 k 244.9", primera, 0.41, 244.9),
                            ("Weisseritz 1, n 0.63 k 95.7", primera, 0.63, 95.7),
                            ("Weisseritz 2, n 0.41 k 244.9", segunda, 0.41, 244.9)):
        simulado = Cascada(f, n, k, 3.4)
        print(f"{nombre}: NSE {Nse([q for q, _ in f], simulado):.3f}, peak {max(simulado):.3f} of "
              f"{max(q for q, _ in f):.3f} m3/s")

    lluvia = eventos.LeeTabla("rain_sta08055700_1966_0617.dat")
    caudal = eventos.LeeTabla("unit_sta08055700_1966_0617.dat")
    pulgadas = [c[-1] for _, c in lluvia]
    # Both clocks from their own zero, as there: the rain's is 5 h 15 min later, and the kernel makes up for it.
    sale = Lienhard([c[0] for _, c in lluvia], pulgadas, caudal[-1][1][2] / pulgadas[-1], 7, 170, 1440)
    m3s = 10.0 * eventos.HA_POR_MILLA2 * 1e4 * eventos.MM_POR_PULGADA / 1000 / 60
    observado = [c[1] * eventos.M3S_POR_CFS for _, c in caudal]
    simulado = [m3s * sale[round(60 * c[0])] for _, c in caudal]
    print(f"Bachman 17/06/1966, n 7 t 170 min: NSE {Nse(observado, simulado):.3f}, peak {max(simulado):.2f} of "
          f"{max(observado):.2f} m3/s")


if __name__ == "__main__":
    main()
