// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "editor/Dibujo.h"

// What the hand on the mouse, or on the arrow keys, has begun on the canvas.
namespace editor {

/// What a drag with the left button does, or would do if the pointer moved.
enum class Arrastra : std::uint8_t {
    Nada,
    Vertice,
    IconoUEH,
    IconoRepresa,
    IconoLago,
    EnlaceUEH,
    EnlaceRepresa,
    EnlaceLago
};

struct Gesto {
    Arrastra arrastra = Arrastra::Nada;
    bool izquierdoAbajo = false;  ///< the left button is held since it went down on the canvas
    bool arrastrado = false;      ///< the pointer has moved since then
    Punto presion{};              ///< where the left button went down
    Punto agarre{};               ///< there, from the position of the icon that the drag moves
    Punto iconoAntes{};           ///< position of that icon before the drag
    Punto ultimo{};               ///< where the pointer was last
    std::vector<Punto> banda{};   ///< rubber band, a polyline; empty: none
    std::optional<Punto> cruz{};  ///< cross that the arrow keys move in place of the pointer; nothing: none
    std::optional<Punto> asidero{};  ///< point that a pan with the middle button keeps under the pointer

    /// The left button is up: no drag, no band.
    void Suelta()
    {
        izquierdoAbajo = arrastrado = false;
        arrastra = Arrastra::Nada;
        banda.clear();
    }
};

}  // namespace editor
