// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "engine/Corrida.h"

namespace engine {

/// What tells a Represa from a Lago in the one routing that they share: texts and lookups.
struct ClaseEmbalse {
    std::string_view nombre;      ///< of the kind, in the sheets
    std::string_view columnas;    ///< heading of the result table
    std::string_view tituloArea;  ///< of the question about a surface of 0
    std::string_view areaDe;      ///< what stands ahead of the name in that question
    std::string_view rutina;      ///< as the failure of the bisection names it
    double (*SdeH)(model::Siro&, float);
    double (*HdeS)(model::Siro&, float);
    double (*AdeH)(model::Siro&, float);
    float (*QdeH)(model::Siro&, float);
    float (*HdeQalma)(model::Siro&, float);
};

/// The Represa or Lago that is being routed.
struct EmbalseEnMano {
    const ClaseEmbalse& clase;
    const std::string& nombre;
    const std::string& metodo;
    int numero;      ///< row in H, S and in its tables
    int fila;        ///< row in QEntra, QSale, QMax
    float K;         ///< Muskingum K [min]
    float HInicial;  ///< [m]
    model::Matriz<float>& H;
    model::Matriz<float>& S;
    const model::Matriz<float>& tablaH;  ///< heights of its H-A-S table
    const model::Matriz<std::int32_t>& tablaS;
    const model::Arreglo<std::int16_t>& filasTabla;
};

/// The method's own three columns of a detail sheet: I1+I2, 2S/dt-Q, 2S/dt+Q [m3/s], or dH1, dH2, dH3 [m].
using ColumnasDelMetodo = std::array<float, 3>;

/// One row of a detail sheet: k, minutes, inflow, the method's columns, outflow, height, storage.
/// Throws Falla 6 where the minutes leave 16 bits.
void EscribeDetalle(Corrida& c, const EmbalseEnMano& e, std::int16_t k, const ColumnasDelMetodo& columnas);

/// Opens a detail sheet with the method's column headings, and closes it.
void AbreDetalle(Corrida& c, const EmbalseEnMano& e, std::string_view encabezado);
void CierraDetalle(Corrida& c, const EmbalseEnMano& e);

/// Result table, peak and volumes of a routed component. Throws the fault that ends it.
void EscribeTabla(Corrida& c, const EmbalseEnMano& e);

/// Routes by the level pool: 2S/dt + Q solved by bisection on the height (Chow, Maidment and Mays 1988, 8.2).
void PropagaPiscina(Corrida& c, const EmbalseEnMano& e);

/// Routes by the third-order Runge-Kutta scheme on dH/dt = (I - Q)/A (Chow, Maidment and Mays 1988, 8.3).
void PropagaRungeKutta(Corrida& c, const EmbalseEnMano& e);

/// Level pool for steps 1..NroPasosQ from HActual, SActual and T = 2S/dt - Q, unchecked: bit for bit what the
/// bisection step by step gives. Returns false, and does nothing, where a question or a fault can't be ruled
/// out.
bool PiscinaRapida(Corrida& c, const EmbalseEnMano& e, float T);

}  // namespace engine
