// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frequency/Analisis.h"
#include "frequency/idf/Curvas.h"
#include "frequency/tormenta/Diseno.h"
#include "study/Estudio.h"

namespace report {

/// What the rain workshop's choices come to: the station in use, its analysis, curves, storm.
class Estudiado {
  public:
    Estudiado(const study::Estudio& unEstudio, const std::vector<double>& grabada);

    const study::Taller& taller;
    const study::Ajuste& ajuste;
    const study::Estacion* estacion = nullptr;       ///< that the curves are of; null: none
    const study::SerieDeMaximos* maximos = nullptr;  ///< that the laws are compared over: the daily ones, or
                                                     ///< the first of the station's
    std::optional<frequency::Analisis> analisis{};   ///< of it; none: it can't be fitted
    /// The law that the user took for them, or the one recommended; null: none.
    [[nodiscard]] const frequency::Ley* Ley() const;
    std::optional<frequency::idf::Curvas> curvas{};  ///< none: errors
    std::optional<frequency::Diseno> diseno{};       ///< none: errors, or nothing was asked for
};

}  // namespace report
