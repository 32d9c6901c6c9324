// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/FormaTablaQDR_ventana.h"
#include "results/dlgTablaSalePDR.h"

namespace results {

/// Window of the table of a series' results for every component.
class dlgTablaSalePDR_ventana : public FormaTablaQDR_ventana {
  public:
    dlgTablaSalePDR_ventana(forms::Entorno& alrededor, dlgTablaSalePDR& registro, QWidget* padre = nullptr);

  private:
    void AbreForma() override { results::Abre(f, entorno.s); }
    void Llena() override { cmdAplicarCambios(f, entorno.s); }

    dlgTablaSalePDR& f;
};

}  // namespace results
