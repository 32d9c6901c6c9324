// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

// A table of results on its way to a spreadsheet: what is copied, and saved as CSV or XLSX.
namespace forms {

/// A column: its heading, and whether its cells are texts even where they look like numbers.
struct ColumnaPlanilla {
    std::string encabezado{};
    bool deTexto = false;
    std::string formato{};  ///< how a workbook shows its numbers, "0.00"; empty: as they come
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

/// How a text for spreadsheets writes numbers. A comma in them leaves the semicolon to part the fields.
struct SignoDecimal {
    char signo = '.';
    [[nodiscard]] char Separador() const { return signo == ',' ? ';' : ','; }
    bool operator==(const SignoDecimal&) const = default;
};

/// Lines ended by CR LF, fields parted by commas or semicolons; all but numbers and empty cells stand in
/// quotes.
std::string ComoCsv(const Planilla& planilla, SignoDecimal decimal = {});
/// The same parted by tabs, without quotes.
std::string ComoTexto(const Planilla& planilla, SignoDecimal decimal = {});

/// A text whose fields tabs and line ends part, its numbers with this sign; what is no number stays.
std::string ConSigno(std::string_view texto, SignoDecimal decimal);

}  // namespace forms
