// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/PuntosEnPasos.h"

#include <cmath>
#include <limits>
#include <vector>

namespace forms {

PuntosEnPasos EnPasos(std::span<const PuntoEnTiempo> puntos, std::size_t filas, double paso)
{
    PuntosEnPasos p;
    p.serie.tipo = TipoSerie::Puntos2D;
    p.serie.celdas.assign(filas, CeldaVacia);
    std::vector<double> lejos(filas, std::numeric_limits<double>::infinity());
    std::size_t mostrados = 0;
    for (const PuntoEnTiempo& punto : puntos) {
        const double fila = paso > 0 ? std::round(punto.minuto / paso) : 0;
        if (!(fila >= 1 && fila <= static_cast<double>(filas))) continue;
        const auto i = static_cast<std::size_t>(fila) - 1;
        if (EstaVacia(p.serie.celdas[i])) ++mostrados;
        const double distancia = std::fabs(punto.minuto - fila * paso);
        if (distancia >= lejos[i]) continue;
        lejos[i] = distancia;
        p.serie.celdas[i] = punto.valor;
    }
    p.fuera = puntos.size() - mostrados;
    return p;
}

}  // namespace forms
