// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "calibration/Calibrado.h"
#include "study/Ajuste.h"
#include "study/Avance.h"

// The set of values by which the runs come closest to what was observed, and how sure it is.
namespace calibration {

/// How far a search has come.
struct VistaDeCalibracion {
    std::size_t hechas = 0, total = 0;
    std::vector<std::pair<std::size_t, double>> mejoras{};  ///< run and score, each time it got better
    std::vector<double> mejor{};                            ///< values
};

/// What keeps a task from being done, a sentence each; empty: it can be.
std::vector<std::string> ReparosDe(const PedidoDeCalibracion& pedido);

/// Looks for the best set. `avance` is asked ahead of each run, on any thread, one at a time; where it gives
/// up, the best so far is the result; no runs at all: no result. `mira` is told likewise of each better set.
/// The bits don't depend on the threads. The task has to be free of `ReparosDe`.
std::optional<Calibrado> Calibra(const PedidoDeCalibracion& pedido, const study::Avance& avance = {},
                                 const std::function<void(const VistaDeCalibracion&)>& mira = {});

/// What the study keeps of a result.
study::Calibracion ParaElEstudio(const PedidoDeCalibracion& pedido, const Calibrado& calibrado,
                                 std::string fecha);

}  // namespace calibration
