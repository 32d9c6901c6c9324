// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/PuntosEnPasos.h"

// Observed hydrographs on the charts of a run: who knows them hands them in.
namespace results {

/// What was observed at a component during an event.
struct Observado {
    std::string evento{};
    std::vector<forms::PuntoEnTiempo> caudales{};  ///< [m3/s], by time
    bool operator==(const Observado&) const = default;
};

/// Those of a component, the event that is most like the storm in hand first.
using ObservadosDe = std::function<std::vector<Observado>(const std::string& componente)>;

}  // namespace results
