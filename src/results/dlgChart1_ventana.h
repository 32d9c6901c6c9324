// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/dlgChart1.h"

namespace forms {
class Lamina;
}

namespace results {

/// Window of the hyetograph.
class dlgChart1_ventana : public forms::Ventana {
  public:
    dlgChart1_ventana(forms::Entorno& alrededor, dlgChart1& registro, QWidget* padre = nullptr);

    /// Opens the window with nothing to show yet. In a series it closes itself.
    void Abre();
    /// Shows a hyetograph and brings the window to the front, opening it where it is closed.
    void Muestra(const Hietograma& pedido);
    void Muestra() override;

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }

  protected:
    void AlCerrar() override;

  private:
    void Presenta();

    dlgChart1& f;
    forms::Lamina* Grafico;
    checks::Franja* franja;
};

}  // namespace results
