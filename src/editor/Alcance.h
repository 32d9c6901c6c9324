// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>

#include "editor/ClasesConIcono.h"
#include "editor/Dibujo.h"

// What lies under a point of the drawing. Distances are taken on both axes, each by itself.
namespace editor {

// Around the position of an icon [sizes s].
inline constexpr double AlturaDelAsa = 3.5;    ///< the handle is so far below it
inline constexpr double AlcanceDelAsa = 2;     ///< a press so near to the handle draws a link
inline constexpr double AlcanceDeUEH = 1.7;    ///< a press so near to the selected UEH moves it
inline constexpr double AlcanceDeEmbalse = 3;  ///< a pointer farther away leaves a Represa or Lago behind
inline constexpr double AlcanceDeDestino = 1;  ///< a link so near to the head of a reach has come to it

/// Whether two points are within a distance on both axes.
inline bool Cerca(Punto a, Punto b, double distancia)
{
    return std::fabs(double{1} * a.X - b.X) <= distancia && std::fabs(double{1} * a.Y - b.Y) <= distancia;
}

/// Handle of an icon, from which its link is drawn.
inline Punto Asa(Punto icono, float s)
{
    return {icono.X, static_cast<float>(icono.Y + AlturaDelAsa * s)};
}

/// Whether a box around an icon holds a point.
inline bool Contiene(const CajaDeIcono& caja, Punto icono, float s, Punto p)
{
    const double x = double{1} * p.X - icono.X;
    const double y = double{1} * p.Y - icono.Y;
    return x >= caja.izquierda * s && x <= caja.derecha * s && y > caja.arriba * s && y <= caja.abajo * s;
}

/// Number of the first component of a kind whose box holds a point; 0 where none does. `s`: size of the
/// icons.
template <typename T>
int Bajo(const model::Red& red, float s, Punto p)
{
    int n = 0;
    for (const T& componente : model::Todos<T>(red)) {
        ++n;
        if (Contiene(ConIcono<T>.caja, Icono(componente), s, p)) return n;
    }
    return 0;
}

}  // namespace editor
