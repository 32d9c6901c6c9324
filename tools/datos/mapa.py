# SPDX-License-Identifier: GPL-3.0-or-later
"""Paints the map that lies under the drawing: shaded relief, contours, divides, streams, water, names.

The editor stretches a background image to 4/3 of its height. The map is painted with square pixels and then squeezed
to 3/4, so that circles are circles again where it is used. It is stored at twice the drawing's size, hence the 50 % of
the project's image zoom, to stay sharp when the drawing is enlarged.
"""

import math

import numpy as np
from PIL import Image, ImageDraw, ImageFilter, ImageFont

import cuenca
import terreno
from terreno import CELDAS, COLUMNAS, FILAS, ContornoSuave, CurvaSuave

FUENTES = "/usr/share/fonts/truetype/dejavu/"  # Debian's fonts-dejavu-core and -extra
AUMENTO = 2  # lines and letters are painted this much larger, then reduced
ESCALA = CELDAS * AUMENTO
AGUA, ORILLA = (164, 205, 230), (70, 130, 175)
TINTA, ARROYO, DIVISORIA = (52, 46, 40), (84, 146, 190), (150, 60, 40)

TINTES = [(600, (214, 226, 196)), (750, (226, 231, 203)), (900, (238, 232, 208)), (1050, (237, 222, 195)),
          (1200, (228, 209, 184)), (1400, (222, 208, 196)), (1600, (238, 234, 230))]


def Relieve(t):
    """Hypsometric tint under a hill shade from the north-west, RGB."""
    metros = cuenca.METROS_POR_UNIDAD / CELDAS
    dy, dx = np.gradient(t.cota * 1.6, metros)
    azimut, altura = math.radians(315), math.radians(45)
    sol = (math.sin(azimut) * math.cos(altura), math.cos(azimut) * math.cos(altura), math.sin(altura))
    norma = np.sqrt(dx * dx + dy * dy + 1)
    luz = (-dx * sol[0] + dy * sol[1] + sol[2]) / norma  # y grows to the south
    sombra = np.clip(0.62 + 0.46 * luz, 0, 1.12)[..., None]
    cotas = [c for c, _ in TINTES]
    color = np.stack([np.interp(t.cota, cotas, [rgb[b] for _, rgb in TINTES]) for b in range(3)], axis=-1)
    color *= sombra
    fuera = (t.etiqueta == terreno.AJENO)[..., None]
    gris = color.mean(axis=-1, keepdims=True)
    return np.clip(np.where(fuera, 0.45 * color + 0.25 * gris + 76, color), 0, 255)


def Curvas(t, rgb):
    """Contours every 50 m, each fifth one darker. A contour runs where neighbouring cells fall in different bands."""
    z = terreno.Promedia(t.cota, 2, 1)
    for equidistancia, fuerza in ((50, 0.22), (250, 0.34)):
        banda = np.floor(z / equidistancia)
        borde = np.zeros(banda.shape)
        borde[:, 1:] += banda[:, 1:] != banda[:, :-1]
        borde[1:] += banda[1:] != banda[:-1]
        borde = np.minimum(borde, 1)[..., None] * fuerza
        rgb = rgb * (1 - borde) + np.array([120, 84, 50]) * borde
    return rgb


def Divisorias(t):
    """Masks of the inner divides and of the basin's rim, as large as the painting."""
    mascaras = []
    dentro = t.etiqueta != terreno.AJENO
    for campo, ancho in ((np.where(dentro, t.etiqueta, -9), 3), (dentro.astype(int), 5)):
        borde = np.zeros(campo.shape, dtype=bool)
        borde[:, 1:] |= campo[:, 1:] != campo[:, :-1]
        borde[1:] |= campo[1:] != campo[:-1]
        imagen = Image.fromarray(borde.astype(np.uint8) * 255).resize((COLUMNAS * AUMENTO, FILAS * AUMENTO))
        mascaras.append(imagen.filter(ImageFilter.MaxFilter(ancho)).filter(ImageFilter.GaussianBlur(1.6)))
    return mascaras


class Pintor:
    """Draws on the enlarged painting in drawing units."""

    def __init__(self, imagen):
        self.imagen = imagen
        self.d = ImageDraw.Draw(imagen)

    def Linea(self, puntos, color, ancho):
        p = [(x * ESCALA, y * ESCALA) for x, y in puntos]
        self.d.line(p, fill=color, width=round(ancho * ESCALA), joint="curve")

    def Poligono(self, puntos, relleno, orilla, ancho):
        p = [(x * ESCALA, y * ESCALA) for x, y in puntos]
        self.d.polygon(p, fill=relleno)
        self.d.line(p + p[:2], fill=orilla, width=round(ancho * ESCALA), joint="curve")

    def Texto(self, x, y, texto, letra, cuerpo, color=TINTA, ancla="mm", halo=(250, 248, 240), angulo=0):
        fuente = ImageFont.truetype(FUENTES + letra + ".ttf", round(cuerpo * ESCALA))
        borde = round(0.16 * cuerpo * ESCALA) if halo else 0
        if not angulo:
            self.d.text((x * ESCALA, y * ESCALA), texto, fill=color, font=fuente, anchor=ancla,
                        stroke_width=borde, stroke_fill=halo, align="center", spacing=0.2 * cuerpo * ESCALA)
            return
        lado = round(fuente.getlength(texto)) + 4 * borde + 8
        sello = Image.new("RGBA", (lado, lado), (255, 255, 255, 0))
        ImageDraw.Draw(sello).text((lado / 2, lado / 2), texto, fill=color, font=fuente, anchor="mm",
                                   stroke_width=borde, stroke_fill=halo)
        sello = sello.rotate(angulo, Image.BICUBIC)
        self.imagen.paste(sello, (round(x * ESCALA - lado / 2), round(y * ESCALA - lado / 2)), sello)


def Aguas(p):
    for ueh in cuenca.UEHS:
        for arroyo in ueh.arroyos:
            p.Linea(CurvaSuave(arroyo), ARROYO, 0.8)
    for vecino in cuenca.VECINOS:
        p.Linea(CurvaSuave(vecino), (168, 190, 205), 0.7)
    for c in cuenca.CAUCES:
        p.Linea(CurvaSuave(c.vertices), (58, 122, 176), 1.7)
    p.Linea(CurvaSuave(cuenca.AGUAS_ABAJO), (58, 122, 176), 1.7)
    for espejo in cuenca.ESPEJOS:
        p.Poligono(ContornoSuave(espejo.contorno), AGUA, ORILLA, 0.8)


def Presas(p):
    for a, b in (((497, 393), (508, 371)), ((487, 493), (500, 503))):
        p.Linea([a, b], (60, 52, 46), 2.6)
        p.Linea([a, b], (206, 196, 182), 1.2)


NOMBRES = [  # x, y, text, font, size, colour, turn [degrees]
    (196, 286, "Arroyo Quelmar", "DejaVuSerif-Italic", 9, (34, 84, 140), -19),
    (674, 423, "Arroyo Quelmar", "DejaVuSerif-Italic", 9, (34, 84, 140), -12),
    (263, 222, "A° Ñirantal", "DejaVuSerif-Italic", 8, (34, 84, 140), 82),
    (246, 446, "Arroyo Maitén", "DejaVuSerif-Italic", 8, (34, 84, 140), 7),
    (294, 490, "A° Pehual", "DejaVuSerif-Italic", 8, (34, 84, 140), 76),
    (568, 196, "A° Coirón", "DejaVuSerif-Italic", 8, (34, 84, 140), -63),
    (643, 384, "Desagüe", "DejaVuSerif-Italic", 8, (34, 84, 140), 82),
    (523, 447, "A° Calfún", "DejaVuSerif-Italic", 8, (34, 84, 140), 80),
    (538, 292, "Laguna\nHuillín", "DejaVuSerif-Italic", 8, (24, 74, 132), 0),
    (452, 386, "Embalse Quelmar", "DejaVuSerif-Italic", 8, (24, 74, 132), 0),
    (432, 514, "Embalse\nCalfún", "DejaVuSerif-Italic", 8, (24, 74, 132), 0),
    (34, 120, "CORDÓN  BAYO", "DejaVuSerif", 9, (96, 70, 48), 66),
    (266, 386, "Loma Negra", "DejaVuSerif", 8, (96, 70, 48), 0),
    (180, 545, "SIERRA  DEL  PEHUAL", "DejaVuSerif", 9, (96, 70, 48), -33),
    (418, 206, "Filo de los Vientos", "DejaVuSerif", 8, (96, 70, 48), -24),
    (722, 268, "Meseta Chica", "DejaVuSerif", 8, (96, 70, 48), 0),
]
CUMBRES = [(22, 290, "Co. Bayo"), (158, 128, "Co. Lenga"), (52, 504, "Co. Pehual"), (566, 78, "Co. Coirón")]


def Cotas(p, t):
    """Spot heights: the highest ground near each named summit."""
    for x, y, nombre in CUMBRES:
        f0, c0, r = round(y * CELDAS), round(x * CELDAS), 40
        f1, c1 = max(0, f0 - r), max(0, c0 - r)
        ventana = t.cota[f1:f0 + r, c1:c0 + r]
        f, c = np.unravel_index(np.argmax(ventana), ventana.shape)
        px, py = (c1 + c) / CELDAS, (f1 + f) / CELDAS
        s = 3
        triangulo = [(px, py - s), (px + s, py + s * 0.8), (px - s, py + s * 0.8)]
        p.Poligono(triangulo, (110, 78, 52), (250, 248, 240), 0.4)
        texto = f"{nombre}\n{round(float(ventana.max()))}"
        p.Texto(max(px, 24), py + 8.5, texto, "DejaVuSerif", 6.2, (80, 58, 40), "ma")


def EstacionDeAforo(p):
    x, y = cuenca.CAUCES[0].vertices[0]
    p.d.ellipse([(x - 4) * ESCALA, (y - 4) * ESCALA, (x + 4) * ESCALA, (y + 4) * ESCALA], fill=(255, 255, 255),
                outline=(150, 30, 30), width=round(1.2 * ESCALA))
    p.Texto(x - 2, y + 14, "Estación de aforo", "DejaVuSans", 6.5, (120, 24, 24))


def Marco(p):
    ancho, alto = cuenca.ANCHO, cuenca.ALTO
    p.d.rectangle([0, 0, ancho * ESCALA - 1, alto * ESCALA - 1], outline=TINTA, width=round(1.2 * ESCALA))


def Panel(p, x0, y0, x1, y1):
    p.d.rectangle([x0 * ESCALA, y0 * ESCALA, x1 * ESCALA, y1 * ESCALA], fill=(252, 250, 244), outline=TINTA,
                  width=round(0.7 * ESCALA))


def Titulo(p):
    Panel(p, 20, 20, 186, 64)
    p.Texto(103, 33, "CUENCA DEL ARROYO QUELMAR", "DejaVuSans-Bold", 8.6, halo=None)
    p.Texto(103, 45, cuenca.UBICACION, "DejaVuSans", 7.5, halo=None)
    p.Texto(103, 56, "Cuenca de ejemplo (imaginaria)", "DejaVuSans-Oblique", 7, halo=None)


def NorteYEscala(p):
    Panel(p, 590, 640, 742, 698)
    x, y = 610, 668
    for lado, relleno in ((1, TINTA), (-1, (255, 255, 255))):
        flecha = [(x, y - 18), (x + 7 * lado, y + 14), (x, y + 8)]
        p.d.polygon([(u * ESCALA, v * ESCALA) for u, v in flecha], fill=relleno, outline=TINTA)
    p.Texto(x, y + 21, "N", "DejaVuSans-Bold", 9, halo=None)
    km = 1000 / cuenca.METROS_POR_UNIDAD
    x0, y0 = 632, 660
    tramos = ((0, 0.25, TINTA), (0.25, 0.5, (255, 255, 255)), (0.5, 1.0, TINTA), (1.0, 1.5, (255, 255, 255)))
    for a, b, color in tramos:
        p.d.rectangle([(x0 + a * km) * ESCALA, y0 * ESCALA, (x0 + b * km) * ESCALA, (y0 + 5) * ESCALA], fill=color,
                      outline=TINTA, width=round(0.5 * ESCALA))
    for k, texto in ((0, "0"), (0.5, "0.5"), (1, "1"), (1.5, "1.5 km")):
        p.Texto(x0 + k * km, y0 - 6, texto, "DejaVuSans", 6.4, halo=None, ancla="mm" if k < 1.5 else "rm")
    p.Texto(x0, y0 + 14, "Curvas de nivel cada 50 m", "DejaVuSans", 6.4, halo=None, ancla="lm")
    p.Texto(x0, y0 + 25, "1 unidad de dibujo = 15 m", "DejaVuSans", 6.4, halo=None, ancla="lm")


def Leyenda(p):
    Panel(p, 26, 632, 166, 698)
    filas = (("Divisoria de la cuenca", DIVISORIA, 2.0), ("Divisoria de UEH", DIVISORIA, 0.9),
             ("Cauce del modelo", (58, 122, 176), 1.7), ("Arroyo", ARROYO, 0.8))
    for k, (texto, color, ancho) in enumerate(filas):
        y = 643 + 10.5 * k
        p.Linea([(34, y), (58, y)], color, ancho)
        p.Texto(66, y, texto, "DejaVuSans", 6.4, halo=None, ancla="lm")
    y = 643 + 10.5 * 4
    p.d.rectangle([34 * ESCALA, (y - 3.5) * ESCALA, 46 * ESCALA, (y + 3.5) * ESCALA], fill=AGUA, outline=ORILLA)
    p.Linea([(50, y + 4), (56, y - 4)], (60, 52, 46), 2.2)
    p.Texto(66, y, "Laguna, embalse; presa", "DejaVuSans", 6.4, halo=None, ancla="lm")


def Pinta(t):
    """The map with square pixels, CELDAS to the drawing unit."""
    fondo = np.clip(Curvas(t, Relieve(t)), 0, 255).round().astype(np.uint8)
    imagen = Image.fromarray(fondo).resize((COLUMNAS * AUMENTO, FILAS * AUMENTO), Image.BICUBIC)
    internas, contorno = Divisorias(t)
    color = Image.new("RGB", imagen.size, DIVISORIA)
    imagen.paste(color, mask=internas.point(lambda v: v * 150 // 255))
    imagen.paste(color, mask=contorno.point(lambda v: v * 230 // 255))
    p = Pintor(imagen)
    Aguas(p)
    Presas(p)
    Cotas(p, t)
    for x, y, texto, letra, cuerpo, color, angulo in NOMBRES:
        p.Texto(x, y, texto, letra, cuerpo, color, angulo=angulo)
    EstacionDeAforo(p)
    Titulo(p)
    Leyenda(p)
    NorteYEscala(p)
    Marco(p)
    return imagen.resize((COLUMNAS, FILAS), Image.LANCZOS)


def Guarda(imagen, ruta):
    """As the editor wants it: three quarters of the height."""
    imagen.resize((COLUMNAS, FILAS * 3 // 4), Image.LANCZOS).save(ruta, quality=76, optimize=True, subsampling=2)
