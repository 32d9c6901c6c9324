// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <functional>
#include <string>

#include "editor/frmUEHs.h"

// The background image of the drawing, read from each of its formats.
namespace editor {

/// An image, and what became of loading it.
struct ImagenLeida {
    QImage imagen{};
    CargaDeImagen fin = CargaDeImagen::Ilegible;
};

/// Background images of the drawing: .jpg, .gif, .bmp, .png, and .wmf through the player of this program. The
/// image is empty for what can't be read, whatever its ending, or is too large to be held. A metafile is
/// played as long as `sigue` says so, and up to a million records; one that is given up leaves no image.
/// Any thread may call it.
ImagenLeida LeeImagen(
    const std::string& ruta, const std::function<bool()>& sigue = [] { return true; });

}  // namespace editor
