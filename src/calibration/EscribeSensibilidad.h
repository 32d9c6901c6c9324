// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calibration/AnalisisDeSensibilidad.h"
#include "forms/Planilla.h"

// An analysis of sensitivity as a table, text, JSON, CSV; lines end in LF. It must have been run: no reparos.
namespace calibration {

/// Titles, headings with units, a row for each parameter, the first one that which matters most.
forms::Planilla PlanillaDe(const AnalisisDeSensibilidad& a);
/// The table with its words.
std::string TextoDe(const AnalisisDeSensibilidad& a);
/// All of it, with every digit; an index that isn't defined is null.
std::string JsonDe(const AnalisisDeSensibilidad& a);
/// A row for each parameter in the order of the study: parametro, and the method's indices by their keys.
std::string CsvDe(const AnalisisDeSensibilidad& a);

}  // namespace calibration
