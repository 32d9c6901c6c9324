// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/taller/AjusteSensibilidad.h"
#include "calibration/taller/PaginaDeAjuste_ventana.h"
#include "forms/Cuadro_ventana.h"
#include "study/Vigilada_ventana.h"

namespace calibration {

/// Third step: what a result depends on. Runs are made beside the window, with progress, also while another
/// step is on show; Esc and Cancel leave them at once.
class AjusteSensibilidad_ventana : public PaginaDeAjuste {
  public:
    AjusteSensibilidad_ventana(forms::Entorno& alrededor, dlgAjuste& taller);

    [[nodiscard]] std::string Falta() const override { return FaltaSensibilidad(f); }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeSensibilidad(m); }
    forms::Lamina& Grafico() override { return *grafico; }
    bool AlEscapar() override;
    void Muestra() override;

  protected:
    void Toma() override { calibration::Toma(m, f); }

  private:
    using Vale = bool (*)(const dlgAjuste& f);

    QWidget* Elecciones();
    QLayout* Ordenes();
    QLabel* Ficha(std::string_view control, const std::string& texto);
    forms::Partes Numero(std::string_view control, std::string& texto, Vale vale);
    forms::Partes Lista(std::string_view control, const std::vector<std::string>& items, const int& cual,
                        std::function<void(int)> elige, Vale vale = nullptr);
    /// A row of controls that is there where the study asks for it.
    forms::Partes SoloSi(forms::Partes renglon, Vale vale);
    void Corre();
    void Guarda();
    void Mira(study::Vigilada<AnalisisDeSensibilidad>::Mirada& mirada);
    void Deja();

    AjusteSensibilidad m = NuevaAjusteSensibilidad();
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
    CorridasHechas hechas{};  ///< what is under way, on its way into the ledger
    double desde = 0;         ///< since when, by the host's clock [s]
    study::Vigilada<AnalisisDeSensibilidad> corrida{[this](auto& mirada) { Mira(mirada); }};
};

}  // namespace calibration
