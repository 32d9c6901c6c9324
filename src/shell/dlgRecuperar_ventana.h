// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "shell/dlgRecuperar.h"

namespace shell {

/// What wasn't saved when a program ended by itself, with a picture of it beside what is saved.
class dlgRecuperar_ventana : public forms::Formulario {
  public:
    dlgRecuperar_ventana(forms::Entorno& alrededor, dlgRecuperar& registro, QWidget* padre = nullptr);
    /// Shows the form, which is open, until it is closed. Runs inside an event.
    void Abre();

  protected:
    void AlCerrar() override;

  private:
    QLayout* Datos();
    QLayout* Vistas();
    QWidget* Escrito();

    dlgRecuperar& f;
};

}  // namespace shell
