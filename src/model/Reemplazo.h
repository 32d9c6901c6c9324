// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "model/Disco.h"
#include "model/LlamadasDisco.h"

// How files are replaced so that at every moment each of them is whole, the old one or the new one.
//
// The new bytes go into a temporary file beside the old one, are flushed, and then renamed over it. Of
// several files in one folder a list tells which temporary is to be which file; it lives from the first
// rename to the last, so that whoever finds it knows that a save was cut short, and finishes it. Temporaries
// and lists are named ".siro-", the number of the process, that of the replacement, and that of the file:
//
//     .siro-4711-1-0.tmp   .siro-4711-1-1.tmp   .siro-4711-1.lista
namespace model {

inline constexpr std::string_view NotaEnlace =
    "El archivo es un enlace que lleva fuera de su carpeta: no se escribe a través de él.";

/// See Disco::Reemplaza. Where a folder takes no new file, but lets the old ones be written, they are written
/// in place; so is what is no plain file, a device for one.
void ReemplazaArchivos(const LlamadasDisco& llamadas, const std::vector<CambioArchivo>& cambios);

/// Puts a temporary in the place of a file. Where the folder lets the file's name be given to nothing else,
/// as a shared one does with what another user owns, the bytes go into the file where it stands.
std::error_code PoneTemporal(const LlamadasDisco& llamadas, const std::filesystem::path& temporal,
                             const std::filesystem::path& destino);

/// Takes names out of what an earlier replacement left unfinished, once they hold what is newer: finishing it
/// would put the older bytes over them. What belongs to another program that is running is left to it.
void OlvidaPendientes(const LlamadasDisco& llamadas, const std::filesystem::path& carpeta,
                      const std::vector<std::string>& nombres);

/// See Disco::Recupera. What belongs to another program that is running is left to it.
Recuperacion RecuperaCarpeta(const LlamadasDisco& llamadas, const std::string& directorio);

}  // namespace model
