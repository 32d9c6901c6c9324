// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/VistaLluvia.h"

#include <utility>

#include "forms/CampoNumerico.h"

namespace rainfall {

forms::Grafico GraficoDeTabla(const forms::Grilla& tabla, const VistaDeTabla& vista)
{
    forms::Grafico grafico;
    forms::Serie lluvia;
    for (int fila = 1; fila <= tabla.NroFilas(); ++fila) {
        grafico.categorias.push_back(tabla.Texto({fila, vista.columnaX}));
        lluvia.celdas.push_back(
            forms::NumeroDeCampo(tabla.Texto({fila, vista.columnaY})).value_or(forms::CeldaVacia));
    }
    grafico.series.push_back(std::move(lluvia));
    grafico.ejeX = vista.ejeX;
    grafico.ejeY = vista.ejeY;
    return grafico;
}

}  // namespace rainfall
