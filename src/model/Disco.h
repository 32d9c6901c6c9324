// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace model {

/// Separator of directories, as this platform writes it.
#if defined(_WIN32)
inline constexpr char Separador = '\\';
#else
inline constexpr char Separador = '/';
#endif

/// The disk behind one door, so that a test can stand in for it and let the n-th call fail. Paths are UTF-8,
/// contents are bytes. Faults: 53 the file isn't in its directory, 76 its directory isn't there, 75 the
/// path can't be read or written.
struct Disco {
    /// Returns the whole file. Throws Falla 53, 76, 75; 75 also for what is no plain file or above 256 MB.
    std::function<std::string(const std::string& ruta)> Lee;
    /// Replaces the file by these bytes; an empty text makes an empty file. Throws Falla 76, 75.
    std::function<void(const std::string& ruta, std::string_view bytes)> Escribe;
    /// Appends to a file that this program is writing. Throws Falla 76, 75.
    std::function<void(const std::string& ruta, std::string_view bytes)> Agrega;
    /// Returns whether a directory is there.
    std::function<bool(const std::string& ruta)> HayDirectorio;
    /// Creates a directory. Throws Falla 75 where it can't, or where it is there already.
    std::function<void(const std::string& ruta)> CreaDirectorio;
    /// Names of the plain files of a directory, sorted by their bytes. Throws Falla 76, 75.
    std::function<std::vector<std::string>(const std::string& directorio)> Lista;
    /// Deletes a file. Throws Falla 53, 76, 75.
    std::function<void(const std::string& ruta)> Borra;
    /// Copies a file over another. Throws Falla 53, 76, 75; 75 also for a copy onto itself.
    std::function<void(const std::string& origen, const std::string& destino)> Copia;
};

/// The real disk.
Disco DiscoDelSistema();

/// Directory + separator + name.
std::string Ruta(std::string_view directorio, std::string_view nombre);

}  // namespace model
