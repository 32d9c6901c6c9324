// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include "forms/Formulario_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "forms/Lista_ventana.h"
#include "rainfall/Piezas_ventana.h"
#include "rainfall/dlgImportaTormenta.h"
#include "rainfall/dlgPpReal.h"

class QLayout;

namespace rainfall {

/// The editor of recorded storms, opened from the storm dialog whose record it is handed.
class dlgPpReal_ventana : public forms::Formulario {
  public:
    dlgPpReal_ventana(forms::Entorno& alrededor, dlgPpReal& registro, dlgPp& tormenta,
                      QWidget* padre = nullptr);

    /// Opens the form and shows it until it is closed. Runs inside an event. Throws FinDelPrograma where the
    /// program was ended meanwhile.
    void Abre();
    void Muestra() override;

    std::function<void(const PedidoHietograma&)> AbreHietograma = [](const PedidoHietograma&) {};

  protected:
    void AlCerrar() override;

  private:
    // Each makes a part of the form, with its events.
    QLayout* Archivos();
    QLayout* Datos();
    QLayout* Botones();
    void Importa();

    dlgPpReal& f;
    dlgPp& pp;
    Piezas piezas{*this, LeyendasDlgPpReal};
    forms::ListaParaElegir* FilePpReal = nullptr;
    QLabel* lblMiFilePpReal = nullptr;
    QPushButton* cmdImporta = nullptr;
    QLineEdit *txtNotas = nullptr, *txtDateI = nullptr, *txtTimeI = nullptr, *txtDateF = nullptr,
              *txtTimeF = nullptr, *txtNroPpReal = nullptr;
    QComboBox* cmbPasot = nullptr;
    std::array<QRadioButton*, 2> optNroPpReal{};
    forms::TablaGrilla* tabla = nullptr;
    forms::Lamina* lamina = nullptr;
};

}  // namespace rainfall
