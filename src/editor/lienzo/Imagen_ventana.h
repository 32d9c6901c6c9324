// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <string>

namespace editor {

/// Background images of the drawing: .jpg, .gif, .bmp, .png, and .wmf through the player of this program.
/// Returns an empty image for what can't be read, whatever its ending, or is too large to be held.
QImage CargaImagen(const std::string& ruta);

}  // namespace editor
