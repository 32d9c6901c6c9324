// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "empirical/dlgEmpiricas.h"
#include "forms/Formulario_ventana.h"

namespace empirical {

/// Window of the calculator.
class dlgEmpiricas_ventana : public forms::Ventana {
  public:
    dlgEmpiricas_ventana(forms::Entorno& alrededor, dlgEmpiricas& registro, QWidget* padre = nullptr);

    /// Opens the window with its first values and brings it to the front.
    void Abre();

  protected:
    void AlCerrar() override;

  private:
    QGroupBox* MarcoDe(std::string_view control, const std::vector<forms::Partes>& filas,
                       std::initializer_list<int> columnas);
    forms::Partes RenglonDe(std::size_t cual);
    QGroupBox* DatosTc();
    QGroupBox* ResultadosQp();
    QGroupBox* ResultadosTc();

    dlgEmpiricas& f;
    QLineEdit* txtSup = nullptr;
};

}  // namespace empirical
