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

struct Hallazgo {
    Gravedad gravedad = Gravedad::Nota;
    int numero = 0;            ///< of the rule that found it, the same for ever: what the help explains
    std::string componente{};  ///< name; empty: the basin or the project
    std::string que{};         ///< what is wrong, one sentence in Spanish
    std::string cuanto{};      ///< how much, with its unit; empty where there is nothing to measure
    std::string remedio{};     ///< what to do, one sentence in Spanish
    friend bool operator==(const Hallazgo&, const Hallazgo&) = default;
};

}  // namespace checks
