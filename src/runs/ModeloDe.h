// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/SiroDeclarado.h"
#include "runs/Corredor.h"
#include "study/Ajuste.h"

namespace runs {

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
/// The storm in hand is taken as a run takes it, a series' as one typed in. Of a recorded one the file, and
/// of a personal distribution the tables that projects share, are read from the disk; the rest is a function
/// of what is in memory. Steps of a recorded storm are its file's; an output step that doesn't divide the
/// model step becomes the next smaller one that does.
ModeloDeProyecto ModeloDe(const model::Siro& s, const study::Ajuste& ajuste);

/// Place of the storm of an event, by its name; of the empty name the first. None: modelo.lluvias.size().
std::size_t LluviaDe(const Modelo& modelo, const std::string& evento);

}  // namespace runs
