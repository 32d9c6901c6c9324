// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

// A chart as a table of cells: the first column holds the category of each row as text, each further column
// is a series. Whoever paints it decides nothing.
namespace forms {

enum class TipoGrafico : std::uint8_t { Combinacion, Linea };  ///< lines and steps together; lines alone
enum class TipoSerie : std::uint8_t {
    Linea2D,
    Escalon2D,
    PuntosUnidos2D,  ///< a line whose every cell has its dot, however many there are
    Puntos2D,        ///< dots without a line
    Banda2D,         ///< a thin line; two in a row have the room between them filled
    Barra2D,         ///< a bar from 0 to each cell, where rows have places of their own
    Tramos2D,        ///< a thin line that breaks at empty cells, there too: from mark to mark of an interval
};

/// A cell without a value: nothing is drawn there.
inline constexpr double CeldaVacia = std::numeric_limits<double>::quiet_NaN();
inline bool EstaVacia(double celda)
{
    return std::isnan(celda);
}

/// A column of cells, row 1 at index 0.
struct Serie {
    TipoSerie tipo = TipoSerie::Escalon2D;
    std::string leyenda{};
    bool ejeSecundario = false;
    std::vector<double> celdas{};
    /// Empty cells equal one another.
    bool operator==(const Serie& otra) const;
};

/// A cell that stands out in the drawing, series and row from 0, and what is written beside it.
struct Marca {
    std::size_t serie = 0, fila = 0;
    std::string rotulo{};
    bool debajo = false;  ///< the label stands under the point, where a growing curve leaves room
    bool operator==(const Marca&) const = default;
};

/// Divisions of the category scale.
struct EscalaCategorias {
    bool automatica = true;
    std::int32_t divisionesPorRotulo = 1;
    std::int32_t divisionesPorMarca = 1;  ///< 0: no mark
    bool marcaDeRotulo = false;
    /// Number of row 1, the others following on; labels stand at the numbers that their distance divides.
    std::int32_t primeraFila = 1;
    bool operator==(const EscalaCategorias&) const = default;
};

/// A labelled place of an axis of numbers.
struct RotuloDeEje {
    double lugar = 0;
    std::string texto{};
    bool operator==(const RotuloDeEje&) const = default;
};

struct Grafico {
    TipoGrafico tipo = TipoGrafico::Combinacion;
    std::vector<std::string> categorias{};  ///< row 1 at index 0
    std::vector<Serie> series{};
    std::vector<Marca> marcas{};
    std::string titulo{}, notaAlPie{};
    std::string ejeX{}, ejeY{}, ejeYSecundario{};
    std::string magnitudX{};  ///< what the categories are, where ejeX tells their unit alone
    std::string salvedad{};   ///< what a picture or file of the chart has to say besides; not on the screen
    bool leyendaVisible = false;
    bool muchasLineas = false;    ///< up to twelve, which are told apart in grey too
    std::string tituloLeyenda{};  ///< what the names of the series are
    bool marcasEjeX = true;
    EscalaCategorias escala{};
    /// Places of the rows on an axis of numbers, rising, one per row; empty: rows stand side by side. A line
    /// goes on over its empty cells there.
    std::vector<double> abscisas{};
    /// Labels of that axis, those first that must not go where there isn't room for all; none: round numbers.
    std::vector<RotuloDeEje> rotulosX{};
    bool ejeYLogaritmico = false;  ///< of the main axis; every cell is above 0
    bool operator==(const Grafico&) const = default;
};

/// Doubles the divisions per label of a scale, or halves them, and ticks half as often as it labels.
void MasDivisiones(EscalaCategorias& escala);
void MenosDivisiones(EscalaCategorias& escala);

}  // namespace forms
