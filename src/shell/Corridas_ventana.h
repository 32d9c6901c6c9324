// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "checks/UltimaCorrida.h"
#include "forms/Entorno_ventana.h"
#include "model/Red.h"
#include "model/SiroDeclarado.h"
#include "model/Tormenta.h"

namespace calibration {
struct CorridasHechas;
}
namespace runs {
class dlgCorridas_ventana;
}

namespace shell {

/// Runs on their way into the ledger, beside the windows, and the window of those that are kept; a build
/// without their libraries keeps none and says so.
class Corridas {
  public:
    using Corrida = std::shared_ptr<const checks::UltimaCorrida>;

    explicit Corridas(forms::Entorno& alrededor);
    ~Corridas();
    Corridas(const Corridas&) = delete;
    Corridas& operator=(const Corridas&) = delete;

    /// Brings the window up. Runs inside an event.
    void Abre();
    /// A storm or a series has just come to its end: what keeps it, with the files that it read, once it has
    /// been looked over. Empty where none is kept.
    std::function<void(const Corrida&)> Prepara();
    /// Keeps what was asked of many runs over a project, with what its editor holds unsaved.
    void Guarda(const calibration::CorridasHechas& hechas, const model::Siro& proyecto,
                const std::optional<model::Colecciones>& dibujo);
    /// Why the last run couldn't be kept, a sentence; empty: it was.
    [[nodiscard]] const std::string& Fallo() const { return fallo; }
    /// Nothing in a build without.
    runs::dlgCorridas_ventana* Ventana();

    // What the desktop fills in.
    std::function<void()> AlCambiarFallo = [] {};
    std::function<const model::Colecciones*()> DibujoSinGuardar = [] { return nullptr; };
    std::function<bool(const std::function<void(model::Red&, model::Tormenta&)>& cambio)> Aplica =
        [](const auto&) { return false; };
    /// Compares kept runs of the project in hand: file in the ledger, name. Runs inside an event.
    std::function<void(const std::vector<std::pair<std::string, std::string>>& corridas)> Compara =
        [](const auto&) {};
    /// A kept run is in memory with its results: they come to be seen. Runs inside an event.
    std::function<void(const Corrida& corrida)> MuestraTraida = [](const Corrida&) {};

  private:
    struct Partes;

    forms::Entorno& entorno;
    std::string fallo{};
    std::unique_ptr<Partes> partes;
};

}  // namespace shell
