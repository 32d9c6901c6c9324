// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/TablaQDR.h"

namespace results {

class VistaQDR;

/// What the windows of both tables of a series' results have in common: the grid, below it three buttons.
class FormaTablaQDR_ventana : public forms::Ventana {
  public:
    /// Opens the window on the results in hand and brings it to the front. Where the form closes itself, no
    /// window comes.
    void Abre();
    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }

  protected:
    FormaTablaQDR_ventana(forms::Entorno& alrededor, std::string_view nombre, std::string_view titulo,
                          FormaTablaQDR& registro, QWidget* padre);
    /// Puts the grid above its buttons. `antes`: what stands beside the grid, ahead of it for the Tab key
    /// too.
    void Dispone(forms::Partes antes = {});

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
    checks::Franja* franja;
};

}  // namespace results
