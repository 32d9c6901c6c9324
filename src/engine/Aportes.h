// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/Siro.h"

namespace engine {

/// Who drains into whom, names resolved to rows of Secuencia once per network.
class Aportes {
  public:
    /// Rows of the components that drain into one, each kind in collection order.
    struct Afluentes {
        std::vector<int> UEHs, Cauces, Represas, Lagos;
    };

    Aportes() = default;
    explicit Aportes(const model::Siro& s);

    /// What drains into the component at a row of Secuencia above the UEHs; nothing into one whose name is
    /// empty or "0".
    [[nodiscard]] const Afluentes& De(int fila) const { return porFila[static_cast<std::size_t>(fila)]; }

  private:
    std::vector<Afluentes> porFila;
};

}  // namespace engine
