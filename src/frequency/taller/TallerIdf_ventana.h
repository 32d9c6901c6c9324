// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/Cuadro_ventana.h"
#include "frequency/taller/PaginaDeTaller_ventana.h"
#include "frequency/taller/TallerIdf.h"

namespace frequency {

/// Fourth step: curves of intensity.
class TallerIdf_ventana : public PaginaDeTaller {
  public:
    TallerIdf_ventana(forms::Entorno& alrededor, dlgTaller& taller);

    [[nodiscard]] std::string Falta() const override { return {}; }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeCurvas(m, f); }
    forms::Lamina& Grafico() override { return *grafico; }
    void Muestra() override;

  protected:
    void Toma() override { frequency::Toma(m, f); }

  private:
    using Eleccion = void (*)(const TallerIdf& m, dlgTaller& f);
    using Vale = bool (*)(const dlgTaller& f);

    QWidget* Elecciones();
    QWidget* Derecha();
    /// A row of controls that is there where the study asks for it.
    forms::Partes Lista(std::string_view control, ListaDeTaller& lista, Eleccion elige, Vale vale = nullptr);
    forms::Partes Numero(std::string_view control, std::string& texto, std::string_view unidad, Vale vale);
    forms::Partes Coeficiente(std::size_t i);
    QLabel* Formula(std::string_view control, const std::string& texto, Vale vale = nullptr);
    QWidget* Grilla(std::string_view control, forms::Grilla& grilla, void (*asienta)(TallerIdf&, dlgTaller&),
                    Vale vale);

    TallerIdf m = NuevaTallerIdf();
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
};

}  // namespace frequency
