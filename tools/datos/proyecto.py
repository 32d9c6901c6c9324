# SPDX-License-Identifier: GPL-3.0-or-later
"""The files of the sample project, from the basin's description and what was measured on its map."""

import configuracion
import cuenca
import terreno
from registros import Float32, Guarda

PASOS = (5, 10, 15, 20, 30, 60, 120, 180, 240, 300, 360, 540, 720)  # steps that the storm dialog offers [min]


CUERPOS = (cuenca.EMBALSE_QUELMAR, cuenca.EMBALSE_CALFUN, cuenca.LAGUNA_HUILLIN)
ICONOS = {e.nombre: e.icono for e in cuenca.ESPEJOS}


def OrdenesDeCauce():
    """Strahler order of each reach; a lake or a dam hands on the reaches that enter it."""
    def Orden(nombre):
        afluentes = [c.nombre for c in cuenca.CAUCES if c.aguas_abajo == nombre]
        for cuerpo in CUERPOS:
            if cuerpo.aguas_abajo == nombre:
                afluentes += [c.nombre for c in cuenca.CAUCES if c.aguas_abajo == cuerpo.nombre]
        ordenes = sorted((Orden(a) for a in afluentes), reverse=True)
        if not ordenes:
            return 1
        return ordenes[0] + (len(ordenes) > 1 and ordenes[1] == ordenes[0])
    return {c.nombre: Orden(c.nombre) for c in cuenca.CAUCES}


def Tabla(cuerpo):
    """Rows of height [m], surface [ha], storage [m3]."""
    espejo = next(e for e in cuenca.ESPEJOS if e.nombre == cuerpo.nombre)
    c = terreno.AreaEspejo(espejo) - cuerpo.a0
    filas, volumen, antes = [], float(cuerpo.s0), None
    for h in cuerpo.alturas:
        area = round(cuerpo.a0 + c * (h / cuerpo.hn) ** cuerpo.m, 1)
        if antes:
            volumen += (area + antes[1]) / 2 * 10000 * (h - antes[0])
        filas.append((float(h), area, round(volumen)))
        antes = (h, area)
    return filas


def Comprueba(longitudes):
    """The rules that a project must keep to run without a question. Raises AssertionError."""
    nombres = [c.nombre for c in cuenca.CAUCES] + [c.nombre for c in CUERPOS]
    todos = [(u.nombre, u.aguas_abajo) for u in cuenca.UEHS] + [(c.nombre, c.aguas_abajo) for c in cuenca.CAUCES]
    todos += [(c.nombre, c.aguas_abajo) for c in CUERPOS]
    assert len({n for n, _ in todos}) == len(todos) and all(len(n) <= 15 for n, _ in todos)
    assert [n for n, aa in todos if aa not in nombres] == ["c-Quelmar5"], "a single outfall"
    assert all(any(aa == n for _, aa in todos) for n in nombres), "everything is fed"
    for cauce in cuenca.CAUCES:
        for paso in PASOS:
            assert SumaMuskingum(cauce.k_musk, cauce.x_musk, paso) == 1, (cauce.nombre, paso)
    for cuerpo in CUERPOS:
        filas = Tabla(cuerpo)
        assert filas[0][0] <= cuerpo.h_inicial <= filas[-1][0]
        for a, b in zip(filas, filas[1:]):
            assert b[0] > a[0] and b[1] >= a[1] and b[2] > a[2], cuerpo.nombre
    for cauce in cuenca.CAUCES:
        assert cauce.aguas_abajo == "0" or cauce.vertices[0] == PuntoDeDrenaje(cauce.aguas_abajo), cauce.nombre
    for ueh in cuenca.UEHS:
        assert 10 <= longitudes[ueh.nombre] / ueh.vel_media / 60 <= 60, ueh.nombre


def SumaMuskingum(k, x, paso):
    """C0 + C1 + C2 as the routing checks it: three 32-bit floats, their sum rounded to 32 bits."""
    k, x = Float32(k), Float32(x)
    den = Float32(k - k * x + 0.5 * paso)
    c = [Float32((0.5 * paso - k * x) / den), Float32((k * x + 0.5 * paso) / den),
         Float32((k - k * x - 0.5 * paso) / den)]
    return Float32(sum(c))


def PuntoDeDrenaje(aguas_abajo):
    """Where a component's line ends: the upper end of a reach, the icon of a water body."""
    for c in cuenca.CAUCES:
        if c.nombre == aguas_abajo:
            return c.vertices[-1]
    return ICONOS[aguas_abajo]


def CamposCauce(numero, c, primer_par, orden):
    return [numero, c.nombre, len(c.vertices), primer_par, c.aguas_abajo, float(c.vel_media),
            float(cuenca.LargoReferencia(c.vertices)), orden, float(c.k_musk), float(c.x_musk), c.directo]


def CamposUEH(numero, u, area, longitud):
    x, y = PuntoDeDrenaje(u.aguas_abajo)
    a, b, i = u.kostiakov
    return [numero, u.nombre, float(area), u.referencia, float(longitud), float(u.vel_media), "Directo",
            float(u.icono[0]), float(u.icono[1]), float(x), float(y), u.aguas_abajo, float(a), float(b), float(i),
            round(u.q0_especifico * area / 1e5, 3), float(u.k_recesion), float(u.retencion)]


def CamposRepresa(numero, cuerpo, funciones):
    """funciones: rows of a, b, H min, H max; none where the outflow is a table."""
    x, y = PuntoDeDrenaje(cuerpo.aguas_abajo)
    icono = ICONOS[cuerpo.nombre]
    lugares = funciones + [(0, 0, 0, 0)] * (8 - len(funciones))
    usadas = [1] * len(funciones) + [0] * (8 - len(funciones))
    return ([numero, cuerpo.nombre, float(icono[0]), float(icono[1]), cuerpo.metodo, float(x), float(y),
             cuerpo.aguas_abajo, not funciones] + usadas + [float(f[0]) for f in lugares]
            + [float(f[1]) for f in lugares] + [0.0] * 4 + [60.0, 0.0] + [float(f[2]) for f in lugares]
            + [float(f[3]) for f in lugares] + [float(cuerpo.h_inicial)])


def CamposLago(numero, cuerpo):
    x, y = PuntoDeDrenaje(cuerpo.aguas_abajo)
    icono = ICONOS[cuerpo.nombre]
    return [numero, cuerpo.nombre, "Laguna natural con desagüe por un umbral de grava", cuerpo.metodo,
            float(icono[0]), float(icono[1]), float(x), float(y), cuerpo.aguas_abajo, 120.0, float(cuerpo.h_inicial)]


def FilasUEHs(areas, longitudes):
    ordenes = OrdenesDeCauce()
    campos = ["Quelmar", len(cuenca.CAUCES)]
    par = 1
    for numero, c in enumerate(cuenca.CAUCES, 1):
        campos += CamposCauce(numero, c, par, ordenes[c.nombre])
        par += len(c.vertices)
    campos.append(len(cuenca.UEHS))
    for numero, u in enumerate(cuenca.UEHS, 1):
        campos += CamposUEH(numero, u, areas[u.nombre], longitudes[u.nombre])
    campos.append(2)
    campos += CamposRepresa(1, cuenca.EMBALSE_QUELMAR, cuenca.FUNCIONES_QUELMAR)
    campos += CamposRepresa(2, cuenca.EMBALSE_CALFUN, [])
    campos.append(1)
    campos += CamposLago(1, cuenca.LAGUNA_HUILLIN)
    return [(c,) for c in campos]


def GuardaProyecto(directorio, areas, longitudes):
    Comprueba(longitudes)
    Guarda(directorio / "Quelmar_Conf.vlm", configuracion.Filas("Quelmar", cuenca))
    Guarda(directorio / "Quelmar_UEHs.vlm", FilasUEHs(areas, longitudes))
    Guarda(directorio / "Quelmar_VerCau.vlm",
           [(float(x), float(y)) for c in cuenca.CAUCES for x, y in c.vertices])
    has, hq = [], []
    for cuerpo, caudal in ((cuenca.EMBALSE_QUELMAR, cuenca.CaudalQuelmar),
                           (cuenca.EMBALSE_CALFUN, cuenca.CaudalCalfun)):
        filas = Tabla(cuerpo)
        has += [("*" + cuerpo.nombre, len(filas), "*")] + filas
        hq += [("*" + cuerpo.nombre, len(filas))] + [(h, round(caudal(h), 3)) for h, _, _ in filas]
    Guarda(directorio / "Quelmar_RHAS.vlm", has)
    Guarda(directorio / "Quelmar_RHQ.vlm", hq)
    filas = Tabla(cuenca.LAGUNA_HUILLIN)
    Guarda(directorio / "Quelmar_LHASQ.vlm",
           [("*" + cuenca.LAGUNA_HUILLIN.nombre, len(filas), "*", "*")]
           + [(h, a, s, round(cuenca.CaudalHuillin(h), 3)) for h, a, s in filas])
