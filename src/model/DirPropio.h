// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/Disco.h"
#include "model/Sistema.h"

// The program's own directory, where the shared tables are read and the result files written, and what an
// installation delivers to it. The same for every program that is installed together.
namespace model {

struct Siro;

/// Creates a directory and those above it that are missing, as far as that can be done.
void CreaCamino(const Disco& disco, const std::string& directorio);

/// The user's own data directory for SIRO, whether it is there or not; empty where the system tells none.
std::string DirDelUsuario(const Ambiente& ambiente);

/// What came with the program of this directory: in "data" under it, in "share/siro" beside it, or in the
/// directory itself. It is known by its folder of help. Empty where there is none.
std::string DirEntregado(const Disco& disco, const std::string& dirEjecutable);

/// The program's own directory: that of the executable, or `dirUsuario` where the user may not write there or
/// the executable stands in a "bin" with "share/siro" beside it.
/// At its first start, which finds no pointer file, the delivered tables, storms, sample project and help
/// that it lacks are copied there from `dirEntregado`, each whole or not at all. What can't be copied, on a
/// full disk for one, is tried again at the next start.
std::string PreparaDirTrabajo(const Disco& disco, const std::string& dirEjecutable,
                              const std::string& dirUsuario, const std::string& dirEntregado);

/// Whether something of what is delivered couldn't be copied yet.
bool EntregaPendiente(const Disco& disco, const std::string& dirTrabajo);
/// Tells so, if so.
void AvisaEntregaPendiente(const Siro& s);

/// Brings the help of the program's own directory up to what was delivered: an upgrade's pages replace those
/// that an earlier start has copied. What can't be read or copied is left as it is.
void RenuevaAyuda(const Disco& disco, const std::string& dirTrabajo, const std::string& dirEntregado);

/// The program's own directory as the system tells it, for the program that lies in this directory.
std::string DirTrabajoDe(const std::string& dirEjecutable);

/// The same for a program that shows help: its pages are the delivered ones.
std::string DirTrabajoConAyuda(const std::string& dirEjecutable);

}  // namespace model
