// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/CorridaLote.h"
#include "batch/FrecuenciaLote.h"

namespace batch {

int MuestraFrecuencia(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    salidas.Errores("siro-lote: esta versión no trae la orden frecuencia; la trae la de Linux\n");
    return EstadoInterrumpido;
}

}  // namespace batch
