// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calibration/Puntajes.h"
#include "engine/Calcula.h"
#include "model/Red.h"
#include "model/Tormenta.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

// Runs held against what was observed.
namespace calibration {

/// Whether a network has a component of that name.
bool EstaEnRed(const model::Red& red, std::string_view nombre);

/// The outflow of a component of a run, an empty name being the first outfall; empty: there is none.
SerieSimulada SalidaDe(const engine::Calculo& calculo, std::string_view componente, double paso);

/// An observation with its values in m3/s, by its rating curve where those are levels.
study::Observacion EnCaudal(study::Observacion observacion);

/// A run's flows at the component of an observation in m3/s, at its times; nothing where the run has no such
/// component.
Emparejados ParesDe(const engine::Calculo& calculo, const model::Pasos& pasos,
                    const study::Observacion& observacion);

/// What a set of values costs, and why it can't be said.
struct Fallo {
    double costo = 0;      ///< 0 at best; infinite where there is none
    std::string motivo{};  ///< of a run that can't be used, a sentence
};

/// The mean of the losses of the events with the role "calibra", by their weights, each the mean of those of
/// its observations by theirs. Event i is of storm i of the model, its observations in m3/s.
Fallo CostoDe(const Puntaje& puntaje, const runs::Modelo& modelo, std::span<const study::Evento> eventos,
              std::span<const double> valores, runs::Corredor& corredor);

/// The score that a cost stands for: the mean score where more of it is better, else the cost.
double PuntajeDeCosto(const Puntaje& puntaje, double costo);

/// What keeps events from being fitted, a sentence each: no event to fit by, an observation without values or
/// of a component that there isn't.
std::vector<std::string> ReparosDeEventos(const runs::Modelo& modelo, std::span<const study::Evento> eventos);

}  // namespace calibration
