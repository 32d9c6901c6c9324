// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/Escritura.h"

#include <cstddef>

namespace empirical {

std::vector<Trozo> Trozos(std::string_view expresion)
{
    constexpr std::string_view AbreExponente = "^{", Variables = "SLHi";
    std::vector<Trozo> trozos;
    bool elevado = false;
    for (std::size_t i = 0; i < expresion.size(); ++i) {
        if (expresion.substr(i).starts_with(AbreExponente)) {
            elevado = true;
            ++i;
            continue;
        }
        const char letra = expresion[i];
        if (elevado && letra == '}') {
            elevado = false;
            continue;
        }
        const bool variable = Variables.find(letra) != std::string_view::npos;
        if (trozos.empty() || trozos.back().elevado != elevado || trozos.back().variable != variable)
            trozos.push_back({{}, elevado, variable});
        trozos.back().texto += letra;
    }
    return trozos;
}

}  // namespace empirical
