// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Configuracion.h"

// Where the background image lies under the network.
namespace forms {

/// Drawing units down per pixel of the image, to one across: a screen of 4 by 3 shows the image undistorted.
inline constexpr double AlturaDePixel = 1.33333333;  // kept as it stands

/// Upper left corner and size [drawing units].
struct MarcoDeImagen {
    float X = 0, Y = 0, ancho = 0, alto = 0;
    bool operator==(const MarcoDeImagen&) const = default;
};

/// Of an image of so many pixels, by the project's scale of it [%]; a scale of 0 leaves it at 100.
inline MarcoDeImagen MarcoDe(const model::Configuracion& c, int ancho, int alto)
{
    double w = ancho, h = AlturaDePixel * alto;
    if (c.EscalaImagen != 0) {
        w *= c.EscalaImagen / 100;
        h *= c.EscalaImagen / 100;
    }
    return {c.ImagenX0, c.ImagenY0, static_cast<float>(w), static_cast<float>(h)};
}

}  // namespace forms
