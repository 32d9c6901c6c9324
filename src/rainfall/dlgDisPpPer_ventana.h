// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgDisPpPer.h"

namespace rainfall {

/// The editor of personal temporal distributions, opened from the storm dialog whose record it is handed.
class dlgDisPpPer_ventana : public FormaDeTabla_ventana {
  public:
    dlgDisPpPer_ventana(forms::Entorno& alrededor, dlgDisPpPer& registro, dlgPp& tormenta,
                        QWidget* padre = nullptr);

  private:
    void AbreForma() override { rainfall::Abre(f, pp, entorno.s); }
    void Cancela() override { CancelButton(f); }
    bool SinAplicar() override { return rainfall::SinAplicar(f, entorno.s); }
    QLayout* Datos();
    QWidget* Validez();

    dlgDisPpPer& f;
    dlgPp& pp;
};

}  // namespace rainfall
