// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// The claim on the project in hand: a file tells other programs who has it open, and whoever finds it taken
// asks before it saves.
namespace model {

struct Siro;

/// The file that claims a project, beside its configuration file.
std::string RutaDeCandado(std::string_view conf);
/// Whether a file of a directory is one of those.
bool EsCandado(std::string_view nombre);

/// Claims the project in hand for this program and tells where another has it open. Without
/// `Vigilancia::activa` nothing is claimed.
void ReclamaProyecto(Siro& s);

/// Before the project in hand is saved: where another program has it open, asks until the user has said Yes
/// to that one, and claims it as soon as it is free. Returns whether it may be saved.
bool PuedeSerDeDos(Siro& s);

}  // namespace model
