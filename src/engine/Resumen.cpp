// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Resumen.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/Numeros.h"
#include "model/Siro.h"

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

void SubePico(Siro& s, int fila, Tramo tramo)
{
    float& pico = s.Resultados.QMax(fila, s.Serie.IndSerie);
    pico = std::max(pico, Mayor(s.Resultados.QSale.Fila(fila), tramo.desde, tramo.hasta));
}

bool Resume(Corrida& c, int fila, Tramo tramo)
{
    if (!c.Alcanzan()) return false;
    model::Resultados& r = c.s.Resultados;
    const std::int16_t PasoQ = c.s.Pasos.PasoQ;
    const std::array<const float*, 2> filas{r.QEntra.Fila(fila), r.QSale.Fila(fila)};
    if (c.ConVolumenes) {
        std::array<float, 2> volumenes{};
        SumaVolumenes(filas, tramo, PasoQ, volumenes);
        if (!std::isfinite(volumenes[0]) || !std::isfinite(volumenes[1])) return false;
        r.VolEntra = volumenes[0];
        r.VolSale = volumenes[1];
    } else if (!VolumenSeguro(filas[0], tramo.hasta, PasoQ) || !VolumenSeguro(filas[1], tramo.hasta, PasoQ)) {
        return false;
    }
    SubePico(c.s, fila, tramo);
    return true;
}

}  // namespace engine
