// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "frequency/taller/PaginaDeTaller_ventana.h"
#include "frequency/taller/TallerAjustes.h"
#include "study/Vigilada_ventana.h"

class QTabWidget;

namespace forms {
class TablaCuadro;
}

namespace frequency {

/// Third step: the laws. They are fitted on a thread of their own, first without the bootstrap, whose samples
/// follow with progress; Esc and Cancel leave them at once.
class TallerAjustes_ventana : public PaginaDeTaller {
  public:
    TallerAjustes_ventana(forms::Entorno& alrededor, dlgTaller& taller);

    [[nodiscard]] std::string Falta() const override { return FaltanMaximos(f); }
    [[nodiscard]] forms::Planilla ParaImprimir() const override;
    forms::Lamina& Grafico() override { return *grafico; }
    void AlDejar() override { Deja(); }
    bool AlEscapar() override;
    void Muestra() override;

  protected:
    void Toma() override;

  private:
    QLayout* Pedido();
    QLayout* Opciones();
    QLineEdit* Corto(std::string_view control, std::string& texto);
    QLayout* ConAvance();
    QWidget* Tablas();
    QPushButton* ClaveDeLeyes();
    QWidget* Derecha();
    QLayout* Eleccion();
    void Calcula();
    void Mira(study::Vigilada<Analisis>::Mirada& mirada);
    void Deja();

    TallerAjustes m = NuevaTallerAjustes();
    QTabWidget* fichas = nullptr;
    forms::Lamina* grafico = nullptr;
    study::Vigilada<Analisis> corrida{[this](auto& mirada) { Mira(mirada); }};
};

}  // namespace frequency
