// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

// How a flow looks on the map: colour, width, size.
namespace results {

struct ColorDeCaudal {
    std::uint8_t rojo = 0, verde = 0, azul = 0;
    bool operator==(const ColorDeCaudal&) const = default;
};

/// A scale from 0 to a round flow that no peak of the run exceeds. Places on it go with the square root of
/// the flow, as the width of a river does (Leopold and Maddock 1953, downstream w = a·Q^0.5): brooks stay
/// visible beside the river that they make.
struct EscalaDeCaudal {
    double tope = 1;  ///< [m3/s]

    /// Place of a flow, 0 to 1. Below 0 and no number: 0; above the top: 1.
    [[nodiscard]] double Parte(double q) const;
    /// Flows that the legend names, rising from 0 to the top: a tenth, a quarter, a half of it between.
    [[nodiscard]] std::array<double, 5> Marcas() const { return {0, tope / 10, tope / 4, tope / 2, tope}; }
    bool operator==(const EscalaDeCaudal&) const = default;
};

/// The scale of a run whose greatest flow this is [m3/s]: its top is 1, 2, 3, 4, 5, 6, 8 or 10 times a power
/// of ten, the least that reaches it. Without any flow: 1.
EscalaDeCaudal EscalaHasta(double mayor);

/// Colour of a place on the scale: five stops of viridis (van der Walt and Smith 2015), light where it is
/// dry, dark where the flood is; straight lines between them. Its lightness falls all the way, for who sees
/// no red or green as well, and on grey paper.
ColorDeCaudal Color(double parte);

// --- sizes on the canvas [pixels] ---

/// Width of a reach.
double AnchoDeCauce(double parte);
/// Side of the box around a symbol.
double LadoDeSimbolo(double parte);

/// A flow as the map writes it, with three figures: "1235", "123.5" -> "124", "12.3", "1.23", "0.123".
std::string TextoDeCaudal(double q);

/// A time from the start of the storm: "5:20", hours and minutes.
std::string TextoDeTiempo(int minutos);

}  // namespace results
