// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "empirical/dlgEmpiricas.h"
#include "forms/Formulario_ventana.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace empirical {

/// Window of the calculator.
class dlgEmpiricas_ventana : public forms::Ventana {
  public:
    dlgEmpiricas_ventana(forms::Entorno& alrededor, dlgEmpiricas& registro, QWidget* padre = nullptr);

    /// Opens the window with its first values and brings it to the front.
    void Abre();
    void Muestra() override;

  protected:
    void AlCerrar() override;

  private:
    QGroupBox* ConstruyeDatosQp();
    QGroupBox* ConstruyeDatosTc();
    QGroupBox* ConstruyeQp();
    QGroupBox* ConstruyeTc();
    void PonCampo(QGridLayout& rejilla, std::size_t cual);
    void CopiaTodo() const;

    dlgEmpiricas& f;
    std::array<QLineEdit*, CamposEmpiricos.size()> entradas{};
    QLabel* lblSup;
    std::array<QLineEdit*, NroFormulasQp> Qp{};
    std::array<QLabel*, NroFormulasTc> Tc{};
    QPushButton *cmdCopiar, *btnCerrar;
};

}  // namespace empirical
