// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "frequency/Ley.h"

namespace frequency {

enum class Metodo { Momentos, MomentosL, Verosimilitud };

std::string_view ClaveDe(Metodo metodo);  ///< as the command line names it
std::string_view NombreDe(Metodo metodo);

/// Fits a law to a sample. What the special functions refuse is a fit that isn't there, with its reason.
Estimado Ajusta(const Ley& ley, const Muestra& m, Metodo metodo);

}  // namespace frequency
