// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/dlgResumen.h"

namespace forms {
class TablaCuadro;
}

namespace results {

/// Window of a run's summary. It stands beside the others.
class dlgResumen_ventana : public forms::Ventana {
  public:
    dlgResumen_ventana(forms::Entorno& alrededor, dlgResumen& registro, QWidget* padre = nullptr);

    /// Shows a run and comes to the front.
    void Abre(Corrida corrida);
    /// Shows a run, the window being open.
    void Toma(Corrida corrida);

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }

    /// Opens the hydrograph of a component. Runs inside an event.
    std::function<void(const std::string& componente)> AbreHidrograma = [](const std::string&) {};
    /// Takes the hydrographs of several components to one chart. Runs inside an event.
    std::function<void(const std::vector<std::string>& componentes)> Compara =
        [](const std::vector<std::string>&) {};

  protected:
    void AlCerrar() override;

  private:
    void PonCorrida(Corrida corrida);
    QLayout* Encabezado();
    QLayout* Botones();
    void PonTabla();
    [[nodiscard]] QVariant Adorno(std::size_t fila, int columna, int papel) const;
    [[nodiscard]] std::vector<std::string> Elegidos() const;
    void AbreElegido();
    void Imprime();

    dlgResumen& f;
    checks::Franja* franja;
    forms::TablaCuadro* tabla;
    std::size_t nroColumnas = 0;  ///< of the table, behind that of the name
};

}  // namespace results
