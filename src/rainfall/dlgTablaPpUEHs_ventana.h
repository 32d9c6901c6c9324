// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgTablaPpUEHs.h"

namespace rainfall {

/// The table of rain per UEH, opened from the storm dialog whose record it is handed.
class dlgTablaPpUEHs_ventana : public FormaDeTabla_ventana {
  public:
    dlgTablaPpUEHs_ventana(forms::Entorno& alrededor, dlgTablaPpUEHs& registro, dlgPp& tormenta,
                           QWidget* padre = nullptr);

  private:
    void AbreForma() override { rainfall::Abre(f, entorno.s); }
    void Cancela() override { CancelButton(f); }
    bool SinAplicar() override { return rainfall::SinAplicar(f); }

    dlgTablaPpUEHs& f;
    dlgPp& pp;
};

}  // namespace rainfall
