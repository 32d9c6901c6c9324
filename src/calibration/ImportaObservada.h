// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/RegistroLluvia.h"
#include "study/Ajuste.h"

// Observed flows or levels out of a text, a file's or one that was copied from a spreadsheet.
//
// A line is a reading: its time, and a value in a column of the user's choice. Times are date and time, in
// one field or two, anywhere in the line; or h:mm since the storm's start; or a number, minutes or hours, in
// the first field. Fields are parted by semicolons, tabs, commas or blanks, whichever makes most readings of
// the first lines. What stands ahead of the first reading is a heading. Nothing is dropped without a word:
// what isn't taken is told with its line and its reason.
namespace calibration {

/// A unit of flow or of level, by its key.
struct Unidad {
    std::string_view clave;     ///< "l/s"
    std::string_view magnitud;  ///< "caudal" or "nivel"
    double multiplica, divide;  ///< into m3/s or m
};
std::span<const Unidad> Unidades();
/// The first of them where there is none of that key.
const Unidad& UnidadDe(std::string_view clave);
/// The key of the unit that a heading tells, "Caudal (l/s)"; empty where it tells none.
std::string_view UnidadEnTexto(std::string_view encabezado);

enum class ClaseDeTiempo : std::uint8_t { FechaYHora, HorasYMinutos, Numero };

struct PedidoDeObservada {
    std::string unidad = "m3/s";
    std::optional<std::size_t> columna{};  ///< field of the values, from 0; none: the first with numbers
    bool enHoras = false;                  ///< times that are numbers are hours, not minutes
    std::optional<std::int64_t> inicio{};  ///< of the storm, for dates [s since 01/01/0001]; none: the first
                                           ///< reading is at minute 0
    std::optional<double> desde{}, hasta{};  ///< readings in between are taken [min]
};

/// A field that holds numbers.
struct ColumnaDeValores {
    std::size_t campo = 0;  ///< from 0
    std::string nombre{};   ///< its heading; where there is none, its number
    bool operator==(const ColumnaDeValores&) const = default;
};

struct ImportacionDeObservada {
    std::vector<study::Punto> puntos{};  ///< [min, m3/s or m], by time, no two at once
    ClaseDeTiempo tiempo{};
    std::vector<ColumnaDeValores> columnas{};
    std::size_t columna = 0;                      ///< of them, the one that was taken
    std::optional<std::int64_t> inicio{};         ///< what the minutes of dates count from
    std::vector<forms::RenglonDudoso> dudosos{};  ///< the first 500
    std::vector<std::string> avisos{};            ///< sentences
    std::string motivo{};                         ///< why there is nothing; empty: there is
};

/// Reads the bytes of a text: UTF-8, Windows-1252 or UTF-16, with the line ends of any platform. Empty
/// fields, "-", "NA", "NaN", "s/d", -999 and their like are gaps, and told. A time that goes back is put in
/// its place; one that is there twice counts once, with the mean of its values.
ImportacionDeObservada ImportaObservada(std::string_view bytes, const PedidoDeObservada& pedido);

/// The date and time of a moment, "2019-03-04 12:00", as the study keeps it.
std::string TextoDeMomento(std::int64_t segundo);

}  // namespace calibration
