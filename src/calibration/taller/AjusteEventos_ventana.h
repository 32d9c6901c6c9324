// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "calibration/taller/AjusteEventos.h"
#include "calibration/taller/PaginaDeAjuste_ventana.h"

namespace forms {
class TablaCuadro;
}

namespace calibration {

/// First step: events and what was observed of them, beside the run.
class AjusteEventos_ventana : public PaginaDeAjuste {
  public:
    AjusteEventos_ventana(forms::Entorno& alrededor, dlgAjuste& ajuste);

    [[nodiscard]] std::string Falta() const override { return {}; }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeEventos(m, f); }
    forms::Lamina& Grafico() override { return *grafico; }
    void Muestra() override;

  protected:
    void Toma() override { calibration::Toma(m, f); }

  private:
    QWidget* Elecciones();
    QLayout* Evento();
    std::vector<forms::Partes> Lluvia();
    QLayout* Observacion();
    QWidget* Tablas();
    QWidget* Derecha();
    forms::TablaGrilla* TablaDe(forms::Grilla& grilla, std::string_view control,
                                void (*asienta)(AjusteEventos&, dlgAjuste&));
    QLineEdit* CampoDe(std::string_view control, std::string& texto);
    void Importa();
    void Pega();
    void Separa();

    AjusteEventos m = NuevaAjusteEventos();
    forms::Lamina* grafico = nullptr;
    forms::TablaCuadro* tablaDePuntajes = nullptr;
};

}  // namespace calibration
