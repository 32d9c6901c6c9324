// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "editor/Dibujo.h"
#include "forms/LineaEnPantalla.h"

// Which part of the drawing the canvas shows, how near, and how large its lines and icons are.
namespace editor {

/// Size of a window or a control [pixels].
struct Tamano {
    int ancho = 0, alto = 0;
    bool operator==(const Tamano&) const = default;
};

using forms::Pixel;

inline constexpr int EscalaMinima = 1, EscalaMaxima = 1000;  ///< of sldEscala [%]
inline constexpr int TopeBarra = 100;  ///< the scroll bars run from -TopeBarra to TopeBarra

/// Share of the canvas's width within which two points touch.
inline constexpr double ParteTolerancia = 0.02;

/// Extents of the drawing [drawing units]; upside down while nothing is drawn.
struct Extension {
    float XMax = -99999, XMin = 99999, YMax = -99999, YMin = 99999;
    void Abarca(Punto p);
    [[nodiscard]] bool HayAlgo() const { return XMax >= XMin && YMax >= YMin; }
    bool operator==(const Extension&) const = default;
};

struct Vista {
    Tamano lienzo{};                         ///< picDibujo [pixels]
    int sldEscala = 100;                     ///< zoom, 1 to 1000 [%]
    int ScrEscalaHor = 0, ScrEscalaVer = 0;  ///< movement since the last centring [% of the canvas]
    int movidoHor = 0, movidoVer = 0;        ///< movement of the scroll bars not yet applied [%]
    std::int16_t AnchoLinea = 0;             ///< width of the lines [pixels]
    float TamIcono = 10;                     ///< size s of the icons [drawing units]
    std::int16_t ToleranciaVertice = 0;      ///< [drawing units]
    std::int32_t EscalaBase = 800;           ///< size of the drawing at 100 % [drawing units]
    Extension extension{};
    Punto origen{};                           ///< upper left corner of the canvas
    bool recentra = false, reescala = false;  ///< what the next drawing does first; it clears them
    bool OrdenVisible = false;
    bool NombresVisibles = true;  ///< of the reaches
};

/// Width of the canvas, and its height [drawing units].
float AnchoLogico(const Vista& v);
/// ToleranciaVertice at the present zoom. Throws Falla 6.
std::int16_t ToleranciaPresente(const Vista& v);

/// Point of the drawing at a pixel of the canvas, and back.
Punto DePixel(const Vista& v, double x, double y);
Pixel APixel(const Vista& v, Punto p);

/// Takes a zoom, the nearest bound in place of one outside; the next drawing centres itself.
void PonEscala(Vista& v, int valor);
/// Takes the places of a scroll bar; the next drawing applies the movement.
void MueveBarra(int& barra, int& movido, int valor);
/// Turns of the wheel, away from the user positive: nearer, with `p` kept under the pointer.
void Gira(Vista& v, double vueltas, Punto p);
/// What a drawing does first, its extents being known: the zoom that shows all of it, where that is asked
/// for, and the origin. Without reaches it stays at 100 %.
void AjustaEscala(Vista& v, bool hayCauces);
void AjustaOrigen(Vista& v);

}  // namespace editor
