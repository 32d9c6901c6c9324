// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Cuadro_ventana.h"
#include "frequency/taller/PaginaDeTaller_ventana.h"
#include "frequency/taller/TallerTormenta.h"

namespace frequency {

/// Last step: the storm, its hyetograph as the pattern has it and as it runs, its way into the model.
class TallerTormenta_ventana : public PaginaDeTaller {
  public:
    TallerTormenta_ventana(forms::Entorno& alrededor, dlgTaller& taller);

    [[nodiscard]] std::string Falta() const override { return {}; }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeTormenta(m, f); }
    forms::Lamina& Grafico() override { return *grafico; }
    /// Storms of the project may have come and gone.
    void AlEntrar() override { Toma(); }
    void Muestra() override;

  protected:
    void Toma() override { frequency::Toma(m, f, entorno.s); }

  private:
    QWidget* Elecciones();
    QLayout* DeLaTormenta();
    QLayout* AlModelo();
    QWidget* Derecha();
    QLineEdit* CampoDeNumero(std::string_view control, std::string& texto);
    /// A row of the storm's that shows with some patterns only.
    void SoloCon(const forms::Partes& renglon, bool (*vale)(const Patron&));
    QPushButton* Escribe(std::string_view control, void (*rutina)(TallerTormenta&, dlgTaller&, model::Siro&));

    TallerTormenta m = NuevaTallerTormenta();
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
};

}  // namespace frequency
