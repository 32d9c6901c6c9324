// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/fichas/FichaEmbalse_ventana.h"
#include "editor/fichas/dlgLago.h"

namespace editor {

/// The properties of a Lago.
class dlgLago_ventana : public FichaEmbalse_ventana<dlgLago> {
  public:
    dlgLago_ventana(forms::Entorno& alrededor, dlgLago& registro, QWidget* padre = nullptr);

  private:
    QWidget* MarcoDeIdentificacion();
    QWidget* MarcoDeArea();
};

}  // namespace editor
