// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

// Two programs at one project: each knows what it has read and written, and asks before it writes over what
// the other one has left. Without `Vigilancia::activa` nothing is recorded and nothing asked.
namespace model {

struct Siro;

/// The file that claims a project, beside its configuration file.
std::string RutaDeCandado(std::string_view conf);
/// Whether a file of a directory is one of those.
bool EsCandado(std::string_view nombre);

/// Claims the project in hand for this program and tells where another has it open.
void ReclamaProyecto(Siro& s);

/// Reads a project file and remembers what it holds. Throws Falla 53, 76, 75.
std::string LeeVigilado(Siro& s, const std::string& ruta);

/// Remembers what a project file holds that was read or written already.
void AnotaLeido(Siro& s, const std::string& ruta, std::string_view bytes);

/// Remembers a project file as this program has left it.
void AnotaGuardado(Siro& s, const std::string& ruta);

/// Before these project files are replaced or deleted: asks, the first time, where another program has the
/// project open, and of each file that isn't as this program knows it. Returns whether they may be.
bool PuedeGuardar(Siro& s, std::initializer_list<std::string> rutas);

}  // namespace model
