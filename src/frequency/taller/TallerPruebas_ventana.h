// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frequency/taller/PaginaDeTaller_ventana.h"
#include "frequency/taller/TallerPruebas.h"

namespace forms {
class TablaCuadro;
}

namespace frequency {

/// Second step: the tests of the sample.
class TallerPruebas_ventana : public PaginaDeTaller {
  public:
    TallerPruebas_ventana(forms::Entorno& alrededor, dlgTaller& taller);

    [[nodiscard]] std::string Falta() const override { return FaltanMaximos(f); }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return forms::ALaVista(m.tblPruebas); }
    forms::Lamina& Grafico() override { return *grafico; }
    void Muestra() override;

  protected:
    void Toma() override { frequency::Toma(m, f); }

  private:
    QWidget* Detalle();

    TallerPruebas m{};
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
};

}  // namespace frequency
