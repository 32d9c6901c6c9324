// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>
#include <functional>

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

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
};

}  // namespace forms
