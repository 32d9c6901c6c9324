// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "frequency/Muestra.h"

// The laws of annual maxima, a row each: to add one is to add its file under leyes and its name below.
namespace frequency {

inline constexpr std::size_t MaxParametros = 3;
using Parametros = std::array<double, MaxParametros>;

/// How a parameter behaves in a search.
enum class Papel { Lugar, Escala, Forma };

struct Parametro {
    std::string_view simbolo, que;
    Papel papel = Papel::Lugar;
    double menor = 0, mayor = 0;  ///< bounds of a Forma in the search for the likelihood's maximum
};

/// A fit: the parameters, or why there are none; what is to be known of them.
struct Estimado {
    std::optional<Parametros> p{};
    std::string nota{};  ///< a Spanish sentence without a full stop; empty: nothing
    /// The law is that of all years, and this part of its probability is left to low values that it wasn't
    /// fitted to, years without rain among them; none: it is that of the years with rain.
    std::optional<double> bajos{};
};

struct Ley {
    std::string_view clave;  ///< as the command line names it
    std::string_view nombre;
    std::array<Parametro, MaxParametros> parametros;
    std::size_t cuantos;                                    ///< parameters that it has
    double (*cuantil)(const Parametros& p, double F);       ///< 0 < F < 1
    double (*probabilidad)(const Parametros& p, double x);  ///< of not being exceeded, 0..1
    /// Sum of the log density over values; -infinity where one lies outside the law.
    double (*logVerosimilitud)(const Parametros& p, std::span<const double> x);
    Estimado (*porMomentos)(const Muestra& m);
    Estimado (*porMomentosL)(const Muestra& m);
    Estimado (*porVerosimilitud)(const Ley& ley, const Muestra& m);
    std::string_view formula;  ///< its quantile or probability, as the help shows it
    std::string_view fuente;
    std::string_view limites;  ///< where it shouldn't be used
};

extern const Ley Gumbel, Gev, Exponencial, LogNormal2, LogNormal3, PearsonIII, LogPearsonIII, SqrtEtmax;

/// All of them, in the order of the tables.
std::span<const Ley* const> Leyes();

/// The law of a key; none: null.
const Ley* LeyDeClave(std::string_view clave);

}  // namespace frequency
