// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/SensibilidadLote.h"

#include <new>
#include <string>

#include "batch/CorridaLote.h"
#include "batch/TareaLote.h"
#include "calibration/AnalisisDeSensibilidad.h"
#include "calibration/EscribeSensibilidad.h"

namespace batch {
namespace {

int Analiza(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    Tarea tarea;
    if (!AbreTarea(o, dirEjecutable, salidas, tarea)) return EstadoInterrumpido;
    const calibration::AnalisisDeSensibilidad a =
        *calibration::AnalizaSensibilidad(tarea.modelo.modelo, tarea.ajuste, o.hilos);
    if (!a.reparos.empty()) return Niega(salidas, a.reparos);
    const bool escrito = Muestra(salidas, o.json  ? calibration::JsonDe(a)
                                          : o.csv ? calibration::CsvDe(a)
                                                  : calibration::TextoDe(a));
    const bool enElLibro = GuardaTarea(
        o, tarea, "sensibilidad",
        std::to_string(a.parametros.size()) + " parámetros, " + std::to_string(a.corridas) + " corridas.",
        [&] { return calibration::JsonDe(a); }, salidas);
    return escrito && enElLibro ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace

int MuestraSensibilidad(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    try {
        return Analiza(o, dirEjecutable, salidas);
    } catch (const std::bad_alloc&) {
        salidas.Errores("siro-lote: no hay memoria suficiente\n");
        return EstadoInterrumpido;
    }
}

}  // namespace batch
