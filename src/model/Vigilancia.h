// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace model {

/// What this program knows of the project's files on disk, so that it doesn't write over another's work
/// unasked.
struct Vigilancia {
    bool activa = false;  ///< another program may be at the same files; runs without a window watch none
    std::string archivoConf{};  ///< configuration file last read or written

    // --- Huellas.h ---
    std::map<std::string, std::size_t> huellas{};  ///< files as last read or written: path, what it held

    // --- Candado.h ---
    std::string reclamado{};   ///< configuration file of the project claimed last
    std::string ocupante{};    ///< who else had that one open then; empty: it is this program's
    std::string consentido{};  ///< of whom the user has said Yes to saving all the same
};

}  // namespace model
