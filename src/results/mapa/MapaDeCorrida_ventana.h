// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <functional>
#include <string>

#include "checks/Franja_ventana.h"
#include "forms/Formulario_ventana.h"
#include "results/mapa/LienzoDeMapa_ventana.h"

class QMenu;
class QSlider;

namespace results {

/// Window of the map of a run.
class MapaDeCorrida_ventana : public forms::Ventana {
  public:
    MapaDeCorrida_ventana(forms::Entorno& alrededor, MapaDeCorrida& registro, QWidget* padre = nullptr);

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return *franja; }
    /// Opens the hydrograph of a component, by its name.
    std::function<void(const std::string& nombre)> AbreHidrograma = [](const std::string&) {};

    /// Shows a run and brings the window to the front; without a step of it the window closes.
    void Abre(RedDeCorrida red, const forms::Procedencia& procedencia, FondoDeMapa fondo);
    using forms::Ventana::Muestra;
    void Muestra() override;

  protected:
    void AlCerrar() override;
    void keyPressEvent(QKeyEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

  private:
    QLayout* Tiempo();
    QLayout* Botones();
    void MuestraTiempo();
    void Late();
    void Elige(int componente);
    bool Teclea(const QKeyEvent& evento);
    void AbreMenu(QPoint donde);
    void PonSalidas(QMenu& menu);
    void Guarda(std::string_view tipo);
    void Copia();

    MapaDeCorrida& f;
    checks::Franja* franja;
    LienzoDeMapa* lienzo;
    QSlider* sldTiempo = nullptr;
    QLabel* lblTiempo = nullptr;
    QPushButton* reproducir = nullptr;
    QTimer latido{};
    QElapsedTimer reloj{};
};

}  // namespace results
