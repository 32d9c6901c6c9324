# SPDX-License-Identifier: GPL-3.0-or-later
"""Delimited text records in Windows-1252, as every project, table and result file has them."""
import os

from numeros import Falla, f32, i16, numero_entero, texto32


def _tabla_1252():
    tabla = []
    for byte in range(256):
        try:
            tabla.append(bytes([byte]).decode("cp1252"))
        except UnicodeDecodeError:
            tabla.append(chr(byte))  # the five bytes without a character stand for themselves
    return tabla


_DE_BYTE = _tabla_1252()
_A_BYTE = {caracter: byte for byte, caracter in enumerate(_DE_BYTE)}


def de_1252(datos):
    return "".join(_DE_BYTE[byte] for byte in datos)


def a_1252(texto):
    return bytes(_A_BYTE.get(caracter, ord("?")) for caracter in texto)


# ------------------------------------------------------------------------------------------- disk


def lee_todo(ruta):
    """The bytes of a file. Falla 53: not in its directory; 76: no such directory; 75: not readable as a file."""
    try:
        with open(ruta, "rb") as archivo:
            return archivo.read()
    except (FileNotFoundError, NotADirectoryError):
        raise Falla(53 if os.path.isdir(os.path.dirname(ruta) or ".") else 76) from None
    except (OSError, ValueError):
        raise Falla(75) from None


def escribe_todo(ruta, texto):
    """Replaces a file by the text. Falla 76: no such directory; 75: not writable."""
    try:
        with open(ruta, "wb") as archivo:
            archivo.write(a_1252(texto))
    except (FileNotFoundError, NotADirectoryError):
        raise Falla(76) from None
    except (OSError, ValueError):
        raise Falla(75) from None


# ---------------------------------------------------------------------------------------- reading


def campos(texto):
    """All fields of a file in order, as pairs (quoted, text).

    Comma and line end close a field alike. Behind the last line end there is none, behind a last comma an empty one.
    """
    hallados = []
    i, largo = 0, len(texto)
    tras_coma = False
    while i < largo or tras_coma:
        while i < largo and texto[i] == " ":
            i += 1
        if i < largo and texto[i] == '"':
            cierre = texto.find('"', i + 1)
            if cierre < 0:
                hallados.append((True, texto[i + 1 :]))
                break
            hallados.append((True, texto[i + 1 : cierre]))
            i = cierre + 1
            while i < largo and texto[i] not in ",\r\n":
                i += 1
        else:
            inicio = i
            while i < largo and texto[i] not in ",\r\n":
                i += 1
            hallados.append((False, texto[inicio:i].rstrip(" ")))
        tras_coma = texto[i : i + 1] == ","
        if i < largo:
            if texto[i] == "\r" and texto[i + 1 : i + 2] == "\n":
                i += 1
            i += 1
    return hallados


def como_texto(campo):
    return campo[1]


def _numero(campo):
    entre_comillas, texto = campo
    if entre_comillas:
        raise Falla(13)
    if texto == "":
        return 0.0
    valor = numero_entero(texto)
    if valor is None:
        raise Falla(13)
    return valor


def como_i16(campo):
    """A fraction is rounded, a tie to the even number."""
    return i16(round(_numero(campo)))


def como_f32(campo):
    return f32(_numero(campo))


def como_logico(campo):
    entre_comillas, texto = campo
    if not entre_comillas:
        if texto == "#TRUE#":
            return True
        if texto in ("#FALSE#", ""):
            return False
        if numero_entero(texto) is not None:
            return numero_entero(texto) != 0
    raise Falla(13)


class Lector:
    """A file opened for reading, field after field."""

    def __init__(self, ruta):
        self._campos = campos(de_1252(lee_todo(ruta)))
        self._lugar = 0

    @property
    def al_final(self):
        return self._lugar >= len(self._campos)

    def registro(self, *tipos):
        """The fields of one reading statement: all are consumed, even where one of them raises."""
        valores, falla = [], None
        for tipo in tipos:
            if self.al_final:
                falla = falla or Falla(62)
                break
            campo = self._campos[self._lugar]
            self._lugar += 1
            try:
                valores.append(tipo(campo))
            except Falla as surgida:
                falla = falla or surgida
        if falla:
            raise falla
        return valores

    def uno(self, tipo):
        return self.registro(tipo)[0]


class SinAbrir:
    """What a routine reads from after a failed opening: every reading fails in turn with the fault of the opening."""

    def __init__(self, falla):
        self.falla = falla

    def registro(self, *tipos):
        raise Falla(self.falla.numero)

    def uno(self, tipo):
        raise Falla(self.falla.numero)


def abre_o_nada(manejador, ruta):
    """Opens under a handler that resumes: where it fails, what follows reads from nothing."""
    lector = SinAbrir(Falla(75))
    with manejador:
        try:
            lector = Lector(ruta)
        except Falla as falla:
            lector = SinAbrir(falla)
            raise
    return lector


# ---------------------------------------------------------------------------------------- writing


def texto_citado(texto):
    return '"' + texto + '"'


def logico_escrito(valor):
    return "#TRUE#" if valor else "#FALSE#"


def f32_escrito(valor):
    return texto32(valor)


def renglon(*escritos):
    """One record: fields already in their written form, a comma between, a line end behind."""
    return ",".join(escritos) + "\r\n"
