// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "model/Disco.h"
#include "model/SiroDeclarado.h"
#include "runs/LibroDeCorridas.h"
#include "study/Avance.h"

// A project run on a state of its own: no box opens, no file is written, nothing of the one in hand changes.
namespace runs {

/// What is run, and through what.
struct ProyectoAparte {
    std::string conf{};        ///< path of its configuration file, absolute
    model::Disco disco{};      ///< that it is read from
    std::string dirTrabajo{};  ///< of the tables of rain that all projects share
    std::string cuando{};      ///< date and time that the run bears
    /// Sets storm and steps once the project is open; of a series its storms too.
    std::function<void(model::Siro& s)> ponTormenta{};
    int hilos = 0;  ///< of a series; 0: one per core
};

/// A run, and what there is to be said of it: why it isn't there, or didn't come to its end; what readers
/// found wrong.
struct CorridaAparte {
    std::shared_ptr<const checks::UltimaCorrida> corrida{};
    std::vector<std::string> reparos{};
};

/// Opens a project and runs its storm, or its series. Nothing where it was given up.
CorridaAparte CorreAparte(const ProyectoAparte& proyecto, const study::Avance& avance = {});

/// Runs again what the ledger of a project keeps under a name, or in a file: of several of a name the newest.
CorridaAparte CorreGuardada(const Libro& libro, const std::string& nombre);

}  // namespace runs
