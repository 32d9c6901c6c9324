// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>
#include <memory>

#include "report/Entrega_ventana.h"

namespace report {

class Maqueta;

/// A memoria as it comes out on paper, a page at a time.
class Hojas : public QWidget {
  public:
    explicit Hojas(QWidget* padre = nullptr);
    ~Hojas() override;

    /// Sets it in pages and shows the first, or the one that was on show.
    void Muestra(Entrega::Pedido pedido);
    /// So many pages on or back.
    void Pasa(int cuantas);
    [[nodiscard]] int Pagina() const { return pagina; }  ///< from 0
    [[nodiscard]] int Paginas() const;

    [[nodiscard]] QSize sizeHint() const override { return {340, 440}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {240, 220}; }

  protected:
    void paintEvent(QPaintEvent* evento) override;
    void wheelEvent(QWheelEvent* evento) override;

  private:
    struct Parte;
    std::unique_ptr<Parte> parte;
    int pagina = 0;
    QImage hoja{};  ///< the page on show, painted for this size
};

}  // namespace report
