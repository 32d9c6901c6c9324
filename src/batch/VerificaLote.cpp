// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/VerificaLote.h"

#include <vector>

#include "batch/CorridaLote.h"
#include "calibration/casos/Familias.h"
#include "checks/Verifica.h"
#include "frequency/casos/Familias.h"

namespace batch {

int MuestraCasos(const Opciones& o, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    const std::vector<checks::Caso> casos =
        checks::Verifica({}, checks::Junta({frequency::Familias(), calibration::Familias()}));
    const bool escrito =
        Muestra(salidas, o.json ? checks::JsonDeVerifica(casos) : checks::TextoDeVerifica(casos));
    return escrito && checks::CuantosFuera(casos) == 0 ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
