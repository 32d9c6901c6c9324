#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs siro-lote and the oracle over random projects and compares all that they leave, byte for byte.

    compara.py --siro-lote PATH --semillas A-B [--jobs N] [--carpeta DIR]
    compara.py --solo-oraculo --semillas A-B      only that the oracle itself never breaks

Each seed has a folder; both programs run in a folder of the same name (the project knows its own place), one after the
other, on fresh copies. Masked are the date and time of the header and the elapsed time. The folders of seeds that
differ are kept. Exit status 1 where anything differs.
"""
import argparse
import concurrent.futures
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import time

import generador

ORACULO = os.path.join(os.path.dirname(os.path.abspath(__file__)), "oraculo.py")
MAL_LLAMADO = 2
LIMITE_SEGUNDOS = 300
SIN_COMPARAR = {"VelmirDir.vlm"}  # the pointer to the last project is the desktop's own

# what stands behind the operator's name, on the line before the kind of simulation
_HORA_DE_ENCABEZADO = re.compile(rb'( - )(?:(?! - )[^\r\n"])*(?="?\r\n(?:\r\n)?"?SIMULACION )')
_TRANSCURRIDO = re.compile(rb"(Tiempo total del proceso: )[0-9]+:[0-9]+:[0-9]+")


def enmascara(datos):
    datos = _HORA_DE_ENCABEZADO.sub(rb"\1(hora)", datos, count=1)
    return _TRANSCURRIDO.sub(rb"\1(tiempo)", datos)


class Resultado:
    """What one program left: exit status, streams and files by relative path, masked."""

    def __init__(self, estado, piezas):
        self.estado = estado
        self.piezas = piezas


def _lee_arbol(directorio):
    piezas = {}
    for carpeta, _, nombres in os.walk(directorio):
        for nombre in nombres:
            if nombre in SIN_COMPARAR:
                continue
            ruta = os.path.join(carpeta, nombre)
            with open(ruta, "rb") as archivo:
                piezas[os.path.relpath(ruta, directorio)] = enmascara(archivo.read())
    return piezas


def corre(programa, palabras, directorio):
    entorno = dict(os.environ, PYTHONDONTWRITEBYTECODE="1")
    try:
        hecho = subprocess.run(
            programa + palabras, capture_output=True, cwd=directorio, env=entorno, timeout=LIMITE_SEGUNDOS
        )
    except subprocess.TimeoutExpired:
        return Resultado("sin terminar", {})
    piezas = _lee_arbol(directorio)
    piezas["<stdout>"] = enmascara(hecho.stdout)
    errores = enmascara(hecho.stderr)
    if hecho.returncode == MAL_LLAMADO:
        errores = b"(motivo y uso)" if errores else b""
    piezas["<stderr>"] = errores
    return Resultado(hecho.returncode, piezas)


def primera_diferencia(a, b):
    """(line number, line of a, line of b) of the first lines that differ; None where the bytes are equal."""
    if a == b:
        return None
    lineas_a, lineas_b = a.split(b"\n"), b.split(b"\n")
    for n in range(max(len(lineas_a), len(lineas_b))):
        una = lineas_a[n] if n < len(lineas_a) else None
        otra = lineas_b[n] if n < len(lineas_b) else None
        if una != otra:
            return n + 1, una, otra
    raise AssertionError("different bytes have a different line")


def diferencias(oraculo, motor):
    """One line of text per thing that differs."""
    halladas = []
    if oraculo.estado != motor.estado:
        halladas.append("exit status: oracle %s, engine %s" % (oraculo.estado, motor.estado))
    for nombre in sorted(set(oraculo.piezas) | set(motor.piezas)):
        if nombre not in motor.piezas or nombre not in oraculo.piezas:
            dueno = "oracle" if nombre in oraculo.piezas else "engine"
            halladas.append("%s: only the %s left it" % (nombre, dueno))
            continue
        diferente = primera_diferencia(oraculo.piezas[nombre], motor.piezas[nombre])
        if diferente is not None:
            linea, una, otra = diferente
            halladas.append(
                "%s, line %d:\n    oracle: %s\n    engine: %s" % (nombre, linea, _muestra(una), _muestra(otra))
            )
    return halladas


def _muestra(linea):
    return "(no such line)" if linea is None else repr(linea[:400])


def _averias(resultado):
    """What must never happen to the oracle."""
    halladas = []
    if resultado.estado not in (0, 1, 2, 3):
        halladas.append("exit status: oracle %s" % resultado.estado)
    if b"Traceback" in resultado.piezas.get("<stderr>", b""):
        ultimas = resultado.piezas["<stderr>"].strip().split(b"\n")[-3:]
        halladas.append("the oracle broke: " + b" | ".join(ultimas).decode("utf-8", "replace"))
    return halladas


def compara_semilla(semilla, carpeta, siro_lote):
    """(differences, exit status, seconds of the oracle)."""
    base = os.path.join(carpeta, "semilla-%d" % semilla)
    shutil.rmtree(base, ignore_errors=True)
    lugar, original = os.path.join(base, "corrida"), os.path.join(base, "original")
    palabras = shlex.split(generador.genera(semilla, lugar))[1:]
    shutil.copytree(lugar, original)
    with open(os.path.join(base, "orden.txt"), "w", encoding="utf-8") as archivo:
        archivo.write(shlex.join(palabras) + "\n")
    inicio = time.monotonic()
    oraculo = corre([sys.executable, ORACULO], palabras, lugar)
    segundos = time.monotonic() - inicio
    halladas = _averias(oraculo)
    _guarda(oraculo, os.path.join(base, "oraculo"), lugar)
    if siro_lote is not None:
        shutil.copytree(original, lugar)
        motor = corre([siro_lote], palabras, lugar)
        halladas += diferencias(oraculo, motor)
        _guarda(motor, os.path.join(base, "motor"), lugar)
    if not halladas:
        shutil.rmtree(base)
    return halladas, oraculo.estado, segundos


def _guarda(resultado, destino, lugar):
    """Moves the run's folder away and keeps both streams beside it."""
    os.rename(lugar, destino)
    for nombre in ("<stdout>", "<stderr>"):
        with open(os.path.join(destino, nombre.strip("<>") + ".txt"), "wb") as archivo:
            archivo.write(resultado.piezas.get(nombre, b""))


def semillas(texto):
    desde, _, hasta = texto.partition("-")
    return range(int(desde), int(hasta or desde) + 1)


def principal(argumentos):
    opciones = argparse.ArgumentParser(description="Compares siro-lote with the oracle over random projects.")
    programa = opciones.add_mutually_exclusive_group(required=True)
    programa.add_argument("--siro-lote", metavar="PATH")
    programa.add_argument("--solo-oraculo", action="store_true")
    opciones.add_argument("--semillas", type=semillas, required=True, metavar="A-B")
    opciones.add_argument("--jobs", type=int, default=1)
    opciones.add_argument("--carpeta", metavar="DIR", help="where the folders of the seeds go")
    dado = opciones.parse_args(argumentos)
    carpeta = os.path.abspath(dado.carpeta or tempfile.mkdtemp(prefix="compara-"))
    siro_lote = os.path.abspath(dado.siro_lote) if dado.siro_lote else None
    fallidas, estados, mas_lenta = [], {}, (0.0, None)
    with concurrent.futures.ThreadPoolExecutor(dado.jobs) as grupo:
        tareas = {grupo.submit(compara_semilla, n, carpeta, siro_lote): n for n in dado.semillas}
        for tarea in concurrent.futures.as_completed(tareas):
            semilla = tareas[tarea]
            halladas, estado, segundos = tarea.result()
            estados[estado] = estados.get(estado, 0) + 1
            mas_lenta = max(mas_lenta, (segundos, semilla))
            if halladas:
                fallidas.append(semilla)
                print("seed %d:" % semilla)
                for hallada in halladas:
                    print("  " + hallada)
                sys.stdout.flush()
    print(
        "%d seeds, %d differ; exit statuses of the oracle %s; slowest seed %s with %.1f s"
        % (len(tareas), len(fallidas), dict(sorted(estados.items())), mas_lenta[1], mas_lenta[0])
    )
    if fallidas:
        print("kept in %s: seeds %s" % (carpeta, ", ".join(str(n) for n in sorted(fallidas))))
        return 1
    if not dado.carpeta:
        shutil.rmtree(carpeta)
    return 0


if __name__ == "__main__":
    sys.exit(principal(sys.argv[1:]))
