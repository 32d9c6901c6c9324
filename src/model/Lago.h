// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace model {

/// Lake, lagoon or marsh. A plain value.
struct Lago {
    std::string NombreLAGO{};              ///< prefix "l-", 15 characters at most, unique in its kind
    std::int16_t numLAGO = 0;              ///< running number from 1, its slot in the array
    std::string Referencia{};              ///< free note
    float IconoLAGOx = 0, IconoLAGOy = 0;  ///< icon [drawing units]
    float XCauce = 0, YCauce = 0;          ///< point where it meets the channel [drawing units]
    std::string Metodo{};                  ///< "Muskingum", "Piscina Nivelada" or "Runge Kutta"
    std::string Cauce_aa{};                ///< name it drains into; "", "0" or an unknown name: nothing
    float Lago_k_Musk = 0;                 ///< Muskingum K [min]
    float HInicialEmb = 0;                 ///< water height when the storm begins [m]

    bool operator==(const Lago&) const = default;
};

}  // namespace model
