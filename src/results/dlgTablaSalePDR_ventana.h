// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "results/dlgTablaSalePDR.h"

class QPushButton;

namespace results {

class VistaQDR;

/// Window of the table of a series' results for every component.
class dlgTablaSalePDR_ventana : public forms::Ventana {
  public:
    dlgTablaSalePDR_ventana(forms::Entorno& alrededor, dlgTablaSalePDR& registro, QWidget* padre = nullptr);

    /// Opens the window on the results in hand and brings it to the front.
    void Abre();
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    void Imprime();

    dlgTablaSalePDR& f;
    VistaQDR* tabla;
    QPushButton *cmdAplicarCambios, *cmdImprimir, *OKButton;
};

}  // namespace results
