// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "checks/Verifica.h"
#include "checks/dlgVerificar.h"
#include "forms/Formulario_ventana.h"

class QProgressBar;

namespace forms {
class Lamina;
class TablaCuadro;
}  // namespace forms

namespace checks {

/// Window of the published cases. They run beside it on a thread of their own; Esc and Cancel leave a run at
/// once, with the cases that it has done.
class dlgVerificar_ventana : public forms::Ventana {
  public:
    /// `masFamilias`: cases of the rooms above.
    dlgVerificar_ventana(forms::Entorno& alrededor, dlgVerificar& registro,
                         std::vector<casos::Familia> masFamilias = {}, QWidget* padre = nullptr);
    ~dlgVerificar_ventana() override;

    /// Comes to the front; the first time it runs all cases.
    void Abre();
    using forms::Ventana::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    class Corrida;

    QLayout* Encabezado();
    QWidget* Detalle();
    QLayout* Botones();
    void Corre();
    void Mira();
    void Cancela();
    void ImprimeTabla();

    dlgVerificar& f;
    std::vector<casos::Familia> familias;
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* Grafico = nullptr;
    QTimer latido{};
    std::unique_ptr<Corrida> corrida;
    std::vector<std::unique_ptr<Corrida>> dejadas{};  ///< cancelled, and still at their last case
};

}  // namespace checks
