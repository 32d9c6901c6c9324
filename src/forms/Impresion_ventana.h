// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Entorno_ventana.h"

class QPainter;
class QPixmap;
class QPrinter;
class QRectF;
class QWidget;

// Printing the image of a window or a chart, and what every print job says of itself.
namespace forms {

/// Dots of a printed image per dot of the screen: sharp on paper, and no more than a few megabytes.
inline constexpr double PuntosDeImpresion = 3;

/// A print job: its name, which queues and PDF files show, and how its pages lie.
struct Trabajo {
    std::string_view nombre{};
    bool apaisado = false;
};

/// Paints pages; `hoja` is what can be painted on, at the printer's dots.
using PintorDeHojas = std::function<void(QPainter& pintor, const QRectF& hoja, QPrinter& impresora)>;

/// Prints on the default printer with no dialog. Where none is installed, or it refuses, the user reads why.
void Imprime(Entorno& entorno, const Trabajo& trabajo, const PintorDeHojas& pinta);

/// What is printed of a window besides its image.
struct Impreso {
    std::string nombre{};              ///< of the job
    std::vector<std::string> alPie{};  ///< lines below the image
};

/// The image of a window, dark colours light. It has as many dots as it says: on Windows Qt prints one that
/// counts several for one in pieces, each too small.
QPixmap ImagenParaPapel(QWidget& ventana);

/// Prints the image of a window as it stands, as large as the page takes it; dark colours are light on paper.
void ImprimeVentana(Entorno& entorno, QWidget& ventana, const Impreso& impreso);

}  // namespace forms
