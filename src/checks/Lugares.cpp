// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Lugares.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace checks {

namespace {

/// Findings with a place of their own; all others are seen in the component's form. Where `palabra` isn't
/// empty only those that say it.
struct FilaLugar {
    int desde, hasta;
    Lugar lugar;
    std::string_view palabra = {};
};

constexpr auto Lugares = std::to_array<FilaLugar>({
    {102, 102, Lugar::Configuracion},
    {103, 103, Lugar::TablaHAS},
    {112, 113, Lugar::Dibujo},
    {116, 116, Lugar::TablaHAS},
    {118, 118, Lugar::Configuracion},
    {120, 123, Lugar::Configuracion},
    {124, 124, Lugar::Tormenta},
    {200, 200, Lugar::Configuracion},
    {205, 206, Lugar::Tormenta},
    {207, 210, Lugar::Dibujo},
    {216, 219, Lugar::Dibujo},
    {220, 221, Lugar::TablaHQ, "H-Q"},
    {220, 225, Lugar::TablaHAS, "H-A-S"},
    {223, 223, Lugar::TablaHQ},
    {222, 225, Lugar::TablaHAS},
    {260, 264, Lugar::TablaHAS},
    {280, 280, Lugar::Configuracion},
});

}  // namespace

Lugar LugarDe(const Hallazgo& h)
{
    const auto fila = std::find_if(Lugares.begin(), Lugares.end(), [&](const FilaLugar& f) {
        return f.desde <= h.numero && h.numero <= f.hasta &&
               (f.palabra.empty() || h.que.find("tabla " + std::string(f.palabra)) != std::string::npos);
    });
    if (fila != Lugares.end() && (fila->lugar == Lugar::Tormenta || fila->lugar == Lugar::Configuracion))
        return fila->lugar;
    if (h.componente.empty()) return Lugar::Editor;
    return fila == Lugares.end() ? Lugar::Ficha : fila->lugar;
}

}  // namespace checks
