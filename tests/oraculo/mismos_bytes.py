#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs two builds of siro-lote over random projects and compares all that they leave, byte for byte.

    mismos_bytes.py --uno COMMAND --otro COMMAND --semillas A-B [--windows] [--carpeta DIR] [--jobs N]

Masked as in compara.py: date and time of the header, elapsed time. With --windows the other command runs a program of
Windows, where drive and separators of the project's place differ: the project is handed to it as that system would have
written it, and its place is turned back in all that it leaves. Folders of seeds that differ are kept. Exit status 1
where anything differs.
"""
import argparse
import concurrent.futures
import os
import re
import shlex
import shutil
import sys
import tempfile

import compara
import generador

UNIDAD = b"Z:"  # where wine shows the root of this system
SIN_DISCO = b"D:"  # the drive that some of the projects tell, which neither system has


class DeWindows:
    """The place of a project as the two systems write it."""

    def __init__(self, lugar):
        self.aqui = lugar.encode()
        self.alla = self.aqui.replace(b"/", b"\\")  # behind the drive

    def lleva(self, carpeta):
        """Drive and directory of each configuration that tells them."""
        for raiz, _, nombres in os.walk(carpeta):
            for nombre in nombres:
                if nombre.endswith("_Conf.vlm"):
                    self._cambia(os.path.join(raiz, nombre))

    def _cambia(self, ruta):
        with open(ruta, "rb") as archivo:
            datos = archivo.read()
        with open(ruta, "wb") as archivo:
            archivo.write(
                re.sub(
                    rb'""(\r?\n)"(%s)?%s' % (SIN_DISCO, re.escape(self.aqui)),
                    lambda m: b'"%s"%s"%s%s' % (UNIDAD, m[1], m[2] or UNIDAD, self.alla),
                    datos,
                )
            )

    def trae(self, datos):
        """What a run has left, with the place as this system writes it."""
        datos = re.sub(rb'"%s"(\r?\n"(?:%s|%s)%s)' % (UNIDAD, UNIDAD, SIN_DISCO, re.escape(self.alla)), rb'""\1', datos)
        return re.sub(
            rb'(%s|%s)%s((?:\\[^\\\r\n"]+)*)' % (UNIDAD, SIN_DISCO, re.escape(self.alla)),
            lambda m: m[1].replace(UNIDAD, b"") + self.aqui + m[2].replace(b"\\", b"/"),
            datos,
        )


def compara_semilla(semilla, carpeta, ordenes, windows):
    base = os.path.join(carpeta, "semilla-%d" % semilla)
    shutil.rmtree(base, ignore_errors=True)
    lugar, original = os.path.join(base, "corrida"), os.path.join(base, "original")
    palabras = shlex.split(generador.genera(semilla, lugar))[1:]
    shutil.move(lugar, original)
    hechas = []
    for n, orden in enumerate(ordenes):
        shutil.copytree(original, lugar)
        ajeno = DeWindows(lugar) if windows and n == 1 else None
        if ajeno:
            ajeno.lleva(lugar)
        hecha = compara.corre(orden, palabras, lugar)
        if ajeno:
            hecha.piezas = {nombre: ajeno.trae(datos) for nombre, datos in hecha.piezas.items()}
        hechas.append(hecha)
        os.rename(lugar, os.path.join(base, "uno" if n == 0 else "otro"))
    halladas = compara.diferencias(*hechas)
    if not halladas:
        shutil.rmtree(base)
    return palabras[0], hechas[0].estado, halladas


def principal(argumentos):
    opciones = argparse.ArgumentParser(description="Compares two builds of siro-lote over random projects.")
    opciones.add_argument("--uno", type=shlex.split, required=True, metavar="COMMAND")
    opciones.add_argument("--otro", type=shlex.split, required=True, metavar="COMMAND")
    opciones.add_argument("--semillas", type=compara.semillas, required=True, metavar="A-B")
    opciones.add_argument("--windows", action="store_true", help="the other one is a program of Windows")
    opciones.add_argument("--carpeta", metavar="DIR", help="where the folders of the seeds go")
    opciones.add_argument("--jobs", type=int, default=1)
    dado = opciones.parse_args(argumentos)
    carpeta = os.path.realpath(dado.carpeta or tempfile.mkdtemp(prefix="mismos-"))
    cuentas, difieren = {}, []
    with concurrent.futures.ThreadPoolExecutor(dado.jobs) as grupo:
        tareas = {
            grupo.submit(compara_semilla, n, carpeta, (dado.uno, dado.otro), dado.windows): n for n in dado.semillas
        }
        for tarea in concurrent.futures.as_completed(tareas):
            modo, estado, halladas = tarea.result()
            cuentas[modo, estado] = cuentas.get((modo, estado), 0) + 1
            if halladas:
                difieren.append(tareas[tarea])
                print("seed %d:\n  %s" % (tareas[tarea], "\n  ".join(halladas)), flush=True)
    for (modo, estado), cuenta in sorted(cuentas.items(), key=str):
        print("%s, exit status %s: %d" % (modo, estado, cuenta))
    print("%d projects, %d differ" % (len(dado.semillas), len(difieren)))
    if difieren:
        print("kept in %s: seeds %s" % (carpeta, ", ".join(str(n) for n in sorted(difieren))))
        return 1
    if not dado.carpeta:
        shutil.rmtree(carpeta)
    return 0


if __name__ == "__main__":
    sys.exit(principal(sys.argv[1:]))
