#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The check before a run against the run itself, over random projects.

    revisa.py --siro-lote PATH --semillas A-B [--carpeta DIR]

Where `una` doesn't come to its end or asks a question, `revisa` has an error; where `revisa` has none, `una` comes to its
end; and `revisa` leaves every file as it is but the configuration, which opening a project that has moved writes. Exit
status 1 where a project tells otherwise; its folder is kept.
"""
import argparse
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

import generador

SOLO_DE_LA_CORRIDA = {"--pizarra": 0, "--responde": 1, "--resultados": 1, "--hilos": 1}
RENGLON = re.compile(r"(error|aviso|nota) 2\d\d( [^:]+)?: .+\.")
SUMA = re.compile(r"Sin hallazgos|\d+ error(es)?, \d+ avisos?, \d+ notas?")


def de_tormenta(palabras):
    """The words without the options that a run alone takes."""
    quedan, salta = [], 0
    for palabra in palabras:
        if salta:
            salta -= 1
        elif palabra in SOLO_DE_LA_CORRIDA:
            salta = SOLO_DE_LA_CORRIDA[palabra]
        else:
            quedan.append(palabra)
    return quedan


def corre(programa, palabras, directorio):
    hecho = subprocess.run([programa] + palabras, capture_output=True, cwd=directorio, timeout=300)
    return hecho.returncode, hecho.stdout, hecho.stderr.decode("utf-8", "replace")


def arbol(directorio):
    archivos = {}
    for carpeta, _, nombres in os.walk(directorio):
        for nombre in nombres:
            ruta = os.path.join(carpeta, nombre)
            with open(ruta, "rb") as archivo:
                archivos[os.path.relpath(ruta, directorio)] = archivo.read()
    return {n: b for n, b in archivos.items() if not n.endswith("_Conf.vlm")}


def faltas(semilla, base, siro_lote):
    """What is wrong with a seed, None where it is no run of one storm."""
    lugar = os.path.join(base, "proyecto")
    palabras = shlex.split(generador.genera(semilla, lugar))[1:]
    if palabras[0] != "una":
        return None
    palabras = de_tormenta(palabras[1:])
    antes = arbol(lugar)
    estado, salida, errores = corre(siro_lote, ["revisa"] + palabras, lugar)
    despues = arbol(lugar)
    una, _, dicho = corre(siro_lote, ["una"] + palabras, lugar)
    if una == 2 or estado == 2:
        return [] if una == estado else ["one of them takes the command line: %d, %d" % (una, estado)]
    halladas = []
    if estado not in (0, 1):
        halladas.append("revisa ends with %d: %s" % (estado, errores))
    if antes != despues:
        halladas.append("revisa changed a file")
    renglones = salida.decode("utf-8").splitlines()
    if not renglones or not SUMA.fullmatch(renglones[-1]):
        halladas.append("no sum: %r" % renglones[-1:])
    halladas += ["a line out of form: " + r for r in renglones[:-1] if not RENGLON.match(r)]
    if (una != 0 or " -> " in dicho) and estado == 0:
        halladas.append("una ends with %d and says %s; revisa has no error" % (una, dicho[:400]))
    return halladas


def principal(argumentos):
    opciones = argparse.ArgumentParser(description="Compares siro-lote revisa with siro-lote una.")
    opciones.add_argument("--siro-lote", metavar="PATH", required=True)
    opciones.add_argument("--semillas", required=True, metavar="A-B")
    opciones.add_argument("--carpeta", metavar="DIR", help="where the folders of the seeds go")
    dado = opciones.parse_args(argumentos)
    desde, _, hasta = dado.semillas.partition("-")
    carpeta = os.path.abspath(dado.carpeta or tempfile.mkdtemp(prefix="revisa-"))
    miradas = fallidas = 0
    for semilla in range(int(desde), int(hasta or desde) + 1):
        base = os.path.join(carpeta, "revisa-%d" % semilla)
        shutil.rmtree(base, ignore_errors=True)
        halladas = faltas(semilla, base, os.path.abspath(dado.siro_lote))
        miradas += halladas is not None
        if halladas:
            fallidas += 1
            print("seed %d:\n  %s" % (semilla, "\n  ".join(halladas)), flush=True)
        else:
            shutil.rmtree(base, ignore_errors=True)
    print("%d runs of one storm, %d tell otherwise" % (miradas, fallidas))
    return 1 if fallidas or miradas == 0 else 0


if __name__ == "__main__":
    sys.exit(principal(sys.argv[1:]))
