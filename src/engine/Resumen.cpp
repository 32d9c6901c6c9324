// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Resumen.h"

#include <algorithm>

#include "model/Numeros.h"

namespace engine {

using model::NumeroATexto;
using model::Redondea;
using model::Siro;

void EscribeResumen(Corrida& c, int fila)
{
    Siro& s = c.s;
    s.TextoPizarra += "\r\nVolumen Escurrido. Entra = " + NumeroATexto(Redondea(s.VolEntra, 0)) +
                      " m3 ; Sale = " + NumeroATexto(Redondea(s.VolSale, 0)) + " m3";
    const float maximo = s.QMax(fila, s.IndSerie);
    s.TextoPizarra += "\r\nCaudal Máximo = " + NumeroATexto(Redondea(maximo, 2)) + " m3/s ";
}

bool ResumenSeguro(const Corrida& c, int fila)
{
    const Siro& s = c.s;
    if (s.PasoQ < 1 || s.NroPasosQ < 1 || s.NroPasosQ * s.PasoQ > INT16_MAX) return false;
    if (fila < s.QEntra.PrimeraFila() || fila > s.QEntra.UltimaFila() || fila > s.QSale.UltimaFila())
        return false;
    if (s.QEntra.TopeColumna() < s.NroPasosQ || s.QSale.TopeColumna() < s.NroPasosQ) return false;
    if (s.QMax.UltimaFila() < fila || s.IndSerie < 0 || s.QMax.TopeColumna() < s.IndSerie) return false;
    return VolumenSeguro(s.QEntra.Fila(fila), s.NroPasosQ, s.PasoQ) &&
           VolumenSeguro(s.QSale.Fila(fila), s.NroPasosQ, s.PasoQ);
}

void Resume(Corrida& c, int fila, Tramo tramo)
{
    Siro& s = c.s;
    float& maximo = s.QMax(fila, s.IndSerie);
    maximo = std::max(maximo, Mayor(s.QSale.Fila(fila), tramo.desde, tramo.hasta));
    if (!c.ConVolumenes) return;
    s.VolEntra = Volumen(s.QEntra.Fila(fila), tramo, s.PasoQ);
    s.VolSale = Volumen(s.QSale.Fila(fila), tramo, s.PasoQ);
}

}  // namespace engine
