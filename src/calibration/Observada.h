// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "study/Ajuste.h"

// An observation as a hydrograph: flows at times, out of what was measured.
namespace calibration {

/// A time between two readings in which some are missing.
struct Hueco {
    double desde = 0, hasta = 0;  ///< the readings at its ends [min]
    bool operator==(const Hueco&) const = default;
};

struct Observada {
    std::vector<study::Punto> puntos{};  ///< [min, m3/s], by time
    double paso = 0;                     ///< usual time between readings [min]; 0: there aren't two
    std::vector<Hueco> huecos{};
    std::vector<std::string> dudas{};  ///< what the user should know, sentences
};

/// Flows of an observation: as measured, or out of its levels by its rating curve. A level outside the curve
/// has no flow: nothing is extrapolated.
Observada ObservadaDe(const study::Observacion& observacion);

/// Flow [m3/s] of a level [m]; nothing outside the curve, or where that is none. Between two points the
/// logarithm of the flow follows that of the level, which is a power of it (WMO, Manual on Stream Gauging,
/// vol. II, WMO-No. 1044, 2010, ch. 1), or, where asked for, and where a level or a flow isn't above 0, the
/// flow follows the level along a straight line.
std::optional<double> CaudalDeNivel(const study::Observacion& observacion, double nivel);

/// Why the points of a rating curve are none: fewer than two, levels that don't rise, flows that fall. A
/// sentence; empty: they are one.
std::string ReparoDeCurva(std::span<const study::PuntoDeCurva> curva);

/// The median of the times between readings [min]; 0 where there aren't two.
double PasoUsual(std::span<const study::Punto> puntos);

/// Times between readings of more than 2.5 usual ones: at least two are missing there.
std::vector<Hueco> HuecosDe(std::span<const study::Punto> puntos);

}  // namespace calibration
