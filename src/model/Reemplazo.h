// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "model/CambioArchivo.h"
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

}  // namespace model
