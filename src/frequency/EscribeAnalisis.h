// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frequency/Analisis.h"

// An analysis as text, JSON, CSV: UTF-8, LF, a point as decimal sign.
namespace frequency {

/// For a reader: the sample, its tests, the laws with their goodness, the quantiles, the bands of the one
/// recommended.
std::string TextoDe(const Analisis& a);

/// All of it, one object; numbers with every digit, null for one that isn't there.
std::string JsonDe(const Analisis& a);

/// A row per law and recurrence: ley,metodo,recurrencia,cuantil,banda5,banda95. No band: an empty field.
std::string CsvDe(const Analisis& a);

}  // namespace frequency
