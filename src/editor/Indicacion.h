// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "editor/Botones.h"
#include "editor/Dibujo.h"
#include "model/SiroDeclarado.h"

namespace editor {

/// What the next click does in a mode, in a line for the user. `clics`: those of the reach being drawn;
/// `medidos`: points that are measured.
std::string_view Indicacion(Boton modo, std::int16_t clics, std::int16_t medidos, const Dibujo& dibujo,
                            const model::Siro& s);

}  // namespace editor
