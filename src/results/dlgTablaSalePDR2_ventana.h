// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "results/dlgTablaSalePDR2.h"

class QPushButton;

namespace forms {
class ListaParaElegir;
}

namespace results {

class VistaQDR;

/// Window of the table of a series' results for a component picked from a list.
class dlgTablaSalePDR2_ventana : public forms::Ventana {
  public:
    dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro, QWidget* padre = nullptr);

    /// Opens the window on the results in hand and brings it to the front. Without components it closes
    /// itself.
    void Abre();
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    void Imprime();

    dlgTablaSalePDR2& f;
    VistaQDR* tabla;
    forms::ListaParaElegir* lstCompos;
    QPushButton *cmdAplicarCambios, *cmdImprimir, *OKButton;
};

}  // namespace results
