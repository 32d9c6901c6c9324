// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "editor/frmUEHs.h"
#include "editor/lienzo/PintaDibujo_ventana.h"

namespace editor {

/// The canvas picDibujo: paints the drawing and reports the pointer, the wheel, the keys and its size.
class Lienzo : public QWidget {
  public:
    /// The editor's record must outlive the canvas.
    Lienzo(const frmUEHs& mostrada, PintorDibujo& quienPinta);

    std::function<void(BotonRaton boton, Punto p)> AlBajar, AlSubir;
    std::function<void(Punto p, bool izquierdo)> AlMover;
    std::function<void()> AlDobleClic;
    std::function<void(double vueltas, Punto p)> AlGirar;
    /// Returns whether the key was one of the canvas's.
    std::function<bool(const QKeyEvent& evento)> AlTeclear;
    std::function<void(QSize tamano)> AlCambiarDeTamano;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

  private:
    [[nodiscard]] Punto Lugar(QPointF pixel) const { return DePixel(f.vista, pixel.x(), pixel.y()); }

    const frmUEHs& f;
    PintorDibujo& pintorDibujo;
};

}  // namespace editor
