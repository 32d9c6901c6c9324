// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/UnidadesTitulos.h"

#include <algorithm>
#include <array>

#include "forms/ReglasGrilla.h"

namespace editor {

namespace {

struct Unidad {
    std::string_view titulo;
    std::string_view unidad;
};

// clang-format off
constexpr auto Unidades = std::to_array<Unidad>({
    {"Vel.Media",  "m/s"},
    {"Longitud",   "m"},
    {"K Musk.",    "min"},
    {"k Musk.",    "min"},
    {"Area",       "has"},
    {"Long.Máx.",  "m"},
    {"Long. Máx",  "m"},
    {"'a' Kost.",  "mm/min^b"},
    {"Infil.'a'",  "mm/min^b"},
    {"Humd",       "min"},
    {"Q inicio",   "m3/s"},
    {"Q ini",      "m3/s"},
    {"'K' Rec.",   "hs"},
    {"Z Ret.",     "mm"},
    {"Retens.Z",   "mm"},
    {"Hmin",       "m"},
    {"HMáx",       "m"},
    {"HInicio",    "m"},
});
// clang-format on

}  // namespace

std::string_view UnidadDeTitulo(std::string_view titulo)
{
    const std::string_view buscado = forms::SinBlancos(titulo);
    const auto fila =
        std::find_if(Unidades.begin(), Unidades.end(), [&](const Unidad& u) { return u.titulo == buscado; });
    return fila == Unidades.end() ? std::string_view{} : fila->unidad;
}

std::string AyudaDeCelda(const forms::Grilla& g, forms::Celda celda)
{
    std::string_view titulo =
        celda.columna < g.NroColumnas() ? g.Texto({0, celda.columna}) : std::string_view{};
    for (int fila = 1; fila <= celda.fila && g.Esta({fila, celda.columna}); ++fila)
        if (const std::string_view otro = g.Texto({fila, celda.columna});
            g.filas[static_cast<std::size_t>(fila) - 1].esTitulo && !otro.empty())
            titulo = otro;
    std::string ayuda(forms::SinBlancos(titulo));
    if (const std::string_view unidad = UnidadDeTitulo(titulo); !unidad.empty())
        ayuda += " [" + std::string(unidad) + "]";
    return ayuda;
}

}  // namespace editor
