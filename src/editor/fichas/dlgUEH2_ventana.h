// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/fichas/Ficha_ventana.h"
#include "editor/fichas/dlgUEH2.h"

namespace forms {
class Lamina;
}

namespace editor {

/// The properties of a UEH, with its infiltration curve.
class dlgUEH2_ventana : public Ficha_ventana<dlgUEH2> {
  public:
    dlgUEH2_ventana(forms::Entorno& alrededor, dlgUEH2& registro, QWidget* padre = nullptr);
    void Muestra() override;

  private:
    QWidget* MarcoDeIdentificacion();
    QWidget* MarcoDeArea();
    QWidget* MarcoDeInfiltracion();
    QWidget* MarcoDeRecesion();

    forms::Lamina* curva = nullptr;
};

}  // namespace editor
