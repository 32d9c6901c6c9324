# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads a workbook or a CSV file with nothing of the program's and tells what is in it.

    lee_planilla.py FILE.xlsx          page setup, then a line per cell: place, kind, value, form of its number
    lee_planilla.py FILE.csv [SIGN]    a line per row, its fields parted by "|"; numbers are read with this decimal sign
                                       and written with a point
"""
import csv
import sys
import xml.etree.ElementTree as ET
import zipfile

NS = {"m": "http://schemas.openxmlformats.org/spreadsheetml/2006/main"}


def xlsx(ruta):
    with zipfile.ZipFile(ruta) as libro:
        assert libro.testzip() is None
        pieza = lambda nombre: ET.fromstring(libro.read(nombre))
        textos = [
            "".join(t.text or "" for t in si.iter("{%s}t" % NS["m"]))
            for si in pieza("xl/sharedStrings.xml").findall("m:si", NS)
        ]
        estilos = pieza("xl/styles.xml")
        formas = {f.get("numFmtId"): f.get("formatCode") for f in estilos.iterfind(".//m:numFmt", NS)}
        formas.update({"0": "General", "1": "0", "2": "0.00", "3": "#,##0"})  # those that every program knows
        celdas = [x.get("numFmtId") for x in estilos.find("m:cellXfs", NS)]
        for nombre in pieza("xl/workbook.xml").iterfind(".//m:definedName", NS):
            print(nombre.get("name"), nombre.text)
        hoja = pieza("xl/worksheets/sheet1.xml")
        pagina = hoja.find("m:pageSetup", NS)
        ajusta = hoja.find("m:sheetPr/m:pageSetUpPr", NS)
        print("fitToPage", ajusta.get("fitToPage"), "height", pagina.get("fitToHeight"), "paper", pagina.get("paperSize"))
        print("footer", hoja.findtext("m:headerFooter/m:oddFooter", None, NS))
        for c in hoja.iterfind(".//m:c", NS):
            valor = c.findtext("m:v", None, NS)
            if valor is None:
                continue
            if c.get("t") == "s":
                print(c.get("r"), "text", textos[int(valor)])
            else:
                print(c.get("r"), "number", float(valor), formas[celdas[int(c.get("s", "0"))]])


def texto(ruta, signo):
    with open(ruta, encoding="utf-8-sig", newline="") as archivo:
        for fila in csv.reader(archivo, delimiter=";" if signo == "," else ","):
            campos = []
            for campo in fila:
                try:
                    campos.append(repr(float(campo.replace(signo, "."))))
                except ValueError:
                    campos.append(campo)
            print("|".join(campos))


sys.stdout.reconfigure(encoding="utf-8")
if sys.argv[1].endswith(".xlsx"):
    xlsx(sys.argv[1])
else:
    texto(sys.argv[1], sys.argv[2] if len(sys.argv) > 2 else ".")
