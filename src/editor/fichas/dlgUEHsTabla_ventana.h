// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/fichas/dlgUEHsTabla.h"
#include "forms/Formulario_ventana.h"

namespace forms {
class TablaGrilla;
}

namespace editor {

/// The overview of all parameters, a window that stands beside the others.
class dlgUEHsTabla_ventana : public forms::Ventana {
  public:
    dlgUEHsTabla_ventana(forms::Entorno& alrededor, dlgUEHsTabla& registro, QWidget* padre = nullptr);

    /// Reads everything anew and comes to the front. Runs inside an event.
    void Abre();

  protected:
    void AlCerrar() override;

  private:
    void Relee();

    dlgUEHsTabla& f;
    forms::TablaGrilla* tabla = nullptr;
    bool leyendo = false;
};

}  // namespace editor
