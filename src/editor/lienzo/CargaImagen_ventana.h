// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>

#include "editor/lienzo/Imagen_ventana.h"
#include "forms/Entorno_ventana.h"

// Loading a background image while the windows stay alive, with a box that offers to cancel.
namespace editor {

inline constexpr std::chrono::milliseconds SilencioDeCarga{300};  ///< before a box offers to cancel
inline constexpr std::chrono::seconds PlazoDeCarga{20};           ///< after which a drawing is given up

/// Reads an image on a thread of its own, so that a drawing of thousands of records leaves the windows alive.
/// Returns when the image is there, the user has cancelled, or `plazo` is over; a thread that was given up
/// ends by itself behind the record that it plays.
ImagenLeida CargaImagen(forms::Entorno& entorno, const std::string& ruta,
                        std::chrono::milliseconds plazo = PlazoDeCarga);

}  // namespace editor
