// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <functional>
#include <utility>

namespace forms {

/// A list from which the user picks an item with a click, Enter or the blank. The dialog's default button
/// doesn't hear that Enter.
class ListaParaElegir : public QListWidget {
  public:
    explicit ListaParaElegir(QWidget* padre = nullptr);

    /// Runs with the row picked, from 0.
    std::function<void(int fila)> AlElegir = [](int) {};

    /// The arrows pick too, and not only move to an item: for lists whose items may be looked through.
    bool conFlechas = false;

    /// The row that the arrows have come to and nobody has picked yet; -1: none. `TomaPorElegir` forgets it.
    [[nodiscard]] int PorElegir() const { return porElegir; }
    int TomaPorElegir() { return std::exchange(porElegir, -1); }

  protected:
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void Elige(int fila);

    int porElegir = -1;
};

}  // namespace forms
