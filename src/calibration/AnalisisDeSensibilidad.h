// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "calibration/Medidas.h"
#include "calibration/Sensibilidad.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"
#include "study/Avance.h"

// How much a measure of a project's runs depends on the parameters that move.
namespace calibration {

/// Why runs failed, and how many for that reason.
struct MotivoDeFalla {
    std::string motivo{};  ///< a sentence
    std::size_t veces = 0;
    std::size_t primera = 0;  ///< the first of those runs, from 0
};

struct AnalisisDeSensibilidad {
    study::Sensibilidad pedido{};
    MedidaPuesta medida{};
    std::vector<std::string> parametros{};  ///< by name
    std::vector<std::string> reparos{};     ///< why nothing was run, sentences; the rest is empty then
    std::vector<std::string> notas{};       ///< what has to be known of it, sentences
    std::size_t corridas = 0;
    std::vector<std::vector<double>> filas{};  ///< as the method gives them
    std::vector<MotivoDeFalla> fallas{};       ///< in the order of their first runs
    std::optional<double> actual{};            ///< the measure with all parameters as they are
};

/// Why it can't be analysed, in sentences; empty: it can.
std::vector<std::string> ReparosDeSensibilidad(const runs::Modelo& modelo, const study::Ajuste& ajuste);

/// How many runs it asks for.
std::size_t CorridasDeSensibilidad(std::size_t parametros, const study::Sensibilidad& pedido);

/// Seconds of a run of the storm that is measured, by running it a few times, 50 ms at most or once.
double SegundosPorCorrida(const runs::Modelo& modelo, const study::Ajuste& ajuste);

/// Where a parameter moves, and what it is in the network by now. One that gives several components a common
/// value has their mean.
std::vector<Rango> RangosDe(const runs::Modelo& modelo, std::size_t lluvia);

/// `ajuste.sensibilidad` over the model: the same bits on any number of threads (0: one per core). None where
/// it was given up.
std::optional<AnalisisDeSensibilidad> AnalizaSensibilidad(const runs::Modelo& modelo,
                                                          const study::Ajuste& ajuste, int hilos,
                                                          const study::Avance& avance = {});

/// What it means, in sentences: what the measure depends on most, what has no effect, what failed.
std::vector<std::string> EnPalabras(const AnalisisDeSensibilidad& a);

}  // namespace calibration
