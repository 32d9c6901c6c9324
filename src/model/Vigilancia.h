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
    std::string archivoConf{};                     ///< configuration file last read or written
    std::map<std::string, std::size_t> huellas{};  ///< files as last read or written: path, what it held
    std::string reclamado{};                       ///< configuration file of the project claimed last
    std::string ocupante{};  ///< who else has that one open, until the user has been asked; else empty
};

}  // namespace model
