// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "forms/Entorno_ventana.h"

class QPainter;
class QRectF;
class QWidget;

namespace forms {

/// Dots of a printed image per dot of the screen: sharp on paper, and no more than a few megabytes.
inline constexpr double PuntosDeImpresion = 3;

/// Paints a page into the rectangle that it is given.
using Pintor = std::function<void(QPainter& pintor, const QRectF& hoja)>;

/// Prints a page, lying where `apaisada` says so, on the default printer with no dialog. Where none is
/// installed, or it refuses, the user reads why.
void Imprime(Entorno& entorno, const Pintor& pinta, bool apaisada);

/// Prints the image of a window as it stands, as large as the page takes it; dark colours are light on paper.
void ImprimeVentana(Entorno& entorno, QWidget& ventana);

}  // namespace forms
