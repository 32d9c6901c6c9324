// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rainfall/Calendario.h"

// A record of rain, such as a rain gauge's logger writes it, brought to a constant step.
//
// The record is text with a reading per line: date and time, in one field or two, and the depth fallen since
// the reading before. Fields are parted by semicolons, tabs or commas; dates are dd/mm/yyyy or yyyy-mm-dd,
// times hh:mm or hh:mm:ss. What stands ahead of the first reading is a heading; further fields are passed
// over.
namespace rainfall {

struct LecturaLluvia {
    std::int64_t segundo = 0;  ///< since 01/01/0001 00:00
    double lamina = 0;         ///< fallen since the reading before [mm]
    bool operator==(const LecturaLluvia&) const = default;
};

struct RegistroLluvia {
    std::vector<LecturaLluvia> lecturas{};
    std::string motivo{};  ///< why the text is no record, with the line; empty: it is one
};

/// Reads a record. Readings must not go back in time nor be below 0; where one is at fault there are none.
RegistroLluvia LeeRegistroLluvia(std::string_view csv);

/// Most frequent time between two readings, the shortest of several, in whole minutes, at least 1; 10 where
/// there is a single reading [min].
std::int16_t PasoHabitual(const std::vector<LecturaLluvia>& lecturas);

/// A storm at a constant step.
struct TormentaImportada {
    std::string notas{};
    std::int16_t paso = 0;         ///< [min]
    Instante comienzo = 0;         ///< of the first interval
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
Remuestreo Remuestrea(const std::vector<LecturaLluvia>& lecturas, int paso);

}  // namespace rainfall
