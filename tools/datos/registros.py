# SPDX-License-Identifier: GPL-3.0-or-later
"""Delimited records as the program writes them: Windows-1252, CR LF, texts in quotes, a point in numbers."""

import struct


def Float32(valor):
    return struct.unpack("f", struct.pack("f", valor))[0]


def Campo(valor):
    if isinstance(valor, bool):
        return "#TRUE#" if valor else "#FALSE#"
    if isinstance(valor, str):
        if '"' in valor:
            raise ValueError(f"a text can't hold a quote: {valor}")
        return f'"{valor}"'
    if isinstance(valor, int):
        return str(valor)
    texto = f"{Float32(valor):.7G}"
    if "E" in texto:
        raise ValueError(f"write {valor} without an exponent")
    return texto


def Guarda(ruta, filas):
    """filas: records, each a sequence of fields."""
    texto = "".join(",".join(Campo(c) for c in fila) + "\r\n" for fila in filas)
    ruta.write_bytes(texto.encode("cp1252"))
