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
    s.Control.TextoPizarra +=
        "\r\nVolumen Escurrido. Entra = " + NumeroATexto(Redondea(s.Resultados.VolEntra, 0)) +
        " m3 ; Sale = " + NumeroATexto(Redondea(s.Resultados.VolSale, 0)) + " m3";
    const float maximo = s.Resultados.QMax(fila, s.Serie.IndSerie);
    s.Control.TextoPizarra += "\r\nCaudal Máximo = " + NumeroATexto(Redondea(maximo, 2)) + " m3/s ";
}

bool ResumenSeguro(const Corrida& c, int fila)
{
    const Siro& s = c.s;
    if (s.Pasos.PasoQ < 1 || s.Resultados.NroPasosQ < 1 || s.Resultados.NroPasosQ * s.Pasos.PasoQ > INT16_MAX)
        return false;
    if (fila < s.Resultados.QEntra.PrimeraFila() || fila > s.Resultados.QEntra.UltimaFila() ||
        fila > s.Resultados.QSale.UltimaFila())
        return false;
    if (s.Resultados.QEntra.TopeColumna() < s.Resultados.NroPasosQ ||
        s.Resultados.QSale.TopeColumna() < s.Resultados.NroPasosQ)
        return false;
    if (s.Resultados.QMax.UltimaFila() < fila || s.Serie.IndSerie < 0 ||
        s.Resultados.QMax.TopeColumna() < s.Serie.IndSerie)
        return false;
    return VolumenSeguro(s.Resultados.QEntra.Fila(fila), s.Resultados.NroPasosQ, s.Pasos.PasoQ) &&
           VolumenSeguro(s.Resultados.QSale.Fila(fila), s.Resultados.NroPasosQ, s.Pasos.PasoQ);
}

void Resume(Corrida& c, int fila, Tramo tramo)
{
    Siro& s = c.s;
    float& maximo = s.Resultados.QMax(fila, s.Serie.IndSerie);
    maximo = std::max(maximo, Mayor(s.Resultados.QSale.Fila(fila), tramo.desde, tramo.hasta));
    if (!c.ConVolumenes) return;
    s.Resultados.VolEntra = Volumen(s.Resultados.QEntra.Fila(fila), tramo, s.Pasos.PasoQ);
    s.Resultados.VolSale = Volumen(s.Resultados.QSale.Fila(fila), tramo, s.Pasos.PasoQ);
}

}  // namespace engine
