// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frequency/taller/PaginaDeTaller_ventana.h"
#include "frequency/taller/TallerMaximos.h"

namespace frequency {

/// First step: stations and their maxima.
class TallerMaximos_ventana : public PaginaDeTaller {
  public:
    TallerMaximos_ventana(forms::Entorno& alrededor, dlgTaller& taller);

    [[nodiscard]] std::string Falta() const override { return {}; }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeMaximos(f); }
    forms::Lamina& Grafico() override { return *grafico; }
    void Muestra() override;

  protected:
    void Toma() override { frequency::Toma(m, f); }

  private:
    QWidget* Datos();
    QWidget* Derecha();
    void Importa();
    QLineEdit* CampoDeTexto(std::string_view control, std::string& texto);
    QLineEdit* CampoDeNumero(std::string_view control, std::string& texto);

    TallerMaximos m = NuevaTallerMaximos();
    forms::Lamina* grafico = nullptr;
};

}  // namespace frequency
