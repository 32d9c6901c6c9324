// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Numbers as a document's language writes them.
namespace report {

struct Cifras {
    char decimal = ',';
    std::string miles{};  ///< between thousands of numbers with five whole digits or more

    /// A number with so many decimals, as checks::CifraDeResumen has it; "-" for one that isn't there.
    [[nodiscard]] std::string Con(double x, int decimales, bool conCero = true) const;
    /// A value as it was typed: 32 bits with all their digits.
    [[nodiscard]] std::string Escrita(float x) const;
    /// A value with four digits that mean something, or all of its whole ones.
    [[nodiscard]] std::string Corta(double x) const;
    /// A number that the program has written with a point.
    [[nodiscard]] std::string De(std::string_view numero) const;
    /// A sentence of the program: its lone numbers, and its m3 and km2.
    [[nodiscard]] std::string EnTexto(std::string_view frase) const;
};

/// "m³/s" of "m3/s", "km²" of "km2".
std::string Unidad(std::string_view unidad);

}  // namespace report
