// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Avance.h"

#include <algorithm>
#include <cmath>

namespace study {

EstadoDeAvance AvanceDe(std::size_t hechos, std::size_t total, double segundos)
{
    constexpr double ParaDecirlo = 0.5;  // [s]
    constexpr std::size_t Todo = 100;
    EstadoDeAvance a{hechos, total, std::to_string(hechos * Todo / std::max<std::size_t>(1, total)) + " %"};
    if (hechos == 0 || segundos < ParaDecirlo) return a;
    const double quedan =
        segundos * static_cast<double>(total - std::min(hechos, total)) / static_cast<double>(hechos);
    a.texto += ", quedan " + std::to_string(static_cast<long long>(std::ceil(quedan))) + " s";
    return a;
}

}  // namespace study
