// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frequency/taller/dlgTaller.h"
#include "study/Pasos_ventana.h"

namespace frequency {

/// Window of the rain workshop: the steps along its top, below them station and series in hand.
class dlgTaller_ventana : public study::Pasos_ventana {
  public:
    dlgTaller_ventana(forms::Entorno& alrededor, dlgTaller& registro, QWidget* padre = nullptr);

  private:
    /// The pages, a line each, in the order of the steps.
    void PonPaginas();

    dlgTaller& f;
};

}  // namespace frequency
