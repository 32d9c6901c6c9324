// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/taller/dlgRecesion.h"
#include "forms/Formulario_ventana.h"

namespace forms {
class Lamina;
class TablaCuadro;
}  // namespace forms

namespace calibration {

/// Form that separates the base flow of the observation in hand.
class dlgRecesion_ventana : public forms::Formulario {
  public:
    dlgRecesion_ventana(forms::Entorno& alrededor, dlgAjuste& ajuste, QWidget* padre);

    /// Shows it until it is closed. Runs inside an event.
    void Abre();
    using forms::Formulario::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    dlgAjuste& ajuste;
    dlgRecesion f{};
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
};

}  // namespace calibration
