// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "model/Anfitrion.h"
#include "model/SiroDeclarado.h"

// What becomes of a drawing that isn't saved when a command of another window would lose it.
namespace editor {

struct frmUEHs;

inline constexpr std::string_view TituloResguardo = "Resguardo de datos de componentes UEHs";

/// Asks whether a drawing that isn't saved is to be saved, where there is one. Another project closes the
/// editor, unless its validation keeps it open; a network that is about to be read again and isn't saved is
/// read at once, so that one step back brings the drawing again. Returns whether the command may go on.
bool Resguarda(frmUEHs& f, model::Siro& s, model::Riesgo riesgo);

}  // namespace editor
