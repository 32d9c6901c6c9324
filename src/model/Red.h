// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/Arreglo.h"
#include "model/Cauce.h"
#include "model/Coleccion.h"
#include "model/Lago.h"
#include "model/Represa.h"
#include "model/UEH.h"

// The network: its components, the drawn lines of its reaches, the tables of its Represas and Lagos.
namespace model {

inline constexpr int MaxUEHs = 70;
inline constexpr int MaxCauces = 70;
inline constexpr int MaxLagos = 70;
inline constexpr int MaxRepresas = 20;
inline constexpr int MaxNroVertices = 100;  ///< upper bound of NroVertices

/// The components of a network. Clases.h tells what their four kinds have in common.
struct Colecciones {
    Coleccion<UEH, MaxUEHs> ColUEHs{};
    Coleccion<Cauce, MaxCauces> ColCauces{};
    Coleccion<Lago, MaxLagos> ColLagos{};
    Coleccion<Represa, MaxRepresas> ColRepresas{};
    /// How many of each kind the network counts; Coleccion tells where that isn't how many there are.
    [[nodiscard]] std::int16_t NroUEHs() const { return ColUEHs.Nro(); }
    [[nodiscard]] std::int16_t NroCauces() const { return ColCauces.Nro(); }
    [[nodiscard]] std::int16_t NroLagos() const { return ColLagos.Nro(); }
    [[nodiscard]] std::int16_t NroRepresas() const { return ColRepresas.Nro(); }
    /// The component with a number. Falla 9 outside the array, Falla 91 for an empty slot.
    UEH& UEHs(int n) { return ColUEHs.Ranura(n); }
    Cauce& Cauces(int n) { return ColCauces.Ranura(n); }
    Lago& Lagos(int n) { return ColLagos.Ranura(n); }
    Represa& Represas(int n) { return ColRepresas.Ranura(n); }
    bool operator==(const Colecciones&) const = default;
};

/// The network: its components, the drawn lines of its reaches, the tables of its Represas and Lagos. A plain
/// value.
struct Red : Colecciones {
    // --- drawing of the reaches ---
    Arreglo<std::int16_t> NroVertices = Ceros<std::int16_t>(MaxNroVertices);  ///< by Cauce number
    Matriz<float> XVertice{}, YVertice{};  ///< row: Cauce number 0..70; column: vertex from 1 [drawing units]

    // --- tables of Represas and Lagos; row: component number; column: row of the table, from 1 ---
    Arreglo<std::int16_t> RepresaFilasHAS{}, RepresaFilasHQ{}, LagoFilas{};  ///< rows of each table
    Matriz<float> RepresaH{}, RepresaA{};                                    ///< height [m], area [ha]
    Matriz<std::int32_t> RepresaS{};                                         ///< storage [m3]
    Matriz<float> RepresaQH{}, RepresaQQ{};                                  ///< height [m], outflow [m3/s]
    Matriz<float> LagoH{}, LagoA{}, LagoQ{};
    Matriz<std::int32_t> LagoS{};
    Matriz<std::int16_t> FQActiva{};  ///< row: Represa number; column: outflow function from 1
    /// Coefficients by Represa number and function from 1; kinds 1..5 are a, b, c, H min, H Max.
    std::vector<std::array<std::array<float, 6>, NroFuncionesFQ + 1>> FQCoef{};
};

}  // namespace model
