// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "forms/Formulario_ventana.h"
#include "runs/dlgCompararCorridas.h"
#include "study/Vigilada_ventana.h"

class QTabWidget;

namespace forms {
class Lamina;
class TablaCuadro;
}  // namespace forms

namespace runs {

/// Window of runs and projects side by side. What has to be run is run beside it, one after another, with
/// progress; Esc and Cancel leave that at once.
class dlgCompararCorridas_ventana : public forms::Ventana {
  public:
    dlgCompararCorridas_ventana(forms::Entorno& alrededor, dlgCompararCorridas& registro,
                                QWidget* padre = nullptr);

    /// Comes to the front. Runs inside an event.
    void Abre();
    /// The same with runs of the project's ledger as the sides, by their files.
    void Compara(const std::vector<Origen>& guardadas);

    /// The run looked over last; none: nothing has been run.
    std::function<std::shared_ptr<const checks::UltimaCorrida>()> Ultima = [] { return nullptr; };

    using forms::Ventana::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    QLayout* Lados();
    QLayout* BotonesDeLados();
    QWidget* PaginaDeTabla(forms::TablaCuadro*& tabla, forms::Cuadro& cuadro, std::string_view control,
                           QWidget* arriba = nullptr);
    QWidget* PaginaDeHidrogramas();
    QWidget* PaginaDeSeries();
    QWidget* Componentes(std::string_view control);
    QLabel* Motivo(std::string_view control, const std::string& motivo, QWidget& grafico);
    QLayout* Botones();
    void PonColumnas();
    void Agrega();
    void Sigue();
    void Mira(study::Vigilada<CorridaAparte>::Mirada& mirada);
    void Deja();
    void Imprime();
    void GuardaLibro();
    [[nodiscard]] bool EnCurso() const { return corrida.EnCurso(); }

    dlgCompararCorridas& f;
    QTabWidget* paginas = nullptr;
    forms::TablaCuadro *parametros = nullptr, *resultados = nullptr, *serie = nullptr;
    forms::Lamina *hidrogramas = nullptr, *abaco = nullptr;
    bool imprimiendo = false;  ///< the chart stands alone
    std::size_t corriendo = 0;
    study::Vigilada<CorridaAparte> corrida{[this](auto& mirada) { Mira(mirada); }};
};

}  // namespace runs
