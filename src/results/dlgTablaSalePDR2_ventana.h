// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/FormaTablaQDR_ventana.h"
#include "results/dlgTablaSalePDR2.h"

namespace forms {
class ListaParaElegir;
}

namespace results {

/// Window of the table of a series' results for a component picked from a list.
class dlgTablaSalePDR2_ventana : public FormaTablaQDR_ventana {
  public:
    dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro, QWidget* padre = nullptr);

    void Muestra() override;

  private:
    dlgTablaSalePDR2_ventana(forms::Entorno& alrededor, dlgTablaSalePDR2& registro,
                             forms::ListaParaElegir* lista, QWidget* padre);
    void AbreForma() override;
    void Llena() override;
    [[nodiscard]] std::string Componente() const override;

    dlgTablaSalePDR2& f;
    forms::ListaParaElegir* lstCompos;
};

}  // namespace results
