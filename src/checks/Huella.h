// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Red.h"
#include "model/Resultados.h"
#include "model/SiroDeclarado.h"
#include "model/Tormenta.h"

// The hash of a run: who has the same 64 digits has run the same network under the same storm with the same
// version and has the same results, bit for bit, whatever the files looked like, the platform or the number
// of threads.
//
// It is the SHA-256 of a text of lines, each a word and the values behind it, separated by blanks. Texts are
// their number of bytes in UTF-8, a colon and the bytes; whole numbers are decimal; 32-bit floats are the
// eight hexadecimal digits of their IEEE 754 pattern, -0 as 0. In order:
//
//     siro     version of the program
//     u        each UEH in file order: name, destination, area, length, velocity, a, b, prior minutes,
//     retention,
//              initial flow, K
//     c        each Cauce: name, destination, 1 Direct or 0, length, velocity, K, x
//     l        each Lago: name, destination, method, K, initial height; `has` and `hq` behind it
//     r        each Represa: the same and 1 by table or 0; `has` behind it, and `hq` or `fq`
//     has      a table's heights, then its areas, then its storages
//     hq       its heights (of a Represa alone), then its outflows
//     fq       of each outflow function: 1 in use or 0, a, b, c, H min, H max
//     pasos    PasoPp, PasoQ, N0Dur
//     lluvia   form (a storm of the list counts as one typed in), distribution
//     personal the percentages of a personal distribution, where it is one
//     tormenta of a single storm: duration; depth, or that of each UEH; the blocks of a recorded one. Of a
//     series
//              a line per storm that was run: duration, depth, recurrence
//     res      NroPasosQ of a storm, number of storms of a series
//     q        each component in the order of computation: name; of a storm its outflow at the steps
//              1..NroPasosQ, its inflow, its peak, a UEH's volume, base volume, runoff and coefficient, a
//              pool's heights and storages; of a series, storm by storm, the peak, and a UEH's runoff and
//              coefficient
//     fin      runoff and coefficient of the basin, storm by storm
//
// What is drawn (places, vertices, image, stream order), free notes, titles and the recurrence of a single
// storm, which no run reads, don't go in.
namespace checks {

/// The version that goes in.
std::string_view Version();

/// Hash of one storm and its results.
std::string HuellaDeCorrida(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                            const model::TablasDeLluvia& tablas, const model::Resultados& resultados);

/// Hash of the series that a state has run: of the storms `numeros`, from 1.
std::string HuellaDeSerie(const model::Siro& s, const std::vector<int>& numeros);

/// Hash of the lines from `res` on alone: of a storm, or of the storms 1..tormentas of a series, whose lines
/// `res` and `q` hold all of them, those that weren't run as 0. Two versions of the program that give the
/// same results have the same one.
std::string HuellaDeResultados(const model::Red& red, const model::Resultados& resultados, int tormentas = 0);

/// Hash of the lines of the network alone.
std::string HuellaDeRed(const model::Red& red);

/// Hash of the lines of steps and rain alone; with a series, of all its storms.
std::string HuellaDeLluvia(const model::Red& red, const model::Tormenta& tormenta, const model::Pasos& pasos,
                           const model::TablasDeLluvia& tablas, const model::Serie* serie);

}  // namespace checks
