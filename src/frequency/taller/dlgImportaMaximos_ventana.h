// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <memory>

#include "forms/Formulario_ventana.h"
#include "frequency/taller/dlgImportaMaximos.h"
#include "study/Tarea.h"

namespace forms {
class Lamina;
class TablaCuadro;
}  // namespace forms

namespace frequency {

/// Form that shows the maxima of a file before the station in hand takes them. It is read on a thread of its
/// own.
class dlgImportaMaximos_ventana : public forms::Formulario {
  public:
    dlgImportaMaximos_ventana(forms::Entorno& alrededor, dlgTaller& taller, QWidget* padre);
    ~dlgImportaMaximos_ventana() override;

    /// Lets the user choose a file and shows what it has until it is taken or not. Runs inside an event.
    void Abre();
    using forms::Formulario::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    QLayout* Datos();
    QLayout* Botones();
    void Lee();
    void Mira();

    dlgTaller& taller;
    dlgImportaMaximos f{};
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
    QTimer latido{};
    std::unique_ptr<study::Tarea<Importacion>> lectura;
};

}  // namespace frequency
