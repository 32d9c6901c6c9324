// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

// A table of results on its way to a spreadsheet: what is copied, and saved as CSV or XLSX.
namespace forms {

/// A column: its heading, and whether its cells are texts even where they look like numbers.
struct ColumnaPlanilla {
    std::string encabezado{};
    bool deTexto = false;
    bool operator==(const ColumnaPlanilla&) const = default;
};

/// Titles, each across all columns, then the headings, then the rows with a cell per column.
struct Planilla {
    std::vector<std::string> titulos{};
    std::vector<ColumnaPlanilla> columnas{};
    std::vector<std::vector<std::string>> filas{};
    bool operator==(const Planilla&) const = default;
};

/// Whether a cell is taken over as a number.
bool EsNumero(const ColumnaPlanilla& columna, const std::string& celda);

/// Lines ended by CR LF, fields parted by commas; all but numbers and empty cells stand in quotes.
std::string ComoCsv(const Planilla& planilla);
/// The same parted by tabs, without quotes.
std::string ComoTexto(const Planilla& planilla);

}  // namespace forms
