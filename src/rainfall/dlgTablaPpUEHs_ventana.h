// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "rainfall/Piezas_ventana.h"
#include "rainfall/dlgTablaPpUEHs.h"

class QLayout;

namespace rainfall {

/// The table of rain per UEH, opened from the storm dialog whose record it is handed.
class dlgTablaPpUEHs_ventana : public forms::Formulario {
  public:
    dlgTablaPpUEHs_ventana(forms::Entorno& alrededor, dlgTablaPpUEHs& registro, dlgPp& tormenta,
                           QWidget* padre = nullptr);

    /// Opens the form and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where the
    /// program was ended meanwhile.
    void Abre();
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    // Each makes a part of the form, with its events.
    QLayout* Datos();
    QLayout* Botones();

    dlgTablaPpUEHs& f;
    dlgPp& pp;
    Piezas piezas{*this, LeyendasDlgTablaPpUEHs};
    QLineEdit *txtDPpUEHs = nullptr, *txtRPpUEHs = nullptr;
    forms::TablaGrilla* tabla = nullptr;
    forms::Lamina* lamina = nullptr;
};

}  // namespace rainfall
