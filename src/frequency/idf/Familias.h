// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// The shapes that curves of intensity, duration, recurrence are given, a row each: to add one is to add its
// row.
namespace frequency::idf {

inline constexpr std::size_t MaxCoeficientes = 4;
using Coeficientes = std::array<double, MaxCoeficientes>;

struct CoeficienteDeFamilia {
    std::string_view simbolo, que;
    double menor = 0, mayor = 0;  ///< bounds, of what is typed and of the fit
    bool positivo = false;        ///< searched by its logarithm
};

struct Familia {
    std::string_view clave;  ///< as the command line names it
    std::string_view nombre;
    std::array<CoeficienteDeFamilia, MaxCoeficientes> coeficientes;
    std::size_t cuantos;                    ///< coefficients that it has
    bool porRecurrencia;                    ///< each recurrence has its own
    std::size_t duraciones;                 ///< different ones that a fit needs
    std::array<Coeficientes, 3> comienzos;  ///< where the search for a fit begins
    /// Logarithm of the intensity [mm/h] for a duration [min] and a recurrence [years].
    double (*logIntensidad)(const Coeficientes& c, double duracion, double recurrencia);
    std::string_view formula;
    std::string_view fuente;
    std::string_view limites;  ///< where it shouldn't be used
};

/// All of them, in the order of the lists.
std::span<const Familia> Familias();

/// The family of a key; none: null.
const Familia* FamiliaDeClave(std::string_view clave);

/// Frequency factor of the DIT model, near the normal quantile of 1 - 1/T: 2.584458 (ln T)^(3/8) - 2.252573
/// (Caamaño Nelli and Dasso 2003). T above 1.
double FactorDit(double recurrencia);
/// Factor of persistence of the DIT model, (ln d)^(5/3), d of 1 min or more.
double PersistenciaDit(double duracion);

}  // namespace frequency::idf
