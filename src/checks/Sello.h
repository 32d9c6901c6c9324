// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "model/SiroDeclarado.h"

namespace checks {

/// What a result is about: enough for a window that shows it to tell whether it still holds. Texts are in
/// Spanish.
struct Sello {
    std::string proyecto{};  ///< configuration file with its path
    std::string nombre{};    ///< of the project
    std::string red{};       ///< hash of the network as a run reads it
    std::string lluvia{};    ///< hash of the rain and of the steps
    std::string tormenta{};  ///< the storm and the steps in words
    bool serie = false;      ///< of a series of storms
    bool operator==(const Sello&) const = default;
};

/// That of the state in memory.
Sello SelloDe(const model::Siro& s);

/// What a result is of.
enum class Alcance : std::uint8_t {
    Corrida,   ///< of a run
    Serie,     ///< of the run of a series
    Tormenta,  ///< of the storm alone
    Red,       ///< of the network alone
};

/// What has changed since a result was made, for instance "la tormenta era P 60 mm, D 60 min"; empty where it
/// still holds.
std::string QueDifiere(const Sello& mostrado, const Sello& ahora, Alcance alcance = Alcance::Corrida);

/// A temporal distribution in words, "López Cadenas"; from 0, as Tormenta::DistriPp has it.
std::string NombreDeDistribucion(std::int16_t indice);

/// The storm in hand in words: form, depth [mm], duration [min], recurrence [years], distribution, both steps
/// [min].
std::string TormentaEnMano(const model::Siro& s);

}  // namespace checks
