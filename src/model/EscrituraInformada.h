// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "model/Avisos.h"
#include "model/Falla.h"
#include "model/Registros.h"
#include "model/Siro.h"

namespace model {

/// The writing of a file whose first fault is told and ends it: the file on the disk is then as it was, and
/// no later statement has any effect. Faults never leave it.
class EscrituraInformada {
  public:
    /// `sinAviso`: a fault that is passed over in silence.
    EscrituraInformada(const Siro& unSiro, const std::string& ruta,
                       std::optional<NumeroFalla> unaSinAviso = {})
        : s(unSiro), escritor(unSiro.Disco), sinAviso(unaSinAviso)
    {
        escritor.Abre(ruta);
    }
    /// One statement. Returns false where it was at fault, or the writing has ended before.
    bool Paso(auto&& cuerpo)
    {
        return sigue && Sentencia(cuerpo, [&](const Falla& falla) { Atiende(falla); });
    }
    /// A record: `campos` puts its fields.
    bool Registro(auto&& campos)
    {
        return Paso([&] { escritor.Registro(campos); });
    }
    /// Replaces the file. Returns whether it did.
    bool Cierra()
    {
        return Paso([&] { escritor.Cierra(); });
    }
    /// Instead of `Cierra`, for files that are replaced together: the file; nothing after a fault.
    std::optional<CambioArchivo> Toma()
    {
        if (!sigue) return {};
        return escritor.Toma();
    }

    /// Whether no fault has been told.
    [[nodiscard]] bool Sigue() const { return sigue; }

  private:
    void Atiende(const Falla& falla)
    {
        if (falla.numero == sinAviso) return;
        AvisaArchivo(s)(falla);
        sigue = false;
    }
    const Siro& s;
    EscritorRegistros escritor;
    std::optional<NumeroFalla> sinAviso;
    bool sigue = true;
};

}  // namespace model
