// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/TormentaLote.h"

#include <optional>
#include <utility>

#include "batch/CorridaLote.h"
#include "batch/IdfLote.h"
#include "frequency/tormenta/Diseno.h"
#include "frequency/tormenta/EscribeLluvia.h"
#include "frequency/tormenta/Fuentes.h"
#include "model/Camino.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "model/Sistema.h"

namespace batch {
namespace {

int Interrumpe(const Salidas& salidas, const std::string& motivo)
{
    salidas.Errores("siro-lote: " + motivo + "\n");
    return EstadoInterrumpido;
}

/// The study's words for the storm that was asked for: the recorded one is named within its folder.
study::TormentaDeDiseno DisenoDe(const Opciones& o, model::Siro& s)
{
    study::TormentaDeDiseno t = o.diseno;
    if (t.archivo.empty()) return t;
    const std::string ruta = model::RutaAbsoluta(t.archivo);
    s.Proyecto.DirProyecto = model::DirectorioDe(ruta);
    t.archivo = ruta.substr(s.Proyecto.DirProyecto.size());
    t.archivo.erase(0, t.archivo.find_first_not_of("/\\"));
    return t;
}

/// A table that is to be written: why it can't be, and what it comes to.
struct Destino {
    int cual = 0;  ///< 0: it isn't to be
    std::string que{};
    frequency::EnElArchivo hay{};
    std::string error{};
};

std::string MotivoDe(const Destino& d, bool reemplaza)
{
    if (d.cual == 0) return {};
    if (!d.error.empty()) return d.error;
    if (!d.hay.error.empty()) return d.hay.error;
    if (d.hay.filas == 0 || reemplaza) return {};
    return d.que + " " + std::to_string(d.cual) + " ya tiene " + std::to_string(d.hay.filas) + " filas" +
           (d.hay.notas.empty() ? "" : " (" + d.hay.notas + ")") + "; con --reemplaza se escribe encima";
}

frequency::PlanDeTabla PlanDe(const Opciones& o, const frequency::FuentesDeTormenta& fuentes)
{
    frequency::PedidoDeTabla pedido{.lamina = fuentes.curvas, .notas = frequency::OrigenDeTabla(fuentes)};
    if (!o.duraciones.empty()) pedido.duraciones = o.duraciones;
    if (!o.recurrencias.empty()) pedido.recurrencias = o.recurrencias;
    return frequency::PlaneaTabla(pedido);
}

/// Writes what was asked for, all of it or nothing. Returns why not.
std::string Escribe(const Opciones& o, const model::Siro& s, const frequency::Diseno& d,
                    const frequency::FuentesDeTormenta& fuentes, const Salidas& salidas)
{
    Destino distribucion{
        .cual = o.escribeDistribucion, .que = "la distribución personal", .error = d.plan.error};
    if (distribucion.cual > 0) distribucion.hay = frequency::HayEnDistribucion(s, distribucion.cual);
    frequency::PlanDeTabla plan;
    if (o.escribeTabla > 0) plan = PlanDe(o, fuentes);
    Destino tabla{.cual = o.escribeTabla, .que = "la tabla P-D-R", .error = plan.error};
    if (tabla.cual > 0) tabla.hay = frequency::HayEnTabla(s, tabla.cual);
    for (const Destino* const destino : {&distribucion, &tabla})
        if (std::string motivo = MotivoDe(*destino, o.reemplaza); !motivo.empty()) return motivo;
    frequency::CambioDeLluvia hecho;
    if (distribucion.cual > 0) {
        frequency::Escritura e = frequency::EscribeDistribucion(s, d.plan, distribucion.cual);
        if (!e.error.empty()) return e.error;
        hecho = std::move(e.cambio);
    }
    if (tabla.cual == 0) return {};
    for (const std::string& aviso : plan.avisos)
        salidas.Errores("siro-lote: " + aviso + "\n");
    frequency::Escritura e = frequency::EscribeTabla(s, plan, tabla.cual);
    if (!e.error.empty() && !hecho.ruta.empty()) frequency::Deshace(s, hecho);
    return e.error;
}

}  // namespace

int MuestraTormenta(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    std::string mala = HayDeDonde(o) ? ClaveErronea(o) : std::string();
    if (frequency::PatronDeClave(o.diseno.patron) == nullptr)
        mala = "no hay un patrón \"" + o.diseno.patron + "\"";
    if (!mala.empty()) {
        salidas.Errores("siro-lote: " + mala + "\n\n");
        salidas.Errores(UsoTormenta());
        return EstadoOrdenErronea;
    }
    model::Siro s;
    s.Proyecto.DirTrabajo = o.trabajo.empty() ? dirEjecutable : model::RutaAbsoluta(o.trabajo);
    const study::TormentaDeDiseno t = DisenoDe(o, s);
    frequency::FuentesDeTormenta fuentes;
    if (HayDeDonde(o)) {
        const auto estacion = EstacionDe(o, salidas);
        if (!estacion) return EstadoInterrumpido;
        frequency::PonCurvas(fuentes, o.idf, {*estacion});
        if (!fuentes.curvas) return Interrumpe(salidas, fuentes.sinCurvas);
    }
    frequency::PonGrabada(fuentes, t, s);
    const frequency::Diseno d = frequency::Disena(t, fuentes);
    if (!d.error.empty()) return Interrumpe(salidas, d.error);
    if (const std::string motivo = Escribe(o, s, d, fuentes, salidas); !motivo.empty())
        return Interrumpe(salidas, motivo);
    const bool escrito = Muestra(salidas, o.json  ? frequency::JsonDe(d)
                                          : o.csv ? frequency::CsvDe(d)
                                                  : frequency::TextoDe(d));
    return escrito ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
