// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Lista.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace forms {

std::string Lista::Elegido() const
{
    return indice < 0 ? std::string() : items.at(static_cast<std::size_t>(indice));
}

bool Lista::Elige(std::string_view item)
{
    const auto lugar = std::find(items.begin(), items.end(), item);
    indice = lugar == items.end() ? -1 : static_cast<int>(lugar - items.begin());
    return indice >= 0;
}

void Lista::PonItems(std::vector<std::string> nuevos)
{
    const std::string elegido = Elegido();
    items = std::move(nuevos);
    Elige(elegido);
}

}  // namespace forms
