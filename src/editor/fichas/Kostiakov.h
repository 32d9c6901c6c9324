// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace editor {

/// Infiltration since the soil was dry, I = a·t^b (Kostiakov, 1932), as points of a small plot.
struct CurvaInfiltracion {
    std::vector<double> t{};  ///< [min], rising from 0
    std::vector<double> I{};  ///< at each t [mm]
    /// Where a storm begins on the curve: the time by which the soil is wet already, and what it has taken.
    double tInicial = 0;  ///< [min]
    double IInicial = 0;  ///< [mm]
    bool operator==(const CurvaInfiltracion&) const = default;
};

inline constexpr int TramosCurvaInfiltracion = 60;
inline constexpr double DuracionCurvaInfiltracion = 180;  ///< shown from the storm's beginning on [min]

/// The curve from a dry soil to three hours into a storm, in even steps. `a` [mm/min^b], `tInicial` [min],
/// none below 0.
CurvaInfiltracion CurvaKostiakov(double a, double b, double tInicial);

}  // namespace editor
