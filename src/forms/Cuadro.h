// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "forms/Planilla.h"

// A table of results on show that nobody edits: which of its rows are seen, in what order, how it is taken
// elsewhere.
namespace forms {

struct Cuadro {
    Planilla planilla{};          ///< every row, in the order given
    std::vector<int> rangos{};    ///< by row, what the first column is sorted by; empty: by its cells
    std::vector<bool> ocultas{};  ///< by row; empty: none is hidden
    std::vector<std::size_t> mostradas{};  ///< places of the rows on show, in the order on show
    int columnaOrden = -1;                 ///< column that sorts, from 0; -1: the order given
    bool descendente = false;              ///< of columnaOrden
    bool operator==(const Cuadro&) const = default;
};

/// Takes other rows, all of them on show. The order that the user chose stays; `rangos` has a number per row
/// or none at all.
void PonFilas(Cuadro& c, Planilla planilla, std::vector<int> rangos = {});

/// Shows the rows that pass, by their places.
void Filtra(Cuadro& c, const std::function<bool(std::size_t fila)>& pasa);

/// A click on a heading: its column sorts upwards, with the second click downwards, with the third the order
/// is the one given. Numbers are sorted as such, empty cells come last, equal rows keep the order given.
void PulsaEncabezado(Cuadro& c, int columna);

/// The table as it is on show.
Planilla ALaVista(const Cuadro& c);

/// Cells of some rows, by their places and in this order, parted by tabs, lines ended by CR LF; of the first
/// `columnas` columns. A line break within a cell becomes a blank.
std::string FilasComoTexto(const Cuadro& c, const std::vector<std::size_t>& filas, std::size_t columnas);

}  // namespace forms
