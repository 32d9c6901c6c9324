// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgTablaPpUEHs.h"

class QLayout;

namespace rainfall {

/// The table of rain per UEH, opened from the storm dialog whose record it is handed.
class dlgTablaPpUEHs_ventana : public FormaDeTabla_ventana {
  public:
    dlgTablaPpUEHs_ventana(forms::Entorno& alrededor, dlgTablaPpUEHs& registro, dlgPp& tormenta,
                           QWidget* padre = nullptr);

    void Muestra() override;

  private:
    bool AbreForma() override;
    void Cancela() override;
    bool SinAplicar() override { return rainfall::SinAplicar(f); }
    // Each makes a part of the form, with its events.
    QLayout* Datos();
    QLayout* Botones();

    dlgTablaPpUEHs& f;
    dlgPp& pp;
    QLineEdit *txtDPpUEHs = nullptr, *txtRPpUEHs = nullptr;
};

}  // namespace rainfall
