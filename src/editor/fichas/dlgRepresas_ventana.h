// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/fichas/FichaEmbalse_ventana.h"
#include "editor/fichas/dlgRepresas.h"

namespace editor {

/// The properties of a Represa with its outflow functions.
class dlgRepresas_ventana : public FichaEmbalse_ventana<dlgRepresas> {
  public:
    dlgRepresas_ventana(forms::Entorno& alrededor, dlgRepresas& registro, QWidget* padre = nullptr);

  private:
    QLayout* Propiedades();
    QWidget* MarcoDeSeleccion();
    QWidget* MarcoDeFunciones();
    forms::Partes FilaDeFuncion(int funcion);
};

}  // namespace editor
