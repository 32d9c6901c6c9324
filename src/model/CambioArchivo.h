// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

// Files that go to the disk at once: what is handed in, and what is found of it after a program was killed.
namespace model {

/// A file as it is to be.
struct CambioArchivo {
    std::string ruta{};
    std::string bytes{};
    bool operator==(const CambioArchivo&) const = default;
};

/// What was found of a Reemplaza whose program was killed: file names in the folder that was looked at.
struct Recuperacion {
    std::vector<std::string> completados{};  ///< now hold what that program had to write
    std::vector<std::string> pendientes{};   ///< could not be replaced; the next look tries again
    bool operator==(const Recuperacion&) const = default;
};

}  // namespace model
