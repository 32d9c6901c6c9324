// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calibration/taller/AjusteIncertidumbre.h"
#include "calibration/taller/PaginaDeAjuste_ventana.h"
#include "forms/Cuadro_ventana.h"
#include "study/Vigilada_ventana.h"

namespace calibration {

/// Fifth step: how sure the results are. Members are run beside the window, with progress, also while another
/// step is on show; Esc and Cancel leave them at once.
class AjusteIncertidumbre_ventana : public PaginaDeAjuste {
  public:
    AjusteIncertidumbre_ventana(forms::Entorno& alrededor, dlgAjuste& taller);

    [[nodiscard]] std::string Falta() const override { return FaltaIncertidumbre(f); }
    [[nodiscard]] forms::Planilla ParaImprimir() const override { return PlanillaDeIncertidumbre(m); }
    forms::Lamina& Grafico() override { return *grafico; }
    bool AlEscapar() override;
    void Muestra() override;

  protected:
    void Toma() override { calibration::Toma(m, f); }

  private:
    QWidget* Elecciones();
    QLayout* Ordenes();
    QWidget* Derecha();
    QLineEdit* CampoDeNumero(std::string_view control, std::string& texto);
    QComboBox* Lista(std::string_view control, const std::vector<std::string>& items, const int& cual,
                     std::function<void(int)> elige);
    void Corre();
    void Guarda();
    void Mira(study::Vigilada<Conjunto>::Mirada& mirada);
    void Deja();

    AjusteIncertidumbre m = NuevaAjusteIncertidumbre();
    forms::TablaCuadro* tabla = nullptr;
    forms::Lamina* grafico = nullptr;
    std::shared_ptr<const PedidoDeIncertidumbre> enCurso{};
    CorridasHechas hechas{};  ///< what is under way, on its way into the ledger
    double desde = 0;         ///< since when, by the host's clock [s]
    study::Vigilada<Conjunto> corrida{[this](auto& mirada) { Mira(mirada); }};
};

}  // namespace calibration
