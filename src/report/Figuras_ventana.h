// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "report/Datos.h"
#include "report/Documento.h"
#include "results/mapa/PintaMapa_ventana.h"

class QCPPainter;

// The figures of a memoria, drawn with the charts and the map that the windows show, in the colours of paper.
namespace report {

/// Draws on the thread of the windows. The data must outlive it.
class Figuras {
  public:
    /// `fondo`: the image under the network; a null one: none.
    Figuras(const Datos& datos, char decimal, results::FondoDeMapa fondo = {});
    ~Figuras();
    Figuras(const Figuras&) = delete;
    Figuras& operator=(const Figuras&) = delete;

    /// What it takes on paper [mm]; empty where there is nothing to draw.
    QSizeF Tamano(const Figura& figura);
    /// Paints lines and letters, no pictures of them, into a place of that shape.
    void Pinta(QCPPainter& pintor, const QRectF& sitio, const Figura& figura);
    /// The same as an SVG, and as a picture of 300 dots per inch, which a PNG is made of; empty where there
    /// is nothing to draw.
    std::string Svg(const Figura& figura);
    QImage Fina(const Figura& figura);
    static std::string Png(const QImage& fina);
    /// Both.
    Imagen Dibuja(const Figura& figura);

  private:
    struct Lista;  ///< a figure ready to be painted
    const Lista& Prepara(const Figura& figura);

    const Datos& datos;
    char decimal;
    results::FondoDeMapa fondo;
    std::unique_ptr<Lista> ultima{};
    std::vector<std::pair<Figura, QSizeF>> tamanos{};  ///< of those that were asked for
};

/// Letters of figures and pages: those that the program's package brings along, or else the like of them.
QFont LetraDePapel();

}  // namespace report
