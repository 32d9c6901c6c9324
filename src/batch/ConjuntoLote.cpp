// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/ConjuntoLote.h"

#include <cstddef>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "batch/CorridaLote.h"
#include "batch/TareaLote.h"
#include "calibration/Incertidumbre.h"
#include "calibration/InformeDeConjunto.h"
#include "calibration/Juicio.h"
#include "model/Avisos.h"
#include "model/Disco.h"
#include "model/Sistema.h"

namespace batch {
namespace {

using calibration::Conjunto;
using calibration::EncabezadoDeConjunto;

int Escribe(const Opciones& o, const EncabezadoDeConjunto& e, const Conjunto& c, const Salidas& salidas)
{
    // of a CSV nothing else tells which members failed
    if (o.csv)
        for (const auto& [motivo, f] : c.fallidos)
            salidas.Errores("siro-lote: " + std::to_string(f.cuantos) + " juegos sin resultado: " + motivo +
                            "\n");
    const bool escrito = Muestra(salidas, o.json ? JsonDe(e, c) : o.csv ? CsvDe(c) : TextoDe(e, c));
    return escrito ? EstadoCompleto : EstadoInterrumpido;
}

calibration::PedidoDeIncertidumbre PedidoDe(const Opciones& o, Tarea tarea)
{
    calibration::PedidoDeIncertidumbre p;
    p.eventos = tarea.Eventos();
    for (study::Evento& evento : p.eventos)
        for (study::Observacion& observacion : evento.observaciones)
            observacion = calibration::EnCaudal(std::move(observacion));
    p.modelo = std::move(tarea.modelo.modelo);
    p.como = tarea.ajuste.incertidumbre;
    p.calibracion = std::move(tarea.ajuste.calibracion);
    p.hilos = o.hilos;
    p.parte = static_cast<std::size_t>(o.parte.cual) - 1;
    p.partes = static_cast<std::size_t>(o.parte.de);
    return p;
}

int GuardaParte(const std::string& archivo, const calibration::ParteDeConjunto& parte, const Salidas& salidas)
{
    const std::string ruta = model::RutaAbsoluta(archivo);
    if (model::Sentencia([&] { model::DiscoDelSistema().Escribe(ruta, calibration::EscribeParte(parte)); }))
        return EstadoCompleto;
    return Niega(salidas, {"no se puede escribir " + ruta});
}

int CorreTarea(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    Tarea tarea;
    if (!AbreTarea(o, dirEjecutable, salidas, tarea)) return EstadoInterrumpido;
    std::string proyecto = tarea.proyecto;
    const calibration::PedidoDeIncertidumbre pedido = PedidoDe(o, tarea);
    if (const auto reparos = calibration::ReparosDe(pedido); !reparos.empty()) return Niega(salidas, reparos);
    EncabezadoDeConjunto e = calibration::EncabezadoDe(std::move(proyecto), pedido);
    const std::optional<Conjunto> c = calibration::CorreConjunto(pedido);
    if (!c) return EstadoInterrumpido;
    if (!o.parcial.empty())
        return GuardaParte(o.parcial, {std::move(e), o.parte.cual, o.parte.de, *c}, salidas);
    const int estado = Escribe(o, e, *c, salidas);
    const bool enElLibro = GuardaTarea(
        o, tarea, "conjunto", std::to_string(c->miembros) + " miembros, " + c->componente + ".",
        [&] { return JsonDe(e, *c); }, salidas);
    return enElLibro ? estado : EstadoInterrumpido;
}

int Une(const Opciones& o, const Salidas& salidas)
{
    calibration::Union u;
    for (const std::string& archivo : o.archivos) {
        const std::string ruta = model::RutaAbsoluta(archivo);
        std::string texto;
        if (!model::Sentencia([&] { texto = model::DiscoDelSistema().Lee(ruta); }))
            return Niega(salidas, {"no se puede abrir " + ruta});
        calibration::LecturaDeParte l = calibration::LeeParte(texto);
        if (l.motivo.empty()) l.motivo = u.Agrega(std::move(l.parte));
        if (!l.motivo.empty()) return Niega(salidas, {ruta + ": " + l.motivo});
    }
    if (const std::string falta = u.Falta(); !falta.empty()) return Niega(salidas, {falta});
    return Escribe(o, u.Encabezado(), u.Todo(), salidas);
}

}  // namespace

int MuestraConjunto(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    try {
        return CorreTarea(o, dirEjecutable, salidas);
    } catch (const std::bad_alloc&) {
        return Niega(salidas, {"no hay memoria suficiente"});
    }
}

int MuestraUnion(const Opciones& o, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    try {
        return Une(o, salidas);
    } catch (const std::bad_alloc&) {
        return Niega(salidas, {"no hay memoria suficiente"});
    }
}

}  // namespace batch
