// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Numbers of a block that comes from a spreadsheet, which writes them as its country does: "2.300" is 2300 in
// one and 2.3 in another. One reading holds for a whole block.
namespace forms {

enum class LecturaNumeros : std::uint8_t {
    PuntoDeMiles,  ///< 1.234,5
    ComaDeMiles,   ///< 1,234.5
    SinMiles,      ///< 1234.5 and 1234,5
};

/// A number's text as cells hold it, with a point and without marks of thousands; nothing where the text is
/// no number in this reading.
std::optional<std::string> LeeNumero(std::string_view texto, LecturaNumeros lectura);

/// The readings in which every text that is a number in any is one: a single one where they tell, two where
/// only the user knows; texts that are none play no part. Points alone may part thousands, "2.300"; commas
/// alone are decimal signs wherever they can be. Where no reading holds for all, the last one.
std::vector<LecturaNumeros> LecturasPosibles(std::span<const std::string_view> textos);

/// What to ask where there are two: Yes is the first. It shows two of the numbers both ways.
std::string PreguntaLectura(std::span<const std::string_view> textos,
                            std::span<const LecturaNumeros> lecturas);

}  // namespace forms
