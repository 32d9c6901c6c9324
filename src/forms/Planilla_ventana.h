// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Entorno_ventana.h"
#include "forms/Planilla.h"

class QMenu;

// Taking a table of results to a spreadsheet, alike in every window that shows one.
namespace forms {

/// Bytes of an .xlsx file with one sheet: titles merged across the columns, headings bold and always in
/// sight, numbers as numbers in the form of their columns; it prints as wide as a page, headings on each.
/// Throws Falla 75 where the table has more rows or columns than a sheet, or the disk has no room for the
/// library's working files.
std::string ComoXlsx(const Planilla& planilla);

/// A sheet of a workbook: its name, of 31 letters at most and without []:*?/\, and its table.
struct HojaDeLibro {
    std::string nombre{};
    Planilla planilla{};
};
/// The same with several sheets, one at least, each name once.
std::string ComoXlsx(const std::vector<HojaDeLibro>& hojas);

/// The table as it is on show when it is asked for.
using DaPlanilla = std::function<Planilla()>;

/// Puts the table on the clipboard as text.
void CopiaPlanilla(Entorno& entorno, const Planilla& planilla);
/// Asks where, proposing a name without its ending, and saves. A disk that refuses is told.
void GuardaCsv(Entorno& entorno, std::string_view nombre, const DaPlanilla& planilla);
void GuardaXlsx(Entorno& entorno, std::string_view nombre, const DaPlanilla& planilla);

/// The same of several tables, a sheet each.
void GuardaLibro(Entorno& entorno, std::string_view nombre,
                 const std::function<std::vector<HojaDeLibro>()>& hojas);

/// Entries of a menu for all three, below those that it has.
void AgregaPlanilla(QMenu& menu, Entorno& entorno, std::string_view nombre, const DaPlanilla& planilla);

}  // namespace forms
