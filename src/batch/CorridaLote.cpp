// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/CorridaLote.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <new>
#include <optional>
#include <string_view>

#include "batch/AvisosLote.h"
#include "batch/GuardaLote.h"
#include "batch/ResultadosCsv.h"
#include "checks/AvisosDeSerie.h"
#include "checks/ProyectoAparte.h"
#include "engine/mdlProceso1.h"
#include "engine/mdlSeriePDR.h"
#include "engine/modProceso0.h"
#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/Camino.h"
#include "model/Configuracion.h"
#include "model/DirPropio.h"
#include "model/Falla.h"
#include "model/Siro.h"
#include "model/Sistema.h"
#include "model/Tormenta.h"
#include "model/VidaProyecto.h"

namespace batch {
namespace {

using model::FormaLluvia;
using model::RutaAbsoluta;
using model::Siro;

constexpr std::int16_t DistriPpReal = 7;  // what the desktop ticks for a recorded storm

void LeeTormentaReal(Siro& s, const std::string& nombre)
{
    model::TormentaReal tormenta;
    tormenta.nombre = nombre;
    model::LeePpReal(s, tormenta);
    s.Pasos.PasoPp = tormenta.PasoPpReal;
    if (s.Tormenta.NroPpReal != 0) return;
    s.Tormenta.PpTormenta = 0;
    s.Tormenta.DurTormenta = 0;
}

void CargaPpUEH(Siro& s, const std::vector<float>& laminas)
{
    for (std::size_t i = 0; i < laminas.size(); ++i)
        s.Tormenta.PpUEH(static_cast<int>(i) + 1) = laminas[i];
    const auto primera = std::find_if(laminas.begin(), laminas.end(), [](float p) { return p > 0; });
    if (primera != laminas.end()) s.Tormenta.PpTormenta = *primera;
}

bool SeAbre(const model::Disco& disco, const std::string& ruta)
{
    return model::Sentencia([&] { disco.Lee(ruta); });
}

/// A disk that notes whether the text files of a run couldn't be written. That they couldn't has been told
/// where it arose, and the run goes on.
model::Disco Vigilado(model::Disco disco, const std::string& dirTrabajo, bool& escritos)
{
    using Escritura = std::function<void(const std::string& ruta, std::string_view bytes)>;
    const auto vigila = [&](Escritura& escribe) {
        escribe = [dirTrabajo, &escritos, sin = escribe](const std::string& ruta, std::string_view bytes) {
            try {
                sin(ruta, bytes);
            } catch (const model::Falla&) {
                if (ruta == model::Ruta(dirTrabajo, engine::ArchivoPizarra) ||
                    ruta == model::Ruta(dirTrabajo, engine::ArchivoTablaQDR))
                    escritos = false;
                throw;
            }
        };
    };
    vigila(disco.Escribe);
    vigila(disco.Agrega);
    return disco;
}

/// Writes to standard output. Returns whether that went well; a fault is told.
bool Muestra(const Salidas& salidas, const std::function<void()>& escribe)
{
    return model::Sentencia(escribe, [&](const model::Falla&) {
        salidas.Errores("siro-lote: no se puede escribir en la salida estándar\n");
    });
}

/// Runs what was settled, and keeps the storm in hand as it was ahead of the run. Returns whether the run
/// went to its end.
bool CorreOrden(Siro& s, const Opciones& o, std::optional<model::Tormenta>& entrada,
                checks::VigiaDeSerie& vigia)
{
    if (!checks::AbreProyecto(s, RutaAbsoluta(o.conf))) return false;
    FijaTormenta(s, o);
    entrada = s.Tormenta;
    if (o.orden == Opciones::Orden::Serie)
        return engine::CorreSeriePDR(s, o.hilos, o.avisos ? vigia.Ojo() : nullptr) ==
               engine::FinSerie::Completa;
    return engine::CorreUnaTormenta(s);
}

/// Returns whether the results were written, or weren't asked for; a fault is told.
bool GuardaResultados(Siro& s, const Opciones& o)
{
    if (o.resultados.empty()) return true;
    const auto guarda = [&] {
        if (o.orden == Opciones::Orden::Serie)
            GuardaCsvSerie(s, RutaAbsoluta(o.resultados));
        else
            GuardaCsvTormenta(s, RutaAbsoluta(o.resultados));
    };
    return model::Sentencia(guarda, model::AvisaArchivo(s));
}

/// Judges the run, where that was asked for and there was one. Whether it can be written changes nothing.
void MuestraAvisos(const Salidas& salidas, const Opciones& o, const std::function<std::string()>& informe)
{
    if (!o.avisos) return;
    try {
        Muestra(salidas, [&] { salidas.Estandar(informe()); });
    } catch (const std::bad_alloc&) {
        salidas.Errores("siro-lote: no hay memoria suficiente\n");
    }
}

}  // namespace

void FijaTormenta(Siro& s, const Opciones& o)
{
    const auto forma =
        o.orden == Opciones::Orden::Serie || o.serie ? FormaLluvia::SeriePDR : FormaLluvia{o.forma};
    s.Tormenta.FormaPp = forma;
    s.Tormenta.PpTormenta = o.pp;
    s.Tormenta.DurTormenta = o.dur;
    s.Tormenta.RecTormenta = o.rec;
    s.Tormenta.DistriPp = o.distribucion;
    s.Pasos.PasoPp = o.pasoPp;
    s.Pasos.PasoQ = o.pasoQ;
    switch (forma) {
    case FormaLluvia::SeriePDR:
        s.Tormenta.TablaPDR = o.tabla;
        model::LeeTablaPDRs(s);
        break;
    case FormaLluvia::Real:
        s.Tormenta.DistriPp = DistriPpReal;
        LeeTormentaReal(s, o.tormenta);
        break;
    case FormaLluvia::PorUEH:
        s.Tormenta.DistriPp = 0;
        CargaPpUEH(s, o.ppUEH);
        [[fallthrough]];
    case FormaLluvia::Escrita:
    case FormaLluvia::DeLista:
        if (s.Tormenta.DurTormenta > 0) s.Pasos.PasoPp = std::min(s.Pasos.PasoPp, s.Tormenta.DurTormenta);
        break;
    }
    s.Pasos.PasoQ = std::min(s.Pasos.PasoQ, s.Pasos.PasoPp);
}

int Corre(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    AnfitrionLote anfitrion(salidas, o.pizarra, o.respondeSi);
    Siro s;
    if (!SeAbre(s.Disco, RutaAbsoluta(o.conf))) {
        salidas.Errores("siro-lote: no se puede abrir " + RutaAbsoluta(o.conf) + "\n");
        return EstadoInterrumpido;
    }
    s.Anfitrion = anfitrion.Anfitrion();
    s.Proyecto.DirEjecutable = dirEjecutable;
    s.Proyecto.DirTrabajo = o.trabajo.empty() ? model::DirTrabajoDe(dirEjecutable) : RutaAbsoluta(o.trabajo);
    model::AvisaEntregaPendiente(s);
    bool completa = false, escritos = true;
    s.Disco = Vigilado(s.Disco, s.Proyecto.DirTrabajo, escritos);
    std::optional<int> fin;
    std::optional<model::Tormenta> entrada;
    checks::VigiaDeSerie vigia(s);
    Guardadora guardadora(s, o);
    try {
        completa = CorreOrden(s, o, entrada, vigia);
    } catch (const model::FinDelPrograma& terminada) {
        fin = terminada.estado;
    } catch (const std::bad_alloc&) {
        salidas.Errores("siro-lote: no hay memoria suficiente\n");
        fin = EstadoInterrumpido;
    }
    anfitrion.BorraAvance();
    anfitrion.CuentaRepetidas();
    if (!fin) {
        escritos = Muestra(salidas, [&] { anfitrion.MuestraPizarra(); }) && escritos;
        const bool enElLibro = !completa || guardadora.Guarda(*entrada, salidas);
        fin =
            completa && escritos && GuardaResultados(s, o) && enElLibro ? EstadoCompleto : EstadoInterrumpido;
    }
    if (entrada) MuestraAvisos(salidas, o, [&] { return InformeDeAvisos(s, *entrada, completa, o, vigia); });
    return *fin;
}

bool Muestra(const Salidas& salidas, std::string_view texto)
{
    return Muestra(salidas, [&] { salidas.Estandar(texto); });
}

}  // namespace batch
