// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "editor/Historia.h"
#include "model/SiroDeclarado.h"

// The network in the editor as bytes, for whoever keeps it while it isn't saved.
namespace editor {

struct frmUEHs;

/// A network as bytes: the files that a save would write, and the reach that is being drawn, which no file
/// holds.
struct RedEscrita {
    std::string uehs{}, verCau{};  ///< as the project's files of those endings; both empty: no component
    std::string trazo{};           ///< clicks and mark of the reach being drawn, then its vertices
    bool operator==(const RedEscrita&) const = default;
};

/// Numbers are rounded as by a save. Nothing where a save of it would fail.
std::optional<RedEscrita> Escribe(const RedGuardada& red);

/// Reads it back, as a load does, which numbers the components anew. Nothing where the bytes are damaged.
std::optional<RedGuardada> Lee(const RedEscrita& escrita);

/// What tells one network from another, by the names of components.
struct Diferencia {
    std::vector<std::string> nuevos{}, quitados{}, cambiados{};
    bool trazo = false;  ///< a reach is being drawn in the one, and not so in the other
    [[nodiscard]] bool Ninguna() const { return *this == Diferencia{}; }
    bool operator==(const Diferencia&) const = default;
};

/// What `ahora` has, hasn't and has otherwise than `antes`. Numbers and orders, which a save works out, don't
/// count.
Diferencia Compara(const RedGuardada& antes, const RedGuardada& ahora);

/// Puts such a network into the open editor as one step of its history: unsaved, and one step back brings
/// what was there again. A reach that is being drawn goes on with the next click.
void Recupera(frmUEHs& f, model::Siro& s, const RedGuardada& red);

}  // namespace editor
