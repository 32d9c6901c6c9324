#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Looks at a memoria as another program does: revisa_documento.py FILE.odt FILE.html

The ODT: package, XML, manifest, headings against the table of contents, captions that count, heads of tables, links and
pictures that are there. The HTML: elements that close, links that arrive. Tells each slip and ends with 1.
"""
import sys
import zipfile
from html.parser import HTMLParser
from xml.etree import ElementTree

ESPACIOS = {
    "office": "urn:oasis:names:tc:opendocument:xmlns:office:1.0",
    "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
    "table": "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
    "draw": "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0",
    "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
    "manifest": "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0",
    "xlink": "http://www.w3.org/1999/xlink",
}
faltas = []


def falta(que):
    faltas.append(que)


def q(nombre):
    espacio, local = nombre.split(":")
    return "{%s}%s" % (ESPACIOS[espacio], local)


def texto(elemento):
    return "".join(elemento.itertext())


def titulos_numerados(cuerpo):
    numeros = [0, 0, 0]
    for h in cuerpo.iter(q("text:h")):
        nivel = int(h.get(q("text:outline-level")))
        numeros[nivel - 1] += 1
        numeros[nivel:] = [0] * (3 - nivel)
        yield ".".join(str(n) for n in numeros[:nivel]) + " " + texto(h)


def revisa_odt(archivo):
    paquete = zipfile.ZipFile(archivo)
    if paquete.testzip() is not None:
        falta("a damaged piece")
    primera = paquete.infolist()[0]
    if primera.filename != "mimetype" or primera.compress_type != zipfile.ZIP_STORED or primera.extra:
        falta("mimetype isn't first, plain, without extras")
    if paquete.read("mimetype") != b"application/vnd.oasis.opendocument.text":
        falta("another mimetype")
    arboles = {n: ElementTree.fromstring(paquete.read(n)) for n in paquete.namelist() if n.endswith(".xml")}
    declaradas = {e.get(q("manifest:full-path")) for e in arboles["META-INF/manifest.xml"]} - {"/"}
    hay = set(paquete.namelist()) - {"mimetype", "META-INF/manifest.xml"}
    if declaradas != hay:
        falta("manifest: %s" % sorted(declaradas ^ hay))

    contenido = arboles["content.xml"]
    indice = contenido.find(".//" + q("text:index-body"))
    if indice is not None:
        dichos = [texto(p).split("\t")[0] for p in indice.iter(q("text:a"))]
        titulos = list(titulos_numerados(contenido))
        if [d.rstrip("1") for d in dichos] != [t.rstrip("1") for t in titulos]:
            falta("contents and headings differ:\n%s\n%s" % (dichos, titulos))
    marcadores = {b.get(q("text:name")) for b in contenido.iter(q("text:bookmark-start"))}
    for a in contenido.iter(q("text:a")):
        destino = a.get(q("xlink:href"))
        if destino.startswith("#") and destino[1:] not in marcadores:
            falta("a link into nothing: " + destino)
    for clase in ("Tabla", "Figura"):
        numeros = [s.text for s in contenido.iter(q("text:sequence")) if s.get(q("text:name")) == clase]
        if numeros != [str(k + 1) for k in range(len(numeros))]:
            falta("captions out of count: %s %s" % (clase, numeros))
    for tabla in contenido.iter(q("table:table")):
        columnas = len(tabla.findall(q("table:table-column")))
        if tabla.find(q("table:table-header-rows")) is None:
            falta("a table without a head that is repeated")
        for fila in tabla.iter(q("table:table-row")):
            if len(fila.findall(q("table:table-cell"))) != columnas:
                falta("a row with other cells than columns")
    for imagen in contenido.iter(q("draw:image")):
        if imagen.get(q("xlink:href")) not in hay:
            falta("a picture that isn't there")
    definidos = {e.get(q("style:name")) for a in arboles.values() for e in a.iter() if e.get(q("style:name"))}
    for atributo in ("text:style-name", "table:style-name", "draw:style-name"):
        for e in contenido.iter():
            if e.get(q(atributo)) and e.get(q(atributo)) not in definidos:
                falta("a style that isn't there: " + e.get(q(atributo)))


class Pagina(HTMLParser):
    SUELTOS = {"meta", "br", "img", "!doctype"}

    def __init__(self):
        super().__init__()
        self.abiertos, self.ids, self.enlaces = [], set(), []

    def handle_starttag(self, marca, atributos):
        atributos = dict(atributos)
        if "id" in atributos:
            if atributos["id"] in self.ids:
                falta("an id twice: " + atributos["id"])
            self.ids.add(atributos["id"])
        if marca == "a":
            self.enlaces.append(atributos["href"])
        if marca == "script" or any(a.startswith("on") for a in atributos):
            falta("something that runs: " + marca)
        if marca not in self.SUELTOS:
            self.abiertos.append(marca)

    def handle_endtag(self, marca):
        if not self.abiertos or self.abiertos.pop() != marca:
            falta("closes what isn't open: " + marca)


def revisa_html(archivo):
    pagina = Pagina()
    with open(archivo, encoding="utf-8") as f:
        pagina.feed(f.read())
    if pagina.abiertos:
        falta("open at the end: %s" % pagina.abiertos)
    for enlace in pagina.enlaces:
        if not enlace.startswith("#") or enlace[1:] not in pagina.ids:
            falta("a link out of the page or into nothing: " + enlace)


revisa_odt(sys.argv[1])
revisa_html(sys.argv[2])
for f in faltas:
    print(f, file=sys.stderr)
sys.exit(1 if faltas else 0)
