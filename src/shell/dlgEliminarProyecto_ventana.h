// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Formulario_ventana.h"
#include "model/VidaProyecto.h"

class QLabel;

namespace forms {
class ListaParaElegir;
}

namespace shell {

/// Choice of the project whose files are to be deleted.
class dlgEliminarProyecto_ventana : public forms::Formulario {
  public:
    dlgEliminarProyecto_ventana(forms::Entorno& alrededor, model::dlgEliminarProyecto& reglas,
                                QWidget* padre = nullptr);
    /// Shows the dialog until it is closed.
    void Abre();
    void Muestra() override;

  private:
    model::dlgEliminarProyecto& f;
    QLabel* lblDirProyecto;
    forms::ListaParaElegir* filProyectoEliminar;
    QLabel* lblProyectoAEliminar;
    QLabel* lblTambien;
};

}  // namespace shell
