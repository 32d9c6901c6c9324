# SPDX-License-Identifier: GPL-3.0-or-later
"""The settings of a project, <name>_Conf.vlm."""

import cuenca

RECURRENCIAS = (2, 5, 10, 20, 25, 40, 50, 100, 200, 500, 1000, 2000, 5000, 10000)
DURACIONES = (5, 10, 15, 20, 30, 60, 90, 120, 180, 240, 300, 360, 540, 720, 1080, 1440, 2880)
RECURRENCIAS_QUITADAS = (500, 2000, 5000, 10000)
DURACIONES_QUITADAS = (5, 15, 2880)


def Filas(nombre, p):
    """p: what describes the project, with an image or an empty one."""
    valores = [
        nombre, p.TITULO, p.UBICACION, p.CUENCA, p.SUBCUENCA, p.OPERADOR, p.FECHA,
        "", "C:\\SIRO\\Proyectos",  # rewritten at the first opening: a delivered project has always moved
        "", 1, nombre + "_Conf.vlm", int(bool(p.IMAGEN)), p.IMAGEN or "Ninguno", "50", "", True, False, False, 0, 0,
        True, False, True, False, p.N0DUR, "800", str(cuenca.METROS_POR_UNIDAD)]
    valores += [int(r not in RECURRENCIAS_QUITADAS) for r in RECURRENCIAS]
    valores += [int(d not in DURACIONES_QUITADAS) for d in DURACIONES]
    assert len(valores) == 59
    return [(v,) for v in valores]
