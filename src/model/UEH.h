// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "model/MetDirecto.h"

namespace model {

/// Elementary hydrological unit: an area that turns rain into runoff and drains to one point.
///
/// A plain value: it knows no file, no form and no run. float is 32 bits on purpose: its rounding is part
/// of every result.
struct UEH {
    std::string NombreUEH{};             ///< prefix "u-", 15 characters at most, unique in its kind
    float Area = 0;                      ///< contributing area [ha]
    std::string Referencia{};            ///< free note
    float LongitudMax = 0;               ///< longest path of a drop to the first channel [m]
    float VelMedia = 0;                  ///< mean velocity of that drop on the slope [m/s]
    std::string Metodo{};                ///< translation method, "Directo"; no run reads it
    model::MetDirecto MetDirecto{};      ///< born with the unit
    std::int16_t numUEH = 0;             ///< running number from 1, its slot in the array
    float IconoUEHx = 0, IconoUEHy = 0;  ///< icon [drawing units]
    float XCauce = 0, YCauce = 0;        ///< point where it meets the channel [drawing units]
    std::string Cauce_aa{};              ///< name it drains into; "", "0" or an unknown name: nothing
    float KostiakovA = 0;                ///< a of I = a·t^b [mm/min^b]
    float KostiakovB = 0;                ///< b of I = a·t^b [-], 0 to 1 by the editor's rule
    float RetensionZ = 0;                ///< surface retention: interception and storage [mm]
    float Q0Recesion = 0;                ///< flow when the storm begins [m3/s]
    float KRecesion = 0;                 ///< k of Q = Q0·e^(-t/k) [h]
    float KostiakovI = 0;                ///< prior wetness, as minutes of infiltration gone by [min]

    bool operator==(const UEH&) const = default;
};

}  // namespace model
