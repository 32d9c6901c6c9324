// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runs/Distintos.h"

// Two or more runs side by side: what they were made of where that differs, and what came out.
namespace runs {

/// Something that came out, whether it differs or not.
struct Cifra {
    std::string componente{};  ///< empty: the basin
    std::string_view magnitud, unidad, explica;
    int decimales = 0;
    bool conPorCiento = true;                      ///< a share of it says something
    std::vector<std::optional<double>> valores{};  ///< by side
};

struct Comparacion {
    std::vector<std::string> lados{};        ///< their names
    std::vector<std::string> procedencia{};  ///< project, storm and hash of each, a line
    std::vector<Emparejado> componentes{};  ///< kind by kind, in the order of the first network that has each
    std::vector<Distinto> parametros{};     ///< storm and steps first, then by component
    std::vector<Cifra> cifras{};            ///< by component, the basin last
};

/// Compares runs, the first being what the others are measured by. Requires one run at least.
Comparacion Compara(const Lados& lados);

/// A value less that of the first side, in its unit; nothing where either isn't a number.
std::optional<double> Diferencia(std::optional<double> base, std::optional<double> valor);
/// The same as a share of the first side's absolute value [%]; nothing where that is 0 either.
std::optional<double> PorCiento(std::optional<double> base, std::optional<double> valor);

/// Hydrographs of a component on one time axis: the times of all of them, whatever their steps; a value is
/// one that a run left at that time, and none is made up in between.
struct Superpuestos {
    std::vector<double> minutos{};                ///< from the beginning of the storm, rising
    std::vector<std::vector<double>> caudales{};  ///< by side and time [m3/s]; NaN where there is none
};
Superpuestos Hidrogramas(const Lados& lados, const Emparejado& componente, bool entra = false);

/// What the series left of a component in storms of equal duration and recurrence.
struct PicoDeSerie {
    std::int16_t D = 0, R = 0;                              ///< [min], [years]
    std::vector<std::optional<double>> laminas{}, picos{};  ///< by side [mm], [m3/s]
};
/// By recurrence, then by duration. Of two storms of a series with both alike the later one stands.
std::vector<PicoDeSerie> PicosDeSerie(const Lados& lados, const Emparejado& componente);

/// Whether any side is a series, or a single storm.
bool HaySeries(const Lados& lados);
bool HayTormentas(const Lados& lados);

}  // namespace runs
