// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "model/Avisos.h"
#include "model/Falla.h"
#include "model/Registros.h"
#include "model/Siro.h"

namespace model {

/// The writing of a file whose handler reports a fault, closes the file and resumes at the next statement: so
/// what was written before stays, a shortened file, and each later record fails in its turn with a box of its
/// own. Faults never leave it.
class EscrituraInformada {
  public:
    /// `sinAviso`: a fault that closes the file without a box.
    explicit EscrituraInformada(const Siro& unSiro, std::optional<NumeroFalla> unaSinAviso = {})
        : s(unSiro), escritor(unSiro.Disco), sinAviso(unaSinAviso)
    {
    }
    void Abre(const std::string& ruta)
    {
        Paso([&] { escritor.Abre(ruta); });
    }
    void Cierra()
    {
        Paso([&] { escritor.Cierra(); });
    }
    /// One statement. Returns false where it was at fault.
    template <typename F>
    bool Paso(F&& cuerpo)
    {
        return Sentencia(std::forward<F>(cuerpo), [&](const Falla& falla) { Atiende(falla); });
    }
    /// A record: `campos` puts its fields, the line end follows. What `campos` can't give leaves no record.
    template <typename F>
    bool Registro(F&& campos)
    {
        return Paso([&] {
            campos(escritor);
            escritor.FinRegistro();
        });
    }

  private:
    void Atiende(const Falla& falla)
    {
        if (falla.numero != sinAviso) Informa(s, TextoFallaArchivo(falla));
        // Closing what has already failed may fail again: that adds nothing to what the user has read.
        Sentencia([&] { escritor.Cierra(); }, [](const Falla&) {});
    }
    const Siro& s;
    EscritorRegistros escritor;
    std::optional<NumeroFalla> sinAviso;
};

}  // namespace model
