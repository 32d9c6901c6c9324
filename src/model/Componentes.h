// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/Disco.h"

// The files of the components, _UEHs.vlm, and of the vertices of the reaches, _VerCau.vlm.
namespace model {

struct Siro;

/// Reads the project's components and the vertices of its reaches; every component object is replaced.
/// A missing file is an empty network and silent; failures are reported through the host, never thrown.
/// The name found inside the component file becomes NombreProyecto and rules from there on.
void LeeUEHs(Siro& s);

/// The same once more behind a save: where the files can't be read now, which is told, the network in memory
/// stays and is only numbered anew.
void ReleeUEHs(Siro& s);

/// Numbers the components in the order of their collections, as a load does.
void RenumeraComponentes(Siro& s);

/// "Guardar" of the basin editor: stream orders, both files, a fresh read and the message that tells so.
/// Without any component both files are deleted instead, unless it is their reading that failed. Returns
/// false where the user, asked about files that another program has changed, keeps them, and after a fault:
/// it is told, both files and the network in memory are as they were.
bool GuardaRed(Siro& s);

// Its two halves, for who writes other files together with the network.

/// Writes or deletes both files and gives what was written. Returns false as above.
bool EscribeRed(Siro& s, std::vector<CambioArchivo>& escritos);
/// The fresh read, from what was written, and the message; nothing where both files were deleted.
void AlGuardarse(Siro& s, const std::vector<CambioArchivo>& escritos);

}  // namespace model
