# SPDX-License-Identifier: GPL-3.0-or-later
"""The sample basin of the Arroyo Quelmar: where it lies on the drawing and what it is made of.

The basin is invented. Coordinates are drawing units, origin at the top left, y downwards; one unit is
METROS_POR_UNIDAD metres. Areas, longest paths and lengths of reaches are not written here: they are
measured on the same drawing (terreno.py), so that the map, the drawing and the parameters agree.
"""

import math
from dataclasses import dataclass, field

METROS_POR_UNIDAD = 15
ANCHO, ALTO = 768, 720  # frame of the map [units]


def LargoReferencia(vertices):
    """Length of a reach on the drawing [m]: whole drawing units at every vertex, as the reach form measures it."""
    largo = 0
    for (x0, y0), (x1, y1) in zip(vertices, vertices[1:]):
        largo = round(largo + math.hypot(x1 - x0, y1 - y0))
    return round(METROS_POR_UNIDAD * largo)


@dataclass
class Cauce:
    """A reach. Vertices run from its mouth upstream, as the drawing keeps them."""

    nombre: str
    aguas_abajo: str
    vertices: list
    vel_media: float  # mean velocity [m/s]
    k_musk: float  # Muskingum K [min]
    x_musk: float  # Muskingum x [-]
    directo: bool
    cota_alta: float  # bed level at its upstream end [m above sea level]; the map's relief hangs on it


@dataclass
class UEH:
    """A unit of land. Its creeks, drawn thin on the map, show where its water runs: from the foot, the first
    point, which touches a reach, a water body or an earlier creek, to the head."""

    nombre: str
    referencia: str
    aguas_abajo: str
    icono: tuple
    vel_media: float  # of a drop on the slope [m/s]
    kostiakov: tuple  # a [mm/min^b], b [-], initial time [min]
    retencion: float  # [mm]
    q0_especifico: float  # base flow when the storm begins [l/s per km2]
    k_recesion: float  # [h]
    laderas: list  # (reach, side): whose banks belong to it; side is "ambas", "izquierda" or "derecha"
    arroyos: list = field(default_factory=list)


# Muskingum K and x: K is the travel time of the flood wave, 5/3 of the mean velocity; x keeps the three
# coefficients positive at steps of 5 and 10 min, and both make their sum exactly 1 in 32-bit floats at every
# step that the storm dialog offers.
CAUCES = [
    Cauce("c-Quelmar5", "0",
          [(736, 452), (722, 444), (711, 449), (697, 447), (684, 436), (668, 440), (654, 433), (643, 436),
           (630, 430)], 1.7, 10, 0.15, False, 656),
    Cauce("c-Quelmar4", "c-Quelmar5",
          [(630, 430), (619, 421), (606, 424), (594, 417), (584, 420), (571, 412), (560, 402), (547, 404),
           (535, 397), (524, 400), (513, 393)], 1.6, 12.4, 0.16, False, 716),
    Cauce("c-Quelmar3", "r-Quelmar",
          [(491, 372), (474, 364), (456, 366), (440, 355), (425, 356), (411, 346), (397, 350), (385, 342),
           (371, 345), (358, 336), (347, 338)], 1.85, 12.8, 0.15, False, 792),
    Cauce("c-Quelmar2", "c-Quelmar3",
          [(347, 338), (336, 330), (326, 333), (313, 322), (304, 324), (292, 312), (281, 309), (272, 298),
           (259, 296), (246, 284)], 2.0, 9.1, 0.24, False, 872),
    Cauce("c-Quelmar1", "c-Quelmar2",
          [(246, 284), (232, 281), (223, 271), (209, 272), (197, 262), (186, 263), (172, 252), (160, 250),
           (148, 238), (136, 236)], 2.2, 8.7, 0.25, True, 985),
    Cauce("c-Ñirantal", "c-Quelmar2",
          [(246, 284), (250, 270), (242, 258), (247, 244), (240, 231), (246, 217), (237, 205), (240, 190),
           (232, 178), (234, 164)], 2.1, 9.1, 0.24, True, 1010),
    Cauce("c-Maitén2", "c-Quelmar3",
          [(347, 338), (340, 351), (343, 364), (331, 374), (326, 388), (312, 394), (305, 408), (292, 414),
           (284, 428)], 2.0, 8.9, 0.24, False, 868),
    Cauce("c-Maitén1", "c-Maitén2",
          [(284, 428), (271, 424), (258, 431), (246, 427), (233, 437), (219, 433), (206, 442), (192, 440),
           (180, 450), (166, 448)], 2.1, 10, 0.25, True, 985),
    Cauce("c-Pehual", "c-Maitén2",
          [(284, 428), (288, 443), (280, 456), (283, 471), (274, 484), (277, 499), (267, 512), (269, 527)],
          2.0, 8.1, 0.22, True, 962),
    Cauce("c-Coirón", "l-Huillín",
          [(579, 262), (566, 246), (563, 231), (552, 221), (551, 206), (540, 195), (541, 180), (530, 168),
           (531, 154)], 1.9, 10, 0.25, True, 905),
    Cauce("c-Desagüe", "c-Quelmar5",
          [(630, 430), (636, 416), (629, 403), (635, 389), (627, 376), (631, 362), (622, 350), (624, 336),
           (614, 325), (613, 312)], 1.35, 14.7, 0.15, False, 789),
    Cauce("c-Calfún", "c-Quelmar4",
          [(513, 393), (509, 406), (514, 419), (504, 431), (507, 445), (497, 456), (499, 470), (489, 481),
           (491, 494)], 1.7, 10, 0.25, False, 822),
]

UEHS = [
    UEH("u-CerroBayo", "Cabecera sur del Quelmar, roca y pastizal de altura", "c-Quelmar1", (36, 274), 0.9,
        (14.7, 0.3, 12), 1.5, 14, 60, [("c-Quelmar1", "derecha")],
        [[(136, 236), (124, 244), (113, 257), (99, 262), (90, 276), (77, 284), (66, 298), (54, 306)],
         [(113, 257), (101, 248), (86, 244)],
         [(186, 263), (178, 279), (183, 296), (172, 313), (174, 330)]]),
    UEH("u-Cascada", "Cabecera norte del Quelmar, laderas empinadas de lenga", "c-Quelmar1", (104, 176), 0.85,
        (13.2, 0.38, 10), 4, 16, 70, [("c-Quelmar1", "izquierda")],
        [[(136, 236), (127, 222), (130, 208), (119, 197), (117, 182), (105, 172), (103, 157), (93, 146)],
         [(119, 197), (103, 199), (91, 189), (76, 190), (64, 180)],
         [(172, 252), (176, 236), (168, 222), (173, 206), (166, 191)]]),
    UEH("u-Ñirantal", "Subcuenca del arroyo Ñirantal, ñire y mallines altos", "c-Ñirantal", (226, 112), 0.75,
        (12.6, 0.42, 10), 6, 15, 80, [("c-Ñirantal", "ambas")],
        [[(234, 164), (224, 152), (226, 137), (214, 126), (213, 111), (203, 100), (206, 85)],
         [(224, 152), (208, 150), (197, 139)],
         [(234, 164), (247, 153), (249, 138), (261, 128), (263, 112), (275, 103)],
         [(240, 190), (257, 186), (268, 174), (284, 170), (294, 157)]]),
    UEH("u-LomaNegra", "Laderas del valle medio alto, estepa y bosque bajo", "c-Quelmar2", (300, 246), 0.7,
        (12.2, 0.42, 15), 5, 10, 60, [("c-Quelmar2", "ambas")],
        [[(281, 309), (286, 292), (298, 281), (303, 264), (316, 253), (319, 236), (331, 225)],
         [(313, 322), (330, 309), (336, 293), (350, 283)],
         [(272, 298), (262, 314), (266, 331), (257, 347), (260, 363)]]),
    UEH("u-MaiténAlto", "Cabecera del Maitén, cordón occidental", "c-Maitén1", (72, 446), 0.8,
        (13.3, 0.34, 10), 2.5, 13, 60, [("c-Maitén1", "ambas")],
        [[(166, 448), (151, 442), (138, 446), (124, 437), (110, 441), (98, 430), (84, 430), (72, 420)],
         [(138, 446), (127, 458), (112, 461), (102, 474), (87, 478)],
         [(124, 437), (120, 421), (108, 410), (104, 395)],
         [(206, 442), (198, 425), (203, 408), (193, 393)],
         [(192, 440), (184, 457), (187, 474), (177, 488)]]),
    UEH("u-Pehual", "Subcuenca del arroyo Pehual, ladera norte boscosa", "c-Pehual", (240, 586), 0.75,
        (13.3, 0.42, 10), 6, 13, 70, [("c-Pehual", "ambas")],
        [[(269, 527), (259, 540), (262, 555), (251, 567), (250, 583), (238, 594), (237, 610)],
         [(251, 567), (236, 560), (222, 566), (208, 556)],
         [(269, 527), (283, 537), (288, 553), (302, 562), (306, 578), (319, 588)],
         [(274, 484), (258, 490), (244, 484), (230, 493)]]),
    UEH("u-Mallín", "Mallín y vegas del Maitén inferior", "c-Maitén2", (348, 424), 0.6,
        (13.2, 0.45, 20), 8, 9, 90, [("c-Maitén2", "ambas")],
        [[(326, 388), (343, 395), (355, 408), (372, 413), (383, 427), (399, 432)],
         [(305, 408), (314, 426), (310, 443), (323, 456), (324, 472), (337, 483)]]),
    UEH("u-Vega", "Valle del Quelmar y márgenes del embalse", "c-Quelmar3", (404, 284), 0.68,
        (13.6, 0.42, 15), 5, 9, 70, [("c-Quelmar3", "ambas")],
        [[(397, 350), (392, 333), (399, 317), (390, 301), (396, 285), (387, 269), (392, 253)],
         [(440, 355), (446, 338), (439, 322), (449, 307), (445, 291), (456, 277)],
         [(425, 356), (420, 374), (427, 391), (424, 408)]]),
    UEH("u-CalfúnAlto", "Aporta directo al embalse Calfún, pastizal y coironal", "r-Calfún", (414, 566), 0.75,
        (13.5, 0.36, 10), 3, 11, 60, [],
        [[(478, 512), (470, 523), (456, 528), (447, 541), (432, 546), (422, 559), (407, 563), (397, 576)],
         [(432, 546), (418, 537), (404, 536), (391, 525), (377, 524)],
         [(456, 528), (452, 512), (440, 502), (437, 487)],
         [(470, 523), (474, 540), (468, 556), (475, 572), (470, 589), (478, 605)]]),
    UEH("u-CalfúnBajo", "Quebradas del Calfún inferior", "c-Calfún", (438, 446), 0.65,
        (12.8, 0.4, 10), 4, 8, 60, [("c-Calfún", "ambas")],
        [[(497, 456), (481, 452), (467, 458), (453, 450), (440, 455), (428, 467)],
         [(491, 494), (507, 499), (520, 511), (536, 514)]]),
    UEH("u-Coirón", "Cabecera norte de la laguna, coironal y roca", "c-Coirón", (506, 98), 0.8,
        (14.1, 0.32, 12), 2, 12, 60, [("c-Coirón", "ambas")],
        [[(531, 154), (520, 143), (521, 128), (510, 117), (511, 102), (501, 92)],
         [(521, 128), (537, 119), (541, 104), (554, 96)],
         [(531, 154), (514, 157), (500, 149), (485, 152), (472, 142)],
         [(551, 206), (535, 212), (520, 205), (505, 212), (491, 205)]]),
    UEH("u-Huillín", "Laderas que caen directo a la laguna Huillín", "l-Huillín", (630, 206), 0.7,
        (13.2, 0.38, 10), 3, 10, 70, [],
        [[(594, 246), (604, 232), (601, 217), (612, 205), (609, 189), (620, 178), (619, 162)],
         [(612, 205), (627, 199), (637, 186), (652, 182)],
         [(612, 274), (628, 268), (640, 257), (656, 255)],
         [(562, 268), (545, 266), (531, 275), (516, 272)]]),
    UEH("u-Puesto", "Valle debajo de la presa, puesto y potreros", "c-Quelmar4", (558, 344), 0.62,
        (13.2, 0.42, 15), 5, 7, 60, [("c-Quelmar4", "ambas")],
        [[(547, 404), (544, 387), (552, 372), (546, 355), (555, 341), (551, 325)],
         [(594, 417), (596, 435), (588, 450), (594, 466), (586, 481)],
         [(560, 402), (552, 420), (557, 437), (549, 452)]]),
    UEH("u-Faldeo", "Faldeo oriental, desagüe de la laguna", "c-Desagüe", (664, 318), 0.62,
        (12.8, 0.4, 10), 4, 7, 60, [("c-Desagüe", "ambas")],
        [[(627, 376), (643, 368), (653, 355), (669, 349), (678, 335)],
         [(631, 362), (612, 366), (600, 358), (586, 362)]]),
    UEH("u-Estancia", "Valle inferior hasta la estación de aforo", "c-Quelmar5", (664, 486), 0.55,
        (12.7, 0.44, 15), 6, 6, 60, [("c-Quelmar5", "ambas")],
        [[(668, 440), (664, 457), (671, 473), (662, 488), (667, 505)],
         [(697, 447), (694, 429), (703, 414), (696, 398), (705, 384)],
         [(643, 436), (634, 453), (638, 470), (630, 486)]]),
]



@dataclass
class Espejo:
    """A sheet of water as the map shows it, at the level from which the storms start."""

    nombre: str
    ueh: str  # the unit that it lies in
    icono: tuple
    cota: float  # [m above sea level]
    contorno: list


ESPEJOS = [
    Espejo("r-Quelmar", "u-Vega", (491, 372), 746,
           [(502, 375), (497, 366), (489, 359), (480, 361), (471, 356), (461, 359), (452, 355), (443, 350),
            (434, 352), (428, 356), (436, 360), (446, 362), (455, 371), (464, 373), (472, 372), (478, 377),
            (483, 384), (490, 388), (495, 388), (500, 382)]),
    Espejo("r-Calfún", "u-CalfúnAlto", (482, 507), 838,
           [(497, 497), (490, 497), (484, 501), (477, 502), (470, 509), (461, 516), (454, 524), (452, 530),
            (459, 530), (466, 525), (471, 531), (471, 540), (475, 541), (478, 532), (481, 521), (487, 513),
            (493, 507)]),
    Espejo("l-Huillín", "u-Huillín", (579, 262), 790,
           [(566, 254), (575, 249), (584, 245), (594, 246), (602, 252), (609, 262), (612, 274), (616, 285),
            (617, 297), (613, 307), (604, 309), (594, 303), (586, 295), (577, 290), (568, 283), (562, 274),
            (561, 263)]),
]

AGUAS_ABAJO = [(736, 452), (746, 461), (757, 457), (768, 463)]  # the stream below the gauging station

# Streams of the neighbouring basins: nothing of them is in the model; they give the outer divide its shape.
VECINOS = [
    [(0, 330), (14, 336), (30, 348), (44, 362), (58, 366), (74, 362), (92, 356)],
    [(20, 230), (10, 244), (0, 250)],
    [(30, 130), (18, 150), (14, 176), (6, 196), (0, 206)],
    [(60, 60), (44, 84), (40, 108), (30, 130)],
    [(120, 60), (140, 44), (150, 20), (146, 0)],
    [(150, 110), (158, 90), (152, 66), (140, 44)],
    [(182, 62), (176, 40), (182, 18), (176, 0)],
    [(236, 40), (228, 20), (232, 0)],
    [(318, 80), (312, 50), (320, 24), (316, 0)],
    [(360, 160), (372, 130), (366, 100), (380, 70), (374, 40), (384, 0)],
    [(372, 130), (392, 150), (398, 176)],
    [(380, 70), (404, 82), (424, 78), (440, 96)],
    [(456, 200), (438, 190), (424, 170), (404, 158), (372, 130)],
    [(470, 60), (460, 30), (464, 0)],
    [(560, 50), (556, 24), (562, 0)],
    [(620, 110), (632, 84), (626, 56), (636, 26), (632, 0)],
    [(632, 84), (604, 76), (590, 60)],
    [(700, 170), (692, 140), (702, 110), (694, 80), (700, 40), (696, 0)],
    [(720, 250), (738, 236), (752, 238), (768, 230)],
    [(700, 200), (722, 196), (738, 236)],
    [(740, 340), (752, 330), (768, 332)],
    [(718, 320), (730, 306), (744, 298), (768, 300)],
    [(732, 392), (744, 384), (768, 388)],
    [(739, 430), (750, 424), (768, 428)],
    [(768, 502), (750, 506), (738, 516), (726, 532), (706, 542), (684, 558), (662, 562)],
    [(640, 540), (620, 556), (618, 580), (604, 600), (610, 640), (600, 680), (604, 720)],
    [(618, 580), (640, 590), (652, 610)],
    [(570, 530), (580, 550), (574, 574), (604, 600)],
    [(530, 580), (544, 604), (538, 640), (548, 680), (540, 720)],
    [(430, 640), (438, 670), (430, 720)],
    [(370, 580), (362, 610), (372, 640), (364, 680), (370, 720)],
    [(346, 540), (352, 560), (370, 580)],
    [(300, 650), (290, 680), (296, 720)],
    [(200, 650), (190, 680), (196, 720)],
    [(190, 590), (168, 604), (150, 600), (130, 616), (110, 650), (116, 690), (110, 720)],
    [(150, 530), (140, 556), (150, 600)],
    [(90, 530), (74, 548), (50, 552), (30, 570), (0, 574)],
    [(40, 470), (22, 480), (0, 478)],
    [(36, 410), (16, 416), (0, 410)],
]


@dataclass
class Almacenamiento:
    """How a water body stores and lets go: surface A(H) = a0 + c*(H/hn)^m around the surface that the map shows at
    the height hn, storage S as the sum of trapezia above a dead storage s0. Heights from the lowest outlet [m]."""

    nombre: str
    aguas_abajo: str
    metodo: str
    h_inicial: float
    alturas: list
    a0: float  # [ha]
    hn: float  # [m]
    m: float
    s0: int  # [m3]


# The Quelmar dam lets water out through a bottom outlet, 0.13*H^0.5, and over a free spillway 25 m long with its
# crest at 14 m, 50*(H - 14)^1.5: two outflow functions, each valid up to the top of the table.
EMBALSE_QUELMAR = Almacenamiento(
    "r-Quelmar", "c-Quelmar4", "Piscina Nivelada", 14,
    [0, 1, 2, 4, 6, 8, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20, 22, 24], 1.5, 14, 1.4, 12000)
FUNCIONES_QUELMAR = [(0.13, 0.5, 0, 24), (50, 1.5, 14, 24)]  # a, b, H min, H max

# The small irrigation dam on the Calfún has a culvert and a spillway 8 m long at 6 m: a table says it.
EMBALSE_CALFUN = Almacenamiento(
    "r-Calfún", "c-Calfún", "Piscina Nivelada", 6,
    [0, 1, 2, 3, 4, 5, 5.5, 6, 6.25, 6.5, 6.75, 7, 7.5, 8, 8.5, 9, 10, 11], 0.8, 6, 1.5, 4000)

LAGUNA_HUILLIN = Almacenamiento(
    "l-Huillín", "c-Desagüe", "Runge Kutta", 0.05,
    [0, 0.05, 0.1, 0.2, 0.35, 0.5, 0.75, 1, 1.25, 1.5, 2, 2.5, 3, 4, 5, 6.5, 8], 50, 0.05, 0.25, 1310000)


def CaudalQuelmar(h):
    return sum(a * (h - hmin) ** b for a, b, hmin, hmax in FUNCIONES_QUELMAR if hmin <= h <= hmax)


def CaudalCalfun(h):
    """Culvert 0.018*H^0.5 and spillway 16*(H - 6)^1.5 [m3/s]."""
    return 0.018 * h ** 0.5 + (16 * (h - 6) ** 1.5 if h > 6 else 0)


def CaudalHuillin(h):
    """Natural outlet that widens as it rises: 12*H^1.6 [m3/s]."""
    return 12 * h ** 1.6


TITULO = "Crecidas del arroyo Quelmar (proyecto de ejemplo)"
UBICACION = "Precordillera de Ruvera, Argentina"
CUENCA = "Río Sorelo"
SUBCUENCA = "Arroyo Quelmar"
OPERADOR = "Proyecto de ejemplo"
FECHA = "01/02/2006"
N0DUR = 480  # time simulated after the storm [min]
IMAGEN = "Quelmar.jpg"
