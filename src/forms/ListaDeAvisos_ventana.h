// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "forms/Formulario_ventana.h"
#include "forms/Recogida.h"

namespace forms {

/// The messages that a command has left beyond those that came one by one: to be read, copied, saved.
class ListaDeAvisos : public Formulario, public ComoCaja {
  public:
    ListaDeAvisos(Entorno& alrededor, const std::vector<Recogido>& recogidos, QWidget* padre);
    void Muestra() override {}

  private:
    void Guarda();

    std::string texto;
};

}  // namespace forms
