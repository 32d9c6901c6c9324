// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/Disco.h"

namespace model {

/// A disk over another whose writes wait until all of them are made at once, so that a command of several
/// files does all of it or nothing. What waits is read as if it were written already.
class EscriturasEnEspera {
  public:
    /// `unDisco` is used until `Cumple`.
    explicit EscriturasEnEspera(Disco unDisco);
    /// What the command writes to: Lee, Copia, Reemplaza and Borra.
    [[nodiscard]] Disco Puerta() const;
    /// Makes all writes, the first file last. Throws Falla 76, 75 and leaves the disk as it was.
    void Cumple() const;

  private:
    struct Espera {
        Disco disco{};
        std::vector<CambioArchivo> cambios{};
        std::vector<std::string> borrados{};
    };
    std::shared_ptr<Espera> espera;
};

}  // namespace model
