// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <functional>
#include <vector>

#include "checks/dlgRevisar.h"
#include "forms/Formulario_ventana.h"

namespace forms {
class TablaCuadro;
}

namespace checks {

/// Window of the check before a run. It stands beside the others and keeps up with what they change: while it
/// is on show, another project, network, storm or step is checked once it has settled, and so is whatever the
/// files have become when the user comes back to it.
class dlgRevisar_ventana : public forms::Ventana {
  public:
    dlgRevisar_ventana(forms::Entorno& alrededor, dlgRevisar& registro, QWidget* padre = nullptr);

    /// Checks everything and comes to the front. Runs inside an event.
    void Abre();

    // What stands above this room.
    /// Components that the editor holds unsaved; nullptr: none.
    std::function<const model::Colecciones*()> DibujoSinGuardar = [] { return nullptr; };
    /// Goes to where a finding can be changed.
    std::function<void(const Hallazgo&)> Va = [](const Hallazgo&) {};
    /// Does mends in the drawing, with the editor opened where it isn't, and comes back. Returns how many.
    std::function<int(const std::vector<Hallazgo>&)> Corrige = [](const std::vector<Hallazgo>&) { return 0; };
    /// Opens a table with its rows in order, to be applied by the user.
    std::function<void(const Hallazgo&)> Ordena = [](const Hallazgo&) {};

  protected:
    void AlCerrar() override;

  private:
    QLayout* Encabezado();
    QLayout* Botones();
    void Revisa();
    void Sigue();
    void CorrigeElegidas();
    void VaALaActual();
    void Imprime();

    dlgRevisar& f;
    forms::TablaCuadro* tabla = nullptr;
    QTimer latido{};
    std::string ultimo{};  ///< state at the last look
};

}  // namespace checks
