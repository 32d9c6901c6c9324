# SPDX-License-Identifier: GPL-3.0-or-later
"""The two run drivers: one storm, and a series of storms with its table of peaks."""
import datetime
import os

from archivos import CargaProyecto
from hietograma import ConstruyeHietograma
from modelo import DURACIONES, RECURRENCIAS, Manejador, camino, texto_error_motor
from numeros import Falla, redondea32, texto32
from proceso import ProcesoPrincipal, dimensiona_resultados
from red import SALTO, ArmaSecuencia
from registros import escribe_todo, renglon, texto_citado

ENCABEZADO = "SIRO - Modelo de Simulación Hidrológica"


def _ahora():
    return datetime.datetime.now().strftime("%d/%m/%Y %H:%M:%S")


def CorreUnaTormenta(s, pizarra):
    """True where the run went to its end."""
    a = s.anfitrion
    a.Text1 = ""
    s.SalidaPizarra = pizarra
    if s.SalidaPizarra:
        a.Text1 = (
            SALTO.join(
                (
                    ENCABEZADO,
                    s.DirProyecto + os.sep + s.NombreProyecto,
                    s.TituloProyecto,
                    s.Ubicacion,
                    s.Cuenca,
                    s.Subcuenca,
                    s.Operador + " - " + _ahora(),
                    "",
                    "SIMULACION LLUVIA-CAUDAL PARA UNA TORMENTA",
                )
            )
            + SALTO
        )
    if s.PpTormenta == 0 or s.DurTormenta == 0:
        return False
    CargaProyecto(s)
    s.AvisoDescargasVisto = True
    ConstruyeHietograma(s)
    return ProcesoPrincipal(s, True)


def CorreSeriePDR(s):
    """True where the series went to its end."""
    m = Manejador(lambda falla: s.anfitrion.avisa(texto_error_motor(falla)))
    s.HoraInicio = datetime.datetime.now()
    s.SalidaPizarra = False
    CargaProyecto(s)
    ArmaSecuencia(s)
    s.AvisoDescargasVisto = True
    dimensiona_resultados(s, m)
    if s.NroSeriePDR < 1:
        s.anfitrion.avisa(
            "No se han cargado tormentas PDRs. Para correr esta opción debe previamente cargar un conjunto de"
            " tormentas desde Menu Principal\\Entradas\\Precipitaciones, luego tildar la opción <c) Cargar una tabla"
            " de Pp-D-R desde archivo> y pulsar el botón de cargar tabla PDR ...",
            "Advertencia !",
        )
        return False
    s.IndSerie = 1
    while s.IndSerie <= s.NroSeriePDR:
        SaltaTormenta(s)
        if s.PpTormenta == 0 or s.DurTormenta == 0:
            return False
        if not s.SaltarTormenta:
            ConstruyeHietograma(s)
            ProcesoPrincipal(s, False)
        s.IndSerie += 1
    GuardaTablaQDR(s)
    return True


def SaltaTormenta(s):
    """Takes storm IndSerie in hand and tells in SaltarTormenta whether it is deselected."""
    s.PpTormenta = s.SerieP[s.IndSerie]
    s.DurTormenta = s.SerieD[s.IndSerie]
    s.RecTormenta = s.SerieR[s.IndSerie]
    if s.PpTormenta == 0 or s.DurTormenta == 0:
        return
    s.SaltarTormenta = False
    if s.DurTormenta < s.PasoPp:
        s.SaltarTormenta = True
    if s.DurTormenta in DURACIONES and not s.FlagD[s.DurTormenta]:
        s.SaltarTormenta = True
    if s.RecTormenta in RECURRENCIAS and not s.FlagR[s.RecTormenta]:
        s.SaltarTormenta = True


def GuardaTablaQDR(s):
    try:
        _guarda_tabla(s)
    except Falla:
        s.anfitrion.avisa(
            "El resguardo de resultados en el archivo <SaleTablasQDRs_tem.txt> ha fallado",
            "Falla en resguardo de archivo",
        )


def _guarda_tabla(s):
    renglones = [
        renglon(texto_citado(texto))
        for texto in (
            ENCABEZADO,
            s.DirProyecto + os.sep + s.NombreProyecto + "_Conf.vlm",
            s.TituloProyecto,
            s.Ubicacion,
            s.Cuenca,
            s.Subcuenca,
            s.Operador + " - " + _ahora(),
            "SIMULACION PARA SERIE PDR DE TORMENTAS SINTETICAS  ",
        )
    ]
    cabeza = ("Componente", "Nro.", "P[mm]", "D[min]", "R[años]", "Q[m3/s]", "E[m3]", "C[%]")
    renglones.append(renglon(*[texto_citado(texto) for texto in cabeza]))
    for c in range(1, s.NroComponentes + 1):
        s.IndSerie = 1
        while s.IndSerie <= s.NroSeriePDR:
            SaltaTormenta(s)
            if not s.SaltarTormenta:
                renglones.append(_renglon_de_tabla(s, c))
            s.IndSerie += 1
    escribe_todo(camino(s.DirTrabajo, "SaleTablasQDRs_tem.txt"), "".join(renglones))
    segundos = int((datetime.datetime.now() - s.HoraInicio).total_seconds())
    transcurrido = "%d:%d:%d" % (segundos // 3600, segundos // 60 % 60, segundos % 60)
    s.anfitrion.avisa(
        "La tabla de resultados Q-D-R se guarda completa en el archivo de texto <SaleTablasQDRs_tem.txt>. Puede leer"
        " directamente este archivo con un editor de texto o bien importar archivo desde Excel como <delimitado>, con"
        ' separador <,> y formato <general>"Tiempo de proceso: '
        + SALTO * 3
        + "Tiempo total del proceso: "
        + transcurrido,
        "La tabla de resultados se guarda en archivo el temporal <SaleTablasQDRs_tem.txt>",
    )


def _renglon_de_tabla(s, c):
    t = s.IndSerie
    escritos = [
        texto_citado(s.Secuencia[c]),
        str(c),
        texto32(s.SerieP[t]),
        str(s.SerieD[t]),
        str(s.SerieR[t]),
        texto32(redondea32(s.QMax[c, t], 2)),
    ]
    if c <= s.NroUEHs:
        escritos += [str(s.EscUEH[c, t]), texto32(redondea32(s.CoefEscUEH[c, t], 2))]
    return renglon(*escritos)
