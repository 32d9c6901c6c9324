// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "results/mapa/PintaMapa_ventana.h"

namespace results {

/// The canvas of the map. The wheel zooms at the pointer, dragging moves the picture, a double click shows
/// all; what is under the pointer is told, and a click picks it. What lies below and above the water is kept
/// as pictures until view, size or options change: a step in time paints the water alone.
class LienzoDeMapa : public QWidget {
  public:
    /// The map's record must outlive the canvas.
    explicit LienzoDeMapa(const MapaDeCorrida& mostrado);

    std::function<void(int componente)> AlElegir;
    /// Returns whether the key was one of the canvas's.
    std::function<bool(const QKeyEvent& evento)> AlTeclear;
    std::function<void(QPoint enPantalla)> AlPedirMenu;

    /// Another run is on show: all of it is seen.
    void PonCorrida(FondoDeMapa nuevo);
    /// The record's options have changed, or only its time.
    void Muestra();

    void Acerca(double veces, QPointF en);
    void VeTodo();
    [[nodiscard]] const VistaDeMapa& Vista() const { return vista; }
    [[nodiscard]] const PintorDeMapa& Pintor() const { return pintor; }
    [[nodiscard]] const FondoDeMapa& Fondo() const { return fondo; }
    /// The letters of the map, in pixels, so that they are the same on paper.
    [[nodiscard]] QFont Letra() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void contextMenuEvent(QContextMenuEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

  private:
    struct Opciones {
        bool picos = false, nombres = false, imagen = false;
        bool operator==(const Opciones&) const = default;
    };
    void Vence();
    void RehaceCapas();
    void Senala(QPointF en, QPoint enPantalla);
    [[nodiscard]] VistaDeMapa Entera() const;
    [[nodiscard]] QPixmap Capa() const;

    const MapaDeCorrida& f;
    FondoDeMapa fondo{};
    PintorDeMapa pintor{};
    VistaDeMapa vista{};
    Opciones opciones{};
    QPixmap debajo{}, encima{};  ///< of the water
    bool vencidas = true;        ///< both have to be made anew
    bool todo = true;            ///< all is on show, and stays so while the canvas changes its size
    int senalado = -1;           ///< component under the pointer
    QPointF apretado{}, ultimo{};
    bool bajo = false, arrastra = false;  ///< the left button; the picture moves along
};

}  // namespace results
