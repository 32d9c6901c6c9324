// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <vector>

#include "forms/Entorno_ventana.h"

namespace forms {

/// The fields of a window that are checked when the user leaves them, by the keyboard or the mouse. A field
/// that refuses its text gets the focus back with all of it selected. Neither a box nor another program is a
/// leaving.
class Campos : public QObject {
  public:
    explicit Campos(Entorno& alrededor) : entorno(alrededor) {}

    /// `revisa` takes and checks what the control holds; false: refused, the user having been told.
    void Agrega(QWidget& control, std::function<bool()> revisa);

    /// What is to be done whenever a check has passed or refused: the window shows its record anew.
    std::function<void()> AlRevisar = [] {};

    /// Checks the fields that were just left, then the one that has the focus: commands begin with it.
    /// Returns false where a text is refused; the command then isn't carried out.
    bool Compromete();

    /// Forgets a leaving that hasn't been checked yet: the window closes without looking at its fields.
    void Olvida() { pendientes.clear(); }

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    struct Campo {
        QPointer<QWidget> control;
        std::function<bool()> revisa;
    };
    Campo* Busca(const QObject* objeto);
    bool Revisa(Campo campo);
    bool RevisaDejados();
    void RevisaMasTarde(int espera);

    Entorno& entorno;
    std::vector<Campo> campos;
    /// Typed in or left, and not checked yet, in their order. A busy machine hands over the keys of several
    /// fields at once, some before it has told of the focus.
    std::vector<QPointer<QWidget>> pendientes{};
    bool revisando = false, citado = false;
};

}  // namespace forms
