// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

// What tells one grid from another, and what keys and pasting ask of a cell's text alike.
namespace forms {

/// A column that can be edited, and the numbers that it takes at each key: from 0 to a limit, itself
/// included.
struct ColumnaEditable {
    int columna = 0;
    double maximo = std::numeric_limits<double>::infinity();
    std::string_view mensaje{};  ///< title "Advertencia !"; the cell is then set to "0". None: no limits
};

/// What a key leaves in a cell whose text is no number.
enum class SinNumero : std::uint8_t { SeVacia, Queda };

struct ReglasGrilla {
    std::string_view
        encabezado{};  ///< columns apart by "|"; "^" ahead of a title centres it, ">" puts it right
    std::span<const ColumnaEditable> editables{};  ///< when the grid is made
    int columnasFijas = 0;                         ///< columns on the left that the cursor doesn't enter
    SinNumero sinNumero = SinNumero::SeVacia;
    bool enterPoneCero = true;  ///< the cell that Enter comes to becomes "0" where its text is no number
    /// Whether a byte of a character's UTF-8 is taken as a key; nothing: all are.
    bool (*tomaCaracter)(char) = nullptr;
    /// Esc ends the typing in a cell, whose text stays, before it is the form's.
    bool escDejaLaCelda = false;
};

/// A text without the blanks, tabs and line breaks at its ends.
std::string_view SinBlancos(std::string_view texto);

/// Pieces of a text that a mark separates; one, empty, of the empty text.
std::vector<std::string_view> Pedazos(std::string_view texto, char marca);

/// Whether all characters of a text are taken as keys.
bool TomaTodos(const ReglasGrilla& reglas, std::string_view texto);

/// The column whose limit a text breaks; none where it is no number.
const ColumnaEditable* LimiteRoto(const ReglasGrilla& reglas, int columna, std::string_view texto);

}  // namespace forms
