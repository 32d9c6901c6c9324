// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/dlgChart3.h"

namespace forms {
class Lamina;
}  // namespace forms

namespace results {

/// Window of the abacus of a series.
class dlgChart3_ventana : public forms::Ventana {
  public:
    dlgChart3_ventana(forms::Entorno& alrededor, dlgChart3& registro, QWidget* padre = nullptr);

    /// Opens the window on the series in hand and brings it to the front. Without components it closes
    /// itself.
    void Abre();
    void Muestra() override;

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }

  protected:
    void AlCerrar() override;

  private:
    QWidget* Listas();
    QLayout* Botones();
    void Imprime();

    dlgChart3& f;
    forms::Lamina* Grafico;
    checks::Franja* franja;
};

}  // namespace results
