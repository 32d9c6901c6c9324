// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/Siro.h"

// Undo and redo: what the editor's commands do to the network in memory, as copies of the network's value.
namespace editor {

/// Vertices of all reaches, the one being drawn included, one reach after another.
struct VerticesDeRed {
    std::vector<std::int16_t> cuentas{};  ///< vertices of reach 1, 2, ...
    std::vector<float> X{}, Y{};          ///< [drawing units]
    bool operator==(const VerticesDeRed&) const = default;
};

/// The network as a value: all that an editing command can change in memory.
///
/// The parts are shared between the copies that have them in common, so that a long history stays small.
struct RedGuardada {
    std::shared_ptr<const decltype(model::Red::ColUEHs)> UEHs{};
    std::shared_ptr<const decltype(model::Red::ColCauces)> Cauces{};
    std::shared_ptr<const decltype(model::Red::ColLagos)> Lagos{};
    std::shared_ptr<const decltype(model::Red::ColRepresas)> Represas{};
    std::shared_ptr<const VerticesDeRed> vertices{};
    std::int16_t NroUEHs = 0, NroCauces = 0, NroLagos = 0, NroRepresas = 0;
    std::int16_t ClicsCauce = 0;
    std::string marcaCauce{};
    bool operator==(const RedGuardada& otra) const;
};

/// The steps back and forth from the present network.
struct Historia {
    std::string proyecto{};                 ///< project whose network it is
    RedGuardada presente{};                 ///< after the last step
    std::vector<RedGuardada> anteriores{};  ///< networks that Ctrl+Z goes back to, the nearest last
    std::vector<RedGuardada> siguientes{};  ///< networks that Ctrl+Y goes forward to, the nearest last
};

struct frmUEHs;

/// Begins a history with the network as it is.
void EmpiezaHistoria(frmUEHs& f, const model::Siro& s);

/// Takes the network as it is for the present one: where it differs from the one before, that one becomes a
/// step to go back to, and nothing is left to go forward to. The clicks of a reach make one step once the
/// reach is finished. Returns whether there was a difference.
bool Anota(frmUEHs& f, const model::Siro& s);

/// The same after a save, which renumbers and rounds: no step, and the steps back and forth stay.
void Asienta(frmUEHs& f, const model::Siro& s);

/// Puts the present network of the history back in memory: what a command at fault has begun is taken back.
void Repone(frmUEHs& f, model::Siro& s);

/// A step back or forth. The selection is cleared, the drawing redone and the network marked as changed.
/// Returns false where there is no such step.
bool Deshace(frmUEHs& f, model::Siro& s);
bool Rehace(frmUEHs& f, model::Siro& s);

}  // namespace editor
