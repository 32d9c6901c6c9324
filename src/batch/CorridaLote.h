// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"
#include "model/SiroDeclarado.h"

// A run of siro-lote: opens the project, settles the storm, runs it, writes the results.
namespace batch {

/// Exit status of the process; 3 is EstadoTerminado.
inline constexpr int EstadoCompleto = 0;      ///< the run went to its end
inline constexpr int EstadoInterrumpido = 1;  ///< a check ended the run, or the input kept it from starting
inline constexpr int EstadoOrdenErronea = 2;  ///< the command line is wrong

/// Runs a project: opens it, settles the storm, runs it or the series, hands over the Slate's text and writes
/// the CSV. Where the options name no DirTrabajo it is the program's own directory, by `dirEjecutable`.
/// Returns the exit status.
int Corre(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas);

/// Writes a text to standard output. Returns whether that went well; a fault is told.
bool Muestra(const Salidas& salidas, std::string_view texto);

/// Settles the storm in hand, or the series, by the rules that stand between the desktop's dialog and a run.
void FijaTormenta(model::Siro& s, const Opciones& opciones);

}  // namespace batch
