// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgTablasPDRs.h"

namespace rainfall {

/// The editor of the P-D-R tables, opened from the storm dialog whose record it is handed.
class dlgTablasPDRs_ventana : public FormaDeTabla_ventana {
  public:
    dlgTablasPDRs_ventana(forms::Entorno& alrededor, dlgTablasPDRs& registro, dlgPp& tormenta,
                          QWidget* padre = nullptr);

  private:
    void AbreForma() override { rainfall::Abre(f, pp, entorno.s); }
    void Cancela() override { CancelButton(f); }
    bool SinAplicar() override { return rainfall::SinAplicar(f, entorno.s); }
    QLayout* Datos();
    QWidget* Notas();

    dlgTablasPDRs& f;
    dlgPp& pp;
};

}  // namespace rainfall
