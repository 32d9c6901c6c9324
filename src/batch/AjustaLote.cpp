// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AjustaLote.h"

#include <cmath>
#include <optional>
#include <string_view>
#include <vector>

#include "batch/CorridaLote.h"
#include "batch/TareaLote.h"
#include "calibration/Calibra.h"
#include "calibration/EscribeCalibracion.h"
#include "model/Avisos.h"
#include "model/Disco.h"
#include "model/Numeros.h"
#include "model/Sistema.h"

namespace batch {
namespace {

/// Progress on a terminal, each hundredth.
study::Avance EnTerminal(const Salidas& salidas, std::size_t& visto)
{
    if (!salidas.erroresEsTerminal) return {};
    return [&](std::size_t hechas, std::size_t total) {
        const std::size_t parte = total > 0 ? 100 * hechas / total : 0;
        if (parte != visto) salidas.Errores("\r" + std::to_string(parte) + " %");
        visto = parte;
        return true;
    };
}

bool Escribe(const std::string& archivo, std::string_view texto, const Salidas& salidas)
{
    const std::string ruta = model::RutaAbsoluta(archivo);
    if (model::Sentencia([&] { model::DiscoDelSistema().Escribe(ruta, texto); })) return true;
    salidas.Errores("siro-lote: no se puede escribir " + ruta + "\n");
    return false;
}

}  // namespace

int AjustaProyecto(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    Tarea tarea;
    if (!AbreTarea(o, dirEjecutable, salidas, tarea)) return EstadoInterrumpido;
    const calibration::PedidoDeCalibracion pedido{tarea.modelo.modelo, tarea.Eventos(),
                                                  tarea.ajuste.calibracion, o.hilos};
    if (const auto reparos = calibration::ReparosDe(pedido); !reparos.empty()) return Niega(salidas, reparos);
    std::size_t visto = 0;
    const auto calibrado = calibration::Calibra(pedido, EnTerminal(salidas, visto));
    if (salidas.erroresEsTerminal) salidas.Errores("\r      \r");
    if (!calibrado) return EstadoInterrumpido;
    const bool guardado =
        o.corridas.empty() || Escribe(o.corridas, calibration::CsvDeCorridas(*calibrado), salidas);
    const bool escrito = Muestra(salidas, o.json  ? calibration::JsonDe(pedido, *calibrado)
                                          : o.csv ? calibration::CsvDe(*calibrado)
                                                  : calibration::TextoDe(pedido, *calibrado));
    const bool enElLibro = GuardaTarea(
        o, tarea, "ajuste",
        "Puntaje " + model::NumeroATexto(calibrado->Puntaje()) + " en " +
            std::to_string(calibrado->corridas.size()) + " corridas.",
        [&] { return calibration::JsonDe(pedido, *calibrado); }, salidas);
    return guardado && escrito && enElLibro && std::isfinite(calibrado->Puntaje()) ? EstadoCompleto
                                                                                   : EstadoInterrumpido;
}

}  // namespace batch
