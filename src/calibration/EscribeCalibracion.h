// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calibration/Calibrado.h"

// A calibration as text, JSON, CSV; lines end in LF. Numbers with a point and every digit.
namespace calibration {

std::string TextoDe(const PedidoDeCalibracion& pedido, const Calibrado& calibrado);
/// All but the single runs. A number that isn't there is null.
std::string JsonDe(const PedidoDeCalibracion& pedido, const Calibrado& calibrado);
/// A row for each parameter.
std::string CsvDe(const Calibrado& calibrado);
/// A row for each run of the search, in its order: its number, its values, its score; no score: empty.
std::string CsvDeCorridas(const Calibrado& calibrado);

}  // namespace calibration
