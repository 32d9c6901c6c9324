// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace model {

/// Number of outflow functions of a Represa.
inline constexpr int NroFuncionesFQ = 8;

/// Dam with its reservoir. A plain value. Arrays of the outflow functions count from function 1 at index 0.
struct Represa {
    std::string NombreRepresa{};                 ///< prefix "r-", 15 characters at most, unique in its kind
    std::int16_t numRepresa = 0;                 ///< running number from 1, its slot in the array
    float IconoRepresaX = 0, IconoRepresaY = 0;  ///< icon [drawing units]
    std::string Metodo{};                        ///< "Muskingum", "Piscina Nivelada" or "Runge Kutta"
    float XCauce = 0, YCauce = 0;                ///< point where it meets the channel [drawing units]
    std::string Cauce_aa{};                      ///< name it drains into; "", "0" or an unknown name: nothing
    std::array<float, NroFuncionesFQ> FQa{};     ///< first coefficient of functions 1 to 8
    std::array<float, NroFuncionesFQ> FQb{};     ///< second coefficient
    std::array<float, NroFuncionesFQ> FQc{};     ///< third coefficient; only functions 5 to 8 have one
    float Represa_k_Musk = 0;                    ///< Muskingum K [min]
    float Represa_n_Musk = 0;                    ///< Muskingum x; no run reads it
    std::array<float, NroFuncionesFQ> FQmin{};   ///< lower height of each function [m], included
    std::array<float, NroFuncionesFQ> FQMax{};   ///< upper height of each function [m], included
    std::array<std::int16_t, NroFuncionesFQ> chkFQ{};  ///< 1: the function is in use
    bool optTabla = false;                             ///< true: outflow by table; false: by functions
    float HInicialEmb = 0;                             ///< water height when the storm begins [m]

    bool operator==(const Represa&) const = default;
};

}  // namespace model
