// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "engine/Calcula.h"
#include "model/SiroDeclarado.h"

// The storms of a series on several threads, with the results of one after another.
namespace engine {

/// Runs the storms `numeros` of the series, but for the last of them, on `hilos` threads, and brings their
/// columns of QMax, EscUEH, CoefEscUEH, EscTotal and CoefEscTotal into `s`. Storms don't depend on one
/// another except through the hyetograph's arrays, which are handed on in order beforehand.
///
/// Returns how many storms from the first one on stand as a run one after another leaves them: the first that
/// has something to show or ask stops the rest. `s` then holds the state in which that storm begins, as
/// far as a storm can tell. `avisa` is called on this thread for each storm that it begins, `mira` as
/// CorreSeriePDR tells.
std::size_t CorreTormentasSinAvisos(model::Siro& s, const std::vector<int>& numeros, int hilos,
                                    const std::function<void(int numero)>& avisa, const MiraTormenta& mira);

}  // namespace engine
