// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Siro.h"

// Outflow as a function of the water height, and back. All work on the component in s.CompActual.
namespace hydraulics {

/// Copies the outflow functions of all Represas into FQActiva and FQCoef, for the overview table.
/// Throws Falla 9 where a Represa's number is beyond NroRepresas.
void CargaFQs(model::Siro& s);

/// Outflow [m3/s] at height h [m] of the Represa in hand: by its table, or the sum of its functions in use
/// whose range holds h. Outside the table the user is asked: Yes gives 0, No ends the program. A fault on
/// the way is reported and gives 0.
float QdeHRepresa(model::Siro& s, float h);

/// The same of the Lago in hand, by table.
float QdeHLago(model::Siro& s, float h);

/// Height [m] that gives the outflow q [m3/s], by bisection down to 0.001 m: the last midpoint. 0 where the
/// table is empty or the range is within 0.001 m from the start. Past 1000 rounds it says so and ends the
/// program.
float HdeQalmaRepresa(model::Siro& s, float q);
float HdeQalmaLago(model::Siro& s, float q);

/// Bounds of the bisection on the heights of a Represa [m]: those of its table, or the least H min and the
/// greatest H Max of its functions in use, where 0 takes part unless function 1 is in use.
struct RangoAlturas {
    float minimo = 0;
    float maximo = 0;
};
RangoAlturas RangoFunciones(const model::Represa& represa);

}  // namespace hydraulics
