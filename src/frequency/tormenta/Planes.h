// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "model/Configuracion.h"

// What rain comes to in the tables that a run reads, which keep whole numbers: told before anything is
// written. Texts are Spanish sentences with their full stop.
namespace frequency {

// --- storms of a series ---

/// Depth [mm] of a duration [min] and a recurrence [years].
using LaminaPorRecurrencia = std::function<double(double minutos, double anios)>;

struct PedidoDeTabla {
    LaminaPorRecurrencia lamina{};
    std::vector<std::int16_t> duraciones{model::Duraciones.begin(), model::Duraciones.end()};  ///< rising
    std::vector<std::int16_t> recurrencias{model::Recurrencias.begin(), model::Recurrencias.end()};
    std::string notas{};  ///< where it came from
};

struct FilaDeTormenta {
    std::int16_t p = 0, d = 0, r = 0;  ///< depth [mm], duration [min], recurrence [years]
    double exacta = 0;                 ///< depth before it is rounded [mm]
    bool operator==(const FilaDeTormenta&) const = default;
};

/// A table of storms as it is to be written, by recurrence and within it by duration.
struct PlanDeTabla {
    std::vector<FilaDeTormenta> filas{};
    std::string notas{};
    FilaDeTormenta peor{};  ///< the row that rounding changes most
    double desvio = 0;      ///< by how much, as a part of its depth
    std::vector<std::string> avisos{};
    std::string error{};  ///< why there is none
};

/// Rounds depths to whole millimetres. Rows of 0 mm, which end a series, and those beyond 9999 mm are left
/// out and told; rows of one depth are told. Depths that fall with the duration are an error.
PlanDeTabla PlaneaTabla(const PedidoDeTabla& pedido);

// --- a personal distribution ---

/// A pattern as whole percentages that add up to 100.
struct PlanDeDistribucion {
    std::vector<std::int16_t> porcentajes{};  ///< of the periods, 1..999
    std::int16_t durMin = 0, durMax = 0;      ///< durations that the editor offers, around the storm's [min]
    std::string notas{};
    double desvio =
        0;  ///< greatest distance of what has fallen by the end of a period, as a part of the depth
    std::vector<std::string> avisos{};
    std::string error{};
};

/// Rounds the parts of a storm [any unit] by largest remainder, the earlier one first among equals. Periods
/// that come to 0 are told.
PlanDeDistribucion PlaneaDistribucion(std::span<const double> laminas, double duracion, std::string notas);

/// Depths of the blocks [mm] that the engine makes of a distribution, with its 32 bits.
std::vector<double> HietogramaDelMotor(const PlanDeDistribucion& plan, double total, double duracion,
                                       double paso);

/// A text that a file of rain can hold: without quotes and line ends.
std::string SinComillas(std::string texto);

}  // namespace frequency
