// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoDeUnArchivo.h"
#include "model/Falla.h"
#include "model/RutaProyecto.h"
#include "model/VersionAnterior.h"

// Any bytes are refused, or they are a version whose files are all names, and which is written as it was.
// Bytes behind a checksum that doesn't fit are tried with the one that does, so that what stands there is
// looked at.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const auto lee = [](const std::string& bytes) {
        model::VersionAnterior version;
        const bool leida = model::Sentencia(
            [&] { version = model::LeeVersion(bytes); },
            [](const model::Falla& falla) { Exige(falla.numero == model::NumeroFalla::AccesoRuta); });
        if (!leida) return;
        for (const model::CambioArchivo& archivo : version.archivos)
            Exige(!archivo.ruta.empty() && model::SirveDeNombre(archivo.ruta));
        Exige(model::LeeVersion(model::EscribeVersion(version)) == version);
    };
    const std::string bytes(datos, datos + largo);
    lee(bytes);
    lee(model::ConHuella(bytes));
    return 0;
}
