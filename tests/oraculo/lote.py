# SPDX-License-Identifier: GPL-3.0-or-later
"""The batch command line: options, settling of the storm, run, and results as CSV."""
import os
import re
import sys

from archivos import LeePpReal, LeeTablaPDRs, leoConf
from modelo import MAXIMO_UEHS, Anfitrion, FinDelPrograma, Siro
from numeros import Falla, corto32, f32, numero_entero
from serie import CorreSeriePDR, CorreUnaTormenta, SaltaTormenta

TERMINADO, DETENIDO, MAL_LLAMADO, CORTADO = 0, 1, 2, 3
SUFIJO = "_Conf.vlm"
USO = "uso: oraculo.py una|serie CONF [opciones]"


class MalLlamado(Exception):
    """The command line is wrong."""


def _flotante(texto):
    valor = numero_entero(texto)
    if valor is None:
        raise MalLlamado("no es un número: " + texto)
    try:
        lamina = f32(valor)
    except Falla:
        raise MalLlamado("fuera de rango: " + texto) from None
    if valor < 0:
        raise MalLlamado("negativo: " + texto)
    return lamina


def _entero(minimo, maximo):
    def convierte(texto):
        if not re.fullmatch(r"[+-]?[0-9]+", texto) or not minimo <= int(texto) <= maximo:
            raise MalLlamado("valor inválido: " + texto)
        return int(texto)

    return convierte


def _forma(texto):
    if texto not in ("0", "1", "3", "4"):
        raise MalLlamado("forma inválida: " + texto)
    return int(texto)


def _responde(texto):
    if texto not in ("si", "no"):
        raise MalLlamado("respuesta inválida: " + texto)
    return texto == "si"


def _laminas(texto):
    laminas = [_flotante(valor) for valor in texto.split(",")]
    if len(laminas) > MAXIMO_UEHS:
        raise MalLlamado("demasiadas láminas: %d" % len(laminas))
    return laminas


def _ruta(texto):
    return texto if os.path.isabs(texto) else os.getcwd() + os.sep + texto


# option: (conversion, default); None as a conversion marks a flag without a value
_OPCIONES = {
    "--trabajo": (_ruta, None),
    "--forma": (_forma, 0),
    "--pp": (_flotante, 60.0),
    "--dur": (_entero(0, 32767), 60),
    "--rec": (_entero(0, 32767), 0),
    "--distribucion": (_entero(0, 7), 0),
    "--paso-pp": (_entero(1, 32767), 10),
    "--paso-q": (_entero(1, 32767), 10),
    "--pp-ueh": (_laminas, []),
    "--tormenta": (str, ""),
    "--tabla": (_entero(0, 3), 0),
    "--pizarra": (None, False),
    "--responde": (_responde, True),
    "--hilos": (_entero(0, 1024), 0),
    "--resultados": (_ruta, None),
}


def lee_opciones(argumentos):
    """(mode, path of the configuration, options by name)."""
    opciones = {nombre: defecto for nombre, (_, defecto) in _OPCIONES.items()}
    sueltos = []
    i = 0
    while i < len(argumentos):
        argumento = argumentos[i]
        i += 1
        if not argumento.startswith("--"):
            sueltos.append(argumento)
            continue
        nombre, igual, valor = argumento.partition("=")
        if nombre not in _OPCIONES:
            raise MalLlamado("opción desconocida: " + nombre)
        convierte = _OPCIONES[nombre][0]
        if convierte is None:
            opciones[nombre] = True
            continue
        if not igual:
            if i >= len(argumentos):
                raise MalLlamado("falta el valor de " + nombre)
            valor = argumentos[i]
            i += 1
        opciones[nombre] = convierte(valor)
    if len(sueltos) != 2 or sueltos[0] not in ("una", "serie"):
        raise MalLlamado("falta el modo o el proyecto")
    if not sueltos[1].endswith(SUFIJO):
        raise MalLlamado("no es un archivo de configuración: " + sueltos[1])
    return sueltos[0], _ruta(sueltos[1]), opciones


def corre(argumentos):
    """The exit status."""
    try:
        modo, conf, opciones = lee_opciones(argumentos)
    except MalLlamado as motivo:
        sys.stderr.write(str(motivo) + "\n" + USO + "\n")
        return MAL_LLAMADO
    if not os.path.isfile(conf):
        sys.stderr.write("siro-lote: no se puede abrir " + conf + "\n")
        return DETENIDO
    s = Siro(Anfitrion(opciones["--responde"]))
    s.DirTrabajo = opciones["--trabajo"] or os.path.dirname(os.path.abspath(__file__))
    try:
        return _corre_una(s, conf, opciones) if modo == "una" else _corre_serie(s, conf, opciones)
    except FinDelPrograma:
        return CORTADO
    finally:
        s.anfitrion.cuenta_repetidas()


def _abre_proyecto(s, conf):
    """False where the damaged configuration leaves no project open."""
    sin_sufijo = conf[: -len(SUFIJO)]
    s.DirProyecto, _, s.NombreProyecto = sin_sufijo.rpartition(os.sep)
    leoConf(s)
    return s.NombreProyecto != "" and s.DirProyecto != ""


def _corre_una(s, conf, opciones):
    if not _abre_proyecto(s, conf):
        return DETENIDO
    _prepara_tormenta(s, opciones)
    terminada = CorreUnaTormenta(s, opciones["--pizarra"])
    _muestra_pizarra(s, opciones)
    if not terminada:
        return DETENIDO
    _guarda_resultados(opciones, _filas_de_una(s))
    return TERMINADO


def _prepara_tormenta(s, opciones):
    s.FormaPp = opciones["--forma"]
    s.PpTormenta = opciones["--pp"]
    s.DurTormenta = opciones["--dur"]
    s.RecTormenta = opciones["--rec"]
    s.DistriPp = opciones["--distribucion"]
    s.PasoPp = opciones["--paso-pp"]
    s.PasoQ = opciones["--paso-q"]
    if s.FormaPp == 4:
        try:
            s.PasoPp = LeePpReal(s, opciones["--tormenta"])
        except Falla:
            s.NroPpReal = 0
            s.PpTormenta, s.DurTormenta = 0.0, 0
        s.DistriPp = 7
    else:
        if s.PasoPp > s.DurTormenta:
            s.PasoPp = s.DurTormenta
        if s.FormaPp == 3:
            s.DistriPp = 0
            for i, lamina in enumerate(opciones["--pp-ueh"], 1):
                s.PpUEH[i] = lamina
            s.PpTormenta = next((v for v in opciones["--pp-ueh"] if v > 0), s.PpTormenta)
    if s.PasoQ > s.PasoPp:
        s.PasoQ = s.PasoPp


def _corre_serie(s, conf, opciones):
    if not _abre_proyecto(s, conf):
        return DETENIDO
    s.FormaPp = 2
    s.DistriPp = opciones["--distribucion"]
    s.PasoPp = opciones["--paso-pp"]
    s.PasoQ = opciones["--paso-q"]
    s.TablaPDR = opciones["--tabla"]
    LeeTablaPDRs(s)
    if s.PasoQ > s.PasoPp:
        s.PasoQ = s.PasoPp
    terminada = CorreSeriePDR(s)
    _muestra_pizarra(s, opciones)
    if not terminada:
        return DETENIDO
    _guarda_resultados(opciones, _filas_de_serie(s))
    return TERMINADO


def _muestra_pizarra(s, opciones):
    if opciones["--pizarra"]:
        sys.stdout.buffer.write(s.anfitrion.Text1.encode("utf-8", "surrogateescape"))
        sys.stdout.buffer.flush()


# ---------------------------------------------------------------------------------------------- results


def _guarda_resultados(opciones, filas):
    if opciones["--resultados"] is None:
        return
    texto = "".join(",".join(fila) + "\n" for fila in filas)
    with open(opciones["--resultados"], "wb") as archivo:
        archivo.write(texto.encode("utf-8", "surrogateescape"))


def _nombre_csv(nombre):
    if any(caracter in nombre for caracter in ',"\r\n'):
        return '"' + nombre.replace('"', '""') + '"'
    return nombre


def _filas_de_una(s):
    yield ["componente", "p", "minutos", "qentra", "qsale", "h", "s"]
    represas, lagos = {}, {}  # of equal names the first
    for represa in s.ColRepresas:
        represas.setdefault(represa.NombreRepresa, represa.numRepresa)
    for lago in s.ColLagos:
        lagos.setdefault(lago.NombreLAGO, lago.numLAGO)
    cauces = {cauce.NombreCauce for cauce in s.ColCauces}
    for c in range(1, s.NroComponentes + 1):
        nombre = s.Secuencia[c]
        for p in range(0, s.NroPasosQ + 1):
            qentra = h = almacenado = ""
            if c > s.NroUEHs:
                qentra = corto32(s.QEntra[c, p])
                if nombre not in cauces and nombre in lagos:
                    h, almacenado = corto32(s.HLago[lagos[nombre], p]), corto32(s.SLago[lagos[nombre], p])
                elif nombre not in cauces and nombre in represas:
                    n = represas[nombre]
                    h, almacenado = corto32(s.HRepresa[n, p]), corto32(s.SRepresa[n, p])
            yield [
                _nombre_csv(nombre),
                str(p),
                str(p * s.PasoQ),
                qentra,
                corto32(s.QSale[c, p]),
                h,
                almacenado,
            ]


def _filas_de_serie(s):
    yield ["componente", "storm", "p", "d", "r", "qmax", "esc", "coef"]
    for c in range(1, s.NroComponentes + 1):
        for t in _tormentas_corridas(s):
            esc = coef = ""
            if c <= s.NroUEHs:
                esc, coef = str(s.EscUEH[c, t]), corto32(s.CoefEscUEH[c, t])
            yield [_nombre_csv(s.Secuencia[c])] + _columnas_pdr(s, t) + [corto32(s.QMax[c, t]), esc, coef]
    for t in _tormentas_corridas(s):
        yield ["*"] + _columnas_pdr(s, t) + ["", str(s.EscTotal[t]), corto32(s.CoefEscTotal[t])]


def _tormentas_corridas(s):
    for t in range(1, s.NroSeriePDR + 1):
        s.IndSerie = t
        SaltaTormenta(s)
        if not s.SaltarTormenta:
            yield t


def _columnas_pdr(s, t):
    return [str(t), corto32(s.SerieP[t]), str(s.SerieD[t]), str(s.SerieR[t])]
