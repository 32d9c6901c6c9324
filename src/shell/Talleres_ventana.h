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
#include "results/Observado.h"
#include "results/mapa/PintaMapa_ventana.h"

namespace calibration {
struct CorridasHechas;
}
namespace study {
class Abierto;
}

namespace report {
struct Datos;
}

namespace shell {

/// The study of the project in hand and the workshops on it, that of rain and that of fitting; a build
/// without their libraries says that they aren't there.
class Talleres {
  public:
    explicit Talleres(forms::Entorno& alrededor);
    ~Talleres();
    Talleres(const Talleres&) = delete;
    Talleres& operator=(const Talleres&) = delete;

    /// Bring a window up. Run inside an event.
    void AbreLluvia();
    void AbreAjuste();
    void AbreMemoria();
    /// The window of the memoria shows the last runs anew.
    void TomaCorridas();
    void AbreComparacion();
    /// The same with kept runs of the project in hand as its sides: file in the ledger, name.
    void ComparaGuardadas(const std::vector<std::pair<std::string, std::string>>& corridas);

    /// The run looked over last; nothing before the first.
    std::function<std::shared_ptr<const checks::UltimaCorrida>()> UltimaCorrida = [] { return nullptr; };

    /// Nothing in a build without.
    study::Abierto* Estudio();
    /// What the study has of a component's flows, the events on the storm in hand first.
    [[nodiscard]] std::vector<results::Observado> Observados(const std::string& componente) const;
    /// The study has become another one.
    std::function<void()> AlCambiar = [] {};
    // What becomes of the project: see study::Abierto.
    void TrasGuardarComo();
    void TrasEliminar();
    void TrasTraer();
    void AlSalir();

    // What the memoria is made of: the runs that are on show, those of the project in hand alone.
    using Corrida = std::shared_ptr<const checks::UltimaCorrida>;
    std::function<Corrida()> UltimaTormenta = [] { return Corrida(); };
    std::function<Corrida()> UltimaSerie = [] { return Corrida(); };
    std::function<results::FondoDeMapa()> Fondo = [] { return results::FondoDeMapa{}; };
    /// File of the recorded storm in hand; empty: none.
    std::function<std::string()> TormentaReal = [] { return std::string(); };
    /// Runs the storm in hand. Runs inside an event.
    std::function<void()> Corre = [] {};

    // What the fitting workshop asks of the editor: see calibration::dlgAjuste.
    std::function<const model::Colecciones*()> DibujoSinGuardar = [] { return nullptr; };
    std::function<bool(const std::function<void(model::Red&, model::Tormenta&)>& cambio)> Aplica =
        [](const auto&) { return false; };

    /// Keeps what was asked of many runs: see Corridas.
    std::function<void(const calibration::CorridasHechas& hechas, const model::Siro& proyecto,
                       const std::optional<model::Colecciones>& dibujo)>
        GuardaCorridas = [](const auto&, const auto&, const auto&) {};

  private:
    struct Partes;
    [[nodiscard]] report::Datos DatosDeMemoria() const;

    forms::Entorno& entorno;
    std::unique_ptr<Partes> partes;
};

}  // namespace shell
