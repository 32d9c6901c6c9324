// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/taller/dlgAjuste.h"
#include "study/Pasos_ventana.h"

namespace calibration {

/// Window of the fitting workshop: the steps along its top, below them event and observation in hand.
class dlgAjuste_ventana : public study::Pasos_ventana {
  public:
    dlgAjuste_ventana(forms::Entorno& alrededor, dlgAjuste& registro, QWidget* padre = nullptr);

    /// Comes to the front, on the project as its files have it by now.
    void Abre();

  private:
    /// The pages, a line each, in the order of the steps.
    void PonPaginas();

    dlgAjuste& f;
};

}  // namespace calibration
