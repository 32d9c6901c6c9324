# SPDX-License-Identifier: GPL-3.0-or-later
"""Values at the ends of their types and networks that no editor would draw, on top of the faults of danos.py."""
import danos
from danos import Dano
from numeros import f32, texto32


def elige(p):
    cuantos = p.uno_de((1, 1, 2, 3))
    return [p.uno_de(EXTREMOS if p.suerte(0.5) else danos.DANOS) for _ in range(cuantos)]


def _nodos(p):
    return p.cauces + p.represas + p.lagos


def _altera(p, componentes, valores_de):
    """In about half of the components, one field takes one of its values."""
    for componente in componentes:
        if p.suerte(0.5):
            campo, valores = p.uno_de(valores_de)
            componente[campo] = p.uno_de(valores)


# -------------------------------------------------------------------------------------- in the model


def lluvia_rara(p):
    if p.modo != "una":
        return
    p.opciones["--pp"] = p.uno_de(
        ("-10", "-0.5", "1e-30", "1e-42", "3e38", "1e10", "12345678", "0.001", "9999999", "1e6", "99999.99", "1e7")
    )
    if p.opciones["--forma"] == "3":
        laminas = [p.uno_de(("-3", "0", "1e30", "1e-40", "50", "1e9", "7.25")) for _ in p.UEHs]
        p.opciones["--pp-ueh"] = ",".join(laminas)


def UEHs_chicas(p):
    chicos = (1e-38, 1e-42, 1e-45, 1e-10, 1e-5, 1e-3)
    campos = ("area", "q0", "k", "a", "b", "i", "z", "velocidad", "longitud")
    _altera(p, p.UEHs, [(campo, chicos) for campo in campos])


def UEHs_grandes(p):
    grandes = (1e5, 1e6, 1e7, 1e8, 1e9, 1.1e9, 1e12, 1e15, 1e25, 1e35)
    _altera(p, p.UEHs, [(campo, grandes) for campo in ("area", "q0", "k", "a", "i", "z", "velocidad")])


def infiltracion_rara(p):
    campos = (
        ("a", (0, 1, -1, 100, 1e-3)),
        ("b", (0, 1, 0.5, -1, 2, 4, 4.5, 1e-5)),
        ("i", (0, -10, -5, 1e6, 2e6, 0.5, -1e-3)),
        ("z", (0, -5, 10, 1e9)),
    )
    for _ in campos:
        _altera(p, p.UEHs, campos)


def laderas_al_filo(p):
    """Travel times beside half a minute and beside whole steps."""
    _altera(p, p.UEHs, [("longitud", (29.9, 30, 30.1, 90, 150, 270, 330, 1e5, 6e5))])
    _altera(p, p.UEHs, [("velocidad", (1, 0.5, 0.1))])


def _caudal(p, fila):
    return texto32(f32(p.uno_de((0.0, fila, 10.0 * fila, -fila, fila * 1e30, -0.0, 1e-40, 5.0))))


def tabla_rara(p):
    """Few rows, narrow, high above and far below 0, falling; each embalse begins somewhere about its table."""
    for embalse, tabla in danos._todas_las_tablas(p):
        base = p.uno_de((-5.0, -20000.0, 0.0, 16383.0, 16380.0, 20000.0, -1.0, 1e-30, 100.0))
        salto = p.uno_de((0.001, 0.004, 0.005, 0.0051, 0.01, 1.0, 40.0, 5000.0, -1.0, 0.0))
        filas = p.uno_de((1, 2, 2, 3, 5))
        embalse[tabla] = [_fila_rara(p, tabla, k, base + salto * k) for k in range(filas)]
        arriba = salto * (filas - 1)
        embalse["inicial"] = f32(base + p.uno_de((0, arriba, arriba / 2, -1, salto * filas)))


def _fila_rara(p, tabla, k, H):
    fila = [texto32(f32(H))]
    if tabla != "HQ":
        fila.append(str(p.uno_de((0, 5, 1e-20, 1e20, -3, 32768))))
        S = (0, 100 * k, 100000 * k, 16777217 * k, 100000000 * k, 2147483520, -2147483648, 1e10)
        fila.append(str(p.uno_de(S)))
    if tabla != "HAS":
        fila.append(_caudal(p, k))
    return fila


def descarga_enorme(p):
    """Outflows whose double leaves the type, at once or after some steps."""
    for embalse, tabla in danos._todas_las_tablas(p):
        embalse["metodo"] = "Piscina Nivelada"
        mayor = p.uno_de(("1E+37", "3E+38", "1.7E+38", "5E+36"))
        for fila in embalse[tabla]:
            if tabla != "HAS":
                fila[-1] = p.uno_de((mayor, mayor, "-" + mayor, "0"))
    for represa in p.represas:
        represa["por_tabla"] = p.suerte(0.7)
        for funcion in represa["funciones"]:
            if p.suerte(0.3):
                funcion[:] = [1, p.uno_de((1e37, 3e38, -1e37, 9e37)), 0, 0, -1e4, 1e5]


def funciones_raras(p):
    for represa in p.represas:
        represa["por_tabla"] = False
        for funcion in represa["funciones"]:
            funcion[0] = p.uno_de((1, 1, 1, 0, 2, -1))
            funcion[1] = p.uno_de((0, 1, -2, 1e30, 1e-30, 5))
            funcion[2] = p.uno_de((0, 0.5, 1.5, -1, -0.3, 3, 100))
            funcion[3] = p.uno_de((0, 1, -1, 1e30))
            if p.suerte(0.3):
                funcion[4], funcion[5] = funcion[5], funcion[4]
            for limite in (4, 5):
                if p.suerte(0.2):
                    funcion[limite] = p.uno_de((-100.0, 0.0, 1e6))


def muskingum_de_embalse(p):
    for embalse in p.represas + p.lagos:
        embalse["metodo"] = "Muskingum"
        embalse["K"] = p.uno_de((0, -5, -2.5, 5, 10, 1e30, -1e30, 15, 30, -30, 1e-38, 3e38))


def cauces_raros(p):
    for cauce in p.cauces:
        if p.suerte(0.5):
            cauce["directo"] = p.suerte(0.5)
            cauce["longitud"] = p.uno_de((1e-30, 1e30, -500.0, 30.0, 90.0, 150.0, 1e7, 450.0))
            cauce["velocidad"] = p.uno_de((1.0, 1e-30, -1.0, 1e30, 0.5))
            cauce["K"] = p.uno_de((0, 1e-30, 1e30, -10, 5, 10, 7.5, 30))
            cauce["x"] = p.uno_de((0, 0.5, 1, -1, 2, 1e20, 0.25, 1e-8))


def sin_metodo_el_ultimo(p):
    for embalse in (p.represas + p.lagos)[-1:]:
        embalse["metodo"] = ""


def nombres_repetidos(p):
    for lista in (p.UEHs, p.cauces, p.represas, p.lagos):
        if len(lista) > 1 and p.suerte(0.6):
            lista[1]["nombre"] = lista[0]["nombre"]


def nombres_de_otra_clase(p):
    nodos = _nodos(p)
    if len(nodos) > 1:
        uno, otro = p.azar.sample(nodos, 2)
        uno["nombre"] = otro["nombre"]
    if p.UEHs and nodos and p.suerte(0.3):
        p.uno_de(p.UEHs)["nombre"] = p.uno_de(nodos)["nombre"]


_NOMBRES = ("", "0", "*x", "c-", "u-", "l-lago", "r-1", "c-con, coma", "c-\r\nsalto", "c- blanco ")
_NOMBRES += ("c-nombre largo de veras", "ñ", "c-€Ÿ\x81", "u-\t", "#TRUE#", "c-1 ")


def nombres_raros(p):
    """New names, which whoever drains there follows."""
    todos = p.UEHs + _nodos(p)
    for componente in todos:
        if not p.suerte(0.3):
            continue
        viejo, componente["nombre"] = componente["nombre"], p.uno_de(_NOMBRES)
        for otro in todos:
            if otro["aa"] == viejo:
                otro["aa"] = componente["nombre"]


def destinos_al_azar(p):
    todos = p.UEHs + _nodos(p)
    for componente in todos:
        if p.suerte(0.15):
            componente["aa"] = p.uno_de(todos)["nombre"]


def N0Dur_extremo(p):
    p.N0Dur = p.uno_de((-5, -60, -1000, 0.5, 1e-30, -1e6, 700.7, 59.999999, 1e-5, 3))


def duracion_al_filo(p):
    """Beside the limits of López Cadenas' tables, and shorter than a step."""
    if p.modo == "una":
        p.opciones["--dur"] = p.uno_de(("1", "7", "11", "719", "720", "331", "330", "329", "151", "211", "270", "271"))
        if int(p.opciones["--paso-pp"]) >= 30:
            p.opciones["--dur"] = p.uno_de((p.opciones["--dur"], "2879", "2880", "2881"))
    if p.suerte(0.3):
        p.opciones["--distribucion"] = "1"


def pasos_raros(p):
    pasos = ((1, 1), (3, 1), (7, 7), (49, 7), (13, 13), (10, 3), (1000, 100), (32767, 32767), (97, 97))
    paso_pp, paso_q = p.uno_de(pasos)
    p.opciones["--paso-pp"], p.opciones["--paso-q"] = str(paso_pp), str(paso_q)
    if paso_q < 7 and p.modo == "una":
        p.opciones["--dur"] = "30"


# -------------------------------------------------------------------------------------- in the files


def _tablas_PDR(p):
    return p.archivos_trabajo.get("TablasPDRs_pdr.vlm", [])


def serie_rara(p):
    valores = (
        ("-5", "1", "32767", "200.6", "0.4", "2", "0.5", "1.5"),
        ("-60", "2881", "2880", "720", "5", "15", "1440", "2879"),
        ("-2", "32767", "5000", "500", "10000", "20"),
    )
    for registro in _tablas_PDR(p)[1:]:
        if len(registro) == 3 and p.suerte(0.4):
            columna = p.azar.randrange(3)
            registro[columna] = p.uno_de(valores[columna])


def serie_larga(p):
    """One table of many storms, some without a table of López Cadenas: they take what earlier ones left."""
    if not _tablas_PDR(p):
        return
    fina = int(p.opciones["--paso-q"]) < 10
    duraciones = (10, 20, 30, 45, 60, 90, 120, 180, 240, 50) + (() if fina else (360, 720, 1440, 2881, 3000))
    tabla = []
    for _ in range(p.azar.randint(8, 20)):
        R = p.uno_de((2, 5, 10, 25, 50, 100, 500, 1000, 5000, 7, 0))
        tabla.append([str(p.azar.randint(1, 150)), str(p.uno_de(duraciones)), str(R)])
    p.archivos_trabajo["TablasPDRs_pdr.vlm"] = [[str(len(tabla))] * 4] + ([['"la misma"']] + tabla) * 4


def tormenta_rara(p):
    for nombre, registros in p.archivos.items():
        if not nombre.endswith("_pt.vlm"):
            continue
        if p.suerte(0.4):
            registros[1][1] = p.uno_de(("-10", "0", "32767", "7", "1", "-1", "2000"))
        if p.suerte(0.2):
            registros[1][0] = p.uno_de(("-3", "0", "1", "999", "32767"))
        for registro in registros[4:]:
            if p.suerte(0.2):
                registro[0] = p.uno_de(("-4", "1e30", "3e38", "1e-40", "0", "-0", "1000000"))


def distribuciones_raras(p):
    registros = p.archivos_trabajo.get("distriPp_dpt.vlm", [])
    if registros and p.modo == "una":
        p.opciones["--distribucion"] = p.uno_de("567")
    for registro in registros[1:]:
        if len(registro) == 1 and not registro[0].startswith('"') and p.suerte(0.3):
            registro[0] = p.uno_de(("-20", "150", "0.5", "1.5", "32767", "32768", "2.5", "0"))


def distribucion_larga(p):
    periodos = [[p.uno_de("0123")] for _ in range(p.uno_de((100, 400, 999)))]
    notas = [['"propia"'], ["1", "2"]]
    tercera = [["50"], ["25"], ["25"]]
    p.archivos_trabajo["distriPp_dpt.vlm"] = (
        [[str(len(periodos)), "0", "3"]] + notas + periodos + notas + notas + tercera
    )
    p.opciones["--distribucion"] = p.uno_de("567")


def casillas_raras(p):
    """Ticks that are neither 0 nor 1."""
    for registro in p.conf[28:]:
        if p.suerte(0.3):
            registro[0] = p.uno_de(("2", "-1", "0", "1", "0.5", "1.5", "0.6"))


EXTREMOS = [
    Dano(en_modelo=f)
    for f in (
        lluvia_rara,
        UEHs_chicas,
        UEHs_grandes,
        infiltracion_rara,
        laderas_al_filo,
        tabla_rara,
        tabla_rara,
        descarga_enorme,
        funciones_raras,
        muskingum_de_embalse,
        cauces_raros,
        sin_metodo_el_ultimo,
        nombres_repetidos,
        nombres_de_otra_clase,
        nombres_raros,
        destinos_al_azar,
        N0Dur_extremo,
        duracion_al_filo,
        pasos_raros,
    )
] + [
    Dano(en_archivos=f)
    for f in (
        serie_rara,
        serie_rara,
        serie_larga,
        tormenta_rara,
        distribuciones_raras,
        distribucion_larga,
        casillas_raras,
    )
]
