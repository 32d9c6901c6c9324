// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "model/Tormenta.h"
#include "results/dlgChart2.h"

class QSlider;

namespace forms {
class Lamina;
}  // namespace forms

namespace results {

/// Window of the hydrographs. While a slider is dragged each of its values that the runs keep up with is run;
/// of those that come in during a run the newest alone counts.
class dlgChart2_ventana : public forms::Ventana {
  public:
    dlgChart2_ventana(forms::Entorno& alrededor, dlgChart2& registro, QWidget* padre = nullptr);

    /// Opens the window on the results in hand and brings it to the front. Without any it closes itself.
    void Abre();
    using forms::Ventana::Muestra;
    void Muestra() override;
    /// What was observed may have become another.
    void TomaObservado();

    /// A run of a slider is over. `entrada`: the storm as it was before it. `completa`: it went to its end.
    std::function<void(const model::Tormenta& entrada, bool completa)> TrasCorrer = [](const model::Tormenta&,
                                                                                       bool) {};

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }

  protected:
    void AlCerrar() override;

  private:
    /// A slider with its caption, its value and the rule that takes it.
    struct Mando {
        QLabel* rotulo = nullptr;
        QSlider* deslizador = nullptr;
        QLabel* valor = nullptr;
        std::string_view unidad{};
        bool (*mueve)(dlgChart2&, model::Siro&, int) = nullptr;
        std::optional<int> pedido{};  ///< not run yet
    };

    QLayout* Mandos();
    QLayout* Botones();
    QLayout* Observado();
    void PonMando(Mando& mando, std::string_view deslizador, std::string_view rotulo, std::string_view valor);
    void MuestraMando(Mando& mando, const Deslizador& estado, const std::string& rotulo) const;
    void Pide(Mando& mando, int valor);
    void CorrePedidos();
    void Imprime();

    dlgChart2& f;
    forms::Lamina* Grafico;
    checks::Franja* franja;
    Mando Pp{}, Dur{};
    bool programada = false;  ///< a run waits for the events of the moment
    bool corriendo = false;
};

}  // namespace results
