// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grafico.h"

#include <algorithm>
#include <string_view>

#include "model/Numeros.h"
#include "model/Texto.h"

namespace forms {

namespace {

constexpr std::int32_t MaxDivisiones = 1 << 14;

void PonDivisiones(EscalaCategorias& escala, std::int32_t divisiones)
{
    escala.automatica = false;
    escala.divisionesPorRotulo = divisiones;
    escala.divisionesPorMarca = divisiones / 2;
    escala.marcaDeRotulo = true;
}

std::string EntreComillas(std::string_view texto)
{
    std::string campo = "\"";
    for (const char c : texto)
        campo.append(c == '"' ? 2 : 1, c);
    return campo += '"';
}

}  // namespace

void MasDivisiones(EscalaCategorias& escala)
{
    PonDivisiones(escala, std::min(escala.divisionesPorRotulo * 2, MaxDivisiones));
}

void MenosDivisiones(EscalaCategorias& escala)
{
    // A scale keeps one division at least, or doubling could never leave 0 again.
    PonDivisiones(escala, std::max(escala.divisionesPorRotulo / 2, 1));
}

std::string CeldasComoCsv(const Grafico& grafico)
{
    std::string csv = EntreComillas(grafico.ejeX);
    for (const Serie& serie : grafico.series)
        csv.append(",").append(EntreComillas(serie.leyenda));
    csv += model::SaltoLinea;
    for (std::size_t i = 0; i < grafico.categorias.size(); ++i) {
        csv += grafico.categorias[i];
        for (const Serie& serie : grafico.series)
            csv.append(",").append(model::NumeroATexto(static_cast<float>(serie.celdas[i])));
        csv += model::SaltoLinea;
    }
    return csv;
}

}  // namespace forms
