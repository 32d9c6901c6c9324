// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/SiroDeclarado.h"

namespace engine {

/// Who drains into whom, names resolved to rows of Secuencia once per network.
class Aportes {
  public:
    /// A UEH that drains into a component. Of UEHs with one name all give the flow of the first one's row.
    struct AfluenteUEH {
        int fila;  ///< row of its name
        int item;  ///< its own place in the collection, from 1
    };
    /// What drains into a component, each kind in collection order; of all but the UEHs the rows.
    struct Afluentes {
        std::vector<AfluenteUEH> UEHs;
        std::vector<int> Cauces, Represas, Lagos;
    };

    Aportes() = default;
    explicit Aportes(const model::Siro& s);

    /// What drains into the component at a row of Secuencia above the UEHs; nothing into one whose name is
    /// empty or "0".
    [[nodiscard]] const Afluentes& De(int fila) const { return porFila[static_cast<std::size_t>(fila)]; }
    /// Places in their collection, from 1, of the components that bear the name of a row and are of the kind
    /// that it begins with.
    [[nodiscard]] const std::vector<int>& Propios(int fila) const
    {
        return propios[static_cast<std::size_t>(fila)];
    }

  private:
    std::vector<Afluentes> porFila;
    std::vector<std::vector<int>> propios;
};

}  // namespace engine
