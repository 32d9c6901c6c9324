// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <functional>

namespace shell {

/// A label of the project: of a fixed size, with its text cut where it doesn't fit; while `crece` says so of
/// the place of the pointer, it grows inside its panel until its whole text shows.
class RotuloProyecto : public QFrame {
  public:
    /// `crece` takes a place in 1/15 pixel from the label's corner; empty for a label that never grows.
    RotuloProyecto(int unosRenglones, std::function<bool(double x, double y)> crece, QWidget* padre);

    void PonTexto(const QString& nuevo);
    [[nodiscard]] QString Texto() const { return texto; }
    [[nodiscard]] bool Crecido() const { return crecido; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;

  private:
    void Crece(bool si);
    [[nodiscard]] QRect Lugar(const QRect& marco) const;

    QString texto;
    int renglones;
    std::function<bool(double, double)> creceEn;
    bool crecido = false;
    QRect fijo;  ///< its place while it has grown
};

}  // namespace shell
