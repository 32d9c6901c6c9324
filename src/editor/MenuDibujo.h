// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "model/SiroDeclarado.h"

// The pop-up menu of the canvas, mnu_DibujoSec.
namespace editor {

struct frmUEHs;

/// An entry: its name, its caption, when it can be chosen, and what it does.
struct FilaMenu {
    std::string_view nombre;
    std::string_view leyenda;
    bool (*habilitada)(const model::Siro& s);
    void (*hace)(frmUEHs& f, model::Siro& s);
};

/// The entries in the order in which they stand.
std::span<const FilaMenu> MenuDibujoSec();

/// An entry was chosen, by its name; one that is disabled or unknown does nothing.
void mnu_DibujoSec_Click(frmUEHs& f, model::Siro& s, std::string_view nombre);

}  // namespace editor
