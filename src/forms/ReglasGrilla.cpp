// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ReglasGrilla.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "forms/CampoNumerico.h"

namespace forms {

std::string_view SinBlancos(std::string_view texto)
{
    constexpr std::string_view Blancos = " \t\r\n";
    const std::size_t desde = texto.find_first_not_of(Blancos);
    if (desde == std::string_view::npos) return {};
    return texto.substr(desde, texto.find_last_not_of(Blancos) - desde + 1);
}

std::vector<std::string_view> Pedazos(std::string_view texto, char marca)
{
    std::vector<std::string_view> pedazos;
    for (std::size_t lugar = texto.find(marca); lugar != std::string_view::npos; lugar = texto.find(marca)) {
        pedazos.push_back(texto.substr(0, lugar));
        texto.remove_prefix(lugar + 1);
    }
    pedazos.push_back(texto);
    return pedazos;
}

bool TomaTodos(const ReglasGrilla& reglas, std::string_view texto)
{
    return reglas.tomaCaracter == nullptr || std::all_of(texto.begin(), texto.end(), reglas.tomaCaracter);
}

const ColumnaEditable* LimiteRoto(const ReglasGrilla& reglas, int columna, std::string_view texto)
{
    const std::optional<double> x = NumeroDeCampo(texto);
    for (const ColumnaEditable& c : reglas.editables)
        if (c.columna == columna && !c.mensaje.empty() && x && !(*x >= 0 && *x <= c.maximo)) return &c;
    return nullptr;
}

}  // namespace forms
