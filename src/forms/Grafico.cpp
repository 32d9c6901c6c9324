// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Grafico.h"

#include <algorithm>

#include "forms/LecturaGrafico.h"
#include "model/Numeros.h"

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

std::string TextoDeCelda(double celda)
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

Planilla CeldasComoPlanilla(const Grafico& grafico)
{
    Planilla planilla;
    planilla.columnas.push_back({EncabezadoDeCategorias(grafico)});
    for (const Serie& serie : grafico.series)
        planilla.columnas.push_back({EncabezadoDe(grafico, serie)});
    for (std::size_t i = 0; i < grafico.categorias.size(); ++i) {
        std::vector<std::string>& fila = planilla.filas.emplace_back();
        fila.push_back(grafico.categorias[i]);
        for (const Serie& serie : grafico.series)
            fila.push_back(TextoDeCelda(serie.celdas[i]));
    }
    return planilla;
}

}  // namespace forms
