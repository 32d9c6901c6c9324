// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "calibration/taller/AjusteCalibracion.h"
#include "calibration/taller/PaginaDeAjuste_ventana.h"
#include "forms/Cuadro_ventana.h"
#include "study/Vigilada_ventana.h"

class QTabWidget;

namespace calibration {

/// Fourth step: the search. It runs beside the window, with progress and its best set so far on the charts,
/// also while another step is on show; Esc and Cancel end it and keep the best.
class AjusteCalibracion_ventana : public PaginaDeAjuste {
  public:
    AjusteCalibracion_ventana(forms::Entorno& alrededor, dlgAjuste& taller);

    [[nodiscard]] std::string Falta() const override { return FaltaCalibracion(f); }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeCalibracion(m); }
    forms::Lamina& Grafico() override { return *grafico; }
    bool AlEscapar() override;
    void Muestra() override;

  protected:
    void Toma() override { calibration::Toma(m, f); }

  private:
    QWidget* Elecciones();
    QLayout* Ordenes();
    QWidget* Tablas();
    QWidget* Derecha();
    QLineEdit* CampoDeNumero(std::string_view control, std::string& texto);
    QComboBox* Lista(std::string_view control, const std::vector<std::string>& items, const int& cual,
                     std::function<void(int)> elige);
    void Busca();
    void Guarda();
    void Mira(study::Vigilada<EntregaDeCalibracion>::Mirada& mirada);

    AjusteCalibracion m = NuevaAjusteCalibracion();
    QTabWidget* fichas = nullptr;
    forms::Lamina* grafico = nullptr;
    CorridasHechas hechas{};  ///< what is under way, on its way into the ledger
    double desde = 0;         ///< since when, by the host's clock [s]
    study::Vigilada<EntregaDeCalibracion> corrida{[this](auto& mirada) { Mira(mirada); }};
};

}  // namespace calibration
