// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"
#include "model/Tormenta.h"
#include "runs/CorridaGuardada.h"
#include "runs/ModeloDe.h"
#include "runs/Testigo.h"
#include "study/Ajuste.h"

// What ajusta, sensibilidad and conjunto start from.
namespace batch {

/// A project with what is asked of many runs of it.
struct Tarea {
    std::string proyecto{};  ///< its name
    study::Ajuste ajuste{};  ///< with the values of what was observed
    runs::ModeloDeProyecto modelo{};
    // --- what goes into the ledger of runs with it ---
    runs::Testigo testigo{};
    runs::Circunstancias circunstancias{};
    std::string enPalabras{};  ///< the storm in hand
    model::Tormenta tormenta{};
    model::Pasos pasos{};
    /// The events of the model's storms, in their order; none where the storm in hand stands alone.
    [[nodiscard]] std::vector<study::Evento> Eventos() const;
};

/// Opens the project, settles the storm in hand as una does, reads the network, the task, which is the
/// study's own where the options name none, and the project's series of what was observed. Returns whether
/// all that is there and the model can be run; where not, Errores has been told why, a line for each reason.
bool AbreTarea(const Opciones& opciones, const std::string& dirEjecutable, const Salidas& salidas,
               Tarea& tarea);

/// Keeps what was asked of many runs, where the options ask for it: `clase`, what came out in a sentence and
/// as JSON. Returns as above.
bool GuardaTarea(const Opciones& opciones, const Tarea& tarea, std::string_view clase,
                 const std::string& resumen, const std::function<std::string()>& json,
                 const Salidas& salidas);

/// Tells reasons, a line each, and returns the status of an order that they keep from being done.
int Niega(const Salidas& salidas, const std::vector<std::string>& reparos);

}  // namespace batch
