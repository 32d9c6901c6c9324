// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

// What a program asks of the operating system besides its disk. Texts are UTF-8 here, whatever the system
// keeps. A platform is known to Sistema_posix.cpp and Sistema_windows.cpp, LlamadasDisco_posix.cpp and
// LlamadasDisco_windows.cpp, and to nothing else.
namespace model {

/// Value of a variable of the process's environment; empty where it isn't set.
using Ambiente = std::function<std::string(const std::string& nombre)>;

/// The real environment.
Ambiente AmbienteDelProceso();

/// Folder where the system keeps the data of a user's programs; empty where the environment tells none.
std::string DatosDelUsuario(const Ambiente& ambiente);

/// The words of the command line, the program's own name first. Takes main's.
std::vector<std::string> PalabrasDelProceso(int argc, const char* const* argv);

/// Path of the running program; empty where the system doesn't tell.
std::string RutaDelPrograma();

/// A path from the root on, with the platform's separators. A relative one loses its "." and ".." and the
/// separator at its end; an absolute one stands as it is.
std::string RutaAbsoluta(const std::string& ruta);

/// Whether a path begins at a root: of a drive or another machine on Windows.
bool EsRutaAbsoluta(const std::string& ruta);

std::tm HoraLocal(std::time_t momento);

/// Whether a stream of the process leads to a terminal that a progress bar can be drawn on.
bool EsTerminal(std::FILE* archivo);

/// Lets what the process writes to its standard streams go out byte by byte, to a terminal as UTF-8.
void PreparaSalidas();

}  // namespace model
