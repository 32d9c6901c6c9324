// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/ReglasGrilla.h"
#include "model/SiroDeclarado.h"

// A grid of cells as every form of the program has it: cells hold text, keys build it, and a block goes to a
// spreadsheet and comes back. What tells one grid from another is a description.
namespace forms {

/// A cell. Rows count from 1, row 0 being the heading; columns from 0.
struct Celda {
    int fila = 0;
    int columna = 0;
    bool operator==(const Celda&) const = default;
};

enum class Alineacion : std::uint8_t { Izquierda, Centro, Derecha };

struct ColumnaGrilla {
    std::string titulo{};  ///< with its blanks, which give the column its width
    Alineacion alineacion = Alineacion::Izquierda;
    bool editable = false;  ///< white where it can be edited, grey otherwise
    bool operator==(const ColumnaGrilla&) const = default;
};

struct FilaGrilla {
    std::vector<std::string> celdas{};
    bool esTitulo = false;  ///< a grey row that gives the columns below it other titles
    bool operator==(const FilaGrilla&) const = default;
};

/// A cell and the text that a step of editing took the place of.
struct TextoAnterior {
    Celda celda;
    std::string texto;
    bool operator==(const TextoAnterior&) const = default;
};

/// What is undone at once: the typing in a cell, a block pasted, a table emptied; or all rows, where their
/// number or order changed.
struct PasoEdicion {
    std::vector<TextoAnterior> celdas{};             ///< of a step in cells
    std::optional<std::vector<FilaGrilla>> filas{};  ///< of one that changed the rows: all of them before it
    bool operator==(const PasoEdicion&) const = default;
};

/// State of a grid. A plain value; the description must outlive it.
struct Grilla {
    const ReglasGrilla* reglas = nullptr;
    std::vector<ColumnaGrilla> columnas{};
    std::vector<FilaGrilla> filas{};  ///< row 1 stands at index 0
    Celda actual{1, 0};               ///< the cursor; row 1 even where there is no row yet
    Celda ancla{1, 0};                ///< the selected block reaches from here to the cursor
    bool agrega = false;   ///< the cell has taken a key since the cursor came to it: the next one is appended
    bool editada = false;  ///< its text has changed since then
    std::vector<PasoEdicion> hechos{}, deshechos{};  ///< steps to be undone, to be done again; the last first

    [[nodiscard]] int NroFilas() const { return static_cast<int>(filas.size()); }
    [[nodiscard]] int NroColumnas() const { return static_cast<int>(columnas.size()); }
    [[nodiscard]] bool Esta(Celda c) const
    {
        return c.fila >= 1 && c.fila <= NroFilas() && c.columna >= 0 && c.columna < NroColumnas();
    }
    /// Text of a cell; the title of its column in row 0. Throws Falla 9 outside the grid.
    [[nodiscard]] const std::string& Texto(Celda c) const;
    /// The cell's leading number, 0 where it has none. Throws Falla 9, and 6 beyond 64-bit floats.
    [[nodiscard]] double Numero(Celda c) const;
    /// Whether the cell's text is wholly a number within 64-bit floats. Throws Falla 9.
    [[nodiscard]] bool EsNumero(Celda c) const;
    /// Whether a cell is there and can be edited.
    [[nodiscard]] bool SePuedeEditar(Celda c) const;
    void Pon(Celda c, std::string texto);  ///< as it stands, without any check. Throws Falla 9.
    bool operator==(const Grilla&) const = default;
};

/// What an event did, for forms that go on from there.
struct Efecto {
    /// Cells whose text changed and is now settled: left by the cursor, or pasted into.
    std::vector<Celda> asentadas{};
    bool otrasFilas = false;  ///< a step put all rows back: their number too is to be taken from the grid
    bool sale = false;        ///< Tab at an end of the grid: the focus goes on to the next control
};

/// A grid with the columns of its heading and no rows; the cursor stands in the first column that can be
/// edited.
Grilla NuevaGrilla(const ReglasGrilla& reglas);

/// Titles and alignments that a heading tells.
std::vector<ColumnaGrilla> ColumnasDeEncabezado(std::string_view encabezado);

/// Gives the grid n rows. Rows that remain keep their texts, new ones are empty; the cursor is brought
/// inside. What was done before can't be undone.
void PonNroFilas(Grilla& g, int n);

/// Makes a column one that can be edited, or not.
void PonEditable(Grilla& g, int columna, bool editable);

/// Empties every cell of the columns that can be edited.
void VaciaDatos(Grilla& g);

// --- cursor and selection ---

/// A press of the mouse, or the form itself, puts the cursor into a cell; one outside the grid, or in a fixed
/// column, is let be. With `extiende` the selection is stretched up to the cell.
Efecto Mueve(Grilla& g, Celda c, bool extiende = false);

/// The focus leaves the grid.
Efecto Deja(Grilla& g);

/// Selects all cells.
void SeleccionaTodo(Grilla& g);

struct Bloque {
    Celda desde{}, hasta{};  ///< both included
    [[nodiscard]] bool Tiene(Celda c) const
    {
        return c.fila >= desde.fila && c.fila <= hasta.fila && c.columna >= desde.columna &&
               c.columna <= hasta.columna;
    }
    bool operator==(const Bloque&) const = default;
};
Bloque Seleccion(const Grilla& g);

// --- keys ---

/// Keys other than characters. Enter is that of the keypad too.
enum class Tecla : std::uint8_t { Enter, Suprimir, Arriba, Abajo, Izquierda, Derecha, Tab, TabAtras };

/// A key. Enter goes to the next row of the column, from the last to row 1; Delete empties the cell. In a
/// column that can't be edited both are ignored. Arrows stop at the edges; Tab goes on to the next row.
/// `extiende` (Shift) stretches the selection with the arrows.
Efecto Teclea(Grilla& g, Tecla tecla, bool extiende = false);

/// A character key, UTF-8. The first one after the cursor has come to a cell replaces its text, the next ones
/// are appended, a comma as a point. Then the text is checked against the description. Control characters do
/// nothing.
void Escribe(Grilla& g, const model::Siro& s, std::string_view caracter);

/// Backspace: takes the last character off the cell's text, which is then checked as after a key.
void Retrocede(Grilla& g, const model::Siro& s);

/// Remembers what a step takes the place of; what was undone before can't be done again.
void Anota(Grilla& g, std::vector<TextoAnterior> celdas);

/// Makes one step of all that `cambia` does to the rows, PonNroFilas and another grid in place of this one
/// included; the steps before it stay. Where no cell that can be edited is another one, and none comes or
/// goes, there is no step. With `sigue` a change right behind another one belongs to its step, as the digits
/// of a number of rows do. What throws leaves no steps.
template <typename Cambia>
void ComoUnPaso(Grilla& g, Cambia&& cambia, bool sigue = false);
/// Its end: takes up the steps of the grid as it was, and notes the difference.
void AnotaFilas(Grilla& g, Grilla antes, bool sigue);

/// Takes the last step of editing back, or does it again; the cursor goes there, and the cells are settled.
Efecto Deshace(Grilla& g);
Efecto Rehace(Grilla& g);

// --- spreadsheet ---

/// The selected block with tabs between cells and a line feed behind each row, with the columns' titles ahead
/// where asked for. Whatever would break a cell apart is a blank.
std::string Copia(const Grilla& g, bool conTitulos);

/// Whose hand wrote a block.
enum class OrigenBloque : std::uint8_t {
    Ajeno,   ///< another program's: its numbers may have marks of thousands
    Propio,  ///< this program's
};

/// Puts a block of cells, tabs and line breaks between them, in the grid with its top left cell in that of
/// the selection. A first row without a number is the block's heading: it is left out, which is told. Cells
/// that can't be edited are passed over. Each number obeys the rules of the column that it comes to and isn't
/// negative; the first text that doesn't fit is told with its row and column, and nothing is pasted. Where
/// only the user knows what a point or a comma means, a question settles it. Decimal commas become points.
Efecto Pega(Grilla& g, const model::Siro& s, std::string_view bloque,
            OrigenBloque origen = OrigenBloque::Ajeno);

template <typename Cambia>
void ComoUnPaso(Grilla& g, Cambia&& cambia, bool sigue)
{
    Grilla antes = g;
    std::forward<Cambia>(cambia)();
    AnotaFilas(g, std::move(antes), sigue);
}

}  // namespace forms
