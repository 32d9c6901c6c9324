// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>
#include <cstdint>
#include <string>

namespace shell {

/// A key with two lines of plain text, cut with an ellipsis where they don't fit and whole in its hint, and a
/// mark before them. The blank and Enter press it.
class Tarjeta : public QPushButton {
  public:
    enum class Marca : std::uint8_t { Ninguna, Hecha, Repetir, Falta };

    Tarjeta(const QString& nombre, QWidget* padre);

    void Pon(const std::string& unTitulo, const std::string& unDetalle, Marca unaMarca, bool habilitada);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void enterEvent(QEnterEvent* evento) override;
    void leaveEvent(QEvent* evento) override;

  private:
    void PintaMarca(class QPainter& pintor, const QRectF& lugar) const;
    [[nodiscard]] int Lado() const { return fontMetrics().height(); }  ///< of the mark [pixels]

    QString titulo{}, detalle{};
    Marca marca = Marca::Ninguna;
};

}  // namespace shell
