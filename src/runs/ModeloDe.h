// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/SiroDeclarado.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

namespace runs {

/// The storm of an event as runs take it.
struct LluviaPuesta {
    Lluvia lluvia{};
    std::string motivo{};  ///< why the event can't be run, a sentence; empty: it can
};

/// The storm in hand as a run takes it, a series' as one typed in; a recorded one of the project's directory,
/// by its blocks and in its own step; or a depth with its duration and distribution. The output step becomes
/// the next smaller one that divides the model step, and the run is long enough for the observations of the
/// event to be reached, up to 30,000 minutes.
LluviaPuesta LluviaDe(const model::Siro& s, const study::Evento& evento);

/// The model of a project, and what keeps it from being run.
struct ModeloDeProyecto {
    Modelo modelo{};
    std::vector<std::size_t>
        eventos{};  ///< of each storm, its event's place in the study; none: it has no event
    std::vector<std::string> reparos{};  ///< sentences; empty: it can be run
};

/// The network in memory, the active parameters, and the storm of each event that isn't "fuera", in steps
/// that reach the last of its observations; of a study without such events the storm in hand alone.
///
/// Recorded storms, and the personal distributions of a storm that is spread by one, are read from the disk;
/// the rest is a function of what is in memory.
ModeloDeProyecto ModeloDe(const model::Siro& s, const study::Ajuste& ajuste);

/// Place of the storm of an event, by its name; of the empty name the first. None: modelo.lluvias.size().
std::size_t LluviaDe(const Modelo& modelo, const std::string& evento);

}  // namespace runs
