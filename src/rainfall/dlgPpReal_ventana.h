// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgImportaTormenta.h"
#include "rainfall/dlgPpReal.h"

namespace rainfall {

/// The editor of recorded storms, opened from the storm dialog whose record it is handed.
class dlgPpReal_ventana : public FormaDeTabla_ventana {
  public:
    dlgPpReal_ventana(forms::Entorno& alrededor, dlgPpReal& registro, dlgPp& tormenta,
                      QWidget* padre = nullptr);

    std::function<void(const PedidoHietograma&)> AbreHietograma = [](const PedidoHietograma&) {};

  private:
    void AbreForma() override { rainfall::Abre(f, pp, entorno.s); }
    void Cancela() override { CancelButton(f); }
    bool SinAplicar() override { return rainfall::SinAplicar(f); }
    QLayout* Archivos();
    QLayout* Datos();
    void Importa();

    dlgPpReal& f;
    dlgPp& pp;
};

}  // namespace rainfall
