// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The record of a Represa, a dam, and its outflow functions.
namespace model {

/// What an outflow function makes of the height above its H min: hydraulics/FuncionesFQ.cpp has a row for
/// each.
enum class FormaFQ : std::uint8_t { Potencia, Parabola };

/// An outflow function of a Represa.
struct FuncionDeRepresa {
    FormaFQ forma;
    std::string_view rotulo;   ///< caption
    std::size_t coeficientes;  ///< how many of a, b, c it has, from the first
    /// Whether it has a number: 1, 2, 3 are a, b, c, those above are its range.
    [[nodiscard]] constexpr bool Lleva(std::size_t clase) const { return clase <= coeficientes || clase > 3; }
};

// clang-format off
/// The outflow functions that every Represa has, from function 1: one more is one more row.
inline constexpr auto FuncionesFQ = std::to_array<FuncionDeRepresa>({
    {FormaFQ::Potencia, "Función 1: Q =  a * H^b",         2},
    {FormaFQ::Potencia, "Función 2: Q =  a * H^b",         2},
    {FormaFQ::Potencia, "Función 3: Q =  a * H^b",         2},
    {FormaFQ::Potencia, "Función 4: Q =  a * H^b",         2},
    {FormaFQ::Parabola, "Función 5: Q =  a + b*H + c*H^2", 3},
    {FormaFQ::Parabola, "Función 6: Q =  a + b*H + c*H^2", 3},
    {FormaFQ::Parabola, "Función 7: Q =  a + b*H + c*H^2", 3},
    {FormaFQ::Parabola, "Función 8: Q =  a + b*H + c*H^2", 3},
});
// clang-format on
inline constexpr int NroFuncionesFQ = static_cast<int>(FuncionesFQ.size());

/// Dam with its reservoir. A plain value. Arrays of the outflow functions count from function 1 at index 0.
struct Represa {
    std::string NombreRepresa{};                 ///< prefix "r-", 15 characters at most, unique in its kind
    std::int16_t numRepresa = 0;                 ///< running number from 1, its slot in the array
    float IconoRepresaX = 0, IconoRepresaY = 0;  ///< icon [drawing units]
    std::string Metodo{};                        ///< "Muskingum", "Piscina Nivelada" or "Runge Kutta"
    float XCauce = 0, YCauce = 0;                ///< point where it meets the channel [drawing units]
    std::string Cauce_aa{};                      ///< name it drains into; "", "0" or an unknown name: nothing
    std::array<float, NroFuncionesFQ> FQa{};     ///< first coefficient
    std::array<float, NroFuncionesFQ> FQb{};     ///< second coefficient
    std::array<float, NroFuncionesFQ> FQc{};     ///< third coefficient, of those that have one
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
