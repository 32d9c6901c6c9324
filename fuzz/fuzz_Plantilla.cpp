// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "DiscoPorTerminacion.h"
#include "report/Marcado.h"
#include "report/Memoria.h"
#include "report/Plantilla.h"

// Whatever a template holds, a memoria is made; what is wrong names a line that is there.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t largo)
{
    const std::string bytes(datos, datos + largo);
    const report::Documento d = report::Memoria({}, {}, bytes);
    const auto renglones = static_cast<int>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
    for (const report::Falta& falta : d.faltas)
        Exige(falta.linea >= 0 && falta.linea <= renglones && report::EsUtf8(falta.motivo));
    for (const report::Capitulo& c : report::CapitulosDe(bytes))
        Exige(!c.clave.empty() && !c.titulo.empty());
    return 0;
}
