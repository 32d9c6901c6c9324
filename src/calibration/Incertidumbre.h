// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Red.h"
#include "runs/Corredor.h"
#include "runs/Cuantiles.h"
#include "study/Ajuste.h"
#include "study/Avance.h"

// How sure a result is: members whose parameters are drawn, each run, all of them reduced to distributions in
// a memory that doesn't grow with their number.
namespace calibration {

/// What is asked. A plain value.
struct PedidoDeIncertidumbre {
    runs::Modelo modelo{};                 ///< with the active parameters alone
    std::vector<study::Evento> eventos{};  ///< event i is of storm i of the model, its observations in m3/s
    study::Incertidumbre como{};
    study::Calibracion calibracion{};   ///< for parameters that are drawn from the sets near the best
    int hilos = 0;                      ///< 0: one per core
    std::size_t parte = 0, partes = 1;  ///< of the members, those of one part: k with k mod partes = parte
};

/// What keeps it from being asked, a sentence each, beside what is wrong with its model; empty: nothing.
std::vector<std::string> ReparosDe(const PedidoDeIncertidumbre& pedido);

/// How many members are told by their number for a reason.
inline constexpr std::size_t MaximoDePrimeros = 100;

/// Members without a result for one reason: how many, and the first of them by their numbers from 0.
struct Fallidos {
    std::uint64_t cuantos = 0;
    std::vector<std::size_t> primeros{};  ///< rising, MaximoDePrimeros at most
    bool operator==(const Fallidos&) const = default;

    void Junta(const Fallidos& otros);
};

/// The members' results. Sets of other members of the same asking can be joined, in any order, to the same
/// bits.
struct Conjunto {
    std::string componente{}, evento{};
    double paso = 0;                        ///< of the hydrograph [min]
    bool embalse = false;                   ///< the component is a Represa or a Lago
    bool conTope = false;                   ///< and has a level, and a table that water can rise above
    std::vector<runs::Cuantiles> caudal{};  ///< [m3/s], by output step from 0
    runs::Cuantiles pico{};                 ///< [m3/s]
    runs::Cuantiles tiempo{};               ///< of the peak [min since the storm's start]
    runs::Cuantiles volumen{};              ///< [m3], each flow for a whole step, as on the Slate
    runs::Cuantiles nivel{};                ///< the highest one, above `base` [m]
    double base = 0;  ///< foot of its table [m], so that a level far above sea keeps its centimetres
    std::uint64_t miembros = 0;                  ///< that were drawn
    std::uint64_t cuentan = 0;                   ///< run, with a weight above 0
    std::uint64_t rebosan = 0;                   ///< of those, how many overtop
    std::uint64_t pesoQueRebosa = 0;             ///< the sum of their weights
    std::map<std::string, Fallidos> fallidos{};  ///< by reason

    void Junta(const Conjunto& otro);
    [[nodiscard]] std::uint64_t Fallaron() const;
    /// The share of the weights that overtops, 0 to 1; of no members 0.
    [[nodiscard]] double Rebose() const;
};

/// Draws members, runs and reduces them. The same bits on any number of threads, and in any parts that are
/// joined. Where a member can't be used it stands among `fallidos` and in nothing else; with GLUE its weight
/// is max(0, score - threshold), as a whole number of up to 65535 parts of the greatest that there can be
/// (Beven, Binley, "The future of distributed models: model calibration and uncertainty prediction",
/// Hydrological Processes 6, 1992, p. 279). Nothing where it was given up. Requires an asking without a
/// reparo.
std::optional<Conjunto> CorreConjunto(const PedidoDeIncertidumbre& pedido, const study::Avance& avance = {});

/// A set as text, equal for equal sets, and back: parts that are run apart are kept so. Returns false where
/// the text is none.
std::string Escribe(const Conjunto& c);
bool Lee(std::string_view texto, Conjunto& c);

/// The least and the greatest probability that `si` cases among `n` speak for, with 95 % of confidence: the
/// score interval (Wilson, "Probable inference, the law of succession, and statistical inference", Journal of
/// the American Statistical Association 22, 1927, p. 209). Of no cases 0 and 1.
std::pair<double, double> IntervaloBinomial(std::uint64_t si, std::uint64_t n);

/// A distribution of a set by the key of its measure, "pico"; null where there is none of that key.
const runs::Cuantiles* DistribucionDe(const Conjunto& c, std::string_view que);
/// What is to be added to the numbers of that distribution: the foot of a level, 0 of all else.
double BaseDe(const Conjunto& c, std::string_view que);
/// Unit of a measure by its key.
std::string_view UnidadDeMedida(std::string_view que);

/// The probabilities that tables tell.
inline constexpr std::array<double, 7> ProbabilidadesDeTabla{0.01, 0.05, 0.25, 0.5, 0.75, 0.95, 0.99};

/// What a set says, a sentence each: the 90 % of the peak, how often a dam overtops, how many members count,
/// those that failed with their reasons.
std::vector<std::string> EnPalabras(const Conjunto& c, const study::Incertidumbre& como);

}  // namespace calibration
