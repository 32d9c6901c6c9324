# SPDX-License-Identifier: GPL-3.0-or-later
"""Faults and oddities that the project generator plants: in the model before its files are built, or in the files."""
import os

from numeros import Falla, div, f32, numero_entero, texto32


def suma_muskingum(K, x, paso):
    """Sum of the three coefficients as the check of a reach works it out; None where it can't."""
    try:
        den = f32(K - K * x + 0.5 * paso)
        c0 = f32(div(0.5 * paso - K * x, den))
        c1 = f32(div(K * x + 0.5 * paso, den))
        c2 = f32(div(K - K * x - 0.5 * paso, den))
        return f32(c0 + c1 + c2)
    except Falla:
        return None


SIN_FIN_DE_LINEA = "sin fin de línea"  # a cut that takes away the last line end alone


class Dano:
    """One fault: what it does to the model, and what to the files."""

    def __init__(self, en_modelo=None, en_archivos=None):
        self.en_modelo = en_modelo or (lambda p: None)
        self.en_archivos = en_archivos or (lambda p: None)


def directorios_vacios(p):
    return p.directorios if p.sin_trabajo else p.directorios + [p.trabajo]


# -------------------------------------------------------------------------------------- in the model


def _alguna(p, lista):
    return p.uno_de(lista) if lista else {}


def _pone(p, componente, **valores):
    componente.update(valores)


def velocidad_cero(p):
    _pone(p, _alguna(p, p.UEHs), **{p.uno_de(("velocidad", "longitud")): 0})


def areas_cero(p):
    for n, ueh in enumerate(p.UEHs):
        if n == 0 or p.suerte(0.5):
            ueh["area"] = 0


def area_cero_despues(p):
    for ueh in p.UEHs[-1:]:
        ueh["area"] = 0


def areas_que_se_anulan(p):
    if len(p.UEHs) > 1:
        p.UEHs[0]["area"], p.UEHs[-1]["area"] = 10, -10


def muskingum_libre(p):
    for cauce in p.cauces:
        if p.suerte(0.6):
            _pone(p, cauce, directo=False, K=p.entre(0, 90), x=p.uno_de((p.entre(0, 0.5), 1.5, -0.2)))


def muskingum_sin_denominador(p):
    cauce = _alguna(p, p.cauces)
    _pone(p, cauce, directo=False, K=float(p.opciones["--paso-q"]), x=1.5)


def embalse_sin_suma(p):
    for embalse in p.represas + p.lagos:
        _pone(p, embalse, metodo="Muskingum", K=p.entre(0, 300, 3))


def embalse_sin_denominador(p):
    embalse = _alguna(p, p.represas + p.lagos)
    _pone(p, embalse, metodo="Muskingum", K=-float(p.opciones["--paso-q"]) / 2)


def directo_en_cero(p):
    cauce = _alguna(p, p.cauces)
    _pone(p, cauce, directo=True, **{p.uno_de(("longitud", "velocidad")): 0})


def directo_lento(p):
    cauce = _alguna(p, p.cauces)
    _pone(p, cauce, directo=True, longitud=p.uno_de((400000, 4e6, 1e9)), velocidad=0.5)


def negativos_UEH(p):
    campo = p.uno_de(("q0", "k", "a", "b", "i", "z", "velocidad", "longitud", "area"))
    ueh = _alguna(p, p.UEHs)
    _pone(p, ueh, **{campo: -abs(ueh.get(campo) or 3)})


def negativos_red(p):
    componente = _alguna(p, p.cauces)
    _pone(p, componente, **{p.uno_de(("velocidad", "longitud", "K", "x")): -p.entre(0.1, 20)})


def potencias_malas(p):
    for ueh in p.UEHs:
        if p.suerte(0.5):
            _pone(p, ueh, b=p.uno_de((-0.5, 0.5, 40, 12)), i=p.uno_de((0, -25, -5, 5)), a=2, z=0)


def enorme(p):
    ueh = _alguna(p, p.UEHs)
    _pone(p, ueh, **{p.uno_de(("area", "longitud", "q0", "k", "a", "i", "z")): p.uno_de((1e9, 3e38, 1e20))})


def pasos_no_multiplos(p):
    p.opciones["--paso-pp"], p.opciones["--paso-q"] = p.uno_de((("20", "15"), ("10", "4"), ("30", "7")))


def paso_q_mayor(p):
    p.opciones["--paso-q"] = str(int(p.opciones["--paso-pp"]) * 2)


def N0Dur_raro(p):
    p.N0Dur = p.uno_de((0.3, 7, 1e-6, -10, 33.3333333, 1000))


def N0Dur_enorme(p):
    p.N0Dur = p.uno_de((1e6, 3e38, 33000))
    if p.N0Dur == 33000:
        p.opciones["--paso-pp"], p.opciones["--paso-q"] = p.uno_de((("720", "720"), ("1000", "500")))
        p.opciones["--dur"] = p.uno_de(("1440", "2880"))


def desborda_16_bits(p):
    """Steps times their length pass 32767 minutes in a run of few steps."""
    paso = p.uno_de((700, 1500, 3000))
    p.opciones["--paso-pp"] = str(paso)
    p.opciones["--paso-q"] = str(p.uno_de((paso, paso // 2)))
    p.opciones["--dur"] = p.uno_de(("32000", "30000", "6000"))
    p.opciones["--distribucion"] = str(p.uno_de((0, 1, 2)))
    p.N0Dur = p.uno_de((0, 2000, 5000))


def traslado_larguisimo(p):
    for ueh in p.UEHs[:2]:
        _pone(p, ueh, longitud=p.uno_de((32700 * 60, 32000 * 60, 40000 * 60)), velocidad=1, a=0, z=0)
    p.opciones["--paso-pp"], p.opciones["--paso-q"] = "720", "720"
    if p.modo == "una":
        p.opciones["--forma"] = "0"  # a real storm brings a step of its own, too short for so long a way
        p.opciones["--dur"] = "1440"


def ciclo(p):
    nodos = p.cauces + p.represas + p.lagos
    if len(nodos) >= 2:
        p.azar.shuffle(nodos)
        largo = p.azar.randint(2, min(4, len(nodos)))
        for n in range(largo):
            nodos[n]["aa"] = nodos[(n + 1) % largo]["nombre"]


def ciclo_total(p):
    """No outfall at all."""
    nodos = p.cauces + p.represas + p.lagos
    for n, nodo in enumerate(nodos):
        nodo["aa"] = nodos[(n + 1) % len(nodos)]["nombre"]
    for ueh in p.UEHs:
        if nodos:
            ueh["aa"] = nodos[0]["nombre"]


def a_si_mismo(p):
    nodo = _alguna(p, p.cauces + p.lagos)
    if nodo:
        nodo["aa"] = nodo["nombre"]


def sin_aportes(p):
    victima = _alguna(p, p.cauces + p.represas + p.lagos)
    for componente in p.UEHs + p.cauces + p.represas + p.lagos:
        if victima and componente["aa"] == victima["nombre"]:
            componente["aa"] = p.uno_de(("", "0", "C-1"))


def once_salidas(p):
    while 0 < len(p.UEHs) < 13:
        nueva = dict(p.UEHs[0])
        nueva["nombre"] = "u-extra%d" % len(p.UEHs)
        p.UEHs.append(nueva)
    for ueh in p.UEHs[: p.azar.randint(11, 13)]:
        ueh["aa"] = "0"


def drena_a_UEH(p):
    nodo = _alguna(p, p.cauces)
    if nodo and p.UEHs:
        nodo["aa"] = p.UEHs[0]["nombre"]


def metodo_malo(p):
    for embalse in p.represas + p.lagos:
        if p.suerte(0.5):
            embalse["metodo"] = p.uno_de(("", "piscina nivelada", "Puls", "Muskingum "))


def inicial_fuera(p):
    for embalse in p.represas + p.lagos:
        embalse["inicial"] = p.uno_de((-5.0, 0.0, 5000.0, embalse["inicial"] + 30))


def tabla_corta(p):
    """The outflow table doesn't reach the heights of the other one."""
    for represa in p.represas:
        represa["por_tabla"] = True
        if len(represa["HQ"]) > 2:
            represa["HQ"] = represa["HQ"][1:-1] if p.suerte(0.5) else represa["HQ"][:2]
    for lago in p.lagos:
        lago["HASQ"] = lago["HASQ"][: max(2, len(lago["HASQ"]) // 2)]


def tabla_desordenada(p):
    for embalse, tabla in _todas_las_tablas(p):
        if p.suerte(0.6):
            p.azar.shuffle(embalse[tabla])


def tabla_repetida(p):
    for embalse, tabla in _todas_las_tablas(p):
        filas = embalse[tabla]
        if filas:
            filas.insert(p.azar.randrange(len(filas)), list(p.uno_de(filas)))


def tabla_vacia(p):
    for embalse, tabla in _todas_las_tablas(p):
        if p.suerte(0.5):
            embalse[tabla] = []


def almacenamiento_enorme(p):
    for embalse, tabla in _todas_las_tablas(p):
        if tabla != "HQ":
            for n, fila in enumerate(embalse[tabla]):
                fila[2] = str(p.uno_de((n * 300000000 - 2000000000, 16777217 + n, n * 2000000000)))


def superficie_cero(p):
    for embalse, tabla in _todas_las_tablas(p):
        embalse["metodo"] = "Runge Kutta"
        if tabla != "HQ":
            for fila in embalse[tabla]:
                fila[1] = "0"


def superficie_enorme(p):
    """The scan for a later block meets areas that don't fit into 16 bits."""
    for embalse, tabla in _todas_las_tablas(p):
        for fila in embalse[tabla]:
            fila[1] = str(p.uno_de((40000, 32767.4, 32767.5, 99999)))


def alturas_enormes(p):
    """The bisection can't halve its bracket any more."""
    for represa in p.represas:
        represa["metodo"] = p.uno_de(("Muskingum", "Piscina Nivelada"))
        for tabla in ("HAS", "HQ"):
            for n, fila in enumerate(represa[tabla]):
                fila[0] = texto32(f32(1e6 + n * 1000.0))
        represa["inicial"] = 1e6
    for lago in p.lagos:
        lago["metodo"] = p.uno_de(("Muskingum", "Piscina Nivelada"))
        for n, fila in enumerate(lago["HASQ"]):
            fila[0] = texto32(f32(1e6 + n * 1000.0))
        lago["inicial"] = 1e6


def funciones_malas(p):
    for represa in p.represas:
        represa["por_tabla"] = False
        for funcion in represa["funciones"]:
            funcion[2] = p.uno_de((-0.5, -1, 0, 30))
            if p.suerte(0.2):
                funcion[0] = 0


def sin_funciones(p):
    for represa in p.represas:
        represa["por_tabla"] = False
        for funcion in represa["funciones"]:
            funcion[0] = p.uno_de((0, 2, -1))


def _todas_las_tablas(p):
    pares = [(r, t) for r in p.represas for t in ("HAS", "HQ")]
    return pares + [(lago, "HASQ") for lago in p.lagos]


def muchos_componentes(p):
    """One more than an array holds; kept to few steps."""
    p.opciones["--paso-pp"] = p.opciones["--paso-q"] = "60"
    p.N0Dur = 60
    if "--dur" in p.opciones:
        p.opciones["--dur"] = "120"
    tipo = p.uno_de(("u", "c", "r", "l"))
    lista, limite = {"u": (p.UEHs, 70), "c": (p.cauces, 70), "r": (p.represas, 20), "l": (p.lagos, 70)}[tipo]
    if not lista or not p.UEHs:
        return
    modelo = dict(lista[0])
    while len(lista) < limite + p.uno_de((1, 1, 2)):
        nuevo = dict(modelo)
        nuevo["nombre"] = tipo + "-m%d" % len(lista)
        lista.append(nuevo)
        p.UEHs[len(lista) % len(p.UEHs)]["aa"] = nuevo["nombre"] if tipo != "u" else ""
    if tipo != "u":
        for n, nuevo in enumerate(lista):
            if n + 1 < len(lista):
                nuevo["aa"] = lista[n + 1]["nombre"]


def sin_UEHs(p):
    p.UEHs.clear()


def lluvia_cero(p):
    p.opciones[p.uno_de(("--pp", "--dur"))] = "0"


def mal_llamado(p):
    opcion, valor = p.uno_de(
        (("--paso-q", "0"), ("--dur", "40000"), ("--rec", "1.5"), ("--forma", "2"), ("--pp", "mucho"))
    )
    p.opciones[opcion] = valor


# -------------------------------------------------------------------------------------- in the files


def _archivo_al_azar(p):
    todos = [(p.archivos, nombre) for nombre in p.archivos]
    todos += [(p.archivos_trabajo, nombre) for nombre in p.archivos_trabajo]
    return p.uno_de(todos)


def archivo_que_falta(p):
    p.sin_archivo.add(_archivo_al_azar(p)[1])


def directorio_en_su_lugar(p):
    """A directory bears the file's name: the path can't be read."""
    nombre = _archivo_al_azar(p)[1]
    p.sin_archivo.add(nombre)
    p.directorios.append(os.path.join(p.directorio, nombre))


def archivo_cortado(p):
    p.recortes[_archivo_al_azar(p)[1]] = p.azar.random()


def bytes_al_azar(p):
    """A few bytes replaced, put in or taken out."""
    nombre = _archivo_al_azar(p)[1]
    for _ in range(p.uno_de((1, 1, 2, 5))):
        p.ruidos.append((nombre, p.azar.random(), p.uno_de("psq"), p.uno_de(b'",  \r\n#-.eEDx*\x81\x00\xd1')))


def con_ruido(datos, ruidos):
    """The bytes of a file after its random changes: (place from 0 to 1, kind, byte)."""
    datos = bytearray(datos)
    for parte, clase, byte in ruidos:
        n = int(parte * len(datos))
        if clase == "p":
            datos.insert(n, byte)
        elif n < len(datos):
            datos[n : n + 1] = bytes([byte]) if clase == "s" else b""
    return bytes(datos)


def archivo_apenas_cortado(p):
    p.recortes[_archivo_al_azar(p)[1]] = p.uno_de((0.999, 0.99, 0.0))


def campo_malo(p):
    for _ in range(p.uno_de((1, 1, 1, 3))):
        archivos, nombre = _archivo_al_azar(p)
        registros = archivos[nombre]
        if not registros:
            continue
        registro = p.uno_de(registros)
        n = p.azar.randrange(len(registro))
        if registro is registros[0] and nombre.endswith(("_Conf.vlm", "_UEHs.vlm")):
            continue  # another project name leads elsewhere; that has a fault of its own
        if nombre.endswith("_UEHs.vlm") and registro[n].isdigit() and registro[n - 1].startswith('"*'):
            continue
        registro[n] = p.uno_de(
            ('"texto"', "12x", "", "#TRUE#", "1E39", "-7", "99999", '"12"', "2.5", "3.5", "1D2", ".5", "-", "+1.", "sin")
        )


def _desviada(texto, desvios, azar):
    """A count, whatever its form, off by one of the amounts."""
    valor = numero_entero(texto)
    cuenta = int(valor) if valor is not None and abs(valor) < 1000 else 0
    return str(max(0, cuenta + azar.choice(desvios)))


def cuenta_que_miente(p):
    """A count in the component file is off by a few."""
    registros = p.archivos[p.nombre + "_UEHs.vlm"]
    lugares = _lugares_de_cuentas(p)
    lugar = p.uno_de(lugares)
    registros[lugar] = [_desviada(registros[lugar][0], (-1, 1, 1, 2), p.azar)]


def _lugares_de_cuentas(p):
    lugares = [1]
    lugares.append(lugares[-1] + 1 + 11 * len(p.cauces))
    lugares.append(lugares[-1] + 1 + 18 * len(p.UEHs))
    lugares.append(lugares[-1] + 1 + 56 * len(p.represas))
    return lugares


def filas_que_mienten(p):
    for sufijo in ("_RHAS.vlm", "_RHQ.vlm", "_LHASQ.vlm"):
        for registro in p.archivos.get(p.nombre + sufijo, []):
            if registro[0].startswith('"*') and p.suerte(0.6):
                registro[1] = _desviada(registro[1], (-1, 1, 2, 12), p.azar)


def bloque_que_falta(p):
    for sufijo in ("_RHAS.vlm", "_RHQ.vlm", "_LHASQ.vlm"):
        for registro in p.archivos.get(p.nombre + sufijo, []):
            if registro[0].startswith('"*') and p.suerte(0.5):
                registro[0] = '"*otra"'


def cuenta_en_otro_archivo(p):
    for archivos in (p.archivos, p.archivos_trabajo):
        for nombre, registros in archivos.items():
            if nombre.endswith(("_pt.vlm", "_dpt.vlm", "_pdr.vlm")):
                registro = registros[1] if nombre.endswith("_pt.vlm") else registros[0]
                n = p.azar.randrange(len(registro))
                registro[n] = _desviada(registro[n], (-1, 1, 3), p.azar)


def serie_con_cero(p):
    registros = p.archivos_trabajo.get("TablasPDRs_pdr.vlm", [[]])
    for registro in registros[1:]:
        if len(registro) == 3 and p.suerte(0.2):
            registro[p.azar.randrange(2)] = "0"


def tablas_vacias(p):
    if "TablasPDRs_pdr.vlm" in p.archivos_trabajo:
        p.archivos_trabajo["TablasPDRs_pdr.vlm"] = [["0", "0", "0", "0"]] + [['"vacía"']] * 4


def nombre_de_adentro(p):
    """The name inside a file rules from there on."""
    otro = p.uno_de(("Otra", ""))
    p.archivos[p.nombre + p.uno_de(("_Conf.vlm", "_UEHs.vlm"))][0] = ['"' + otro + '"']
    if p.suerte(0.5):
        for sufijo in ("_Conf", "_UEHs", "_VerCau", "_RHAS", "_RHQ", "_LHASQ"):
            registros = p.archivos.get(p.nombre + sufijo + ".vlm")
            if registros is not None and p.suerte(0.8):
                p.archivos[otro + sufijo + ".vlm"] = [list(registro) for registro in registros]


def sin_directorio_de_trabajo(p):
    p.trabajo = os.path.join(p.directorio, "no", "existe")
    p.archivos_trabajo = {}
    p.sin_trabajo = True


def unidad_en_el_directorio(p):
    p.conf[8] = ['"D:' + p.directorio + '"']


def caudal_que_baja(p):
    """An outflow that falls with the height."""
    for embalse, tabla in _todas_las_tablas(p):
        if tabla != "HAS":
            caudales = [fila[-1] for fila in embalse[tabla]]
            for fila, caudal in zip(embalse[tabla], p.uno_de((caudales[::-1], p.azar.sample(caudales, len(caudales))))):
                fila[-1] = caudal


def cabeceras_raras(p):
    """What stands ahead of a block and in its header shifts or stops the scan."""
    for sufijo in ("_RHAS.vlm", "_RHQ.vlm", "_LHASQ.vlm"):
        registros = p.archivos.get(p.nombre + sufijo, [])
        if registros and p.suerte(0.2):
            registros.insert(0, p.uno_de((['"nota"'], ['"nota"', "1"], ["1", "2", "3"], [], ["40000", "40000"])))
        for registro in registros:
            if not registro or not registro[0].startswith('"*') or p.suerte(0.6):
                continue
            clase = p.azar.randrange(5)
            if clase == 0:
                registro[1] = p.uno_de(("-1", "-32768", "2.5", "1.5", '"2"', "x"))
            elif clase == 1:
                registro[0] = registro[0].strip('"')
            elif clase == 2:
                registro[0] += " resto"
            elif clase == 3:
                registro.append('"*"')
            else:
                registro.pop()


def bloque_doble(p):
    for sufijo in ("_RHAS.vlm", "_RHQ.vlm", "_LHASQ.vlm"):
        registros = p.archivos.get(p.nombre + sufijo, [])
        cabeceras = [n for n, registro in enumerate(registros) if registro[0].startswith('"*')]
        if len(cabeceras) > 1:
            registros[cabeceras[-1]][0] = registros[cabeceras[0]][0]


def orden_de_lineas(p):
    """All fields of a file on one line, or each on its own: comma and line end are alike."""
    nombre = _archivo_al_azar(p)[1]
    for archivos in (p.archivos, p.archivos_trabajo):
        if nombre in archivos:
            todos = [campo for registro in archivos[nombre] for campo in registro]
            archivos[nombre] = p.uno_de(([todos], [[campo] for campo in todos]))


def muskingum_inestable(p):
    """Coefficients that add up to 1 and make the flow grow from step to step, at last out of its type."""
    paso = float(p.opciones["--paso-q"])
    for cauce in p.cauces:
        for _ in range(200):
            K, x = f32(p.entre(paso, 9 * paso)), f32(p.uno_de((1.5, 2, 1.1, 3, p.entre(1, 4))))
            if suma_muskingum(K, x, int(paso)) == 1:
                _pone(p, cauce, directo=False, K=K, x=x)
                break
    p.N0Dur = p.uno_de((400, 1500, 3000)) if paso >= 10 else 400


def exponentes_desmedidos(p):
    """Numbers that a 64-bit float doesn't hold, and others in long forms."""
    formas = ("1E400", "1E-400", "1D400", "-1D-400", "0E99999", "1" + "0" * 400, "0." + "0" * 400 + "1", "1E+99999999999999999999")
    formas += ("1E-99999999999999999999", "123456789012345678901234567890E-20", "0.1E1", "000012", "1.D1", "-0", "-.5D0")
    for _ in range(p.uno_de((1, 3, 8))):
        archivos, nombre = _archivo_al_azar(p)
        registro = p.uno_de(archivos[nombre]) if archivos[nombre] else []
        for n, campo in enumerate(registro):
            if campo and not campo.startswith(('"', "#")):
                registro[n] = p.uno_de(formas)


def caudales_enormes(p):
    """Sums of flows near the largest 32-bit float."""
    for ueh in p.UEHs:
        _pone(p, ueh, area=1e9, a=0, z=0, longitud=p.uno_de((1, 600, 3000)), velocidad=1, q0=p.uno_de((0, 3e38, 1e30)), k=1e9)
    if p.modo == "una":
        p.opciones["--pp"] = p.uno_de(("1E+30", "1E+32", "2E+31", "60"))


DANOS = (
    [
        Dano(en_modelo=f)
        for f in (
            velocidad_cero,
            areas_cero,
            area_cero_despues,
            areas_que_se_anulan,
            muskingum_libre,
            muskingum_sin_denominador,
            embalse_sin_suma,
            embalse_sin_denominador,
            directo_en_cero,
            directo_lento,
            negativos_UEH,
            negativos_UEH,
            negativos_red,
            potencias_malas,
            enorme,
            pasos_no_multiplos,
            paso_q_mayor,
            N0Dur_raro,
            N0Dur_enorme,
            desborda_16_bits,
            desborda_16_bits,
            traslado_larguisimo,
            ciclo,
            ciclo_total,
            a_si_mismo,
            sin_aportes,
            once_salidas,
            drena_a_UEH,
            metodo_malo,
            inicial_fuera,
            tabla_corta,
            tabla_desordenada,
            tabla_repetida,
            tabla_vacia,
            almacenamiento_enorme,
            superficie_cero,
            superficie_enorme,
            alturas_enormes,
            funciones_malas,
            sin_funciones,
            muchos_componentes,
            sin_UEHs,
            lluvia_cero,
            mal_llamado,
            caudal_que_baja,
            muskingum_inestable,
            caudales_enormes,
        )
    ]
    + [
        Dano(en_archivos=f)
        for f in (
            archivo_que_falta,
            directorio_en_su_lugar,
            archivo_cortado,
            archivo_cortado,
            archivo_apenas_cortado,
            bytes_al_azar,
            bytes_al_azar,
            campo_malo,
            campo_malo,
            campo_malo,
            cuenta_que_miente,
            filas_que_mienten,
            bloque_que_falta,
            cuenta_en_otro_archivo,
            serie_con_cero,
            tablas_vacias,
            nombre_de_adentro,
            sin_directorio_de_trabajo,
            unidad_en_el_directorio,
            cabeceras_raras,
            bloque_doble,
            orden_de_lineas,
            exponentes_desmedidos,
        )
    ]
)


# ------------------------------------------------------------------------------------------- oddities


def rarezas(p):
    """Unusual but sound: a moved project, numbers in other forms, a file without its last line end."""
    if p.suerte(0.08):
        p.conf[7] = ['"C: [DISCO]"']
    if p.suerte(0.08):
        p.conf[8] = [p.uno_de(('"C:\\SIRO\\Proyectos"', '"/otro/lugar"', '""'))]
    if p.suerte(0.08):
        p.archivos["ListaPDR.vlm"] = [["60", "60", "2"]]
    if p.suerte(0.1):
        for registros in p.archivos.values():
            for registro in registros:
                if p.suerte(0.05) and registro[0].isdigit():
                    registro[0] = p.uno_de((" " + registro[0], registro[0] + ".", registro[0] + "E0", "+" + registro[0]))
    if p.suerte(0.1):
        p.recortes[p.uno_de(list(p.archivos))] = SIN_FIN_DE_LINEA
