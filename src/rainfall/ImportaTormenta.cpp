// SPDX-License-Identifier: GPL-3.0-or-later
#include "rainfall/ImportaTormenta.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string_view>

namespace rainfall {

using forms::Instante;
using forms::LecturaLluvia;

namespace {

constexpr std::int64_t SegundosPorMinuto = 60;
constexpr int MaxIntervalos = 999;
constexpr int MaxDuracion = std::numeric_limits<std::int16_t>::max();  // [min]

constexpr std::string_view PasoNoVale = "El paso debe ser un número entero de minutos mayor que 0.";
constexpr std::string_view DuraDemasiado = "La tormenta dura más de 32767 minutos.";
constexpr std::string_view SonDemasiados1 = "Con este paso resultan ";
constexpr std::string_view SonDemasiados2 = " intervalos; son 999 a lo sumo. Elija un paso mayor.";

// --- resampling ---

/// Spreads a depth evenly over the blocks between two moments, in seconds since the start.
void Reparte(std::vector<double>& laminas, std::int64_t desde, std::int64_t hasta, double lamina,
             std::int64_t bloque)
{
    const auto ultimo = static_cast<std::int64_t>(laminas.size()) - 1;
    const auto enBloque = [&](std::int64_t b) -> double& { return laminas[static_cast<std::size_t>(b)]; };
    if (hasta <= desde) {  // two readings at once: a moment belongs to the block that it ends
        enBloque(std::clamp<std::int64_t>((hasta - 1) / bloque, 0, ultimo)) += lamina;
        return;
    }
    const auto largo = static_cast<double>(hasta - desde);
    for (std::int64_t b = desde / bloque; b <= ultimo && b * bloque < hasta; ++b) {
        const std::int64_t comun = std::min(hasta, (b + 1) * bloque) - std::max(desde, b * bloque);
        enBloque(b) += lamina * static_cast<double>(comun) / largo;
    }
}

}  // namespace

Remuestreo Remuestrea(const std::vector<LecturaLluvia>& lecturas, int paso)
{
    if (lecturas.empty()) return {{}, std::string(forms::SinLecturas)};
    if (paso < 1) return {{}, std::string(PasoNoVale)};
    const std::int64_t antes = lecturas.front().segundo - forms::PasoHabitual(lecturas) * SegundosPorMinuto;
    const Instante comienzo = std::max<std::int64_t>(antes, 0) / SegundosPorMinuto;
    const std::int64_t origen = comienzo * SegundosPorMinuto;
    const std::int64_t bloque = paso * SegundosPorMinuto;
    const std::int64_t n =
        std::max<std::int64_t>((lecturas.back().segundo - origen + bloque - 1) / bloque, 1);
    if (n > MaxIntervalos)
        return {{}, std::string(SonDemasiados1).append(std::to_string(n)).append(SonDemasiados2)};
    if (n * paso > MaxDuracion) return {{}, std::string(DuraDemasiado)};

    std::vector<double> laminas(static_cast<std::size_t>(n));
    std::int64_t desde = 0;
    for (const LecturaLluvia& lectura : lecturas) {
        const std::int64_t hasta = lectura.segundo - origen;
        Reparte(laminas, desde, hasta, lectura.lamina, bloque);
        desde = hasta;
    }
    Remuestreo remuestreo;
    remuestreo.tormenta.paso = static_cast<std::int16_t>(paso);
    remuestreo.tormenta.comienzo = comienzo;
    for (const double lamina : laminas)
        remuestreo.tormenta.laminas.push_back(static_cast<float>(lamina));
    return remuestreo;
}

}  // namespace rainfall
