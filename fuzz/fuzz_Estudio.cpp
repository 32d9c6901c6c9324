// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "study/ArchivoEstudio.h"

// Bytes are a study, which is then written and read back the same, or there is a reason with a line of
// theirs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string bytes(datos, datos + largo);
    const study::LecturaDeEstudio lectura = study::LeeEstudio(bytes);
    Exige(lectura.motivo.empty() == (lectura.renglon == 0));
    Exige(static_cast<std::size_t>(lectura.renglon) <= largo + 1);
    if (!lectura.motivo.empty()) {
        Exige(lectura.estudio == study::Estudio{});
        return 0;
    }
    const std::string texto = study::EscribeEstudio(lectura.estudio);
    const study::LecturaDeEstudio otra = study::LeeEstudio(texto);
    Exige(otra.motivo.empty() && otra.estudio == lectura.estudio);
    Exige(study::EscribeEstudio(otra.estudio) == texto);
    return 0;
}
