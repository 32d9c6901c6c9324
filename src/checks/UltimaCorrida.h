// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "checks/Balance.h"
#include "checks/Corrido.h"
#include "checks/Hallazgo.h"
#include "checks/Sello.h"
#include "checks/TiempoAgregado.h"
#include "engine/Calcula.h"
#include "model/SiroDeclarado.h"

namespace checks {

class VigiaDeSerie;

/// A run that is over: what went in, what came out, what is to be said of it. A copy of its own, which
/// nothing changes afterwards, so that what is shown of it can't lie.
class UltimaCorrida {
  public:
    /// The single storm that `s` has run. `entrada`: the storm as it was before. `completa`: the run went to
    /// its end. The results are those of `s`; what it had to say is found by running it once more.
    static std::shared_ptr<const UltimaCorrida> DeUna(const model::Siro& s, const model::Tormenta& entrada,
                                                      bool completa);
    /// The series that `s` has run; AvisosDeSerie tells of `hilos`. `vigia`: who looked at its storms, if
    /// anybody did.
    static std::shared_ptr<const UltimaCorrida> DeSerie(const model::Siro& s, int hilos,
                                                        VigiaDeSerie* vigia = nullptr);

    UltimaCorrida(const UltimaCorrida&) = delete;
    UltimaCorrida& operator=(const UltimaCorrida&) = delete;

    Sello sello{};
    std::string titulo{};  ///< of the project
    std::string cuando{};  ///< date and time by the host's clock
    bool esSerie = false;
    model::Red red{};
    model::Tormenta entrada{};  ///< as it was before the run
    model::Pasos pasos{};
    model::TablasDeLluvia tablas{};
    engine::Calculo calculo{};  ///< of a series its Resultados alone, by storm
    model::Serie serie{};
    std::vector<int> corridas{};       ///< of a series, the storms that were run, by number
    std::vector<Hallazgo> avisos{};    ///< errors first
    std::optional<Corrido> corrido{};  ///< of a single storm
    /// Of a single storm with a peak at the last step: the added time with which none stands there.
    std::optional<TiempoAgregado> tiempo{};
    std::optional<Balance> balance{};  ///< of a single storm that has results, in the order of corrido's
    std::string huella{};              ///< hash of the run

    [[nodiscard]] const model::Resultados& r() const { return calculo.Resultados; }

  private:
    explicit UltimaCorrida(const model::Siro& s);
};

}  // namespace checks
