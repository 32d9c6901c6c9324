// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

// A sample of annual maxima and the numbers that its fits start from.
namespace frequency {

/// L-moments of a sample, unbiased: Hosking, J. R. Stat. Soc. B 52, 1990, equation 3.1. l1, l2 in the
/// sample's unit.
struct MomentosL {
    double l1 = 0, l2 = 0;
    double t3 = 0, t4 = 0;  ///< l3/l2, l4/l2; 0 where l2 is
};

/// Of values in rising order, four at least.
MomentosL MomentosLDe(std::span<const double> x);

/// Mean, standard deviation (n - 1) and skew n sum d3 / ((n-1)(n-2) s3), in any order, three values at least.
struct Momentos {
    double media = 0, desvio = 0, asimetria = 0;
};
Momentos MomentosDe(std::span<const double> x);

/// What is known of a sample: itself, and its moments.
struct Descriptivos {
    Momentos m{};
    MomentosL l{};
};

/// What log-Pearson III by moments makes of the least values: they stay; those that Grubbs and Beck's test
/// finds are left out and the probability of the others is made conditional; those that their multiple test
/// finds count as less than the others and no more.
enum class Bajos : std::uint8_t { Quedan, Boletin17B, Boletin17C };

/// The skew of logarithms that a region has, and its mean square error: 0.302 that of the map of Bulletin
/// 17B.
struct AsimetriaRegional {
    double g = 0, ecm = 0.302;
};

/// How log-Pearson III by moments takes a sample: the bulletins of the United States.
struct Tratamiento {
    Bajos bajos = Bajos::Quedan;
    std::optional<AsimetriaRegional> regional{};
    std::optional<std::size_t> cuantos{};  ///< low values, where no test has to find them
};

/// By the keys of the command line: low values "17b", "17c" or none.
Tratamiento TratamientoDe(std::string_view bajos, std::optional<double> asimetria, double ecm);

struct Muestra {
    std::vector<double> x{};  ///< rising; years without rain aren't in it
    std::size_t secos = 0;    ///< years without rain, whose maximum is 0
    Descriptivos directos{};
    Descriptivos decimales{};  ///< of log10 x; nothing where `positiva` isn't set
    bool positiva = false;     ///< every value of x is above 0
    Tratamiento tratamiento{};

    [[nodiscard]] std::size_t Anios() const { return x.size() + secos; }
    /// The part of the years that is without rain.
    [[nodiscard]] double P0() const
    {
        return secos == 0 ? 0 : static_cast<double>(secos) / static_cast<double>(Anios());
    }
};

/// Sorts the values and sets those that are 0 apart. A station has ten others at least.
Muestra HazMuestra(std::vector<double> x);

/// Plotting position of value i of n in rising order, i from 1: (i - a) / (n + 1 - 2a). a: Weibull 0, Blom
/// 0.375, Cunnane 0.4, Gringorten 0.44, Hazen 0.5.
double Posicion(std::size_t i, std::size_t n, double a);

inline constexpr double Cunnane = 0.4;

}  // namespace frequency
