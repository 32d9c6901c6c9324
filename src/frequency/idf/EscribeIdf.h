// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frequency/idf/Curvas.h"

// Curves without errors as text, JSON, CSV: UTF-8, LF, a point as decimal sign.
namespace frequency::idf {

/// For a reader: laws, coefficients with how well they fit, what is to be known, crossings, depths and
/// intensities of the tables' durations and recurrences.
std::string TextoDe(const Curvas& curvas);

/// All of it, one object; numbers with every digit, null for one that isn't there.
std::string JsonDe(const Curvas& curvas);

/// A row per duration and recurrence of the tables: duracion,recurrencia,lamina,intensidad.
std::string CsvDe(const Curvas& curvas);

/// "k 822, a 0.2, b 10, c 0.8": coefficients with their symbols.
std::string TextoDeCoeficientes(const Familia& familia, const Coeficientes& c);

/// How well the family fits: R2, mean error, the farthest point. One line; empty where nothing was fitted.
std::string TextoDeCalidad(const Curvas& curvas);

}  // namespace frequency::idf
