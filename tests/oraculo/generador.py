#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Random projects for the comparison of the engine with its oracle.

    generador.py SEED DIR

writes a project's files into DIR, which becomes its project directory, and prints the command line that runs it. The same
seed and directory give the same bytes. About six projects in ten are sound; the others carry one to three faults.
"""
import os
import random
import shlex
import sys

import danos
import extremos
from numeros import f32, texto32
from registros import a_1252

RECURRENCIAS_Y_MAS = (2, 5, 10, 25, 50, 100, 500, 1000, 5000, 7, 0)
DURACIONES_Y_MAS = (10, 20, 30, 45, 60, 90, 120, 180, 240, 360)
PASOS = ((10, 10), (10, 5), (20, 10), (30, 10), (60, 20), (15, 15), (60, 60), (30, 30), (5, 5), (20, 4))
PASOS_GRUESOS = ((60, 20), (30, 30), (60, 60), (60, 30))
METODOS = ("Muskingum", "Piscina Nivelada", "Runge Kutta")


class Proyecto:
    """What a project's files will say; a record is a list of fields as they will be written."""

    def __init__(self, semilla, directorio):
        self.azar = random.Random(semilla)
        self.directorio = directorio
        self.trabajo = directorio
        self.nombre = "Cuenca"
        self.UEHs, self.cauces, self.represas, self.lagos = [], [], [], []
        self.conf = []
        self.archivos = {}  # name: list of records
        self.archivos_trabajo = {}
        self.opciones = {}
        self.modo = "una"
        self.N0Dur = 0.0
        self.grande = False
        self.fin_de_linea = "\r\n"
        self.recortes = {}  # name: number of bytes kept
        self.sin_archivo = set()
        self.ruidos = []
        self.directorios = []
        self.sin_trabajo = False
        self.conf_relativa = False  # to the project's directory, where the program is then to be run

    # ------------------------------------------------------------------------------- numbers

    def entre(self, minimo, maximo, decimales=2):
        return round(self.azar.uniform(minimo, maximo), decimales)

    def uno_de(self, opciones):
        return self.azar.choice(opciones)

    def suerte(self, probabilidad):
        return self.azar.random() < probabilidad


def numero(valor):
    return texto32(f32(valor))


def citado(texto):
    return '"' + texto + '"'


def logico(valor):
    return "#TRUE#" if valor else "#FALSE#"


# --------------------------------------------------------------------------------------------- network

_ADORNOS = ("", "", "", "", "ñandú", "río", ", brazo", " del Este Mayor", "Ü", " 2", "€uro")


def _nombre(p, prefijo, n):
    if p.suerte(0.004):
        prefijo = p.uno_de(("x-", "C-", "", "u-"))
    return prefijo + str(n) + p.uno_de(_ADORNOS)


def _cuantos_nodos(p):
    if p.grande:
        return p.azar.randint(25, 70), p.azar.randint(20, 60)
    return p.azar.randint(1, 12), p.uno_de((0, 1, 2, 3, 4, 5, 6, 8, 10, 13))


def arma_red(p):
    """A forest of reaches, reservoirs and lakes whose leaves are all fed by UEHs."""
    nro_UEHs, nro_nodos = _cuantos_nodos(p)
    nodos = []
    for n in range(nro_nodos):
        tipo = p.uno_de("cccccclr") if n else p.uno_de("ccclr")
        if tipo == "r" and sum(otro["tipo"] == "r" for otro in nodos) >= 20:
            tipo = "c"
        nodos.append({"tipo": tipo, "nombre": _nombre(p, tipo + "-", n + 1), "baja": None, "sube": 0})
    nodos = _sin_repetidos(nodos)
    for n, nodo in enumerate(nodos):
        if n == 0 or p.suerte(0.1):
            continue
        bajo = p.uno_de(nodos[:n])
        if nodo["tipo"] != "c" and bajo["tipo"] != "c" and p.suerte(0.9):
            reaches = [otro for otro in nodos[:n] if otro["tipo"] == "c"]
            if reaches:
                bajo = p.uno_de(reaches)
        nodo["baja"] = bajo
        bajo["sube"] += 1
    UEHs = [_UEH(p, n + 1) for n in range(nro_UEHs)]
    hojas = [nodo for nodo in nodos if nodo["sube"] == 0]
    while len(UEHs) < len(hojas):
        UEHs.append(_UEH(p, len(UEHs) + 1))
    UEHs = _sin_repetidos(UEHs)
    p.azar.shuffle(hojas)
    for n, ueh in enumerate(UEHs):
        if n < len(hojas):
            ueh["aa"] = hojas[n]["nombre"]
        elif nodos and not p.suerte(0.06):
            ueh["aa"] = p.uno_de(nodos)["nombre"]
        else:
            ueh["aa"] = p.uno_de(("", "0", "nadie"))
    p.azar.shuffle(UEHs)
    p.azar.shuffle(nodos)
    for nodo in nodos:
        nodo["aa"] = nodo["baja"]["nombre"] if nodo["baja"] else p.uno_de(("", "0", "c-nadie"))
    p.UEHs = UEHs
    p.cauces = [_cauce(p, nodo) for nodo in nodos if nodo["tipo"] == "c"]
    p.represas = [_represa(p, nodo) for nodo in nodos if nodo["tipo"] == "r"]
    p.lagos = [_lago(p, nodo) for nodo in nodos if nodo["tipo"] == "l"]


def _sin_repetidos(componentes):
    """Names are unique over the network."""
    vistos = set()
    for componente in componentes:
        while componente["nombre"] in vistos:
            componente["nombre"] += "b"
        vistos.add(componente["nombre"])
    return componentes


def _UEH(p, n):
    ueh = {
        "nombre": _nombre(p, "u-", n),
        "area": p.uno_de((p.entre(1, 900), p.entre(50, 9000), p.entre(0.5, 3, 3))),
        "longitud": p.uno_de((p.entre(50, 3000), p.entre(100, 900), p.entre(1, 20))),
        "velocidad": p.entre(0.1, 3),
        "a": p.uno_de((0, p.entre(0, 2), p.entre(0, 8), p.entre(20, 40))),
        "b": p.uno_de((0.5, p.entre(0.05, 0.95), 1, 0)),
        "i": p.uno_de((0, 0, p.entre(0, 60), 5)),
        "q0": p.uno_de((0, p.entre(0, 5, 3), p.entre(0, 0.5, 4))),
        "k": p.uno_de((0, p.entre(0.5, 60), p.entre(10, 400))),
        "z": p.uno_de((0, p.entre(0, 10), 5, p.entre(0, 60))),
    }
    if p.suerte(0.02):
        ueh["longitud"] = p.entre(5000, 30000)
        ueh["velocidad"] = 0.5
    return ueh


def _muskingum_valido(p):
    """K and x whose three coefficients add up to 1 in 32-bit floats for the output step."""
    paso = int(p.opciones["--paso-q"])
    for _ in range(200):
        K = f32(p.uno_de((p.entre(paso, paso * 6), float(p.azar.randint(1, 90)), p.entre(1, 90, 1))))
        x = f32(p.uno_de((0, 0.1, 0.2, 0.25, 0.3, 0.5, p.entre(0, 0.5))))
        if danos.suma_muskingum(K, x, paso) == 1:
            return K, x
    return 0.0, 0.0


def _cauce(p, nodo):
    K, x = _muskingum_valido(p)
    cauce = dict(nodo, directo=p.suerte(0.45), K=K, x=x, vertices=p.uno_de((0, 2, 3, 5)))
    cauce["longitud"] = p.uno_de((p.entre(100, 6000), p.entre(500, 30000), p.entre(5, 50)))
    cauce["velocidad"] = p.entre(0.3, 4)
    return cauce


def _tabla_de_alturas(p, filas):
    """Ascending heights, areas and storages."""
    H = f32(p.uno_de((0, 0, 100, p.entre(0, 900))))
    A, S = p.uno_de((0, p.entre(0, 50))), p.uno_de((0, p.azar.randint(0, 50000)))
    tabla = []
    for _ in range(filas):
        tabla.append([numero(H), numero(A), str(S)])
        H = f32(H + p.uno_de((0.5, 1, 2, p.entre(0.05, 4))))
        A += p.uno_de((5, p.entre(0.5, 80), p.entre(0, 300)))
        S += p.azar.randint(1, p.uno_de((20000, 400000, 5000000)))
    return tabla


def _alturas(tabla):
    return [float(fila[0]) for fila in tabla]


def _con_caudal(p, alturas, desde_cero):
    Q = 0.0 if desde_cero else p.entre(0, 3)
    columna = []
    for _ in alturas:
        columna.append(numero(Q))
        Q += p.uno_de((p.entre(0, 5), p.entre(0.5, 60), 0.5))
    return columna


def _nro_filas(p):
    return p.uno_de((2, 3, 5, 8, 9, 10, 11, 12, 15, 20)) if not p.suerte(0.03) else 1


def _altura_inicial(p, tabla):
    alturas = _alturas(tabla)
    if p.suerte(0.3):
        return p.uno_de(alturas)
    return f32(p.azar.uniform(alturas[0], alturas[-1]))


def _k_de_embalse(p):
    paso = int(p.opciones["--paso-q"])
    for _ in range(200):
        K = f32(p.uno_de((p.entre(paso, 400), float(p.azar.randint(1, 300)))))
        if danos.suma_muskingum(K, 0.0, paso) == 1:
            return K
    return 0.0


def _represa(p, nodo):
    tabla = _tabla_de_alturas(p, _nro_filas(p))
    alturas = _alturas(tabla)
    represa = dict(
        nodo,
        metodo=p.uno_de(METODOS),
        por_tabla=p.suerte(0.5),
        K=_k_de_embalse(p),
        HAS=tabla,
        inicial=_altura_inicial(p, tabla),
    )
    if p.suerte(0.5):
        n = _nro_filas(p)
        paso = (alturas[-1] - alturas[0]) / max(n - 1, 1)
        alturas_Q = [f32(alturas[0] + paso * k) for k in range(n)]
        alturas_Q[-1] = max(alturas_Q[-1], alturas[-1])
    else:
        alturas_Q = alturas
    represa["HQ"] = [
        [numero(H), Q] for H, Q in zip(alturas_Q, _con_caudal(p, alturas_Q, p.suerte(0.6)))
    ]
    represa["funciones"] = _funciones(p, alturas)
    return represa


def _funciones(p, alturas):
    """Eight rows: in use, a, b, c, H min, H max."""
    filas = []
    for n in range(1, 9):
        usada = p.suerte(0.35) or n == 1
        if not usada:
            filas.append([p.uno_de((0, 0, 0, 2)), p.entre(0, 9), p.entre(0, 2), p.entre(0, 2), 0.0, 0.0])
            continue
        minimo = p.uno_de((alturas[0], alturas[0], f32(p.azar.uniform(alturas[0], alturas[-1]))))
        maximo = p.uno_de((alturas[-1], alturas[-1] + 5, f32(p.azar.uniform(minimo, alturas[-1]))))
        if n <= 4:
            coeficientes = [p.entre(0, 30), p.uno_de((0.5, 1.5, 1, 0, 2, p.entre(0.1, 2.5))), 0.0]
        else:
            coeficientes = [p.entre(0, 5), p.entre(0, 8), p.entre(0, 3)]
        filas.append([1] + coeficientes + [minimo, maximo])
    return filas


def _lago(p, nodo):
    tabla = _tabla_de_alturas(p, _nro_filas(p))
    caudales = _con_caudal(p, tabla, p.suerte(0.6))
    return dict(
        nodo,
        metodo=p.uno_de(METODOS),
        K=_k_de_embalse(p),
        HASQ=[fila + [Q] for fila, Q in zip(tabla, caudales)],
        inicial=_altura_inicial(p, tabla),
    )


# ---------------------------------------------------------------------------------------------- storms


def elige_pasos(p):
    paso_pp, paso_q = p.uno_de(PASOS_GRUESOS if p.grande else PASOS)
    p.opciones["--paso-pp"], p.opciones["--paso-q"] = str(paso_pp), str(paso_q)


def elige_tormenta(p):
    """Form, storm and distribution; the personal tables and the real storm where they are needed."""
    paso_pp = int(p.opciones["--paso-pp"])
    forma = p.uno_de((0, 0, 0, 1, 3, 4))
    duracion = p.uno_de((paso_pp * p.azar.randint(1, 24), p.azar.randint(5, 400), 60, 25, 150, 151, 200, 240, 300, 330))
    if paso_pp >= 60 and p.suerte(0.3):
        duracion = p.uno_de((720, 1440, 2880, 2881, 660))
    p.opciones["--forma"] = str(forma)
    p.opciones["--pp"] = p.uno_de(("60", "25.5", str(p.entre(1, 200)), "100"))
    p.opciones["--dur"] = str(duracion)
    if p.suerte(0.3):
        p.opciones["--rec"] = str(p.uno_de(RECURRENCIAS_Y_MAS))
    p.opciones["--distribucion"] = str(p.uno_de((0, 0, 0, 1, 1, 2, 3, 4, 5, 6, 7)))
    if forma == 3 and p.suerte(0.9):
        laminas = [numero(p.uno_de((0, p.entre(1, 120), 60))) for _ in p.UEHs]
        p.opciones["--pp-ueh"] = ",".join(laminas[: p.uno_de((len(laminas), len(laminas), 1))])
    if forma == 4:
        _escribe_tormenta_real(p)
    _escribe_distribuciones(p)


def _escribe_tormenta_real(p):
    paso, n = p.uno_de((5, 10, 20, 30, 60)), p.azar.randint(1, 30)
    cuenta_paso_q = [q for q in (5, 10, paso) if paso % q == 0]
    p.opciones["--paso-q"] = str(p.uno_de(cuenta_paso_q))
    nombre = p.uno_de(("Lluvia_pt.vlm", "Abril 98_pt.vlm", "Velmir_pt.vlm"))
    p.archivos[nombre] = [
        [citado("tormenta de prueba")],
        [str(n), str(paso)],
        [citado("01/04/1998"), citado("10:00")],
        [citado("02/04/1998"), citado("10:00")],
    ] + [[numero(p.uno_de((0, p.entre(0, 12, 1), p.entre(0, 40))))] for _ in range(n)]
    if nombre != "Velmir_pt.vlm" or p.suerte(0.5):
        p.opciones["--tormenta"] = nombre


def _escribe_distribuciones(p):
    if not p.suerte(0.85):
        return
    tablas = []
    for _ in range(3):
        n = p.uno_de((0, 1, 3, 4, 6, 12, 30))
        partes = [p.azar.randint(0, 20) for _ in range(n)]
        total = sum(partes) or 1
        tablas.append([p.uno_de((str(v * 100 // total), numero(v * 100 / total))) for v in partes])
    registros = [[str(len(tabla)) for tabla in tablas]]
    for tabla in tablas:
        registros += [[citado("distribución propia")], ["30", "1440"]] + [[v] for v in tabla]
    p.archivos_trabajo["distriPp_dpt.vlm"] = registros


def elige_serie(p):
    p.modo = "serie"
    paso_pp = int(p.opciones["--paso-pp"])
    p.opciones["--distribucion"] = str(p.uno_de((0, 0, 1, 1, 2, 3, 4, 5, 6, 7)))
    tablas = []
    for _ in range(4):
        tabla = []
        for _ in range(p.uno_de((1, 2, 3, 4, 6))):
            D = p.uno_de(DURACIONES_Y_MAS + (paso_pp * 3, paso_pp * 2))
            tabla.append([str(p.azar.randint(1, 150)), str(D), str(p.uno_de(RECURRENCIAS_Y_MAS))])
        tablas.append(tabla)
    registros = [[str(len(tabla)) for tabla in tablas]]
    for k, tabla in enumerate(tablas):
        registros += [[citado("tabla %d" % k)]] + tabla
    p.archivos_trabajo["TablasPDRs_pdr.vlm"] = registros
    p.opciones["--tabla"] = str(p.azar.randint(0, 3))
    _escribe_distribuciones(p)


# ------------------------------------------------------------------------------------------ the files


def arma_configuracion(p):
    p.conf = [
        [citado(p.nombre)],
        [citado(p.uno_de(("Proyecto de prueba", "Crecidas del Ñireco, tramo alto", "")))],
        [citado("Río Negro")],
        [citado("Limay")],
        [citado("Ñireco")],
        [citado("A. Pérez")],
        [citado("01/02/2006")],
        [citado("")],
        [citado(p.directorio)],
        [citado("")],
        ["1"],
        [citado(p.nombre + "_Conf.vlm")],
        [p.uno_de(("0", "1"))],
        [citado(p.uno_de(("Ninguno", "mapa.jpg")))],
        [p.uno_de((citado("100"), citado("12,5"), "75", citado("33.3333333")))],
        [citado("libre")],
        [logico(True)],
        [logico(False)],
        [""],
        [p.uno_de(("0", "-12.5", "1E2"))],
        ["0"],
        [logico(True)],
        [logico(False)],
        [logico(True)],
        ["0"],
        [p.uno_de((numero(p.N0Dur), " " + numero(p.N0Dur) + " "))],
        [citado("800")],
        [p.uno_de((citado("0"), citado("12,75"), citado("5x")))],
    ]
    p.conf += [[p.uno_de("0111")] for _ in range(14)]
    p.conf += [[p.uno_de("01111")] for _ in range(17)]
    p.archivos[p.nombre + "_Conf.vlm"] = p.conf


def arma_componentes(p):
    registros = [[citado(p.nombre)], [str(len(p.cauces))]]
    for n, c in enumerate(p.cauces, 1):
        registros += _columna(str(n), citado(c["nombre"]), str(c["vertices"]), "1", citado(c["aa"]))
        registros += _columna(numero(c["velocidad"]), numero(c["longitud"]), "1")
        registros += _columna(numero(c["K"]), numero(c["x"]), logico(c["directo"]))
    registros += _columna(str(len(p.UEHs)))
    for n, u in enumerate(p.UEHs, 1):
        registros += _columna(str(n), citado(u["nombre"]), numero(u["area"]), citado("nota"))
        registros += _columna(numero(u["longitud"]), numero(u["velocidad"]), citado("Directo"))
        registros += _columna("10", "20", "30.5", "40.25", citado(u["aa"]))
        registros += _columna(*(numero(u[campo]) for campo in ("a", "b", "i", "q0", "k", "z")))
    registros += _columna(str(len(p.represas)))
    for n, r in enumerate(p.represas, 1):
        registros += _columna(str(n), citado(r["nombre"]), "1", "2", citado(r["metodo"]), "3", "4")
        registros += _columna(citado(r["aa"]), logico(r["por_tabla"]))
        registros += _columna(*(str(f[0]) for f in r["funciones"]))
        registros += _columna(*(numero(f[1]) for f in r["funciones"]))
        registros += _columna(*(numero(f[2]) for f in r["funciones"]))
        registros += _columna(*(numero(f[3]) for f in r["funciones"][4:]))
        registros += _columna(numero(r["K"]), "0.2")
        registros += _columna(*(numero(f[4]) for f in r["funciones"]))
        registros += _columna(*(numero(f[5]) for f in r["funciones"]))
        registros += _columna(numero(r["inicial"]))
    registros += _columna(str(len(p.lagos)))
    for n, lago in enumerate(p.lagos, 1):
        registros += _columna(str(n), citado(lago["nombre"]), citado(""), citado(lago["metodo"]))
        registros += _columna("1", "2", "3", "4", citado(lago["aa"]), numero(lago["K"]), numero(lago["inicial"]))
    p.archivos[p.nombre + "_UEHs.vlm"] = registros
    p.archivos[p.nombre + "_VerCau.vlm"] = [
        [numero(p.entre(0, 500)), numero(p.entre(0, 500))] for c in p.cauces for _ in range(c["vertices"])
    ]


def _columna(*campos):
    return [[campo] for campo in campos]


def arma_tablas(p):
    if p.represas:
        p.archivos[p.nombre + "_RHAS.vlm"] = _bloques(p.represas, "HAS", [citado("*")])
        p.archivos[p.nombre + "_RHQ.vlm"] = _bloques(p.represas, "HQ", [])
    if p.lagos:
        p.archivos[p.nombre + "_LHASQ.vlm"] = _bloques(p.lagos, "HASQ", [citado("*")] * 2)


def _bloques(componentes, tabla, relleno):
    registros = []
    for componente in componentes:
        registros.append([citado("*" + componente["nombre"]), str(len(componente[tabla]))] + relleno)
        registros += componente[tabla]
    return registros


def escribe(p):
    for directorio, archivos in ((p.directorio, p.archivos), (p.trabajo, p.archivos_trabajo)):
        os.makedirs(directorio, exist_ok=True)
        for nombre, registros in archivos.items():
            if nombre in p.sin_archivo:
                continue
            texto = "".join(",".join(registro) + p.fin_de_linea for registro in registros)
            datos = a_1252(texto)
            datos = danos.con_ruido(datos, [ruido[1:] for ruido in p.ruidos if ruido[0] == nombre])
            recorte = p.recortes.get(nombre, 1.0)
            if recorte == danos.SIN_FIN_DE_LINEA:
                datos = datos.rstrip(b"\r\n")
            else:
                datos = datos[: int(recorte * len(datos))]
            with open(os.path.join(directorio, nombre), "wb") as archivo:
                archivo.write(datos)
    for directorio in danos.directorios_vacios(p):
        os.makedirs(directorio, exist_ok=True)


# --------------------------------------------------------------------------------------------- command


def linea_de_comando(p):
    conf = p.nombre + "_Conf.vlm"
    if not p.conf_relativa:
        conf = os.path.join(p.directorio, conf)
    palabras = ["siro-lote", p.modo, conf, "--trabajo", p.trabajo]
    for opcion, valor in p.opciones.items():
        if valor is None:
            palabras.append(opcion)
        elif valor.startswith("-"):
            palabras.append(opcion + "=" + valor)
        else:
            palabras += [opcion, valor]
    return shlex.join(palabras)


def genera(semilla, directorio):
    """Writes the project; returns the words of its command line as one text."""
    p = Proyecto(semilla, directorio)
    p.nombre = p.uno_de(("Cuenca", "Cuenca", "Arroyo2", "Ñireco", "Prueba@1"))
    if p.suerte(0.5):
        p.trabajo = os.path.join(directorio, "trabajo")
    if p.suerte(0.1):
        p.fin_de_linea = "\n"
    p.grande = p.suerte(0.03)
    p.N0Dur = p.uno_de((0, 10, 30, 60, 120, 123.4, p.azar.randint(0, 400)))
    elige_pasos(p)
    arma_red(p)
    if p.suerte(0.3):
        elige_serie(p)
    else:
        elige_tormenta(p)
        if p.suerte(0.6):
            p.opciones["--pizarra"] = None
    if p.suerte(0.15):
        p.opciones["--responde"] = "no"
    if p.suerte(0.8):
        p.opciones["--resultados"] = os.path.join(directorio, "resultados.csv")
    if p.modo == "serie" and p.suerte(0.7):
        p.opciones["--hilos"] = p.uno_de(("0", "1", "2", "3"))
    p.conf_relativa = p.suerte(0.05)
    elegidos = extremos.elige(p) if p.suerte(0.4) else []
    for dano in elegidos:
        dano.en_modelo(p)
    arma_configuracion(p)
    arma_componentes(p)
    arma_tablas(p)
    danos.rarezas(p)
    for dano in elegidos:
        dano.en_archivos(p)
    escribe(p)
    return linea_de_comando(p)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("uso: generador.py SEMILLA DIRECTORIO")
    print(genera(int(sys.argv[1]), os.path.abspath(sys.argv[2])))
