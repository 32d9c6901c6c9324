// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Puntajes.h"

#include <array>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "calibration/casos/Filas.h"

namespace calibration::casos {
namespace {

using Cifras = std::vector<std::pair<std::string_view, double>>;  // score, its figure

/// Scores of two series; x is the place of the score in the list.
Comparacion Compara(const std::vector<double>& simulada, const std::vector<double>& observada,
                    const Cifras& impresas)
{
    std::vector<Par> pares;
    for (std::size_t i = 0; i < simulada.size(); ++i)
        pares.push_back({static_cast<double>(i), simulada[i], observada[i]});
    Comparacion c;
    for (const auto& [clave, cifra] : impresas) {
        c.x.push_back(static_cast<double>(c.x.size() + 1));
        c.impreso.push_back(cifra);
        c.nuestro.push_back(
            PuntajeDe(clave)->valor(pares).value_or(std::numeric_limits<double>::quiet_NaN()));
    }
    return c;
}

constexpr auto Filas = std::to_array<FilaDeCaso>({
    {"Puntajes de Kling-Gupta, serie de Hydrostats",
     "W. Roberts, G. Williams, E. J. Jackson, E. J. Nelson y D. P. Ames (2018), Hydrostats, Hydrology 5(4), "
     "66; las comprobaciones de su biblioteca",
     "S = 5, 7, 9, 2, 4.5, 6.7; O = 4.7, 6, 10, 2.5, 4, 6.8", "puntaje: kge, kge2012", "puntaje", 1e-12,
     "la fuente imprime 16 cifras", false,
     [] {
         return Compara({5, 7, 9, 2, 4.5, 6.7}, {4.7, 6, 10, 2.5, 4, 6.8},
                        {{"kge", 0.9181073779138655}, {"kge2012", 0.9132923608280753}});
     }},
    {"Puntajes del caudal medio",
     "W. J. M. Knoben, J. E. Freer y R. A. Woods (2019), Inherent benchmark or not?, Hydrol. Earth Syst. "
     "Sci. 23, 4323-4331",
     "S = 2.5 en cada instante, O = 1, 2, 3, 4", "puntaje: nse, kge", "puntaje", 0.005,
     "media unidad de la última cifra", false,
     [] {
         return Compara({2.5, 2.5, 2.5, 2.5}, {1, 2, 3, 4}, {{"nse", 0}, {"kge", -0.41}});
     }},
    {"Puntajes de una crecida", "las fórmulas de cada puntaje, con 30 cifras",
     "S = 0.4, 0.4, 1.9, 5.2, 9.6, 12.7, 10.3, 6.1, 3.3, 1.8, 1.1, 0.8; O = 0.4, 0.6, 2.5, 7.1, 11.2, "
     "10.4, 8.0, 5.6, 3.6, 2.2, 1.4, 0.8",
     "puntaje: nse, kge, kge2012, kge_np, rsr, mae, rmse", "puntaje", 1e-12, "16 cifras de las 30", true,
     [] {
         return Compara({0.4, 0.4, 1.9, 5.2, 9.6, 12.7, 10.3, 6.1, 3.3, 1.8, 1.1, 0.8},
                        {0.4, 0.6, 2.5, 7.1, 11.2, 10.4, 8.0, 5.6, 3.6, 2.2, 1.4, 0.8},
                        {{"nse", 0.8927037761335447},
                         {"kge", 0.8804994337670697},
                         {"kge2012", 0.8766182263063878},
                         {"kge_np", 0.9335864047268614},
                         {"rsr", 0.3275610231185241},
                         {"mae", 0.8666666666666667},
                         {"rmse", 1.2158673173226318}});
     }},
});

}  // namespace

std::span<const FilaDeCaso> FilasDePuntajes()
{
    return Filas;
}

}  // namespace calibration::casos
