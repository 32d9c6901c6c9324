// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/Disco.h"
#include "model/SiroDeclarado.h"

// A project on a state of its own, beside the one in hand.
namespace checks {

/// A disk that is read and never written: its reader mends what a project brings along when it is opened in
/// another folder.
model::Disco SoloLectura(model::Disco disco);

/// Opens the project of a configuration file given by its absolute path, as the menu's Open does, and reads
/// its configuration. The last project that the desktop remembers stays what it is. Returns whether there is
/// a project in hand then.
bool AbreProyecto(model::Siro& s, const std::string& conf);

}  // namespace checks
