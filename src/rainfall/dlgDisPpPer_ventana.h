// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "rainfall/Piezas_ventana.h"
#include "rainfall/dlgDisPpPer.h"

class QLayout;

namespace rainfall {

/// The editor of personal temporal distributions, opened from the storm dialog whose record it is handed.
class dlgDisPpPer_ventana : public forms::Formulario {
  public:
    dlgDisPpPer_ventana(forms::Entorno& alrededor, dlgDisPpPer& registro, dlgPp& tormenta,
                        QWidget* padre = nullptr);

    /// Opens the form and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where the
    /// program was ended meanwhile.
    void Abre();
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    // Each makes a part of the form, with its events.
    QLayout* Datos();
    QWidget* Validez();
    QLayout* Botones();

    dlgDisPpPer& f;
    dlgPp& pp;
    Piezas piezas{*this, LeyendasDlgDisPpPer};
    QComboBox *cmbNroTablaDisPpPer = nullptr, *cmbDurMin = nullptr, *cmbDurMax = nullptr;
    QLineEdit *txtNotas = nullptr, *txtNroPer = nullptr;
    forms::TablaGrilla* tabla = nullptr;
    forms::Lamina* lamina = nullptr;
};

}  // namespace rainfall
