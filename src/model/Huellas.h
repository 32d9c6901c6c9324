// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/Disco.h"

// What the project's files held when this program read or wrote them last, so that it asks before it writes
// over what another one has left there. Without `Vigilancia::activa` nothing is recorded and nothing asked.
namespace model {

struct Siro;

/// Reads a project file and remembers what it holds. Throws Falla 53, 76, 75.
std::string LeeVigilado(Siro& s, const std::string& ruta);

/// Remembers what a project file holds that was read or written already.
void AnotaLeido(Siro& s, const std::string& ruta, std::string_view bytes);

/// Remembers a project file as this program has left it.
void AnotaGuardado(Siro& s, const std::string& ruta);

/// Before these project files are replaced or deleted: asks where another program has the project open, and
/// of each file that isn't as this program knows it. Returns whether they may be.
bool PuedeGuardar(Siro& s, const std::vector<std::string>& rutas);

/// What is known of a project's own files, by their paths: those that stand beside its configuration file.
std::map<std::string, std::size_t> HuellasDelProyecto(const Siro& s);

/// Of files that were known so once, by any program: those that hold something else now, or aren't there.
std::vector<std::string> Cambiados(const Disco& disco, const std::map<std::string, std::size_t>& huellas);

}  // namespace model
