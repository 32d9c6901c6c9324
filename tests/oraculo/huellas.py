#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Hashes of the results of siro-lote, the same from every compiler, processor and system.

    huellas.py --siro-lote COMMAND               compares with huellas.txt
    huellas.py --siro-lote COMMAND --escribe     writes it anew
    huellas.py --siro-lote COMMAND --windows     for a program of Windows, run by wine

Runs the sample in ways that take every kind of storm, and random projects as generador.py makes them. What is hashed
of a run is its exit status, its table of results and the text that it leaves in its directory, without date, duration
and place, which Windows writes its own way. COMMAND may be more than a word: "wine siro-lote.exe". Exit status 1 where
a hash differs.
"""
import argparse
import concurrent.futures
import hashlib
import os
import shlex
import shutil
import subprocess
import sys
import tempfile

import compara
import generador
import mismos_bytes

AQUI = os.path.dirname(os.path.abspath(__file__))
TABLA = os.path.join(AQUI, "huellas.txt")
MUESTRA = os.path.join(AQUI, "..", "..", "data")
SEMILLAS = range(5001, 5081)
RESULTADOS = "huella.csv"
TEXTOS = (RESULTADOS, "SalePizarra1_tem.txt", "SaleTablasQDRs_tem.txt")
CONF = "Proyectos/Quelmar_Conf.vlm"
DE_LA_MUESTRA = {
    "muestra": "una %s",
    "muestra.alta": "una %s --pp 180 --dur 720 --distribucion 1",
    "muestra.fina": "una %s --pp 120 --dur 180 --distribucion 2 --paso-pp 5 --paso-q 5",
    "muestra.gruesa": "una %s --pp 90 --dur 1440 --distribucion 5 --paso-pp 60 --paso-q 20",
    "muestra.real": 'una %s --forma 4 --tormenta "Ruvera 170276 _pt.vlm"',
    "muestra.serie": "serie %s --tabla 0",
    "muestra.serie.otra": "serie %s --tabla 1 --hilos 2",
}


def huella(programa, palabras, lugar, windows):
    if "--resultados" in palabras:
        donde = palabras.index("--resultados")
        palabras = palabras[:donde] + palabras[donde + 2 :]
    ajeno = mismos_bytes.DeWindows(lugar) if windows else None
    if ajeno:
        ajeno.lleva(lugar)
    entorno = dict(os.environ, PYTHONDONTWRITEBYTECODE="1")
    hecho = subprocess.run(
        programa + palabras + ["--resultados", RESULTADOS], capture_output=True, cwd=lugar, env=entorno, timeout=300
    )
    suma = hashlib.sha256(b"%d\n" % hecho.returncode)
    for carpeta, carpetas, nombres in os.walk(lugar):
        carpetas.sort()
        for nombre in sorted(set(nombres) & set(TEXTOS)):
            with open(os.path.join(carpeta, nombre), "rb") as archivo:
                datos = compara.enmascara(archivo.read())
            if ajeno:
                datos = ajeno.trae(datos)
            datos = datos.replace(os.fsencode(lugar), b"(lugar)")
            suma.update(nombre.encode() + b" %d\n" % len(datos) + datos)
    return suma.hexdigest()[:32]


def de_la_muestra(programa, orden, windows):
    with tempfile.TemporaryDirectory(prefix="huella-") as lugar:
        shutil.copytree(MUESTRA, lugar, dirs_exist_ok=True)
        return huella(programa, shlex.split(orden % CONF) + ["--trabajo", "."], lugar, windows)


def de_la_semilla(programa, semilla, windows):
    with tempfile.TemporaryDirectory(prefix="huella-") as base:
        lugar = os.path.join(base, "corrida")
        return huella(programa, shlex.split(generador.genera(semilla, lugar))[1:], lugar, windows)


def principal(argumentos):
    opciones = argparse.ArgumentParser(description="Hashes of the results of siro-lote.")
    opciones.add_argument("--siro-lote", required=True, metavar="COMMAND")
    opciones.add_argument("--escribe", action="store_true", help="write huellas.txt")
    opciones.add_argument("--muestra", action="store_true", help="print them all, compare nothing")
    opciones.add_argument("--windows", action="store_true", help="a program of Windows")
    opciones.add_argument("--jobs", type=int, default=2)
    dado = opciones.parse_args(argumentos)
    programa = [os.path.abspath(p) if os.path.exists(p) else p for p in shlex.split(dado.siro_lote)]
    with concurrent.futures.ThreadPoolExecutor(dado.jobs) as grupo:
        tareas = {nombre: grupo.submit(de_la_muestra, programa, o, dado.windows) for nombre, o in DE_LA_MUESTRA.items()}
        tareas |= {"semilla.%d" % n: grupo.submit(de_la_semilla, programa, n, dado.windows) for n in SEMILLAS}
        halladas = {nombre: tarea.result() for nombre, tarea in tareas.items()}
    texto = "".join("%s %s\n" % par for par in halladas.items())
    if dado.muestra:
        sys.stdout.write(texto)
        return 0
    if dado.escribe:
        with open(TABLA, "w", encoding="ascii") as archivo:
            archivo.write(texto)
        return 0
    with open(TABLA, encoding="ascii") as archivo:
        esperadas = dict(linea.split() for linea in archivo)
    difieren = sorted(n for n in halladas.keys() | esperadas.keys() if halladas.get(n) != esperadas.get(n))
    for nombre in difieren:
        print("%s: %s, expected %s" % (nombre, halladas.get(nombre), esperadas.get(nombre)))
    print("%d runs, %d differ" % (len(halladas), len(difieren)))
    return 1 if difieren else 0


if __name__ == "__main__":
    sys.exit(principal(sys.argv[1:]))
