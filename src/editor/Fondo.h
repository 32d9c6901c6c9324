// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/Siro.h"

// The background image of the editor.
namespace editor {

struct frmUEHs;

/// Path of the project's image: a bare file name stands for a file of the project's directory.
std::string RutaImagen(const model::Siro& s);

/// Puts the image on or takes it off; either way the components are read from their files again. A file that
/// can't be read as an image is told and the image stays off.
void AlternaImagen(frmUEHs& f, model::Siro& s);

}  // namespace editor
