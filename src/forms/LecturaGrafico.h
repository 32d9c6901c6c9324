// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "forms/Grafico.h"
#include "forms/Planilla.h"

// What a chart says in words and as a table, and which of its categories are labelled.
namespace forms {

/// The row under the pointer: its category, then a line per series with a value there, as
/// "Qsale = 1.25 m3/s", after the title of the legend where it has one. Rows from 0; one outside the table
/// gives no text.
std::string LecturaDeFila(const Grafico& grafico, std::size_t fila);

/// The cells as a table: the categories and a column per series, each with its unit in the heading. Whole
/// numbers have all their digits, other cells the seven of the arrays that they come from; nothing stands for
/// an empty cell. Titles are left to whoever knows them.
Planilla CeldasComoPlanilla(const Grafico& grafico);

/// What a reader of the screen says of a chart: number of rows, and the peak of each series and where it is.
std::string Descripcion(const Grafico& grafico);

/// Every how many rows a label stands where no more than `caben` (at least 1) have room over `visibles`
/// rows. Of the steps that fit, one of the shortest whose labels are round: 1, 2, 3 rather than 0.83, 1.66.
/// `primeraFila` is the number of row 1.
std::size_t PasoDeRotulos(const std::vector<std::string>& categorias, std::size_t visibles, std::size_t caben,
                          std::int32_t primeraFila = 1);

/// First row from `desde` on whose number, row 1 having `primeraFila`, is a multiple of `paso`.
std::size_t PrimeraRotulada(std::size_t desde, std::size_t paso, std::int32_t primeraFila);

/// The two are drawn alike but for what stands in their cells and categories.
bool MismaEstructura(const Grafico& a, const Grafico& b);

/// Rain of a combination chart on its secondary axis hangs from the top.
bool CuelgaDeArriba(const Grafico& grafico, const Serie& serie);

}  // namespace forms
