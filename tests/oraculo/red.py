# SPDX-License-Identifier: GPL-3.0-or-later
"""The network: list of all components, its validation, and the order of calculation."""
from modelo import MAXIMO_SALIDAS, texto_error_motor
from numeros import Falla, Textos, i16

SALTO = "\r\n"
COLA = "         ¿Desea volver a la ventana de edición  (SI) o continuar (No) ?"
TITULO_AVISO = "Advertencia !!!"


class RedCiclica(Exception):
    """The sorting of the sequence doesn't come to an end."""


def drena_a(destino, nombre):
    """Whether a Cauce_aa names a component: the empty text and "0" name none."""
    return destino == nombre and destino not in ("", "0")


def ArmaSecuencia(s):
    """Counts the components and lists their names: UEHs, Cauces, Lagos, Represas."""
    s.NroComponentes = i16(len(s.ColUEHs) + len(s.ColCauces) + len(s.ColLagos) + len(s.ColRepresas))
    nombres = [""]
    for coleccion in (s.ColUEHs, s.ColCauces, s.ColLagos, s.ColRepresas):
        for componente in coleccion:
            nombres.append(componente.nombre)
    s.Secuencia = Textos(nombres)


def ComponenteFinal(s):
    """Finds the outfalls and warns of what nothing feeds."""
    s.ErrorRed = s.ContinuarSinCorregir = s.RedOk = False
    ArmaSecuencia(s)
    destinos = [c.nombre for coleccion in (s.ColCauces, s.ColLagos, s.ColRepresas) for c in coleccion]
    todos = [c for coleccion in (s.ColUEHs, s.ColCauces, s.ColLagos, s.ColRepresas) for c in coleccion]
    s.NroSalidas = 0
    for componente in todos:
        if not any(drena_a(componente.Cauce_aa, destino) for destino in destinos):
            s.NroSalidas += 1
            if s.NroSalidas > MAXIMO_SALIDAS:
                s.anfitrion.avisa(texto_error_motor(Falla(9)))
            else:
                s.Salidas[s.NroSalidas] = componente.nombre
    if s.NroSalidas == 0 and s.NroComponentes >= 1:
        _pregunta(
            s,
            "Error, ningun componente ingresado es una sección final de control o de salida del sistema. Al menos"
            " un componente debe tener el campo <Drena a< = <0> o <cadena nula>. ¿Desea volver a la ventana de"
            " edición  (SI) o continuar (No) ?",
            "Error, Verifique Componente final del sistema",
        )
        s.ErrorRed = True
    _avisa_sin_aportes(
        s,
        todos,
        s.ColCauces,
        "Hay tramos de Cauces sin aportes de UEHs. Verifique los tramos siguientes y asigne sus UEH o componentes"
        " de aportes: ",
    )
    _avisa_sin_aportes(
        s,
        todos,
        s.ColRepresas,
        "Hay represas sin aportes de UEHs. Verifique las represas siguientes y asigne sus UEH o componentes de"
        " aportes: ",
    )
    _avisa_sin_aportes(
        s,
        todos,
        s.ColLagos,
        "Hay Lagos/Mallines sin aportes de UEHs. Verifique las represas siguientes y asigne sus UEH o componentes"
        " de aportes: ",
    )
    if s.NroSalidas == 1:
        if not s.ContinuarSinCorregir:
            s.RedOk = True
        return
    if s.NroComponentes < 2:
        return
    if not s.AvisoDescargasVisto:
        nombres = "".join(s.Salidas[n] + "    " for n in range(1, min(s.NroSalidas, MAXIMO_SALIDAS) + 1))
        _pregunta(
            s,
            "Hay más de un componente de descarga para el sistema (sección final de control). El sistema admite"
            " esta posibilidad para el cálculo para un máximo de 10 componentes, pero si el sistema es de salida"
            " final única debe verificar los campos <Drena a> de los siguientes componentes:" + nombres + COLA,
            TITULO_AVISO,
        )


def _pregunta(s, texto, titulo):
    if not s.anfitrion.pregunta(texto, titulo):
        s.ContinuarSinCorregir = True


def _avisa_sin_aportes(s, todos, coleccion, texto):
    lista = ""
    for componente in coleccion:
        if not any(drena_a(otro.Cauce_aa, componente.nombre) for otro in todos):
            lista += componente.nombre + "    "
    if lista != "":
        _pregunta(s, texto + lista + COLA, TITULO_AVISO)
        s.ErrorRed = True


def OrdenSecuencia(s):
    """Sorts Secuencia above the UEHs from upstream to downstream and prints it on the Slate."""
    cambios = {}
    sig = len(s.ColUEHs) + 1
    while True:
        sig = _recorre(s, sig, cambios)
        if not sig < s.NroComponentes - 1:
            break
    if s.SalidaPizarra:
        a = s.anfitrion
        a.Text1 += SALTO
        a.Text1 += SALTO + "Componentes y Secuencia de cálculo"
        a.Text1 += SALTO + "NroUEH   Nombre UEH"
        for i in range(1, s.NroComponentes + 1):
            a.Text1 += SALTO + "    " + str(i) + "          " + s.Secuencia[i]


def _recorre(s, desde, cambios):
    """One scan from a position on, up to the first swap; returns the position reached."""
    sig = desde
    for i in range(desde, s.NroComponentes):
        sig = i
        for j in range(i + 1, s.NroComponentes + 1):
            if drena_a(_componente(s, s.Secuencia[j]).Cauce_aa, s.Secuencia[i]):
                s.Secuencia[i], s.Secuencia[j] = s.Secuencia[j], s.Secuencia[i]
                cambios[i] = cambios.get(i, 0) + 1
                if cambios[i] > s.NroComponentes:
                    raise RedCiclica
                return sig
    return sig


def _componente(s, nombre):
    for coleccion in (s.ColCauces, s.ColLagos, s.ColRepresas):
        for componente in coleccion:
            if componente.nombre == nombre:
                return componente
    raise Falla(91)
