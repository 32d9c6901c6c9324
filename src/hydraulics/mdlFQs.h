// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/CompActual.h"

// Outflow of a Represa or a Lago as a function of the water height, and back. A fault on the way is reported
// and gives 0.
namespace hydraulics {

/// Copies the outflow functions of all Represas into FQActiva and FQCoef, for the overview table.
/// Throws Falla 9 where a Represa's number is beyond NroRepresas.
void CargaFQs(model::Red& red);

/// Outflow [m3/s] at height h [m]: by the table, or the sum of the functions in use whose range holds h.
/// Outside the table the user is asked: Yes gives 0, No ends the program.
float QdeH(const CompActual& c, float h);

/// Height [m] that gives the outflow q [m3/s], by bisection down to 0.001 m: the last midpoint. 0 where the
/// table is empty or the range is within 0.001 m from the start. Past 1000 rounds it says so and ends the
/// program.
float HdeQalma(const CompActual& c, float q);

/// Bounds of the bisection on the heights [m]: those of the table, or the least H min and the greatest H Max
/// of the functions in use, where 0 takes part unless function 1 is in use. Throws Falla 9 where the table
/// isn't there.
struct RangoAlturas {
    float minimo = 0;
    float maximo = 0;
};
RangoAlturas RangoDescarga(const CompActual& c);

}  // namespace hydraulics
