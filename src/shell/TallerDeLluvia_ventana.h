// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "forms/Entorno_ventana.h"

namespace study {
class Abierto;
}

namespace shell {

/// The study of the project in hand and the rain workshop on it; a build without their libraries says that
/// they aren't there.
class TallerDeLluvia {
  public:
    explicit TallerDeLluvia(forms::Entorno& alrededor);
    ~TallerDeLluvia();
    TallerDeLluvia(const TallerDeLluvia&) = delete;
    TallerDeLluvia& operator=(const TallerDeLluvia&) = delete;

    /// Brings its window up. Runs inside an event.
    void Abre();

    /// Nothing in a build without.
    study::Abierto* Estudio();
    // What becomes of the project: see study::Abierto.
    void TrasGuardarComo();
    void TrasEliminar();
    void AlSalir();

  private:
    struct Partes;

    forms::Entorno& entorno;
    std::unique_ptr<Partes> partes;
};

}  // namespace shell
