// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace runs {

/// What a member weighs: a whole number, so that sums don't depend on their order.
using Peso = std::uint32_t;
inline constexpr Peso PesoMayor = 65535;

/// The distribution of one quantity over the members of a set, in a memory that doesn't grow with them.
///
/// Values are counted on a fixed grid of numbers with 10 significant bits, each on the one that is nearest: a
/// quantile is within 2^-10 of its value, a thousandth, and what has 10 bits, a whole number up to 1024 for
/// one, is exact. Values below 2^-20, a millionth, count as 0. Least, greatest and mean are exact: the mean
/// is a sum of whole numbers, rounded once at each power of 2. Counts, such sums and extremes are the same
/// whatever the order and however they were put together.
///
/// Up to 2^21 members of any weight.
class Cuantiles {
  public:
    /// A value that is finite, with a weight up to PesoMayor. One of weight 0 doesn't count.
    void Suma(float valor, Peso peso);
    /// Takes those of another set of members.
    void Junta(const Cuantiles& otro);

    [[nodiscard]] std::uint64_t Total() const { return total; }  ///< sum of the weights
    // Of no members none is a number.
    [[nodiscard]] double Minimo() const { return total > 0 ? menor : SinValor; }
    [[nodiscard]] double Maximo() const { return total > 0 ? mayor : SinValor; }
    [[nodiscard]] double Media() const;
    /// The least value on the grid at which the weights reach the share p of them all, 0 < p <= 1, within the
    /// extremes: the inverse of the empirical distribution (Hyndman, Fan, The American Statistician 50, 1996,
    /// p. 361, definition 1).
    [[nodiscard]] double Cuantil(double p) const;
    /// Several at once, in rising order of p.
    void Varios(const double* p, double* valores, std::size_t cuantos) const;

    /// A line of text, and back. Returns false where the text is none.
    void Escribe(std::string& texto) const;
    bool Lee(std::string_view texto);
    bool operator==(const Cuantiles&) const = default;

  private:
    static constexpr double SinValor = std::numeric_limits<double>::quiet_NaN();
    static constexpr std::size_t Casillas = 128;
    /// A quarter of the numbers between two powers of 2.
    struct Pagina {
        int cual = 0;           ///< rising with the values
        std::int64_t suma = 0;  ///< of weight times value, in units of 2^-24 of the lower power of 2
        std::array<std::uint64_t, Casillas> cuenta{};
        bool operator==(const Pagina&) const = default;
    };
    Pagina& De(int cual);

    std::vector<Pagina> paginas{};  ///< those that have something, by `cual`
    std::size_t ultima = 0;         ///< place of the one that was asked for last
    std::uint64_t total = 0;
    float menor = std::numeric_limits<float>::max(), mayor = std::numeric_limits<float>::lowest();
};

}  // namespace runs
