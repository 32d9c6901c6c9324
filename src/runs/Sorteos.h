// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "study/Ajuste.h"

// The values of the members of a set, each drawn from (seed, member, parameter) alone, so that a shard draws
// its own and none of the others'.
namespace runs {

/// A distribution by its key, and what of a parameter it looks at beside the range.
struct Distribucion {
    std::string_view clave, nombre;
    bool conCentro, conDispersion, conValores;
    std::string_view centro;      ///< what `centro` is of it: "moda"
    std::string_view dispersion;  ///< "desvío", with the scale that it is of
};
/// uniforme, triangular, normal, lognormal, discreta, cercanos.
std::span<const Distribucion> Distribuciones();
/// Null where there is none of that key.
const Distribucion* DistribucionDe(std::string_view clave);

/// The standard normal quantile of a probability strictly between 0 and 1, to 1e-15 of its value. Wichura,
/// "Algorithm AS 241: the percentage points of the normal distribution", Applied Statistics 37, 1988, p. 477.
double NormalInversa(double p);

/// The quantile of a parameter's distribution at u in (0, 1): never outside its range. The one of a scale of
/// logarithms is drawn by its logarithm. A normal one, and a lognormal one by its logarithm, is cut at both
/// ends of the range: probability beyond them is spread over what is within. What isn't told is the middle of
/// the range, by its scale, and a sixth of it as deviation. Requires a distribution without a reparo, other
/// than "cercanos".
double CuantilDe(const study::Parametro& p, double u);

/// What keeps parameters from being drawn, a sentence each; empty: they can be.
std::vector<std::string> ReparosDeSorteo(std::span<const study::Parametro> parametros,
                                         const study::Calibracion& calibracion);

/// A place 0..n-1 for each k of 0..n-1, all of them once, another order for each key. n from 1. A network of
/// Feistel's on the bits that n needs, walked until it falls within n (Black, Rogaway, "Ciphers with
/// arbitrary finite domains", CT-RSA 2002, section 4).
class Permutacion {
  public:
    Permutacion(std::uint64_t unN, std::uint64_t semilla, std::uint64_t cual);
    [[nodiscard]] std::uint64_t operator()(std::uint64_t k) const;

  private:
    static constexpr std::size_t Vueltas = 8;
    std::uint64_t n;
    unsigned bits = 1;  ///< of each half
    std::uint32_t claves[Vueltas]{};
};

/// The members of a set: plain, or Latin hypercube (McKay, Beckman, Conover, Technometrics 21, 1979, p. 239),
/// in which each parameter's range of probabilities is cut into as many equal parts as there are members and
/// each part has one. Parameters "cercanos" take all their values from one of the near-best sets, drawn
/// with equal chances.
class Sorteos {
  public:
    /// Requires parameters without a reparo. They are kept.
    Sorteos(std::vector<study::Parametro> losParametros, const study::Incertidumbre& incertidumbre,
            const study::Calibracion& calibracion);

    [[nodiscard]] std::size_t Miembros() const { return miembros; }
    /// The values of member k, one per parameter. On any thread.
    void Valores(std::size_t k, std::span<double> valores) const;

  private:
    std::vector<study::Parametro> parametros;
    std::size_t miembros;
    std::uint64_t semilla;
    std::vector<Permutacion> estratos{};          ///< by parameter, the last one of the sets; none: plain
    std::vector<std::vector<double>> cercanos{};  ///< values by parameter, NaN where it isn't drawn from them
};

}  // namespace runs
