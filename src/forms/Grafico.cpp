// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grafico.h"

#include <algorithm>

#include "forms/Csv.h"
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

std::string CeldaComoCsv(double celda)
{
    if (EstaVacia(celda)) return {};
    if (celda == std::floor(celda)) return model::NumeroATexto(celda);
    return model::NumeroATexto(static_cast<float>(celda));
}

}  // namespace

bool Serie::operator==(const Serie& otra) const
{
    const auto iguales = [](double a, double b) { return a == b || (EstaVacia(a) && EstaVacia(b)); };
    return tipo == otra.tipo && leyenda == otra.leyenda && ejeSecundario == otra.ejeSecundario &&
           std::equal(celdas.begin(), celdas.end(), otra.celdas.begin(), otra.celdas.end(), iguales);
}

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
    std::string csv = CampoCsv(grafico.ejeX);
    for (const Serie& serie : grafico.series)
        csv.append(",").append(CampoCsv(serie.leyenda));
    csv += model::SaltoLinea;
    for (std::size_t i = 0; i < grafico.categorias.size(); ++i) {
        csv += grafico.categorias[i];
        for (const Serie& serie : grafico.series)
            csv.append(",").append(CeldaComoCsv(serie.celdas[i]));
        csv += model::SaltoLinea;
    }
    return csv;
}

}  // namespace forms
