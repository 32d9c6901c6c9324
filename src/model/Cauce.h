// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace model {

/// Channel reach between two points of the network. A plain value.
struct Cauce {
    std::int16_t numCauce = 0;          ///< running number from 1, its slot in the array
    std::int16_t numVertices = 0;       ///< vertices of its drawn line
    std::int16_t IndiceParInicial = 0;  ///< first of them in the flat list of all vertices, from 1
    std::string NombreCauce{};          ///< prefix "c-", 15 characters at most, unique in its kind
    std::string Cauce_aa{};             ///< name it drains into; "", "0" or an unknown name: nothing
    float LongCauce = 0;                ///< length [m]
    float VelMediaCauce = 0;            ///< mean velocity for direct routing [m/s]
    float Cauce_k_Musk = 0;             ///< Muskingum K [min]
    float Cauce_n_Musk = 0;             ///< Muskingum weight x [-]
    std::int16_t OrdenCauce = 0;        ///< stream order, worked out at each save
    bool optDirMusk = false;            ///< true: direct routing; false: Muskingum

    bool operator==(const Cauce&) const = default;
};

}  // namespace model
