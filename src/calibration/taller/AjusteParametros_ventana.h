// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/taller/AjusteParametros.h"
#include "calibration/taller/PaginaDeAjuste_ventana.h"

namespace forms {
class TablaCuadro;
}

namespace calibration {

/// Second step: what moves, and how far.
class AjusteParametros_ventana : public PaginaDeAjuste {
  public:
    AjusteParametros_ventana(forms::Entorno& alrededor, dlgAjuste& taller);

    [[nodiscard]] std::string Falta() const override { return FaltaRed(f); }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeParametros(f); }
    forms::Lamina& Grafico() override { return *grafico; }
    void Muestra() override;

  protected:
    void Toma() override { calibration::Toma(m, f); }
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    QWidget* Elecciones();
    QLayout* Ordenes();
    QWidget* Tabla();
    QLineEdit* CampoDeNumero(std::string_view control, std::string& texto);
    /// A row of controls that shows where its distribution asks for it.
    forms::Partes SoloSi(forms::Partes renglon, const bool& vale);
    void Pega();
    /// Something of the one in hand can be changed.
    [[nodiscard]] bool Hay() const { return ParametroEnMano(m, f) != nullptr; }

    AjusteParametros m = NuevaAjusteParametros();
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
    bool mostrando = false;  ///< the cursor follows the record, not the record the cursor
};

}  // namespace calibration
