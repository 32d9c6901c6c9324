// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgDisPpPer.h"

class QLayout;

namespace rainfall {

/// The editor of personal temporal distributions, opened from the storm dialog whose record it is handed.
class dlgDisPpPer_ventana : public FormaDeTabla_ventana {
  public:
    dlgDisPpPer_ventana(forms::Entorno& alrededor, dlgDisPpPer& registro, dlgPp& tormenta,
                        QWidget* padre = nullptr);

    void Muestra() override;

  private:
    bool AbreForma() override;
    void Cancela() override;
    bool SinAplicar() override { return rainfall::SinAplicar(f, entorno.s); }
    // Each makes a part of the form, with its events.
    QLayout* Datos();
    QWidget* Validez();
    QLayout* Botones();

    dlgDisPpPer& f;
    dlgPp& pp;
    QComboBox *cmbNroTablaDisPpPer = nullptr, *cmbDurMin = nullptr, *cmbDurMax = nullptr;
    QLineEdit *txtNotas = nullptr, *txtNroPer = nullptr;
};

}  // namespace rainfall
