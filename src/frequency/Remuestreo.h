// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "frequency/Ajuste.h"
#include "frequency/Bondad.h"
#include "model/Configuracion.h"
#include "study/Avance.h"

// The parametric bootstrap: samples drawn from a fitted law and fitted again tell how sure its quantiles are,
// and how far from it a sample of its own may lie.
namespace frequency {

/// Values for the recurrences that the tables of storms have, model::Recurrencias.
using PorRecurrencia = std::array<double, model::Recurrencias.size()>;

/// `p0`: the part of the years that is without rain; a recurrence within it gives 0.
PorRecurrencia CuantilesDe(const Ley& ley, const Parametros& p, double p0);

struct PedidoDeRemuestreo {
    std::uint64_t semilla = 1;
    int cuantas = 1000;  ///< samples; 0: none
    int hilos = 0;       ///< 0: all cores. The results don't depend on them
};

/// A pair of L-skew and L-kurtosis.
struct RazonesL {
    double t3 = 0, t4 = 0;
};

struct Remuestreo {
    PorRecurrencia banda5{}, banda95{};  ///< quantiles of 5 and 95 % of the samples
    Bondad p{};                       ///< p-values of the measures of fit, (1 + farther ones) / (1 + samples)
    std::vector<RazonesL> razones{};  ///< of the samples, by their number
    int sirven = 0;                   ///< samples that could be fitted

    /// There are enough of them for bands and p-values.
    [[nodiscard]] bool Hay() const { return sirven >= 20; }
};

using study::Avance;

/// The samples have as many years as `m`, those without rain among them by their probability. Sample k draws
/// its numbers from (seed, k) alone and all are put in order by k. Low values that Bulletin 17C finds are as
/// many in every sample. Nothing where `avance`
/// stops it, within the time of one fit.
std::optional<Remuestreo> Remuestrea(const Ley& ley, const Estimado& e, Metodo metodo, const Muestra& m,
                                     const PedidoDeRemuestreo& pedido, const Avance& avance = {});

}  // namespace frequency
