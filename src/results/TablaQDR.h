// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/ColumnasDeSerie.h"
#include "forms/Planilla.h"
#include "forms/Rotulo.h"
#include "model/SiroDeclarado.h"

// The grid of a series' results, MSFlexGridTablaSaleQDR: what it holds, how it is filled, sorted and taken
// elsewhere.
namespace results {

/// Component, number and storm, then what a series keeps of it.
inline constexpr std::size_t NroColumnasQDR = 5 + engine::ColumnasDeSerie.size();

/// Headings of the columns.
std::array<std::string_view, NroColumnasQDR> EncabezadosQDR();

enum class ClaseFila : std::uint8_t {
    Titulo,      ///< one text merged across all columns; it stands in each cell
    Componente,  ///< a component and a storm
    Separacion,  ///< empty
    Total,       ///< the basin and a storm
    Cierre,      ///< the last row of all: empty, or with a label that no total followed
};

struct FilaQDR {
    ClaseFila clase = ClaseFila::Separacion;
    std::array<std::string, NroColumnasQDR> celdas{};
    bool operator==(const FilaQDR&) const = default;
};

enum class Sentido : std::uint8_t { Ascendente, Descendente };

/// Read only; every cell is a centred text.
struct TablaQDR {
    std::vector<FilaQDR> filas{};           ///< rows below the headings, in the order given
    std::vector<std::size_t> mostradas{};   ///< places in `filas`, in the order on show
    int columnaOrden = -1;                  ///< column that sorts, from 0; -1: the order given
    Sentido sentido = Sentido::Ascendente;  ///< of columnaOrden
    bool operator==(const TablaQDR&) const = default;
};

/// Empties the table and fills it with every component and the totals; without components it stays empty.
/// The order that the user chose stays. Moves IndComp, IndSerie and the storm in hand. Throws Falla 9 for a
/// storm outside the series; the rows so far stay.
void LlenaTodas(TablaQDR& t, model::Siro& s);

/// The same with the component IndComp alone, and a row between it and the totals.
void LlenaUna(TablaQDR& t, model::Siro& s);

/// A click on a heading: its column sorts upwards, with the second click downwards, with the third the order
/// is the one given. Components are sorted among themselves and so are totals; empty cells come last, rows
/// that are equal keep the order given.
void PulsaEncabezado(TablaQDR& t, int columna);

/// The table as it is on show, for a spreadsheet; rows without a result are left out.
forms::Planilla ComoPlanilla(const TablaQDR& t);

/// A block of cells: rows by their place on show, columns from 0, the last ones included.
struct BloqueQDR {
    std::size_t primeraFila = 0, ultimaFila = 0;
    std::size_t primeraColumna = 0, ultimaColumna = 0;
};

/// A block as text: cells parted by tabs, lines ended by CR LF; of a title its text once. What lies outside
/// the table is left out.
std::string BloqueComoTexto(const TablaQDR& t, const BloqueQDR& bloque);

/// What the forms of both tables hold alike.
struct FormaTablaQDR {
    bool abierta = false;
    TablaQDR MSFlexGridTablaSaleQDR{};
    int llenados = 0;  ///< how often the table has been filled since the form opened
};

/// A heading was clicked.
void AlPulsarEncabezado(FormaTablaQDR& f, int columna);

void OKButton(FormaTablaQDR& f);

/// Captions in the windows of both tables.
inline constexpr auto RotulosTablaQDR = std::to_array<forms::FilaRotulo>({
    {"cmdAplicarCambios", "&Actualizar cambios"},
    {"cmdImprimir", "Imprimir"},
    {"OKButton", "&Cerrar"},
    {"lstCompos", "Componente"},
});

/// The commands of the menu that open a table: whether the series has storms enough.
bool HayPlanillaPDR(const model::Siro& s);

}  // namespace results
