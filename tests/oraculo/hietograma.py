# SPDX-License-Identifier: GPL-3.0-or-later
"""The hyetograph of a storm and the rain of each model step."""
from archivos import LeeTablaDisTemPer
from modelo import texto_error_motor
from numeros import (
    Falla,
    div,
    f32,
    izquierda,
    piso_i16,
    por16,
    resta16,
    suma16,
    texto32,
    trunca2,
)

SALTO = "\r\n"


def ConstruyeHietograma(s):
    try:
        _construye(s)
    except Falla as falla:
        s.anfitrion.avisa(texto_error_motor(falla))


def _construye(s):
    P, D = s.PpTormenta, s.DurTormenta
    s.NroBloquesPp = piso_i16(div(D, s.PasoPp))
    s.PpAcum.redimensiona(s.NroBloquesPp)
    s.IntensidadPp.redimensiona(s.NroBloquesPp)
    s.PpReal.redimensiona(s.NroBloquesPp)
    if P == 0 or D == 0:
        return
    if s.SalidaPizarra:
        s.anfitrion.Text1 += SALTO + "Entrada: PRECIPITACION"
    if s.FormaPp >= 4:
        _porcentajes_reales(s)
    else:
        _porcentajes_de_distribucion(s)
    if s.SalidaPizarra:
        s.anfitrion.Text1 += SALTO + "Pp= " + texto32(P) + " [mm]  " + str(D) + " [min]"
    if s.FormaPp != 4:
        s.PpReal[0] = 0
    if s.SalidaPizarra:
        s.anfitrion.Text1 += SALTO + "Distribución temporal de la Pp:"
        s.anfitrion.Text1 += SALTO + "Per.k t[min] Pp[mm]  Pp Acumulada[mm]  Intensidad de Pp[mm/min]"
    for j in range(1, s.NroBloquesPp + 1):
        s.PpAcum[j] = P * s.PpAcum[j] / 100
        s.IntensidadPp[j] = div(div(P * s.IntensidadPp[j], div(1, s.NroBloquesPp)), D) / 100
        if s.FormaPp != 4:
            s.PpReal[j] = s.PpAcum[j] - s.PpAcum[j - 1]
        s.LineaPizarra = (
            " "
            + izquierda(str(j), 5)
            + izquierda(str(por16(s.PasoPp, j)), 6)
            + izquierda(texto32(trunca2(s.PpReal[j])), 11)
            + izquierda(texto32(trunca2(s.PpAcum[j])), 25)
            + texto32(trunca2(s.IntensidadPp[j]))
        )
        if s.SalidaPizarra:
            s.anfitrion.Text1 += SALTO + s.LineaPizarra
    s.NroPpReal = s.NroBloquesPp
    s.PpAcumPrevia = 0.0


def _porcentajes_reales(s):
    s.NroBloquesPp = piso_i16(div(s.DurTormenta, s.PasoPp))
    for j in range(1, s.NroBloquesPp + 1):
        s.IntensidadPp[j] = div(s.PpReal[j], s.PpTormenta) * 100
    s.PpAcum[1] = s.IntensidadPp[1]
    for j in range(2, s.NroBloquesPp + 1):
        s.PpAcum[j] = s.IntensidadPp[j] + s.PpAcum[j - 1]


# Percentages of each block; where the cumulative values are fixed they stand beside, else they are summed.
_UN_BLOQUE = ((100,), (100,))
_TRES_BLOQUES = ((20, 60, 20), (20, 80, 100))
_CUATRO_BLOQUES = ((12, 20, 55, 13), (12, 32, 87, 100))
_CINCO_BLOQUES = ((9, 10, 53, 18, 10), None)
_SEIS_BLOQUES = ((8, 9, 11, 49, 15, 8), None)
_VEINTICUATRO_BLOQUES = ((2.5,) * 6 + (6, 7, 8, 37, 11, 6) + (1,) * 6 + (0.6667,) * 6, None)
_FIJAS = {
    2: ((34, 31, 18, 9, 8), (34, 65, 83, 92, 100)),
    3: ((42, 26, 23, 7, 2), (42, 68, 91, 98, 100)),
    4: ((6, 20, 18, 34, 22), (6, 26, 44, 78, 100)),
}


def _tabla_por_duracion(horas):
    if horas <= 2.5:
        return _UN_BLOQUE
    if 2.501 <= horas <= 3.5:
        return _TRES_BLOQUES
    if 3.501 <= horas <= 4.5:
        return _CUATRO_BLOQUES
    if 4.501 <= horas <= 5.5:
        return _CINCO_BLOQUES
    if 5.501 <= horas <= 11.999:
        return _SEIS_BLOQUES
    if 12 <= horas <= 48:
        return _VEINTICUATRO_BLOQUES
    return None


def _porcentajes_de_distribucion(s):
    if s.DistriPp == 0:
        _aplica_tabla(s, _UN_BLOQUE)
    elif s.DistriPp == 1:
        tabla = _tabla_por_duracion(s.DurTormenta / 60)
        if tabla is not None:
            _aplica_tabla(s, tabla)
    elif s.DistriPp in _FIJAS:
        _aplica_tabla(s, _FIJAS[s.DistriPp])
    elif s.DistriPp in (5, 6, 7):
        _aplica_personal(s, s.DistriPp - 4)


def _dimensiona_para(s, bloques):
    if s.NroBloquesPp < bloques:
        s.PpAcum.redimensiona(bloques)
        s.IntensidadPp.redimensiona(bloques)
        s.PpReal.redimensiona(bloques)
    s.NroBloquesPp = bloques


def _aplica_tabla(s, tabla):
    porcentajes, acumulados = tabla
    _dimensiona_para(s, len(porcentajes))
    for j, porcentaje in enumerate(porcentajes, 1):
        s.IntensidadPp[j] = porcentaje
    if acumulados is not None:
        for j, acumulado in enumerate(acumulados, 1):
            s.PpAcum[j] = acumulado
        return
    s.PpAcum[1] = porcentajes[0]
    for j in range(2, s.NroBloquesPp + 1):
        s.PpAcum[j] = s.IntensidadPp[j] + s.PpAcum[j - 1]


def _aplica_personal(s, t):
    LeeTablaDisTemPer(s)
    _dimensiona_para(s, s.NroFilasTabla[t])
    s.DisPerso.redimensiona(suma16(s.NroBloquesPp, 1))
    for j in range(1, s.NroBloquesPp + 1):
        s.IntensidadPp[j] = s.DisPerso[t, j]
    s.PpAcum[1] = s.IntensidadPp[1]
    for j in range(1, s.NroBloquesPp + 1):
        s.PpAcum[j] = s.IntensidadPp[j] + s.PpAcum[j - 1]


def PpDelPaso(s, k):
    """Rain of model step k [mm]; to be called for k = 1, 2, 3 ... in order."""
    P, D = s.PpTormenta, s.DurTormenta
    t = por16(s.PasoPp, k)
    s.PpAcum[0] = 0
    s.IntensidadPp[0] = 0
    if resta16(t, D) >= s.PasoPp:
        return 0
    if s.DistriPp == 0:
        if k == suma16(piso_i16(div(D, s.PasoPp)), 1):
            return div(1, D) * P * resta16(D, por16(resta16(k, 1), s.PasoPp))
        return div(1, D) * P * s.PasoPp
    if not 1 <= s.DistriPp <= 7:
        return 0
    N = s.NroBloquesPp
    b = suma16(piso_i16(f32(div(f32(f32(s.PasoPp * N) * k), D))), 1)
    if suma16(b, 1) > N:
        s.PpAcum.redimensiona(suma16(b, 2))
        s.IntensidadPp.redimensiona(suma16(b, 2))
    if b > suma16(N, 1):
        return 0
    u = f32(t - resta16(b, 1) * div(1, N) * D)
    c = f32(u * s.IntensidadPp[b] + s.PpAcum[b - 1])
    resultado = c - s.PpAcumPrevia
    if k == suma16(piso_i16(div(D, s.PasoPp)), 1) and resultado + s.PpAcumPrevia > P:
        resultado = P - s.PpAcumPrevia
    if b <= N:
        s.PpAcumPrevia = c
    return resultado
