// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "forms/Grilla.h"

// What keys and pasting ask of a cell alike.
namespace forms {

/// A text without the blanks, tabs and line breaks at its ends.
std::string_view SinBlancos(std::string_view texto);

/// Pieces of a text that a mark separates; one, empty, of the empty text.
std::vector<std::string_view> Pedazos(std::string_view texto, char marca);

/// Whether all characters of a text are taken as keys.
bool TomaTodos(const ReglasGrilla& reglas, std::string_view texto);

/// The limit that a text breaks; none where it is no number.
const LimiteColumna* LimiteRoto(const ReglasGrilla& reglas, int columna, std::string_view texto);

/// Whether a cell is there and can be edited.
bool SePuedeEditar(const Grilla& g, Celda c);

/// Remembers what a step takes the place of; what was undone before can't be done again.
void Anota(Grilla& g, PasoEdicion paso);

}  // namespace forms
