// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/Corrida.h"
#include "hydraulics/mdlFQs.h"
#include "model/Siro.h"

namespace engine {

/// The Represa or Lago that is being routed.
struct EmbalseEnMano : hydraulics::CompActual {
    std::string_view palabra;  ///< its kind, in the sheets
    std::string_view unidad;   ///< of the inflow, as the heading of the result table tells it
    const std::string& metodo;
    float K;         ///< Muskingum K [min]
    float HInicial;  ///< [m]
    model::Matriz<float>& H;
    model::Matriz<float>& S;
    int fila;  ///< row in QEntra, QSale, QMax

    /// Ends of its table of heights. Throws Falla 9 where they aren't there.
    [[nodiscard]] hydraulics::RangoAlturas Alturas() const
    {
        return {tablaH(numero, 1), tablaH(numero, filas(numero))};
    }
};

/// The method's own three columns of a detail sheet: I1+I2, 2S/dt-Q, 2S/dt+Q [m3/s], or dH1, dH2, dH3 [m].
using ColumnasDelMetodo = std::array<float, 3>;

/// One row of a detail sheet; inflow and outflow are those of the run.
struct RenglonDetalle {
    std::int16_t k;
    ColumnasDelMetodo columnas;
    float H;  ///< [m]
    float S;  ///< [m3]
};

/// Opens a detail sheet with the method's column headings, and closes it.
void AbreDetalle(Corrida& c, const EmbalseEnMano& e, std::string_view encabezado);
void CierraDetalle(Corrida& c, const EmbalseEnMano& e);

/// Adds a row: k, minutes `t`, inflow, the method's columns, outflow, height, storage.
void AgregaDetalle(Corrida& c, const EmbalseEnMano& e, std::int16_t t, const RenglonDetalle& r);

/// The same where text is built. Throws Falla 6 where the minutes leave 16 bits.
inline void EscribeDetalle(Corrida& c, const EmbalseEnMano& e, const RenglonDetalle& r)
{
    const std::int16_t t = Minutos(r.k, c.s.Pasos.PasoQ);
    if (c.ConTexto) AgregaDetalle(c, e, t, r);
}

/// Result table, peak and volumes of a routed component. Throws the fault that ends it.
void EscribeTabla(Corrida& c, const EmbalseEnMano& e);

/// Routes by the level pool: 2S/dt + Q solved by bisection on the height (Chow, Maidment and Mays 1988, 8.2).
void PropagaPiscina(Corrida& c, const EmbalseEnMano& e);

/// Routes by the third-order Runge-Kutta scheme on dH/dt = (I - Q)/A (Chow, Maidment and Mays 1988, 8.3).
void PropagaRungeKutta(Corrida& c, const EmbalseEnMano& e);

}  // namespace engine
