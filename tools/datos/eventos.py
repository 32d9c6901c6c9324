# SPDX-License-Identifier: GPL-3.0-or-later
"""The sample projects of observed floods, from the published tables in eventos/.

A project has its network with parameters to start from, not fitted ones, its recorded storms, and in its study the
observed hydrographs with their sources and the task of fitting them. Rain is cut into equal steps along the straight
line between two readings of the accumulated depth; readings of flow stay at their times. Units are converted, nothing
else.
"""

import datetime
import json
import pathlib
from dataclasses import dataclass

import configuracion
import cuenca
from registros import Guarda

TABLAS = pathlib.Path(__file__).resolve().parent / "eventos"
CARPETA = "Crecidas"
MM_POR_PULGADA = 25.4
M3S_POR_CFS = 0.3048 ** 3
HA_POR_MILLA2 = 258.9988110336


@dataclass
class Crecida:
    """A storm and what was observed. Times in minutes since its start."""

    archivo: str  # of the recorded storm
    notas: str
    inicio: datetime.datetime  # None: not known
    paso: int  # of the rain [min]
    lluvia: list  # [mm]
    puntos: list  # (minute, flow [m3/s])
    evento: str
    papel: str
    fuente: str


# --- Bachman Branch ---

FUENTE_BACHMAN = (
    "U.S. Geological Survey, Open-File Report 2004-1035 (Asquith, Thompson, Cleveland y Fang, 2004), módulo dallas, "
    "estación 08055700, Bachman Branch at Dallas, Texas, 10.0 millas cuadradas; archivos {lluvia} y {caudal}. "
    "Obra del Gobierno de los Estados Unidos, de dominio público.")
NOTAS_BACHMAN = (
    "Lluvia media ponderada de la cuenca (ACCUM_WTD_PRECIP) de pulgadas a mm; caudal (RUNOFF) de pies cúbicos por "
    "segundo a m3/s; área de 10.0 millas cuadradas a 2590 ha. Las lecturas anteriores a la lluvia no se usan.")


def LeeTabla(archivo):
    """Rows (time, numbers) of a file of the database."""
    filas = []
    for renglon in (TABLAS / archivo).read_text(encoding="ascii").splitlines():
        if renglon and renglon[0] not in "#D":
            campos = renglon.split()
            filas.append((datetime.datetime.strptime(campos[0], "%m/%d/%Y@%H:%M:%S"), [float(c) for c in campos[1:]]))
    return filas


def Interpola(x, xs, ys):
    for x0, x1, y0, y1 in zip(xs, xs[1:], ys, ys[1:]):
        if x <= x1:
            return y0 + (y1 - y0) * (x - x0) / (x1 - x0)
    return ys[-1]


def CrecidaBachman(fecha, paso, hasta, papel):
    """hasta: minutes of the hydrograph that are taken, with what is left of the recession."""
    lluvia, caudal = (f"{que}_sta08055700_{fecha}.dat" for que in ("rain", "unit"))
    filas = LeeTabla(lluvia)
    inicio = filas[0][0]
    minutos = [(t - inicio).total_seconds() / 60 for t, _ in filas]
    acumulada = [campos[-1] * MM_POR_PULGADA for _, campos in filas]
    bloques = round(minutos[-1]) // paso
    assert bloques * paso == minutos[-1]
    hasta_el_paso = [round(Interpola(k * paso, minutos, acumulada), 3) for k in range(bloques + 1)]
    puntos = [((t - inicio).total_seconds() / 60, campos[1] * M3S_POR_CFS) for t, campos in LeeTabla(caudal)]
    return Crecida(
        f"Bachman {inicio:%d%m%y}_pt.vlm",
        f"Bachman Branch en Dallas, tormenta del {inicio:%d/%m/%Y}, lluvia media de la cuenca (USGS, OFR 2004-1035)",
        inicio, paso, [round(b - a, 3) for a, b in zip(hasta_el_paso, hasta_el_paso[1:])],
        [(round(m), round(q, 4)) for m, q in puntos if 0 <= m <= hasta], f"{inicio:%d/%m/%Y}", papel,
        FUENTE_BACHMAN.format(lluvia=lluvia, caudal=caudal))


def CrecidasBachman():
    return [CrecidaBachman("1966_0617", 5, 1125, "calibra"), CrecidaBachman("1974_0607", 15, 945, "valida"),
            CrecidaBachman("1976_0618", 15, 1080, "valida"), CrecidaBachman("1977_0612", 15, 825, "valida")]


# --- Wilde Weißeritz ---

FUENTE_WEISSERITZ = (
    "Boessenkool, B., paquete berryFunctions de R, archivo inst/extdata/Q_P.txt: \"runoff and precipitation. Wilde "
    "Weisseritz, Osterzgebirge, Sachsen, Germany\". GPL, versión 2 o posterior.").replace('"', "'")
NOTAS_WEISSERITZ = (
    "Lluvia horaria en mm y caudal horario en m3/s, sin convertir. Cada renglón es el final de una hora: su lluvia "
    "cayó en ella, su caudal es el de ese instante. La publicación no dice fechas. Área de 3,4 km2, la que la "
    "publicación estima y usa en su ajuste.")


def CrecidasWeisseritz():
    tramos = (TABLAS / "Q_P.txt").read_text(encoding="ascii").split("Q\tP\n")[1].split("\n\n\n\n")
    crecidas = []
    # The second stretch begins with 26 dry hours.
    for numero, (tramo, secas, papel) in enumerate(zip(tramos, (0, 26), ("calibra", "valida")), 1):
        filas = [[float(c.replace(",", ".")) for c in fila.split("\t")] for fila in tramo.splitlines()][secas:]
        con_lluvia = max(k for k, (_, p) in enumerate(filas) if p > 0) + 1
        crecidas.append(Crecida(
            f"Weisseritz {numero}_pt.vlm",
            f"Wilde Weisseritz, Sajonia, crecida {numero}, lluvia horaria (paquete berryFunctions)",
            None, 60, [p for _, p in filas[:con_lluvia]],
            [(60 * k, q) for k, (q, _) in enumerate(filas, 1)], f"Crecida {numero}", papel, FUENTE_WEISSERITZ))
    return crecidas


# --- projects ---

@dataclass
class Banda:
    """A unit and the reach that it drains to, by which a flood goes as it is, later."""

    ueh: str
    cauce: str
    icono: tuple
    vertices: list  # of the reach, from its mouth upstream


@dataclass
class Proyecto:
    """What the sheet of settings says, under the names that the sample's description has, and the network: bands of
    equal area from the head to the gauge, each with its reach, and a last reach that stores as a linear reservoir does,
    Muskingum with x = 0. All bands have the same parameters to start from."""

    NOMBRE: str
    TITULO: str
    UBICACION: str
    CUENCA: str
    SUBCUENCA: str
    area: float  # [ha]
    longitud: float  # longest path of a unit [m]
    velocidad: float  # [m/s]
    kostiakov: tuple
    retencion: float  # [mm]
    q0: float  # of the whole basin [m3/s]
    k_recesion: float  # [h]
    largo: float  # of each band's reach [m]
    k_musk: float  # of the last one [min]
    N0DUR: int  # [min]
    bandas: list
    aforo: list  # vertices of the last reach
    crecidas: list
    notas: str
    parametros: list  # (components, field, from, to, by its logarithm)
    OPERADOR: str = "Proyecto de ejemplo"
    FECHA: str = "22/11/2026"
    IMAGEN: str = ""


AFORO = "c-Aforo"


def Campos(ueh, cauce, velocidad, demora, musk):
    """The seven quantities that the task fits; of several units, the same value for all."""
    return [(ueh, "velocidad_media", *velocidad, True), (ueh, "kostiakov_a", 0.3, 30, True),
            (ueh, "kostiakov_b", 0.1, 1, False), (ueh, "kostiakov_i", 0, 300, False),
            (ueh, "retencion_z", 0, 30, False), (cauce, "velocidad", *demora, True), (AFORO, "musk_k", *musk, True)]


def Proyectos():
    bachman = dict(
        UBICACION="Dallas, Texas, Estados Unidos", CUENCA="Río Trinity", SUBCUENCA="Bachman Branch",
        area=10.0 * HA_POR_MILLA2, longitud=5000, velocidad=1, kostiakov=(6, 0.5, 30), retencion=5, q0=0.09,
        k_recesion=24, k_musk=60, N0DUR=780, crecidas=CrecidasBachman(), notas=NOTAS_BACHMAN)
    una = dict(aforo=[(680, 440), (600, 390), (520, 360)])
    return [
        Proyecto(
            NOMBRE="Bachman", TITULO="Bachman Branch en Dallas: crecidas observadas, una sola UEH", largo=3000,
            bandas=[Banda("u-Bachman", "c-Bachman", (220, 180), [(520, 360), (420, 330), (320, 260)])],
            parametros=Campos("u-Bachman", "c-Bachman", (0.4, 8), (0.5, 15), (5, 120)), **una, **bachman),
        Proyecto(
            NOMBRE="BachmanTres", TITULO="Bachman Branch en Dallas: crecidas observadas, tres bandas iguales",
            largo=1000,
            bandas=[Banda("u-Alta", "c-Alto", (100, 100), [(300, 240), (240, 220), (180, 180)]),
                    Banda("u-Media", "c-Medio", (300, 120), [(420, 310), (360, 280), (300, 240)]),
                    Banda("u-Baja", "c-Bajo", (480, 200), [(540, 370), (480, 350), (420, 310)])],
            parametros=Campos("u-*", "c-*", (0.4, 8), (0.3, 15), (5, 120)), aforo=[(680, 440), (610, 400), (540, 370)],
            **bachman),
        Proyecto(
            NOMBRE="Weisseritz", TITULO="Wilde Weisseritz en Sajonia: crecidas observadas, una sola UEH",
            UBICACION="Osterzgebirge, Sajonia, Alemania", CUENCA="Elba", SUBCUENCA="Wilde Weisseritz", area=340,
            longitud=3000, velocidad=0.4, kostiakov=(2, 0.4, 60), retencion=5, q0=0.089, k_recesion=500, largo=3000,
            k_musk=600, N0DUR=3480,
            bandas=[Banda("u-Weisseritz", "c-Weisseritz", (220, 180), [(520, 360), (420, 330), (320, 260)])],
            crecidas=CrecidasWeisseritz(), notas=NOTAS_WEISSERITZ,
            parametros=Campos("u-Weisseritz", "c-Weisseritz", (0.05, 2), (0.2, 10), (60, 3000)), **una),
    ]


def CaucesDe(p):
    """From the gauge up: name, vertices, what it drains to, length [m]; the last reach's length is the drawing's."""
    cauces = [(AFORO, p.aforo, "0", cuenca.LargoReferencia(p.aforo))]
    for banda in reversed(p.bandas):
        cauces.append((banda.cauce, banda.vertices, cauces[-1][0], p.largo))
    return cauces


def FilasUEHs(p):
    cauces, cuantas = CaucesDe(p), len(p.bandas)
    campos, par = [p.NOMBRE, len(cauces)], 1
    for numero, (nombre, vertices, aguas_abajo, largo) in enumerate(cauces, 1):
        campos += [numero, nombre, len(vertices), par, aguas_abajo, 1.5, float(largo), 1, float(p.k_musk), 0.0,
                   nombre != AFORO]
        par += len(vertices)
    campos.append(cuantas)
    a, b, i = p.kostiakov
    for numero, banda in enumerate(p.bandas, 1):
        x, y = banda.vertices[-1]
        campos += [numero, banda.ueh, round(p.area / cuantas, 1), "Longitud nominal: la publicación no la dice",
                   float(p.longitud), float(p.velocidad), "Directo", float(banda.icono[0]), float(banda.icono[1]),
                   float(x), float(y), banda.cauce, float(a), float(b), float(i), round(p.q0 / cuantas, 3),
                   float(p.k_recesion), float(p.retencion)]
    return [(c,) for c in campos + [0, 0]]


def FilasTormenta(c):
    if c.inicio:
        fin = c.inicio + datetime.timedelta(minutes=c.paso * len(c.lluvia))
        fechas = [(f"{t:%d/%m/%Y}", f"{t:%H:%M}") for t in (c.inicio, fin)]
    else:
        fechas = [("01/01/1001", "00:00")] * 2  # none is known
    return [(c.notas,), (len(c.lluvia), c.paso), *fechas] + [(float(h),) for h in c.lluvia]


# --- the study ---

def Estudio(p):
    eventos = [{
        "nombre": c.evento, "inicio": f"{c.inicio:%Y-%m-%d %H:%M}" if c.inicio else "", "papel": c.papel, "peso": 1.0,
        "lluvia": {"origen": "registrada", "archivo": c.archivo, "lamina_mm": sum(c.lluvia),
                   "duracion_min": c.paso * len(c.lluvia), "distribucion": 7},
        "observaciones": [{
            "componente": AFORO, "magnitud": "caudal", "promedio_min": 0.0, "peso": 1.0, "ventanas": [],
            "curva": [], "fuente": c.fuente, "notas": p.notas, "archivo": str(numero)}],
    } for numero, c in enumerate(p.crecidas, 1)]
    for e in eventos:
        e["lluvia"]["lamina_mm"] = round(e["lluvia"]["lamina_mm"], 3)
    parametros = [{
        "componentes": componentes, "campo": campo, "modo": "valor", "minimo": float(minimo), "maximo": float(maximo),
        "logaritmica": logaritmica, "activo": True, "distribucion": "uniforme", "valores": []}
        for componentes, campo, minimo, maximo, logaritmica in p.parametros]
    return {"version": 1, "ajuste": {"eventos": eventos, "parametros": parametros}}


def Vuelca(j, margen=""):
    """JSON as the program lays it out: elements of a list that are plain take a line each."""
    if not isinstance(j, (dict, list)) or not j:
        return json.dumps(j, ensure_ascii=False)
    dentro = margen + "  "
    partes = []
    for clave, hija in (j.items() if isinstance(j, dict) else ((None, h) for h in j)):
        llana = isinstance(j, list) and isinstance(hija, (dict, list)) and not any(
            isinstance(x, (dict, list)) for x in (hija.values() if isinstance(hija, dict) else hija))
        valor = json.dumps(hija, ensure_ascii=False, separators=(",", ":")) if llana else Vuelca(hija, dentro)
        partes.append(dentro + (json.dumps(clave, ensure_ascii=False) + ": " if clave is not None else "") + valor)
    abre, cierra = "{}" if isinstance(j, dict) else "[]"
    return abre + "\n" + ",\n".join(partes) + "\n" + margen + cierra


def Serie(puntos):
    return "".join([f"minutos [min];caudal [m3/s];{len(puntos)} valores\n"] + [f"{m};{q!r}\n" for m, q in puntos])


def GuardaProyecto(directorio, p):
    Guarda(directorio / f"{p.NOMBRE}_Conf.vlm", configuracion.Filas(p.NOMBRE, p))
    Guarda(directorio / f"{p.NOMBRE}_UEHs.vlm", FilasUEHs(p))
    Guarda(directorio / f"{p.NOMBRE}_VerCau.vlm",
           [(float(x), float(y)) for _, vertices, _, _ in CaucesDe(p) for x, y in vertices])
    (directorio / f"{p.NOMBRE}_Estudio.json").write_bytes((Vuelca(Estudio(p)) + "\n").encode("utf-8"))
    for numero, c in enumerate(p.crecidas, 1):
        Guarda(directorio / c.archivo, FilasTormenta(c))
        (directorio / f"{p.NOMBRE}_serie_{numero}.csv").write_bytes(Serie(c.puntos).encode("utf-8"))


def GuardaCrecidas(directorio):
    carpeta = directorio / CARPETA
    carpeta.mkdir(exist_ok=True)
    for p in Proyectos():
        GuardaProyecto(carpeta, p)
