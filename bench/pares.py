#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Times whole processes in turn, A B A B, so that a machine's changing speed hits both alike.

    pares.py TURNS "COMMAND A" "COMMAND B" ...

Prints for each command the median of its CPU and wall time, and the median over the turns of its CPU time divided by that
of A in the same turn. What the commands write to their outputs is dropped; one that fails ends it.
"""
import os
import shlex
import statistics
import sys
import time


def ejecuta(orden):
    """(CPU time [ms], wall time [ms]) of one process."""
    nada = [(os.POSIX_SPAWN_OPEN, d, os.devnull, os.O_RDWR, 0) for d in (0, 1, 2)]
    antes = time.perf_counter()
    hijo = os.posix_spawnp(orden[0], orden, os.environ, file_actions=nada)
    _, estado, uso = os.wait4(hijo, 0)
    pared = time.perf_counter() - antes
    if estado != 0:
        sys.exit("status %d: %s" % (os.waitstatus_to_exitcode(estado), shlex.join(orden)))
    return (uso.ru_utime + uso.ru_stime) * 1e3, pared * 1e3


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    ordenes = [shlex.split(texto) for texto in sys.argv[2:]]
    for orden in ordenes:
        ejecuta(orden)  # files in memory, directories there
    vueltas = [[ejecuta(orden) for orden in ordenes] for _ in range(int(sys.argv[1]))]
    for i, orden in enumerate(ordenes):
        cpu, pared = ([vuelta[i][k] for vuelta in vueltas] for k in range(2))
        razon = statistics.median(vuelta[i][0] / vuelta[0][0] for vuelta in vueltas)
        print(
            "%s  cpu %8.2f ms  wall %8.2f ms  x %5.2f  %s"
            % (
                chr(ord("A") + i),
                statistics.median(cpu),
                statistics.median(pared),
                razon,
                shlex.join(orden)[:70],
            )
        )


if __name__ == "__main__":
    main()
