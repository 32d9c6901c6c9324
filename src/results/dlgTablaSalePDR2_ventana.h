// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/FormaTablaQDR_ventana.h"
#include "results/dlgTablaSalePDR2.h"

namespace results {

/// Window of the table of a series' results for a component picked from a list.
class dlgTablaSalePDR2_ventana : public FormaTablaQDR_ventana {
  public:
    dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro, QWidget* padre = nullptr);

  private:
    void AbreForma() override { results::Abre(f, entorno.s); }
    void Llena() override { cmdAplicarCambios(f, entorno.s); }
    [[nodiscard]] std::string Componente() const override;

    dlgTablaSalePDR2& f;
};

}  // namespace results
