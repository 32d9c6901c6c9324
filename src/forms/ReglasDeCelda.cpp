// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/ReglasDeCelda.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "forms/CampoNumerico.h"

namespace forms {

namespace {

const LimiteColumna* LimiteDe(const ReglasGrilla& reglas, int columna)
{
    const auto limite = std::find_if(reglas.limites.begin(), reglas.limites.end(),
                                     [&](const LimiteColumna& l) { return l.columna == columna; });
    return limite == reglas.limites.end() ? nullptr : &*limite;
}

}  // namespace

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

const LimiteColumna* LimiteRoto(const ReglasGrilla& reglas, int columna, std::string_view texto)
{
    const LimiteColumna* limite = LimiteDe(reglas, columna);
    const std::optional<double> x = NumeroDeCampo(texto);
    const bool roto = limite != nullptr && x && !(*x >= 0 && *x <= limite->maximo);
    return roto ? limite : nullptr;
}

bool SePuedeEditar(const Grilla& g, Celda c)
{
    return g.Esta(c) && g.columnas[static_cast<std::size_t>(c.columna)].editable &&
           !g.filas[static_cast<std::size_t>(c.fila) - 1].esTitulo;
}

}  // namespace forms
