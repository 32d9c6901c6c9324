// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "checks/Corrido.h"

// Where the water of a run went. All volumes are in m3, and a hydrograph's is that of the Slate: the sum of
// Q·PasoQ·60 over the output steps 1..NroPasosQ.
namespace checks {

/// The water of one component, or of the basin.
struct RenglonBalance {
    std::string_view componente{};  ///< empty: the basin
    /// A UEH: the rain of the steps that ran, depth by area, and its base flow. Any other component: its
    /// inflow. The basin: what enters the UEHs.
    double entra = 0;
    /// Outflow; of the basin, that of all its outfalls.
    double sale = 0;
    /// What a UEH retains and lets infiltrate, by the run's own formulas.
    double perdido = 0;
    /// What stands in the component when the run ends, less what stood there when it began. A Represa or a
    /// Lago: by its table, and a height above the table counts as its top. By Muskingum's method, in whatever
    /// component: K·(x·I + (1-x)·O), with x = 0 in a pool. A Direct reach held what it lets out until the
    /// first inflow arrives.
    double almacenado = 0;
    /// What the end of the run cuts off. A UEH: excess that comes to its foot behind the last step. A Direct
    /// reach: what entered within its delay. The others: the sum counts the last flow for a whole step, their
    /// method for half of one, and the flow at the start for the other half; the level pool leaves the
    /// outflow at the start out.
    double cortado = 0;
    /// How closely the run's own numbers tell all this: 5 mm of a level pool's height and the rounding of its
    /// storage in each step, half a m3 per step of base flow.
    double lectura = 0;

    /// What isn't accounted for; above 0, water has got lost.
    [[nodiscard]] double Error() const { return entra - sale - perdido - almacenado - cortado; }
    /// The same as a share of what enters or, if that is more, leaves [%]; 0 where neither does.
    [[nodiscard]] double PorCiento() const
    {
        const double pasa = std::max(entra, sale);
        return pasa > 0 ? 100 * Error() / pasa : 0;
    }
};

struct Balance {
    std::vector<RenglonBalance> componentes{};  ///< in the order of Corrido's
    RenglonBalance cuenca{};
};

/// The balance of a run. Requires its results; a component without a row has an empty one.
Balance BalanceDe(const Corrido& c);

/// Storage [m3] of a Represa or a Lago at each output step, from 0, by what has entered and left it. Where
/// its method lets nothing get lost that is what it holds, whatever its table ends at. Requires results, a
/// row and a table.
std::vector<double> AlmacenadoPorBalance(const Corrido& c, const ComponenteCorrido& comp);

}  // namespace checks
