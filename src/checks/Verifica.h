// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace checks::casos {

struct FilaDeCaso;
/// A file of cases; `Familias.h` tells what a row is.
using Familia = std::span<const FilaDeCaso> (*)();

}  // namespace checks::casos

// The engine over cases whose results are known: printed in a book or a manual, or worked out without it. Who
// signs a study sees here what the program can be trusted with.
namespace checks {

/// What a case compares, for a table or a chart: three columns of one length. Where the source has no figure
/// it isn't a number; the curve around a figure that stands alone is shown with it.
struct Serie {
    std::string_view eje{};         ///< what x is, with its unit
    std::vector<double> x{};        ///< rising
    std::vector<double> impreso{};  ///< printed or recalculated, in the case's quantity
    std::vector<double> nuestro{};  ///< the engine's
};

/// A case that has been run. Its texts are Spanish sentences without a full stop.
struct Caso {
    std::string_view nombre{};
    std::string_view fuente{};    ///< author, year, title, example or table
    std::string_view entrada{};   ///< what is computed, with every number that it takes
    std::string_view magnitud{};  ///< what is compared, with its unit
    std::string_view porque{};    ///< why the tolerance is what it is
    double tolerancia = 0;        ///< in the quantity's unit, as are the four below
    bool recalculado = false;     ///< the figure isn't printed in the source: it was worked out from it
    double x = 0;                 ///< where the two differ most
    double impreso = 0;           ///< the figure there
    double nuestro = 0;           ///< the engine's
    double desvio = 0;            ///< their distance, the largest of the series
    Serie serie{};

    /// The distance isn't within the tolerance, or there is none because a run broke off.
    [[nodiscard]] bool Fuera() const { return !(desvio <= tolerancia); }
};

/// How many figures of a case are compared.
std::size_t CuantasCifras(const Caso& caso);

/// How far a check has come, `hechos` of `total` cases. Returns whether it goes on.
using AvanceDeVerifica = std::function<bool(std::size_t hechos, std::size_t total)>;

/// The families of several rooms, one room's after another's.
std::vector<casos::Familia> Junta(std::initializer_list<std::span<const casos::Familia>> cuartos);

/// Runs every case, in under two seconds: they are the same on every machine, to the last bit of the engine.
/// On any thread. Where `avance`, which is asked ahead of each case, stops it, those so far. `mas`: the
/// families of the rooms above, which come last.
std::vector<Caso> Verifica(const AvanceDeVerifica& avance = {}, std::span<const casos::Familia> mas = {});

/// How many are out of tolerance.
int CuantosFuera(const std::vector<Caso>& casos);

/// The table of all cases, their sources below it, and the sum; lines end in LF.
std::string TextoDeVerifica(const std::vector<Caso>& casos);

/// The same as JSON with the series, in one line per case. A number that isn't there is null.
std::string JsonDeVerifica(const std::vector<Caso>& casos);

}  // namespace checks
