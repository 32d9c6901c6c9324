// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "checks/Franja_ventana.h"
#include "forms/Entorno_ventana.h"
#include "results/mapa/MapaDeCorrida_ventana.h"
#include "shell/JuicioDeCorrida_ventana.h"

namespace shell {

/// The map of the last run: where its run and its image come from, and where its clicks go.
class MapaDeEstudio {
  public:
    MapaDeEstudio(forms::Entorno& alrededor, const JuicioDeCorrida& elJuicio);

    /// Shows the last run; without one tells why not. Runs inside an event.
    void Abre();

    /// Says when what is on show is of an earlier run.
    checks::Franja& Franja() { return ventana.Franja(); }

    /// The project's image, and where it lies; none where it can't be read.
    results::FondoDeMapa Fondo();

    /// Opens the hydrograph of a component of the results in memory.
    std::function<void(const std::string& componente)> AbreHidrograma = [](const std::string&) {};

  private:
    void Muestra(const checks::UltimaCorrida& u);
    void PideHidrograma(const std::string& componente);

    forms::Entorno& entorno;
    const JuicioDeCorrida& juicio;
    results::MapaDeCorrida mapa{};
    results::MapaDeCorrida_ventana ventana;
};

}  // namespace shell
