// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Planilla.h"

#include <algorithm>
#include <cstddef>

#include "forms/Csv.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace forms {

namespace {

std::string Numero(std::string numero, SignoDecimal decimal)
{
    std::replace(numero.begin(), numero.end(), '.', decimal.signo);
    return numero;
}

/// Writes the table: `texto` gives the form of what is no number.
template <typename Texto>
std::string Escribe(const Planilla& planilla, char separador, SignoDecimal decimal, Texto&& texto)
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
            if (fila[c].empty()) return std::string{};
            return EsNumero(planilla.columnas[c], fila[c]) ? Numero(fila[c], decimal) : texto(fila[c]);
        });
    return todo;
}

}  // namespace

bool EsNumero(const ColumnaPlanilla& columna, const std::string& celda)
{
    return !columna.deTexto && model::EsNumerico(celda);
}

std::string ComoCsv(const Planilla& planilla, SignoDecimal decimal)
{
    return Escribe(planilla, decimal.Separador(), decimal,
                   [](std::string_view texto) { return CampoCsv(texto); });
}

std::string ComoTexto(const Planilla& planilla, SignoDecimal decimal)
{
    return Escribe(planilla, '\t', decimal, [](std::string_view texto) { return std::string(texto); });
}

std::string ConSigno(std::string_view texto, SignoDecimal decimal)
{
    constexpr std::string_view Finales = "\t\r\n";
    std::string todo;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find_first_of(Finales), texto.size());
        const std::string campo(texto.substr(0, fin));
        todo += model::EsNumerico(campo) ? Numero(campo, decimal) : campo;
        if (fin < texto.size()) todo += texto[fin];
        texto.remove_prefix(std::min(fin + 1, texto.size()));
    }
    return todo;
}

}  // namespace forms
