// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// What a look over a project or over a run has found: one kind of record for both, so that lists, files and
// keys treat them alike.
namespace checks {

enum class Gravedad : std::uint8_t { Error, Aviso, Nota };

inline constexpr auto NombresGravedad = std::to_array<std::string_view>({"error", "aviso", "nota"});

constexpr std::string_view Nombre(Gravedad gravedad)
{
    return NombresGravedad[static_cast<std::size_t>(gravedad)];
}

/// The mend of a finding that has an obvious one: checks::Arregla does it.
enum class Arreglo : std::uint8_t {
    Ninguno,
    SinDestino,        ///< a destination that isn't there becomes "0", which is what a run makes of it
    MuskingumCercano,  ///< K and x become the nearest ones that a run lets through
    OrdenaTabla,       ///< rows by rising height, rows that are there twice once
    AlturaInicial,     ///< the first height goes to the nearest end of the tables
};

inline constexpr auto NombresArreglo = std::to_array<std::string_view>(
    {"", "sin destino", "K y x cercanos", "ordena la tabla", "altura inicial"});

constexpr std::string_view Nombre(Arreglo arreglo)
{
    return NombresArreglo[static_cast<std::size_t>(arreglo)];
}

struct Hallazgo {
    Gravedad gravedad = Gravedad::Nota;
    int numero = 0;            ///< of the rule that found it, the same for ever: what the help explains
    std::string componente{};  ///< name; empty: the basin or the project
    std::string que{};         ///< what is wrong, one sentence in Spanish
    std::string cuanto{};      ///< how much, with its unit; empty where there is nothing to measure
    std::string remedio{};     ///< what to do, one sentence in Spanish
    Arreglo arreglo = Arreglo::Ninguno;  ///< what can be done with one key
    friend bool operator==(const Hallazgo&, const Hallazgo&) = default;
};

}  // namespace checks
