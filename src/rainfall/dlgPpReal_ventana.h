// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include "forms/Lista_ventana.h"
#include "rainfall/FormaDeTabla_ventana.h"
#include "rainfall/dlgImportaTormenta.h"
#include "rainfall/dlgPpReal.h"

class QLayout;

namespace rainfall {

/// The editor of recorded storms, opened from the storm dialog whose record it is handed.
class dlgPpReal_ventana : public FormaDeTabla_ventana {
  public:
    dlgPpReal_ventana(forms::Entorno& alrededor, dlgPpReal& registro, dlgPp& tormenta,
                      QWidget* padre = nullptr);

    void Muestra() override;

    std::function<void(const PedidoHietograma&)> AbreHietograma = [](const PedidoHietograma&) {};

  private:
    bool AbreForma() override;
    void Cancela() override;
    bool SinAplicar() override { return rainfall::SinAplicar(f); }
    // Each makes a part of the form, with its events.
    QLayout* Archivos();
    QLayout* Datos();
    QLayout* Botones();
    void Importa();

    dlgPpReal& f;
    dlgPp& pp;
    forms::ListaParaElegir* FilePpReal = nullptr;
    QLabel* lblMiFilePpReal = nullptr;
    QPushButton* cmdImporta = nullptr;
    QLineEdit *txtNotas = nullptr, *txtDateI = nullptr, *txtTimeI = nullptr, *txtDateF = nullptr,
              *txtTimeF = nullptr, *txtNroPpReal = nullptr;
    QComboBox* cmbPasot = nullptr;
    std::array<QRadioButton*, 2> optNroPpReal{};
};

}  // namespace rainfall
