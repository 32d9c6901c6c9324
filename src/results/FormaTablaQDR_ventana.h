// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "forms/Formulario_ventana.h"
#include "results/TablaQDR.h"

class QPushButton;

namespace results {

class VistaQDR;

/// What the windows of both tables of a series' results have in common: the grid, below it three buttons.
class FormaTablaQDR_ventana : public forms::Ventana {
  public:
    /// Opens the window on the results in hand and brings it to the front. Where the form closes itself, no
    /// window comes.
    void Abre();
    void Muestra() override;

  protected:
    /// `antes`: a control that stands beside the grid, ahead of it for the Tab key too; none: null.
    FormaTablaQDR_ventana(forms::Entorno& alrededor, std::string_view nombre, std::string_view titulo,
                          FormaTablaQDR& registro, QWidget* antes, QWidget* padre);

    void AlCerrar() override;
    /// The form's own opening, and its filling of the table.
    virtual void AbreForma() = 0;
    virtual void Llena() = 0;
    /// Name of the component that the table is of; empty: of all.
    [[nodiscard]] virtual std::string Componente() const { return {}; }

  private:
    void Imprime();

    FormaTablaQDR& f;
    VistaQDR* tabla;
    QPushButton *cmdAplicarCambios, *cmdImprimir, *OKButton;
};

}  // namespace results
