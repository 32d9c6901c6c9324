// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Planilla.h"

#include <cstddef>
#include <string_view>

#include "forms/Csv.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace forms {

namespace {

/// Writes the table: `texto` gives the form of what is no number.
template <typename Texto>
std::string Escribe(const Planilla& planilla, char separador, Texto&& texto)
{
    std::string todo;
    for (const std::string& titulo : planilla.titulos)
        todo.append(texto(titulo)).append(model::SaltoLinea);
    const auto renglon = [&](auto&& campo) {
        for (std::size_t c = 0; c < planilla.columnas.size(); ++c) {
            if (c > 0) todo += separador;
            todo += campo(c);
        }
        todo += model::SaltoLinea;
    };
    renglon([&](std::size_t c) { return texto(planilla.columnas[c].encabezado); });
    for (const std::vector<std::string>& fila : planilla.filas)
        renglon([&](std::size_t c) {
            const std::string& celda = fila[c];
            return celda.empty() || EsNumero(planilla.columnas[c], celda) ? celda : texto(celda);
        });
    return todo;
}

}  // namespace

bool EsNumero(const ColumnaPlanilla& columna, const std::string& celda)
{
    return !columna.deTexto && model::EsNumerico(celda);
}

std::string ComoCsv(const Planilla& planilla)
{
    return Escribe(planilla, ',', [](std::string_view texto) { return CampoCsv(texto); });
}

std::string ComoTexto(const Planilla& planilla)
{
    return Escribe(planilla, '\t', [](std::string_view texto) { return std::string(texto); });
}

}  // namespace forms
