// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "forms/Formulario_ventana.h"
#include "shell/dlgAnteriores.h"

namespace editor {
class VistaDeRed;
}
namespace forms {
class TablaCuadro;
}

namespace shell {

/// Window of a project's previous versions: their list, the differences of the one chosen, its network beside
/// the present one.
class dlgAnteriores_ventana : public forms::Formulario {
  public:
    dlgAnteriores_ventana(forms::Entorno& alrededor, dlgAnteriores& registro,
                          const model::Anteriores& dondeEstan, QWidget* padre = nullptr);
    /// Shows the dialog until it is closed.
    void Abre();

    /// The files of the project in hand are those of another version. Runs inside an event.
    std::function<void()> TrasTraer = [] {};

  protected:
    void AlCerrar() override;

  private:
    void PonTablas();
    QLayout* Arriba();
    QLayout* Abajo();
    QLayout* Botones();
    QLayout* Dibujo(std::string_view control, editor::VistaDeRed& red) const;
    void Trae();
    void Copia();

    dlgAnteriores& f;
    const model::Anteriores& anteriores;
    forms::TablaCuadro* versiones = nullptr;
    forms::TablaCuadro* diferencias = nullptr;
    editor::VistaDeRed* entonces = nullptr;
    editor::VistaDeRed* ahora = nullptr;
};

}  // namespace shell
