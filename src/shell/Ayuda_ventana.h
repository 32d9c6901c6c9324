// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/Formulario_ventana.h"

class QTextBrowser;

namespace shell {

/// The delivered pages of help.
class Ayuda_ventana : public forms::Ventana {
  public:
    explicit Ayuda_ventana(forms::Entorno& alrededor, QWidget* padre = nullptr);
    /// Opens the window, or brings it to the front, at a page.
    void Abre(const std::string& ruta);
    using forms::Ventana::Muestra;
    void Muestra() override {}

  private:
    QTextBrowser* Paginas;
};

}  // namespace shell
