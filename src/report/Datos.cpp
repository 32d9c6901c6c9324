// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/Datos.h"

#include <algorithm>

namespace report {

std::vector<const checks::ComponenteCorrido*> EnOrden(const Datos& datos)
{
    std::vector<const checks::ComponenteCorrido*> todos;
    if (datos.tormenta == nullptr || !datos.tormenta->balance) return todos;
    for (const checks::ComponenteCorrido& c : datos.tormenta->corrido->componentes)
        if (c.fila > 0) todos.push_back(&c);
    std::stable_sort(todos.begin(), todos.end(),
                     [](const auto* a, const auto* b) { return a->fila < b->fila; });
    return todos;
}

std::vector<std::string> ComponentesConHidrograma(const Datos& datos)
{
    std::vector<std::string> nombres;
    for (const checks::ComponenteCorrido* const c : EnOrden(datos))
        nombres.emplace_back(c->nombre);
    return nombres;
}

}  // namespace report
