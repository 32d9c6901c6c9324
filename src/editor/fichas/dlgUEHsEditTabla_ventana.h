// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "editor/fichas/dlgUEHsEditTabla.h"
#include "forms/Formulario_ventana.h"

namespace forms {
class TablaGrilla;
}

namespace editor {

/// The tabular editor of all reaches and all UEHs.
class dlgUEHsEditTabla_ventana : public forms::Formulario {
  public:
    dlgUEHsEditTabla_ventana(forms::Entorno& alrededor, dlgUEHsEditTabla& registro, QWidget* padre = nullptr);

    /// Reads the network and shows it until the form is closed. Runs inside an event.
    void Abre();

  protected:
    void AlCerrar() override;
    bool SinAplicar() override { return editor::SinAplicar(f); }

  private:
    forms::TablaGrilla* TablaConAyuda(forms::Grilla& grilla, std::string_view nombre);

    dlgUEHsEditTabla& f;
    forms::TablaGrilla* cauces = nullptr;
};

}  // namespace editor
