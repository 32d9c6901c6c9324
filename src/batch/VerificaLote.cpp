// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/CorridaLote.h"
#include "batch/Verbos.h"
#include "checks/Verifica.h"

namespace batch {

int CorreVerifica(Palabras palabras, const Salidas& salidas, std::string& motivo)
{
    bool json = false;
    for (const std::string_view palabra : palabras) {
        if (palabra != "--json") {
            motivo = "No se esperaba " + std::string(palabra);
            return EstadoOrdenErronea;
        }
        json = true;
    }
    const std::vector<checks::Caso> casos = checks::Verifica();
    const bool escrito =
        Muestra(salidas, json ? checks::JsonDeVerifica(casos) : checks::TextoDeVerifica(casos));
    return escrito && checks::CuantosFuera(casos) == 0 ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
