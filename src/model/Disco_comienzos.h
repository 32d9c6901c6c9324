// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "model/Disco.h"

namespace model {

/// The two ends of a file.
struct Puntas {
    std::uint64_t bytes = 0;  ///< of the whole file
    std::string comienzo{};   ///< its first ones
    std::string fin{};        ///< its last ones
};

/// Reads up to so many bytes at each end of a file, so that a list of many files needn't read them whole.
/// Throws Falla 53, 76, 75.
using LectorDePuntas = std::function<Puntas(const std::string& ruta, std::size_t comienzo, std::size_t fin)>;

/// That of the real disk.
LectorDePuntas PuntasDelSistema();

/// The same out of whole files, for a disk that is none.
LectorDePuntas PuntasPorEntero(const Disco& disco);

}  // namespace model
