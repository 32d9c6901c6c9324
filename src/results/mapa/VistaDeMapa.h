// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>

#include "forms/LineaEnPantalla.h"
#include "forms/MarcoDeImagen.h"
#include "results/mapa/Rotulos.h"

// Which part of the network the map shows, and how near.
namespace results {

/// Drawing units become pixels. A unit down is shorter than one across, as the background image has it.
struct VistaDeMapa {
    forms::Pixel origen{};  ///< drawing unit at the canvas's upper left corner
    double escala = 1;      ///< [pixels per drawing unit across]

    [[nodiscard]] double EscalaVertical() const { return escala / forms::AlturaDePixel; }
    [[nodiscard]] forms::Pixel APixel(forms::Pixel punto) const
    {
        return {(punto.x - origen.x) * escala, (punto.y - origen.y) * EscalaVertical()};
    }
    [[nodiscard]] forms::Pixel DePixel(forms::Pixel pixel) const
    {
        return {origen.x + pixel.x / escala, origen.y + pixel.y / EscalaVertical()};
    }
    bool operator==(const VistaDeMapa&) const = default;
};

/// All of `extension` [drawing units] in the middle of `marco` [pixels], a margin of a twentieth left around
/// it. An extension without a size is shown at one pixel per unit.
inline VistaDeMapa VistaDe(const Caja& extension, const Caja& marco)
{
    constexpr double Margen = 1.1;
    VistaDeMapa v;
    const double alto = extension.alto / forms::AlturaDePixel;
    if (extension.ancho > 0 || alto > 0)
        v.escala = std::min(extension.ancho > 0 ? marco.ancho / extension.ancho : 1e9,
                            alto > 0 ? marco.alto / alto : 1e9) /
                   Margen;
    if (!(v.escala > 0)) v.escala = 1;
    v.origen = {extension.x + extension.ancho / 2 - (marco.x + marco.ancho / 2) / v.escala,
                extension.y + extension.alto / 2 - (marco.y + marco.alto / 2) / v.EscalaVertical()};
    return v;
}

/// Zooms by a factor, above 1 nearer, with the point under a pixel kept there. `entera` is the scale at which
/// all is seen: from a tenth of it to 100 times.
inline void Acerca(VistaDeMapa& v, double veces, forms::Pixel en, double entera)
{
    constexpr double Lejos = 0.1, Cerca = 100;
    const forms::Pixel fijo = v.DePixel(en);
    v.escala = std::clamp(v.escala * veces, entera * Lejos, entera * Cerca);
    v.origen = {fijo.x - en.x / v.escala, fijo.y - en.y / v.EscalaVertical()};
}

/// Moves the picture by so many pixels, right and down positive.
inline void Desplaza(VistaDeMapa& v, double dx, double dy)
{
    v.origen.x -= dx / v.escala;
    v.origen.y -= dy / v.EscalaVertical();
}

}  // namespace results
