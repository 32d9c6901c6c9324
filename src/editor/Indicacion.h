// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "model/Siro.h"

namespace editor {

struct frmUEHs;

/// What the next click does in the mode in hand, in a line for the user.
std::string_view Indicacion(const frmUEHs& f, const model::Siro& s);

}  // namespace editor
