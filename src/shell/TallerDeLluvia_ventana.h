// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "forms/Entorno_ventana.h"

namespace shell {

/// The rain workshop on the study of the project in hand; a build without its libraries says that it isn't
/// there.
class TallerDeLluvia {
  public:
    explicit TallerDeLluvia(forms::Entorno& alrededor);
    ~TallerDeLluvia();
    TallerDeLluvia(const TallerDeLluvia&) = delete;
    TallerDeLluvia& operator=(const TallerDeLluvia&) = delete;

    /// Brings its window up. Runs inside an event.
    void Abre();

  private:
    struct Partes;

    forms::Entorno& entorno;
    std::unique_ptr<Partes> partes;
};

}  // namespace shell
