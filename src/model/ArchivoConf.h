// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

// The file of a project's configuration, <Proyecto>_Conf.vlm.
namespace model {

struct Siro;

/// Reads the configuration of the project NombreProyecto in DirProyecto into the run-wide variables and the
/// dialog's controls. A project that has moved takes its present directory and its file is rewritten at
/// once, unless it bears another name than it tells. A damaged file empties NombreProyecto. Failures are
/// reported through the host and never thrown; then it returns false.
bool leoConf(Siro& s);

/// Writes the configuration from the dialog's controls and tells so. Asks before it writes over a file that
/// isn't the one that was read, or that another program has changed; returns false where the user keeps it.
/// Throws Falla 76, 75; memory and disk are then as they were.
bool cmdAplicar(Siro& s);

// Its two halves, for who writes other files together with the configuration.

/// Writes the file and makes the controls' directory the project's. Throws Falla 76, 75.
void EscribeConf(Siro& s);
void AvisaConfGuardada(const Siro& s, const std::string& ruta);

}  // namespace model
