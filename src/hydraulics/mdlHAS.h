// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/Siro.h"

// Storage S [m3], area A [ha] and height H [m] of the Represa or Lago in s.CompActual, by the table given for
// it: a row as it stands, or the line between two; nothing is extrapolated. Outside the table the user is
// asked: Yes gives 0, No ends the program. Throws Falla 6 where two storages lie too far apart, Falla 9 and
// 91 where the component or its rows aren't there.
namespace hydraulics {

double SdeHRepresa(model::Siro& s, float h);
double SdeHLago(model::Siro& s, float h);
double HdeSRepresa(model::Siro& s, float volumen);
double HdeSLago(model::Siro& s, float volumen);
/// A 32-bit result, widened.
double AdeHRepresa(model::Siro& s, float h);
double AdeHLago(model::Siro& s, float h);
/// Serves the verification only; there is no height from area for a Lago.
double HdeARepresa(model::Siro& s, float area);

}  // namespace hydraulics
