// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/dlgComparar.h"

class QListWidget;

namespace forms {
class Lamina;
}

namespace results {

/// Window of several hydrographs on one chart. It stands beside the others.
class dlgComparar_ventana : public forms::Ventana {
  public:
    dlgComparar_ventana(forms::Entorno& alrededor, dlgComparar& registro, QWidget* padre = nullptr);

    /// Shows a run and comes to the front.
    void Abre(Corrida corrida);
    /// The same with these components chosen.
    void Compara(Corrida corrida, const std::vector<std::string>& componentes);
    /// Shows a run, the window being open.
    void Toma(Corrida corrida);

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }

  protected:
    void AlCerrar() override;

  private:
    void PonCorrida(Corrida corrida);
    QLayout* Costado();
    QLayout* Botones();
    QListWidget* Lista();
    void MuestraLista();
    void Imprime();

    dlgComparar& f;
    checks::Franja* franja;
    forms::Lamina* Grafico;
    QListWidget* lista = nullptr;
    bool imprimiendo = false;  ///< the chart stands alone
};

}  // namespace results
