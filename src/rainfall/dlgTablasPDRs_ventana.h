// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgTablasPDRs.h"

class QLayout;

namespace rainfall {

/// The editor of the P-D-R tables, opened from the storm dialog whose record it is handed.
class dlgTablasPDRs_ventana : public FormaDeTabla_ventana {
  public:
    dlgTablasPDRs_ventana(forms::Entorno& alrededor, dlgTablasPDRs& registro, dlgPp& tormenta,
                          QWidget* padre = nullptr);

    void Muestra() override;

  private:
    bool AbreForma() override;
    void Cancela() override;
    bool SinAplicar() override { return rainfall::SinAplicar(f, entorno.s); }
    // Each makes a part of the form, with its events.
    QLayout* Datos();
    QWidget* Notas();
    QLayout* Botones();

    dlgTablasPDRs& f;
    dlgPp& pp;
    QComboBox* cmbNroTablaPDRs = nullptr;
    QLineEdit *txtNroPDRs = nullptr, *txtNotas = nullptr;
    QLabel *lblNotas = nullptr, *rotuloNotas = nullptr, *rotuloLblNotas = nullptr;
    QPushButton* cmdBorra = nullptr;
};

}  // namespace rainfall
