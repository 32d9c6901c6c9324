// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/Cauces.h"
#include "model/Red.h"

// Undo and redo: what the editor's commands do to the network in memory, as copies of the network's value.
namespace editor {

/// All that an editing command can change in memory.
struct RedGuardada : model::Colecciones {
    std::vector<std::vector<Punto>> lineas{};  ///< vertices of reach 1, 2, ..., the one being drawn included
    Trazo trazo{};
    bool operator==(const RedGuardada&) const = default;
};

/// The steps back and forth from the present network.
struct Historia {
    std::string proyecto{};                 ///< project whose network it is
    std::optional<RedGuardada> presente{};  ///< after the last step; nothing before the first network
    std::vector<RedGuardada> anteriores{};  ///< networks that Ctrl+Z goes back to, the nearest last
    std::vector<RedGuardada> siguientes{};  ///< networks that Ctrl+Y goes forward to, the nearest last
};

/// Begins a history with the network as it is.
void EmpiezaHistoria(Historia& h, const std::string& proyecto, const model::Red& red, const Trazo& trazo);

/// Takes the network as it is for the present one: where it differs from the one before, that one becomes a
/// step to go back to, and nothing is left to go forward to. The clicks of a reach make one step once the
/// reach is finished. Returns whether there was a difference.
bool Anota(Historia& h, const model::Red& red, const Trazo& trazo);

/// The same after a save, which renumbers and rounds: no step, and the steps back and forth stay.
void Asienta(Historia& h, const model::Red& red, const Trazo& trazo);

/// Puts the present network of the history back in memory: what a command at fault has begun is taken back.
/// Returns false where there is none.
bool Repone(const Historia& h, model::Red& red, Trazo& trazo);

/// A step back or forth, put in memory. Returns false where there is no such step.
bool PasoAtras(Historia& h, model::Red& red, Trazo& trazo);
bool PasoAdelante(Historia& h, model::Red& red, Trazo& trazo);

}  // namespace editor
