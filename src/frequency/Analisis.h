// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "frequency/Maximos.h"
#include "frequency/PruebasDeMuestra.h"
#include "frequency/Remuestreo.h"

// From annual maxima to the quantiles of the recurrences, with all that says how far they can be trusted.
namespace frequency {

struct PedidoDeAnalisis {
    Metodo metodo = Metodo::MomentosL;
    std::vector<const Ley*> leyes{};  ///< empty: all of them
    PedidoDeRemuestreo remuestreo{};
    Tratamiento tratamiento{};  ///< of log-Pearson III by moments
    double posicion = Cunnane;  ///< a of the plotting positions on paper, 0 to 0.5
};

/// A law as fitted; without parameters only `estimado.nota` says anything.
struct AjusteDeLey {
    const Ley* ley = nullptr;
    Estimado estimado{};
    double p0 = 0;          ///< years without rain that the law isn't of: F = p0 + (1 - p0) G
    Criterios criterios{};  ///< of the years with rain
    Bondad bondad{};
    PorRecurrencia cuantiles{};
    Remuestreo remuestreo{};
};

/// The law to take and why; none where every one is refused.
struct Recomendacion {
    const Ley* ley = nullptr;
    std::string motivo{};  ///< sentences with their full stops
};

struct Analisis {
    Serie serie{};
    Metodo metodo = Metodo::MomentosL;
    PedidoDeRemuestreo pedido{};
    double posicion = Cunnane;
    Muestra muestra{};
    std::vector<Prueba> pruebas{};
    std::vector<AjusteDeLey> ajustes{};
    Recomendacion recomendacion{};
};

/// Of a series without errors, on any thread. Nothing where `avance`, asked over the samples of all laws,
/// stops it; it answers within the time of one fit.
std::optional<Analisis> Analiza(const Serie& serie, const PedidoDeAnalisis& pedido,
                                const Avance& avance = {});

/// The depth of any recurrence [years], above 1, by a law that has parameters.
double CuantilDe(const AjusteDeLey& ajuste, double recurrencia);

/// Of the laws that Anderson-Darling doesn't reject at 5 %, whose shape is within the search's bounds and
/// which hold every value, the one of least AICc. One that leaves low values aside isn't compared.
Recomendacion Recomienda(const Analisis& a);

}  // namespace frequency
