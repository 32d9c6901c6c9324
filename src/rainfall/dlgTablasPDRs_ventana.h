// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "rainfall/Piezas_ventana.h"
#include "rainfall/dlgTablasPDRs.h"

class QLayout;

namespace rainfall {

/// The editor of the P-D-R tables, opened from the storm dialog whose record it is handed.
class dlgTablasPDRs_ventana : public forms::Formulario {
  public:
    dlgTablasPDRs_ventana(forms::Entorno& alrededor, dlgTablasPDRs& registro, dlgPp& tormenta,
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
    QWidget* Notas();
    QLayout* Botones();

    dlgTablasPDRs& f;
    dlgPp& pp;
    Piezas piezas{*this, LeyendasDlgTablasPDRs};
    QComboBox* cmbNroTablaPDRs = nullptr;
    QLineEdit *txtNroPDRs = nullptr, *txtNotas = nullptr;
    QLabel *lblNotas = nullptr, *rotuloNotas = nullptr, *rotuloLblNotas = nullptr;
    QPushButton* cmdBorra = nullptr;
    forms::TablaGrilla* tabla = nullptr;
    forms::Lamina* lamina = nullptr;
};

}  // namespace rainfall
