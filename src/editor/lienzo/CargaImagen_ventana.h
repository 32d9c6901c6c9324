// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <thread>

#include "editor/lienzo/Imagen_ventana.h"
#include "forms/Entorno_ventana.h"

namespace editor {

/// Reads images on a thread of its own, so that a drawing of thousands of records leaves the windows alive.
class CargadorDeImagenes {
  public:
    static constexpr std::chrono::milliseconds Silencio{300};  ///< before a box offers to cancel
    static constexpr std::chrono::seconds Plazo{20};           ///< after which a drawing is given up

    /// Returns when the image is there, the user has cancelled, or `plazo` is over.
    ImagenLeida Lee(forms::Entorno& entorno, const std::string& ruta,
                    std::chrono::milliseconds plazo = Plazo);

  private:
    std::jthread hilo{};  ///< of the last image; one that was given up ends with the record that it plays
};

}  // namespace editor
