// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "batch/AnfitrionLote.h"
#include "batch/Opciones.h"
#include "model/SiroDeclarado.h"
#include "model/Tormenta.h"

// What siro-lote writes into the ledger of runs, --guarda.
namespace runs {
struct CorridaPorGuardar;
struct Libro;
}  // namespace runs

namespace batch {

/// Watches what a run reads, and keeps it with the run.
class Guardadora {
  public:
    /// Watches the disk of `s`, where the options ask for it; ahead of the run. Both outlive it.
    Guardadora(model::Siro& s, const Opciones& opciones);
    ~Guardadora();
    Guardadora(const Guardadora&) = delete;
    Guardadora& operator=(const Guardadora&) = delete;
    /// The run has come to its end: keeps it, where the options ask for it. `entrada`: the storm as it was
    /// ahead of it. Returns whether it is kept, or needn't be; a fault is told.
    bool Guarda(const model::Tormenta& entrada, const Salidas& salidas);

  private:
    struct Partes;
    std::unique_ptr<Partes> partes;
};

/// Writes a run into the ledger under a name. Returns whether it did; a fault is told.
bool EscribeEnLibro(const runs::Libro& libro, runs::CorridaPorGuardar corrida, const std::string& nombre,
                    const Salidas& salidas);

}  // namespace batch
