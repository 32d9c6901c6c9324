// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/CompActual.h"

// Storage S [m3], area A [ha] and height H [m] of a Represa or a Lago, by the table given for it: a row as it
// stands, or the line between two; nothing is extrapolated. Outside the table the user is asked: Yes gives 0,
// No ends the program. Throws Falla 6 where two storages lie too far apart, Falla 9 where the component's
// rows aren't there. Each serves both kinds, under the names that its definition gives it.
namespace hydraulics {

double SdeH(const CompActual& c, float h);
double HdeS(const CompActual& c, float volumen);
/// A 32-bit result, widened.
double AdeH(const CompActual& c, float h);
/// Serves the verification of Represas only: there is no height from area for a Lago.
double HdeARepresa(const CompActual& r, float area);

}  // namespace hydraulics
