// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/fichas/Ficha_ventana.h"
#include "editor/fichas/dlgCauceEditProp.h"

namespace editor {

/// The properties of a reach.
class dlgCauceEditProp_ventana : public Ficha_ventana<dlgCauceEditProp> {
  public:
    dlgCauceEditProp_ventana(forms::Entorno& alrededor, dlgCauceEditProp& registro, QWidget* padre = nullptr);

  private:
    forms::Partes Longitud();
};

}  // namespace editor
