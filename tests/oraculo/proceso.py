# SPDX-License-Identifier: GPL-3.0-or-later
"""Main process of a storm: rain, losses, translation and recession of the UEHs, then the walk through the network.

Each `with m:` is one statement of the process: a fault in it is reported and the next one runs.
"""
from embalses import ADVERTENCIA, Proceso_en_Lago, Proceso_en_Represa, resumen, texto_muskingum_erroneo
from hietograma import PpDelPaso
from modelo import Manejador, camino, matriz_f32, texto_error_motor, vector_f32, vector_i32
from numeros import (
    Falla,
    Matriz,
    SinDimensionar,
    derecha,
    div,
    f32,
    i32,
    izquierda,
    piso_i16,
    por16,
    potencia,
    redondea32,
    redondea64,
    redondea_i16,
    redondea_i32,
    resta16,
    resta32,
    suma16,
    texto32,
    texto64,
    trunca2,
)
from red import SALTO, ArmaSecuencia, ComponenteFinal, OrdenSecuencia, RedCiclica, drena_a
from registros import escribe_todo, renglon, texto_citado

LIMITE_PIZARRA = 60000


class _FinDeCorrida(Exception):
    """A check ends the run."""


def ProcesoPrincipal(s, guarda_texto):
    """True where the run went to its end, False where a check ended it."""
    m = Manejador(lambda falla: s.anfitrion.avisa(texto_error_motor(falla)))
    try:
        p = _Proceso(s, m)
        p.prepara()
        p.recorre_pasos()
        p.agrega_recesion()
        p.escribe_hidrogramas()
        p.calcula_volumenes()
        p.abre_segunda_parte()
        p.recorre_secuencia()
        if guarda_texto:
            p.guarda_pizarra()
    except _FinDeCorrida:
        return False
    return True


class _Proceso:
    """The working values of one run."""

    def __init__(self, s, m):
        self.s, self.m = s, m
        self.AreaTotal = 0.0
        self.SumaPp = 0.0
        self.RelacionPasos = 0
        self.NroPasosPp = 0
        self.RetencionRestante = self.PpMediaPaso = SinDimensionar()
        self.Pp = self.R = self.N = self.I = self.E = self.CaudalPp = 0.0
        self.T = self.p = 0
        self.A = self.B = 0.0
        self.Qb = 0.0
        self.VolBaseTotal = self.EscTotalCalc = 0
        self.Coef = 0.0
        self.RetardoMax = self.TiempoViaje = self.RetardoPasos = 0
        self.DenMusk = self.C0Musk = self.C1Musk = self.C2Musk = 0.0
        s.HActual = s.SActual = s.ACalc = 0.0

    def _termina(self, texto):
        self.s.anfitrion.avisa(texto, ADVERTENCIA)
        raise _FinDeCorrida

    def _todas(self):
        return range(1, self.s.NroUEHs + 1)

    # ------------------------------------------------------------------------------- set-up

    def prepara(self):
        s, m = self.s, self.m
        with m:
            s.PasosInfiltra.redimensiona(s.NroUEHs)
        s.TextoPizarra = s.anfitrion.Text1
        if s.NroUEHs == 0:
            self._termina(
                "Debe haber al menos una Unidad de Estudios Hidrólógicos (UEH) Cargada en el sistema. (Ingresar UEHs"
                " desde el Menú Principal  \\Entradas\\Editor UEHs (Gráfico)..."
            )
        self._revisa_UEHs()
        with m:
            self.RelacionPasos = piso_i16(div(s.PasoPp, s.PasoQ))
        if m.cierto(lambda: div(s.PasoPp, s.PasoQ) != self.RelacionPasos):
            self._termina(
                "Error, el paso de salida (Q) debe ser múltiplo del paso de cálculo (Pp). Verifique la carga en"
                " \\Entradas\\Preicpitaciones..."
            )
        with m:
            self.NroPasosPp = self._numero_de_pasos(s.PasoPp)
        with m:
            s.NroPasosQ = self._numero_de_pasos(s.PasoQ)
        self._dimensiona()
        if s.FormaPp != 3:
            for i in self._todas():
                with m:
                    s.PpUEH[i] = 0
        self.SumaPp = 0.0
        self._valida_red()

    def _revisa_UEHs(self):
        s, m = self.s, self.m
        self.VolBaseTotal = self.EscTotalCalc = 0
        self.AreaTotal = 0.0
        for i in self._todas():
            with m:
                self.AreaTotal = f32(self.AreaTotal + s.UEHs[i].Area)
            if self.AreaTotal == 0:
                self._termina(
                    "Error en la carga de datos de UEHS, posiblemente no ha cargado correctamente las superficies y"
                    " demás parámetros, ..."
                )
            with m:
                s.PasosInfiltra[i] = 1
            if m.cierto(lambda: s.UEHs[i].VelMedia == 0):
                self._termina(
                    "Error en la carga de datos de UEHS Nro. "
                    + str(i)
                    + ". El dato de Velocidad media de la gota en ladera es incorrecto. Revise desde Menú Principal:"
                    " Entradas\\Editor de UEHS..."
                )
            if m.cierto(lambda: s.UEHs[i].LongitudMax == 0):
                self._termina(
                    "Error en la carga de datos de UEHS Nro. "
                    + str(i)
                    + ". El dato de Longitud máxima de la gota en ladera es incorrecto. Revise desde Menú Principal:"
                    " Entradas\\Editor de UEHS..."
                )

    def _numero_de_pasos(self, paso):
        s = self.s
        x = div(s.DurTormenta + s.N0Dur, paso)
        entero = piso_i16(x)
        return suma16(entero, 1) if f32(x) > entero else entero

    def _dimensiona(self):
        s, m = self.s, self.m
        with m:
            self.RetencionRestante = vector_f32(s.NroUEHs)
        with m:
            s.VolBaseUEH = vector_i32(suma16(s.NroUEHs, 1))
        with m:
            s.CoefUEH = vector_f32(suma16(s.NroUEHs, 1))
        with m:
            s.VolUEH = vector_f32(suma16(s.NroUEHs, 1))
        with m:
            self.PpMediaPaso = vector_f32(s.NroPasosQ)
        with m:
            s.PpUEHPaso = matriz_f32(s.NroUEHs, piso_i16(div(s.DurTormenta, s.PasoQ)) + 1)
        with m:
            s.HRepresa = matriz_f32(s.NroRepresas, suma16(s.NroPasosQ, 1))
        with m:
            s.SRepresa = matriz_f32(s.NroRepresas, suma16(s.NroPasosQ, 1))
        with m:
            s.HLago = matriz_f32(s.NroLagos, suma16(s.NroPasosQ, 1))
        with m:
            s.SLago = matriz_f32(s.NroLagos, suma16(s.NroPasosQ, 1))

    def _valida_red(self):
        s, m = self.s, self.m
        veces = 2 if s.NroSeriePDR == 1 else 1
        for _ in range(veces):
            with m:
                ArmaSecuencia(s)
            with m:
                ComponenteFinal(s)
        with m:
            s.QSale = matriz_f32(s.NroComponentes, suma16(s.NroPasosQ, 1))
        with m:
            s.QEntra = matriz_f32(suma16(s.NroComponentes, 1), suma16(s.NroPasosQ, 1), suma16(s.NroUEHs, 1))
        if s.FormaPp != 2:
            s.NroSeriePDR = 1
            s.IndSerie = 1
        if s.NroSeriePDR == 1:
            dimensiona_resultados(s, m)
        error_de_red = (
            "Error en la carga de datos de UEHS. Revise desde Menú Principal: Entradas\\Editor de UEHS..."
        )
        if s.ErrorRed:
            self._termina(error_de_red)
        try:
            with m:
                OrdenSecuencia(s)
        except RedCiclica:
            self._termina(error_de_red)
        if s.SalidaPizarra:
            s.TextoPizarra = s.anfitrion.Text1
        for i in self._todas():
            with m:
                self.RetencionRestante[i] = s.UEHs[i].RetensionZ
            with m:
                s.PasosInfiltra[i] = 1
            with m:
                s.VolUEH[i] = 0

    # ---------------------------------------------------------------------------- model steps

    def recorre_pasos(self):
        s, m = self.s, self.m
        if s.SalidaPizarra:
            s.anade(
                SALTO
                + SALTO
                + "I- SIMULACION EN UEHs"
                + SALTO
                + "Per.k  t[min]   UEH     Pp[mm]  Retensión Z[mm]   Infiltra I[mm]   CaudalPp[m3/s]"
            )
        k = 1
        while k < self.NroPasosPp:
            if m.cierto(lambda: self._llueve(k)):
                self._lluvia_del_paso(k)
            for i in self._todas():
                self._paso_de_UEH(i, k)
            k += 1

    def _llueve(self, k):
        s = self.s
        return por16(k, s.PasoPp) < suma16(s.DurTormenta, s.PasoPp)

    def _lluvia_del_paso(self, k):
        s, m = self.s, self.m
        if s.FormaPp == 3:
            for i in self._todas():
                with m:
                    s.PpTormenta = s.PpUEH[i]
                with m:
                    s.PpUEHPaso[i, k] = PpDelPaso(s, k)
                with m:
                    self.SumaPp = f32(self.SumaPp + div(s.UEHs[i].Area * s.PpUEHPaso[i, k], self.AreaTotal))
            return
        with m:
            s.PpUEHPaso[1, k] = PpDelPaso(s, k)
        with m:
            self.SumaPp = f32(self.SumaPp + s.PpUEHPaso[1, k])
        for i in self._todas():
            with m:
                s.PpUEHPaso[i, k] = s.PpUEHPaso[1, k]
            with m:
                s.PpUEH[i] = s.PpUEH[i] + s.PpUEHPaso[i, k]

    def _paso_de_UEH(self, i, k):
        s, m = self.s, self.m
        if m.cierto(lambda: self._llueve(k)):
            with m:
                self.Pp = s.PpUEHPaso[i, k]
        else:
            self.Pp = 0.0
        with m:
            self.PpMediaPaso[k] = self.PpMediaPaso[k] + div(self.Pp * s.UEHs[i].Area, self.AreaTotal)
        self._retiene(i)
        with m:
            self.N = f32(self.Pp - self.R)
        if self.N != 0:
            with m:
                self.I = self._infiltracion(i)
            if self.I < 0:
                self.I = 0.0
            with m:
                s.PasosInfiltra[i] = s.PasosInfiltra[i] + 1
        else:
            self.I = 0.0
        if self.N > self.I:
            with m:
                self.E = f32(self.N - self.I)
        else:
            self.E = 0.0
        with m:
            self.CaudalPp = f32(div(self.E, s.PasoPp) * 0.166667 * s.UEHs[i].Area)
        with m:
            s.LineaPizarra = (
                derecha(str(k), 5)
                + derecha(str(por16(k, s.PasoPp)), 6)
                + derecha(s.UEHs[i].NombreUEH, 8)
                + derecha(texto32(trunca2(self.Pp)), 10)
                + derecha(texto32(trunca2(self.R)), 13)
                + derecha(texto32(trunca2(self.I)), 17)
                + derecha(texto64(redondea64(self.CaudalPp * 1000 / 1000, 2)), 17)
            )
        if s.SalidaPizarra:
            s.anade(SALTO + s.LineaPizarra)
        if self.CaudalPp != 0:
            self._traslada(i, k)

    def _retiene(self, i):
        m, resto = self.m, self.RetencionRestante
        if m.cierto(lambda: resto[i] == 0):
            self.R = 0.0
        elif m.cierto(lambda: self.Pp < resto[i]):
            self.R = self.Pp
            with m:
                resto[i] = resto[i] - self.R
        else:
            with m:
                self.R = resto[i]
            with m:
                resto[i] = 0

    def _infiltracion(self, i):
        """Kostiakov's F(t) = a t^b between two ends of a step on the shifted clock [mm]."""
        s = self.s
        n, delta = s.PasosInfiltra[i], s.PasoPp
        a, b, inicial = s.UEHs[i].KostiakovA, s.UEHs[i].KostiakovB, s.UEHs[i].KostiakovI
        return f32(a * (potencia(n * delta + inicial, b) - potencia(n * delta + inicial - delta, b)))

    def _traslada(self, i, k):
        s, m = self.s, self.m
        with m:
            self.T = redondea_i16(div(div(s.UEHs[i].LongitudMax, s.UEHs[i].VelMedia), 60))
        j = 1
        tj = s.PasoQ
        while m.cierto(lambda: tj < suma16(self.T, s.PasoPp)):
            if self.T <= tj:
                self.A = self.CaudalPp
            else:
                with m:
                    self.A = f32(div(self.CaudalPp, self.T) * tj)
            if tj <= s.PasoPp:
                self.B = 0.0
            else:
                with m:
                    self.B = f32(div(self.CaudalPp, self.T) * resta16(tj, s.PasoPp))
            with m:
                self.p = resta16(suma16(por16(k, self.RelacionPasos), j), self.RelacionPasos)
            if m.cierto(lambda: self.p > suma16(s.NroPasosQ, 1)):
                self._alarga(self.p)
            with m:
                s.QSale[i, self.p] = s.QSale[i, self.p] + (self.A - self.B)
            try:
                j = suma16(j, 1)
                tj = por16(j, s.PasoQ)
            except Falla as falla:
                # The clock stands still: report, and leave the loop that would never end.
                with m:
                    raise falla
                break

    def _alarga(self, p):
        s, m = self.s, self.m
        s.NroPasosQ = p
        for arreglo in (s.QSale, s.HRepresa, s.SRepresa, s.HLago, s.SLago, s.QEntra):
            with m:
                arreglo.redimensiona(suma16(p, 1))

    def agrega_recesion(self):
        s, m = self.s, self.m
        for p in range(1, s.NroPasosQ + 1):
            for i in self._todas():
                if m.cierto(lambda: s.UEHs[i].Q0Recesion > 0 and s.UEHs[i].KRecesion > 0):
                    self._recesion(i, p)

    def _recesion(self, i, p):
        s, m = self.s, self.m
        with m:
            self.Qb = self._caudal_base(i, p)
        if self.Qb < 0:
            s.anfitrion.avisa(
                "El parámetro de Singh (K de abatimiento) elegido es incorrecto, debe corregirlo. Se adopta"
                " transitoriamente K=999999 ó 1/K cercano a '0'. Verifique...",
                ADVERTENCIA,
            )
            s.UEHs[i].KRecesion = 999999.0
            with m:
                self.Qb = self._caudal_base(i, p)
        with m:
            s.QSale[i, p] = s.QSale[i, p] + self.Qb
        with m:
            s.VolBaseUEH[i] = redondea_i32(s.VolBaseUEH[i] + self.Qb * s.PasoQ * 60)
        with m:
            self.VolBaseTotal = redondea_i32(self.VolBaseTotal + self.Qb * s.PasoQ * 60)

    def _caudal_base(self, i, p):
        ueh = self.s.UEHs[i]
        return f32(ueh.Q0Recesion * potencia(2.7183, div(-por16(p, self.s.PasoQ), ueh.KRecesion * 60)))

    # --------------------------------------------------------------------- tables of the UEHs

    def escribe_hidrogramas(self):
        s, m = self.s, self.m
        if s.SalidaPizarra:
            s.anade(SALTO + SALTO + "Caudales propagados al pié de cada UEH:" + SALTO + " " * 12)
        for i in self._todas():
            with m:
                s.anade(" " * 8 + s.UEHs[i].NombreUEH + " " * 7)
        if s.SalidaPizarra:
            s.anade(" " * 7 + SALTO + "Per.k  t[min]")
        for i in self._todas():
            s.anade("- Pp[mm] Q[m3/s] ")
        for p in range(1, s.NroPasosQ + 1):
            with m:
                s.LineaPizarra = izquierda(str(p), 7) + izquierda(str(por16(p, s.PasoQ)), 7)
            for i in self._todas():
                self._parte_de_UEH(i, p)
            s.anade(SALTO + " " + s.LineaPizarra)

    def _parte_de_UEH(self, i, p):
        s, m = self.s, self.m
        if m.cierto(lambda: por16(p, s.PasoQ) >= suma16(s.PasoPp, s.DurTormenta)):
            with m:
                s.LineaPizarra += "    0" + derecha(texto32(redondea32(s.QSale[i, p], 2)), 8) + " " * 4
        else:
            with m:
                paso = piso_i16(div(resta16(suma16(p, self.RelacionPasos), 1), self.RelacionPasos))
                Pp = redondea64(div(s.PpUEHPaso[i, paso], self.RelacionPasos), 2)
                s.LineaPizarra += (
                    derecha(texto64(Pp), 5) + derecha(texto32(redondea32(s.QSale[i, p], 2)), 8) + " " * 4
                )
        s.anade(" " * 12)
        with m:
            s.VolUEH[i] = s.VolUEH[i] + s.PasoQ * s.QSale[i, p] * 60
        if m.cierto(lambda: s.QSale[i, p] > s.QMax[i, s.IndSerie]):
            with m:
                s.QMax[i, s.IndSerie] = s.QSale[i, p]

    def calcula_volumenes(self):
        s, m = self.s, self.m
        self.EscTotalCalc = 0
        for i in self._todas():
            self._volumen_de_UEH(i)
        with m:
            self.EscTotalCalc = resta32(self.EscTotalCalc, self.VolBaseTotal)
        if m.cierto(lambda: self.EscTotalCalc <= 0.001 or self.AreaTotal <= 0):
            self.Coef = 0.0
        else:
            with m:
                self.Coef = f32(div(div(self.EscTotalCalc, self.AreaTotal) / 10 * 100, self.SumaPp))
        with m:
            s.CoefEscTotal[s.IndSerie] = self.Coef
        with m:
            s.EscTotal[s.IndSerie] = self.EscTotalCalc
        if not s.SalidaPizarra:
            return
        s.anade(SALTO)
        s.anade(SALTO + "Escorrentía total[m3]    = " + str(self.EscTotalCalc) + " m3")
        with m:
            lamina = redondea64(div(self.EscTotalCalc, self.AreaTotal) / 10, 1)
            s.anade(SALTO + "Escorrentía total[mm]    = " + texto64(lamina) + " mm")
        with m:
            s.anade(SALTO + "Coef. Escorrentía        = " + texto32(redondea32(self.Coef, 2)) + " %")
        s.anade(SALTO + "Volumen de Base          = " + str(self.VolBaseTotal) + " m3")
        with m:
            s.anade(SALTO + "Suma Pp UEHs             = " + texto32(redondea32(self.SumaPp, 1)) + " mm")

    def _volumen_de_UEH(self, i):
        s, m = self.s, self.m
        with m:
            self.EscTotalCalc = redondea_i32(s.VolUEH[i] + self.EscTotalCalc)
        if m.cierto(lambda: s.VolUEH[i] <= 0.001 or s.UEHs[i].Area <= 0 or s.PpUEH[i] <= 0):
            with m:
                s.CoefUEH[i] = 0
        else:
            with m:
                volumen = s.VolUEH[i] - s.VolBaseUEH[i]
                s.CoefUEH[i] = div(div(volumen, s.UEHs[i].Area) / 10 * 100, s.PpUEH[i])
        if s.SalidaPizarra:
            self._lineas_de_UEH(i)
        with m:
            s.EscUEH[i, s.IndSerie] = redondea_i32(s.VolUEH[i] - s.VolBaseUEH[i])
        with m:
            s.CoefEscUEH[i, s.IndSerie] = s.CoefUEH[i]

    def _lineas_de_UEH(self, i):
        s, m = self.s, self.m

        def linea(rotulo, valor, unidad):
            with m:
                nombre = s.UEHs[i].NombreUEH
                s.anade(SALTO + rotulo + str(i) + " " + nombre + "   " + valor() + unidad)

        linea("Precipitación   UEH ", lambda: texto32(redondea32(s.PpUEH[i], 1)), " mm")
        linea("Caudal Máximo   UEH ", lambda: texto32(redondea32(s.QMax[i, s.IndSerie], 2)), " m3")
        linea("Escorrentía     UEH ", lambda: texto64(redondea64(s.VolUEH[i] - s.VolBaseUEH[i], 0)), " m3")
        linea("Coef.Escorrent. UEH ", lambda: texto32(redondea32(s.CoefUEH[i], 1)), " %")
        linea("Volumen de Base UEH ", lambda: str(s.VolBaseUEH[i]), " m3")

    # -------------------------------------------------------------------------- the network

    def abre_segunda_parte(self):
        s, m = self.s, self.m
        self.RetardoMax = 0
        if s.SalidaPizarra:
            s.anade(
                SALTO
                + SALTO
                + "II- SIMULACION EN COMPONENTES RESTANTES"
                + SALTO
                + "    (Cauces, Lagos y Represas)"
            )
            with m:
                s.anade(resumen(s, 0))
            s.anfitrion.Text1 = s.TextoPizarra

    def recorre_secuencia(self):
        s, m = self.s, self.m
        for c in range(s.NroUEHs + 1, s.NroComponentes + 1):
            prefijo = ""
            with m:
                prefijo = s.Secuencia[c][:2]
            if prefijo == "l-":
                with m:
                    Proceso_en_Lago(s, c)
            elif prefijo == "r-":
                with m:
                    Proceso_en_Represa(s, c)
            elif prefijo == "c-":
                for cauce in s.ColCauces:
                    s.QBaseEntra = 0.0
                    if cauce.NombreCauce == s.Secuencia[c]:
                        self._cauce(c, cauce)

    def _cauce(self, c, cauce):
        s, m = self.s, self.m
        if s.SalidaPizarra:
            s.anade(SALTO + "Componente: Tramo de Cauce " + cauce.NombreCauce)
            s.anade(SALTO + "Per.k  t[min]  Qentra[m3/s] Qsale[m3/s] ")
        self._junta_entrada(c, cauce)
        if cauce.optDirMusk:
            self._parametros_directos(cauce)
            for j in range(1, self.RetardoPasos + 1):
                with m:
                    s.QSale[c, j] = s.QBaseEntra
        else:
            self._parametros_muskingum(cauce)
        for p in range(1, s.NroPasosQ + 1):
            with m:
                self._propaga(c, p, cauce.optDirMusk)
        self._tabla_de_cauce(c)

    def _junta_entrada(self, c, cauce):
        s, m = self.s, self.m
        for ueh in s.ColUEHs:
            if drena_a(ueh.Cauce_aa, cauce.NombreCauce):
                if self._suma_entrada(c, ueh.NombreUEH, 1, s.NroUEHs):
                    with m:
                        s.QBaseEntra = f32(s.QBaseEntra + ueh.Q0Recesion)
        for coleccion in (s.ColCauces, s.ColRepresas, s.ColLagos):
            for tributario in coleccion:
                if drena_a(tributario.Cauce_aa, cauce.NombreCauce):
                    self._suma_entrada(c, tributario.nombre, s.NroUEHs + 1, s.NroComponentes)

    def _suma_entrada(self, c, nombre, desde, hasta):
        """Adds the outflow of the component of that name; False where it isn't in those rows."""
        s, m = self.s, self.m
        for j in range(desde, hasta + 1):
            if m.cierto(lambda: s.Secuencia[j] == nombre):
                for p in range(1, s.NroPasosQ + 1):
                    with m:
                        s.QEntra[c, p] = s.QEntra[c, p] + s.QSale[j, p]
                return True
        return False

    def _parametros_muskingum(self, cauce):
        s, m = self.s, self.m
        K, x, delta = cauce.Cauce_k_Musk, cauce.Cauce_n_Musk, s.PasoQ
        with m:
            self.DenMusk = f32(K - K * x + 0.5 * delta)
        if self.DenMusk == 0:
            self._termina(texto_muskingum_erroneo(cauce.NombreCauce))
        with m:
            self.C0Musk = f32(div(0.5 * delta - K * x, self.DenMusk))
        with m:
            self.C1Musk = f32(div(K * x + 0.5 * delta, self.DenMusk))
        with m:
            self.C2Musk = f32(div(K - K * x - 0.5 * delta, self.DenMusk))
        if m.cierto(lambda: f32(self.C0Musk + self.C1Musk + self.C2Musk) != 1):
            self._termina(texto_muskingum_erroneo(cauce.NombreCauce))

    def _parametros_directos(self, cauce):
        s, m = self.s, self.m
        if cauce.LongCauce == 0:
            self._termina(
                "El parámetro de Longitud de Cauce del tramo "
                + cauce.NombreCauce
                + " es '0'. Debe asignar un valor correcto a este parámetro desde el Editor de UEHs "
            )
        if cauce.VelMediaCauce == 0:
            self._termina(
                "El parámetro de Velocidad Media de propagación Directa en el tramo "
                + cauce.NombreCauce
                + " es '0'. Debe asignar un valor correcto a este parámetro desde el Editor de UEHs "
            )
        with m:
            self.TiempoViaje = redondea_i16(div(div(cauce.LongCauce, cauce.VelMediaCauce), 60))
        with m:
            self.RetardoPasos = redondea_i16(div(self.TiempoViaje, s.PasoQ))
        if self.RetardoMax < self.RetardoPasos:
            self.RetardoMax = self.RetardoPasos
            with m:
                s.QSale.redimensiona(suma16(suma16(s.NroPasosQ, 1), self.RetardoMax))

    def _propaga(self, c, p, directo):
        s = self.s
        if directo:
            q = suma16(p, self.RetardoPasos)
            s.QSale[c, q] = s.QSale[c, q] + s.QEntra[c, p]
        elif p == 1:
            s.QSale[c, 1] = s.QEntra[c, 1]
        else:
            s.QSale[c, p] = s.QSale[c, p] + (
                self.C0Musk * s.QEntra[c, p] + self.C1Musk * s.QEntra[c, p - 1] + self.C2Musk * s.QSale[c, p - 1]
            )

    def _tabla_de_cauce(self, c):
        s, m = self.s, self.m
        s.VolEntra = s.VolSale = 0.0
        for p in range(1, s.NroPasosQ + 1):
            with m:
                s.LineaPizarra = (
                    izquierda(str(p), 7)
                    + izquierda(str(por16(p, s.PasoQ)), 7)
                    + izquierda(texto32(redondea32(s.QEntra[c, p], 3)), 11)
                    + izquierda(texto32(redondea32(s.QSale[c, p], 3)), 10)
                )
            if s.SalidaPizarra:
                s.anade(SALTO + " " + s.LineaPizarra)
            if m.cierto(lambda: s.QSale[c, p] > s.QMax[c, s.IndSerie]):
                with m:
                    s.QMax[c, s.IndSerie] = s.QSale[c, p]
            with m:
                s.VolEntra = f32(s.VolEntra + s.PasoQ * s.QEntra[c, p] * 60)
            with m:
                s.VolSale = f32(s.VolSale + s.PasoQ * s.QSale[c, p] * 60)
        if s.SalidaPizarra:
            with m:
                s.anade(resumen(s, c))
            s.anfitrion.Text1 = s.TextoPizarra

    # ------------------------------------------------------------------------------- closing

    def guarda_pizarra(self):
        s, m = self.s, self.m
        if len(s.TextoPizarra) > LIMITE_PIZARRA:
            s.anfitrion.avisa(
                "La tabla de resultados es muy extensa para ser presentada completa en la Pizarra. Los datos se"
                " guardan completos en el archivo de texto <SalePizarra1_tem.txt> del directorio de trabajo. Puede"
                " leer directamente este archivo con un editor de texto o bien importar archivo desde Excel como"
                " <delimitado>, con separador <espacio> y formato <general>",
                "La tabla de resultados es muy extensa",
            )
        with m:
            escribe_todo(
                camino(s.DirTrabajo, "SalePizarra1_tem.txt"), renglon(texto_citado(s.TextoPizarra))
            )


def dimensiona_resultados(s, m):
    """The arrays of peaks, volumes and coefficients for all storms of the run."""
    with m:
        s.QMax = matriz_f32(s.NroComponentes, s.NroSeriePDR)
    with m:
        s.EscUEH = _matriz_i32(s.NroUEHs, s.NroSeriePDR)
    with m:
        s.CoefEscUEH = matriz_f32(s.NroUEHs, s.NroSeriePDR)
    with m:
        s.CoefEscTotal = vector_f32(s.NroSeriePDR)
    with m:
        s.EscTotal = vector_i32(s.NroSeriePDR)


def _matriz_i32(maximo1, maximo2):
    return Matriz(0, maximo1, maximo2, i32)
