// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/Formulario_ventana.h"

namespace shell {

/// The About box: product and version, and a button that opens the system's information tool.
class frmAcerca_ventana : public forms::Formulario {
  public:
    explicit frmAcerca_ventana(forms::Entorno& alrededor, QWidget* padre = nullptr);
    /// Shows the box until it is closed.
    void Abre();
    void Muestra() override {}
};

/// What is told of the system where it has no tool of its own: product, toolkit, system, processor.
std::string InformacionDelSistema();

}  // namespace shell
