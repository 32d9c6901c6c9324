// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "forms/Planilla.h"
#include "runs/Comparacion.h"

// A comparison as tables, text, JSON, CSV.
namespace runs {

/// What differs of what went in, a column per side.
forms::Planilla PlanillaDeParametros(const Comparacion& c);

/// What came out: a column per side, difference and share of every side but the first. `soloDistintas`:
/// without what is alike in all of them. Numbers stand as the summary of a run rounds them, the difference is
/// worked out ahead of rounding.
forms::Planilla PlanillaDeCifras(const Comparacion& c, bool soloDistintas = false);
/// The figures that it shows, in its order.
std::vector<std::size_t> CifrasALaVista(const Comparacion& c, bool soloDistintas);

/// Overlaid hydrographs of a component.
forms::Planilla PlanillaDeHidrogramas(const Comparacion& c, const Superpuestos& s, const std::string& titulo);

/// Peaks of a component by storm of a series.
forms::Planilla PlanillaDeSerie(const Comparacion& c, const std::vector<PicoDeSerie>& picos,
                                const std::string& componente);

/// All of it for whoever reads it without a window: UTF-8, LF. The text leaves out what is alike.
std::string TextoDe(const Lados& lados, const Comparacion& c);
/// `lados`, `parametros`, `cifras` with 17 digits, `hidrogramas` of what flows out, `series`.
std::string JsonDe(const Lados& lados, const Comparacion& c);
/// A line per value: tabla,componente,nombre,unidad,lado,valor,diferencia,por_ciento. Of series the name is
/// that of the storm.
std::string CsvDe(const Lados& lados, const Comparacion& c);

}  // namespace runs
