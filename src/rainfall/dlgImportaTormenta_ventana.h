// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "forms/Grilla_ventana.h"
#include "forms/Lamina_ventana.h"
#include "rainfall/Piezas_ventana.h"
#include "rainfall/dlgImportaTormenta.h"

namespace rainfall {

/// Preview of a record that is about to become a storm. The record has been opened already.
class dlgImportaTormenta_ventana : public forms::Formulario {
  public:
    dlgImportaTormenta_ventana(forms::Entorno& alrededor, dlgImportaTormenta& registro,
                               QWidget* padre = nullptr);

    /// Shows the form until it is closed. Runs inside an event. Throws FinDelPrograma where the program was
    /// ended meanwhile.
    void Abre();
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    dlgImportaTormenta& f;
    Piezas piezas{*this, LeyendasDlgImportaTormenta};
    QGroupBox* MarcoDeDudosos();

    QLabel *lblArchivo = nullptr, *lblRegistro = nullptr, *lblResultado = nullptr;
    QComboBox* cmbPaso = nullptr;
    QPushButton* acepta = nullptr;
    forms::TablaGrilla *tabla = nullptr, *dudosos = nullptr;
    forms::Lamina* lamina = nullptr;
};

}  // namespace rainfall
