// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QRectF>
#include <string>

#include "editor/frmUEHs.h"
#include "editor/lienzo/CargaImagen_ventana.h"

class QPainter;

namespace editor {

/// Paints the editor's list of primitives: on the canvas, on paper, into a file. Shapes and colours are
/// decided here and nothing else is.
class PintorDibujo {
  public:
    /// Paints the drawing as the canvas shows it into a rectangle that has the canvas's proportions.
    void Pinta(QPainter& pintor, const frmUEHs& f, const QRectF& donde);

    /// The background image of a file, kept until another one is asked for.
    ImagenCargada CargaFondo(forms::Entorno& entorno, const std::string& ruta);

    /// Lines and letters without steps. Off only while something else counts more.
    bool suaviza = true;

  private:
    struct Mapa;
    void PintaIcono(QPainter& pintor, const Primitiva& p, const QRectF& caja);

    QPixmap fondo{};
    std::string rutaFondo{};
    CargaDeImagen finFondo = CargaDeImagen::Ilegible;
    QHash<quint64, QPixmap> iconos{};  ///< by kind, state, size
};

/// Letters of the drawing, in the canvas's pixels: points would be reckoned by the dots of the paper once
/// more where the painter is scaled up to them.
QFont LetraDelDibujo();

/// Paints the icon of a kind of component into a square.
void PintaIconoDe(QPainter& pintor, Clase clase, bool seleccionado, const QRectF& donde);

}  // namespace editor
