// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "model/SiroDeclarado.h"
#include "model/Tormenta.h"
#include "runs/LibroDeCorridas.h"
#include "runs/Testigo.h"
#include "study/Ajuste.h"
#include "study/Ficha.h"
#include "study/Paquete.h"

// A run on its way into the ledger, and back.
namespace runs {

/// What a run was made of beside its network and its rain.
struct Circunstancias {
    std::string dirProyecto{}, proyecto{}, dirTrabajo{};
    std::string quien{};        ///< operator of the configuration
    double segundos = 0;        ///< that it took
    ArchivosLeidos archivos{};  ///< that it read: of them those of the project and of the shared tables count
};

/// A storm or a series as the ledger keeps it.
CorridaPorGuardar PorGuardar(const checks::UltimaCorrida& u, const Circunstancias& c);

/// What was asked of many runs, and what came out.
struct MuchasCorridas {
    std::string clase{};            ///< "conjunto", "ajuste", "sensibilidad"
    study::Ajuste ajuste{};         ///< what was asked, with the values of what was observed
    std::string json{}, resumen{};  ///< what came out, as siro-lote writes it; in a sentence
    std::string enPalabras{};       ///< the storm in hand
    model::Tormenta tormenta{};
    model::Pasos pasos{};
};
CorridaPorGuardar PorGuardar(const MuchasCorridas& m, const Circunstancias& c);

/// The files of a kept run, under the directories `dirProyecto` and `dirTrabajo`, in a disk of their own.
model::Disco DiscoDe(const std::vector<study::Pieza>& piezas, const std::string& dirProyecto,
                     const std::string& dirTrabajo);

/// Makes storm, steps and series of a kept run those in memory. Returns whether the pieces have them.
bool PonLluvia(model::Siro& s, const std::vector<study::Pieza>& piezas);

/// A kept run that was run again.
struct Rehecha {
    std::shared_ptr<const checks::UltimaCorrida> corrida{};  ///< null: it couldn't be, `reparo` says why
    std::shared_ptr<const model::Siro> estado{};  ///< what the run left: network, storm, steps, results, text
    study::Ficha ficha{};
    std::string
        aviso{};  ///< its results aren't those that were kept, a sentence; empty: bit for bit the same
    std::string reparo{};  ///< a sentence
};
/// Runs a kept storm or series again out of its own files. Nothing is read from the disk but the file of the
/// ledger, and nothing is written. Throws std::bad_alloc and nothing else.
Rehecha Rehace(const Libro& libro, const std::string& archivo);

}  // namespace runs
