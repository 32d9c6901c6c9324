// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <mutex>
#include <vector>

#include "checks/AvisosDeCorrida.h"
#include "checks/Hallazgo.h"
#include "engine/Calcula.h"
#include "model/SiroDeclarado.h"

namespace checks {

/// The storms that a series in memory runs, by number, and the findings 122 to 124 about those that it
/// doesn't: shorter than a model step, deselected by the configuration, behind one of depth or duration 0.
struct Seleccionadas {
    std::vector<int> numeros{};
    std::vector<Hallazgo> avisos{};
};
Seleccionadas TormentasDeSerie(const model::Siro& s);

/// Looks at the storms of a series while it is run: its `Ojo` goes to engine::CorreSeriePDR, since a series
/// keeps no hydrographs. `s`: the state that the series is run in.
class VigiaDeSerie {
  public:
    explicit VigiaDeSerie(const model::Siro& estado) : s(estado) {}
    engine::MiraTormenta Ojo()
    {
        return [this](int numero, const engine::Calculo* calculo) { Mira(numero, calculo); };
    }
    /// The findings of the series, once it is over: those of each of its storms, and of the storms that were
    /// skipped. What several storms have in common is one finding: that of the worst, which it names, and in
    /// how many of them. Storms that weren't looked at are run again, on `hilos` threads (0: all cores); the
    /// findings don't depend on how many.
    std::vector<Hallazgo> Avisos(int hilos);

  private:
    void Mira(int numero, const engine::Calculo* calculo);
    const model::Siro& s;
    std::mutex candado{};
    std::map<int, std::vector<HallazgoMedido>> porTormenta{};
};

/// The findings of a series that nobody looked at. `s`: network, configuration, steps, series and tables of
/// rain as the series' run leaves them.
std::vector<Hallazgo> AvisosDeSerie(const model::Siro& s, int hilos);

}  // namespace checks
