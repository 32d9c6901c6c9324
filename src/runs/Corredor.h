// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "engine/Calcula.h"
#include "model/Red.h"
#include "model/Tormenta.h"
#include "study/Ajuste.h"
#include "study/Avance.h"

// Many runs over one network: members, each with its own values of the parameters that move.
namespace runs {

/// A storm that every member is run through, and in which steps.
struct Lluvia {
    std::string nombre{};  ///< of the event
    model::Tormenta tormenta{};
    model::Pasos pasos{};
};

/// What the members have in common. A plain value; whoever runs it doesn't change it.
struct Modelo {
    model::Red red{};
    model::TablasDeLluvia tablas{};
    std::vector<Lluvia> lluvias{};               ///< one per event
    std::vector<study::Parametro> parametros{};  ///< those that move, in the order of a member's values
};

/// What keeps a model from being run: a sentence for each parameter that moves nothing or twice the same
/// field, each range that isn't one or takes a field beyond what the editor admits and the network has.
/// Empty: it can be run.
std::vector<std::string> ReparosDe(const Modelo& modelo);

/// Runs members one after another. Belongs to one thread; what doesn't change from member to member is kept.
/// The model outlives it.
class Corredor {
  public:
    explicit Corredor(const Modelo& modelo);
    ~Corredor();
    Corredor(const Corredor&) = delete;
    Corredor& operator=(const Corredor&) = delete;

    /// Runs one storm with the values of a member [in the parameters' units], one per parameter. The bits of
    /// engine::Calcula for the same network and storm; a value that is no number is a run that is refused.
    /// What it returns holds until the next run. Throws std::bad_alloc and nothing else.
    const engine::Calculo& Corre(std::span<const double> valores, std::size_t lluvia);

  private:
    struct Estado;
    std::unique_ptr<Estado> estado;
};

/// Why a run can't be used, in a sentence: it was refused, ended early, or a value is no number; empty: it
/// can. A notice alone is no reason.
std::string MotivoDe(const engine::Calculo& calculo);

/// Runs members 0..cuantos-1 on several threads. `haz` is called once for each, on any thread and in any
/// order, with a runner of that thread's own, and leaves what it finds where nobody else writes; `avance` is
/// asked on the caller's thread, ahead of each member that it runs. Returns false where it was given up: no
/// member begins from then on. 0 threads: one per core. Throws what `haz` throws on the caller's thread,
/// std::bad_alloc of any.
bool CorreMiembros(const Modelo& modelo, std::size_t cuantos, int hilos,
                   const std::function<void(std::size_t miembro, Corredor& corredor)>& haz,
                   const study::Avance& avance = {});

}  // namespace runs
