// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/CambioArchivo.h"

// The disk behind one door.
namespace model {

/// The disk behind one door, so that a test can stand in for it and let the n-th call fail. Paths are UTF-8,
/// contents are bytes. Faults: 53 the file isn't in its directory, 76 its directory isn't there, 75 the
/// path can't be read or written.
struct Disco {
    /// Returns the whole file. Throws Falla 53, 76, 75; 75 also for what is no plain file or above 64 MiB.
    std::function<std::string(const std::string& ruta)> Lee;
    /// Writes a file anew from its beginning, where it stands: for results, which Agrega goes on with, and
    /// for what goes out of the program. At a fault the file is cut. Throws Falla 76, 75.
    std::function<void(const std::string& ruta, std::string_view bytes)> Escribe;
    /// Replaces files that belong together, all of them or none: whatever fails, and whenever the program is
    /// killed, each is as it was or as it is to be. A link is followed inside its own folder only. Throws
    /// Falla 76, 75 and leaves all of them as they were.
    std::function<void(const std::vector<CambioArchivo>& cambios)> Reemplaza;
    /// Brings a folder in order after a program that was killed in Reemplaza: finishes what it had begun, and
    /// removes what else it left. Throws Falla 76, 75.
    std::function<Recuperacion(const std::string& directorio)> Recupera;
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
    /// Copies a file of up to 256 MiB over another, which is replaced as by Reemplaza. Throws Falla 53, 76,
    /// 75; 75 also for a copy onto itself.
    std::function<void(const std::string& origen, const std::string& destino)> Copia;
};

struct LlamadasDisco;

/// The real disk; a test may put its own calls of the system in.
Disco DiscoDelSistema();
Disco DiscoDelSistema(std::shared_ptr<const LlamadasDisco> llamadas);

/// Directory + separator + name.
std::string Ruta(std::string_view directorio, std::string_view nombre);

}  // namespace model
