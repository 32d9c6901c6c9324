// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/Calendario.h"
#include "forms/RegistroLluvia.h"

// A record of rain brought to a constant step.
namespace rainfall {

/// A storm at a constant step.
struct TormentaImportada {
    std::string notas{};
    std::int16_t paso = 0;         ///< [min]
    forms::Instante comienzo = 0;  ///< of the first interval
    std::vector<float> laminas{};  ///< [mm], interval 1 at index 0
    bool operator==(const TormentaImportada&) const = default;
};

struct Remuestreo {
    TormentaImportada tormenta{};
    std::string motivo{};  ///< why the step won't do; empty: it does
};

/// Brings readings to a step [min]: each depth fell evenly since the reading before, the first one during the
/// usual time between readings. The total is kept. Refused: a step below 1, more than 999 intervals, a storm
/// longer than 32767 minutes, no readings.
Remuestreo Remuestrea(const std::vector<forms::LecturaLluvia>& lecturas, int paso);

}  // namespace rainfall
