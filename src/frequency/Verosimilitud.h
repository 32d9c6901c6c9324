// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frequency/Ley.h"

namespace frequency {

/// The parameters of greatest likelihood: NLopt's Nelder-Mead from the fit by L-moments, its last digits
/// by Newton's method.
/// Where it ends on a bound of a Forma, or nowhere, the result is the fit by L-moments and says so.
Estimado MaximaVerosimilitud(const Ley& ley, const Muestra& m);

}  // namespace frequency
