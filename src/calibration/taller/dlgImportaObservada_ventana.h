// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calibration/taller/dlgImportaObservada.h"
#include "forms/Formulario_ventana.h"

namespace forms {
class Lamina;
class TablaCuadro;
}  // namespace forms

namespace calibration {

/// Form that shows the values of a text before the observation in hand takes them.
class dlgImportaObservada_ventana : public forms::Formulario {
  public:
    dlgImportaObservada_ventana(forms::Entorno& alrededor, dlgAjuste& ajuste, QWidget* padre);

    /// Shows what a file that the user chooses has, or a text, until it is taken or not. Run inside an event.
    void AbreArchivo();
    void AbreTexto(std::string texto);
    using forms::Formulario::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    QLayout* Datos();
    forms::TablaCuadro* Tabla(forms::Cuadro& cuadro, std::string_view control, std::string_view titulo);
    void Ejecuta();

    dlgAjuste& ajuste;
    dlgImportaObservada f{};
    forms::Lamina* grafico = nullptr;
};

}  // namespace calibration
