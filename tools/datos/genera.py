# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the delivered data: the sample project with its map, the shared tables and the sample storms.

    /usr/bin/python3 genera.py [DIRECTORY]

DIRECTORY is data/ of this repository unless told. Needs Debian's python3-numpy, python3-pil, fonts-dejavu-core and
fonts-dejavu-extra. The same description gives the same text files, byte by byte; the map's bytes may differ with
the version of the JPEG library.
"""

import pathlib
import sys

import cuenca
import eventos
import mapa
import maximos
import proyecto
import terreno
import tormentas


def main():
    por_defecto = pathlib.Path(__file__).resolve().parents[2] / "data"
    datos = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else por_defecto
    proyectos = datos / "Proyectos"
    proyectos.mkdir(parents=True, exist_ok=True)

    t = terreno.Terreno()
    areas = {u.nombre: t.Area(i) for i, u in enumerate(cuenca.UEHS)}
    longitudes = {u.nombre: t.LongitudMax(i) for i, u in enumerate(cuenca.UEHS)}
    proyecto.GuardaProyecto(proyectos, areas, longitudes)
    tormentas.GuardaTormentas(datos, proyectos)
    maximos.GuardaMaximos(proyectos)
    eventos.GuardaCrecidas(proyectos)
    mapa.Guarda(mapa.Pinta(t), proyectos / cuenca.IMAGEN)


if __name__ == "__main__":
    main()
