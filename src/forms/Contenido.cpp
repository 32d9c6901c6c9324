// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Contenido.h"

#include <cstddef>

namespace forms {

std::string ComoTexto(const Contenido& contenido)
{
    std::string texto = contenido.titulo + '\n';
    for (const CampoEscrito& campo : contenido.campos)
        if (!campo.valor.empty() && !campo.leyenda.empty())
            texto.append(campo.leyenda).append("\t").append(campo.valor).append("\n");
    for (const TablaEscrita& tabla : contenido.tablas) {
        texto.append("\n");
        for (const std::vector<std::string>& fila : tabla.filas) {
            for (std::size_t i = 0; i < fila.size(); ++i)
                texto.append(i == 0 ? "" : "\t").append(fila[i]);
            texto.append("\n");
        }
    }
    return texto;
}

}  // namespace forms
