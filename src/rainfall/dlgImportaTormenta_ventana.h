// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgImportaTormenta.h"

namespace rainfall {

/// Preview of a record that is about to become a storm. The record has been opened already.
class dlgImportaTormenta_ventana : public FormaDeTabla_ventana {
  public:
    dlgImportaTormenta_ventana(forms::Entorno& alrededor, dlgImportaTormenta& registro,
                               QWidget* padre = nullptr);

  private:
    void AbreForma() override {}
    void Cancela() override { CancelButton(f); }
    QLayout* Datos();
    QWidget* MarcoDeDudosos();

    dlgImportaTormenta& f;
};

}  // namespace rainfall
