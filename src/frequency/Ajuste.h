// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "frequency/Ley.h"

namespace frequency {

enum class Metodo { Momentos, MomentosL, Verosimilitud };

std::string_view ClaveDe(Metodo metodo);  ///< as the command line names it
std::string_view NombreDe(Metodo metodo);

/// Fits a law to a sample. What the special functions refuse is a fit that isn't there, with its reason.
Estimado Ajusta(const Ley& ley, const Muestra& m, Metodo metodo);

/// What part of a sample a fit speaks of.
struct Alcance {
    double p0 = 0;                ///< part of the years that is without rain and that the law isn't of
    double bajos = 0;             ///< part of the law that is left to low values
    std::span<const double> x{};  ///< the values that it was fitted to
};
Alcance AlcanceDe(const Estimado& e, const Muestra& m);

/// A law of the years with rain among others without, p0 of them: F = p0 + (1 - p0) G. Haan, "Statistical
/// methods in hydrology", 1977, chapter 7; Bulletin 17B, 1982, appendix 5. 0 where F isn't above p0.
double Cuantil(const Ley& ley, const Parametros& p, double p0, double F);
double Probabilidad(const Ley& ley, const Parametros& p, double p0, double x);

}  // namespace frequency
