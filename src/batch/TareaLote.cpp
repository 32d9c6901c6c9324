// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/TareaLote.h"

#include <optional>
#include <utility>

#include "batch/CorridaLote.h"
#include "batch/GuardaLote.h"
#include "checks/Hallazgo.h"
#include "checks/ProyectoAparte.h"
#include "checks/RevisaAbierto.h"
#include "checks/Sello.h"
#include "engine/modProceso0.h"
#include "model/Avisos.h"
#include "model/Companeros.h"
#include "model/DirPropio.h"
#include "model/Disco.h"
#include "model/Siro.h"
#include "model/Sistema.h"
#include "runs/LibroDeCorridas.h"
#include "study/ArchivoEstudio.h"
#include "study/Series.h"

namespace batch {
namespace {

using model::Siro;

bool Falta(const Salidas& salidas, const std::string& motivo)
{
    salidas.Errores("siro-lote: " + motivo + "\n");
    return false;
}

/// The bytes of a file; nothing where it can't be read.
std::optional<std::string> Bytes(const Siro& s, const std::string& ruta)
{
    std::string bytes;
    if (!model::Sentencia([&] { bytes = s.Disco.Lee(ruta); })) return {};
    return bytes;
}

/// Opens the project with everything that a run reads, and leaves its files as they are: many of these orders
/// run at once over one project. So nobody is told either that its configuration now says where it is; what
/// the readers find wrong is a line of Errores each.
bool AbreRed(const Opciones& o, Siro& s, const Salidas& salidas)
{
    const std::string conf = model::RutaAbsoluta(o.conf);
    if (!Bytes(s, conf)) return Falta(salidas, "no se puede abrir " + conf);
    s.Disco = checks::SoloLectura(s.Disco);
    std::vector<checks::Hallazgo> hallazgos;
    const model::Anfitrion anfitrion = std::exchange(s.Anfitrion, checks::Oyente(hallazgos));
    const bool abierto = checks::AbreProyecto(s, conf);
    if (abierto) {
        FijaTormenta(s, o);
        engine::CargaProyecto(s);
    }
    s.Anfitrion = anfitrion;
    for (const checks::Hallazgo& h : hallazgos)
        if (h.gravedad == checks::Gravedad::Error) Falta(salidas, h.que + ": " + h.cuanto);
    return abierto || Falta(salidas, "el proyecto no se abre: " + conf);
}

/// The task of a file, or the study's own one.
bool LeeTarea(const Opciones& o, const Siro& s, const std::string& base, const Salidas& salidas,
              study::Ajuste& ajuste)
{
    const bool propia = o.tarea.empty();
    const std::string ruta =
        propia ? base + std::string(model::TerminacionEstudio) : model::RutaAbsoluta(o.tarea);
    const auto bytes = Bytes(s, ruta);
    if (!bytes)
        return Falta(salidas, propia ? "el proyecto no tiene un estudio: dé la tarea con --tarea"
                                     : "no se puede abrir " + ruta);
    const auto noEs = [&](int renglon, const std::string& motivo) {
        return Falta(salidas, ruta + ", renglón " + std::to_string(renglon) + ": " + motivo);
    };
    if (propia) {
        study::LecturaDeEstudio l = study::LeeEstudio(*bytes);
        if (!l.motivo.empty()) return noEs(l.renglon, l.motivo);
        ajuste = std::move(l.estudio.ajuste);
    } else {
        study::LecturaDeAjuste l = study::LeeAjuste(*bytes);
        if (!l.motivo.empty()) return noEs(l.renglon, l.motivo);
        ajuste = std::move(l.ajuste);
        // a key that is misspelt would leave its default without a word
        if (!ajuste.resto.empty()) return noEs(1, "hay claves que no son de una tarea: " + ajuste.resto);
    }
    return true;
}

bool Abre(const Opciones& o, Siro& s, const Salidas& salidas, Tarea& tarea)
{
    if (!AbreRed(o, s, salidas)) return false;
    tarea.proyecto = s.Proyecto.NombreProyecto;
    const std::string base = model::Ruta(s.Proyecto.DirProyecto, tarea.proyecto);
    if (!LeeTarea(o, s, base, salidas, tarea.ajuste)) return false;
    const auto danadas =
        study::LeeSeries(tarea.ajuste, base, [&](const std::string& ruta) { return s.Disco.Lee(ruta); });
    for (const study::SerieDanada& d : danadas)
        Falta(salidas, d.texto);
    tarea.modelo = runs::ModeloDe(s, tarea.ajuste);
    tarea.circunstancias = {.dirProyecto = s.Proyecto.DirProyecto,
                            .proyecto = tarea.proyecto,
                            .dirTrabajo = s.Proyecto.DirTrabajo,
                            .quien = s.Configuracion.Operador,
                            .archivos = tarea.testigo.Leidos()};
    tarea.enPalabras = checks::TormentaEnMano(s);
    tarea.tormenta = s.Tormenta;
    tarea.pasos = s.Pasos;
    if (!tarea.modelo.reparos.empty()) Niega(salidas, tarea.modelo.reparos);
    return danadas.empty() && tarea.modelo.reparos.empty();
}

}  // namespace

std::vector<study::Evento> Tarea::Eventos() const
{
    std::vector<study::Evento> eventos;
    for (const std::size_t i : modelo.eventos)
        eventos.push_back(ajuste.eventos[i]);
    return eventos;
}

bool AbreTarea(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas, Tarea& tarea)
{
    AnfitrionLote anfitrion(salidas, false, true);
    Siro s;
    if (!o.guarda.empty()) s.Disco = tarea.testigo.Sobre(s.Disco);
    s.Anfitrion = anfitrion.Anfitrion();
    s.Proyecto.DirEjecutable = dirEjecutable;
    s.Proyecto.DirTrabajo =
        o.trabajo.empty() ? model::DirTrabajoDe(dirEjecutable) : model::RutaAbsoluta(o.trabajo);
    try {
        return Abre(o, s, salidas, tarea);
    } catch (const model::FinDelPrograma&) {
        return false;
    }
}

bool GuardaTarea(const Opciones& o, const Tarea& tarea, std::string_view clase, const std::string& resumen,
                 const std::function<std::string()>& json, const Salidas& salidas)
{
    if (o.guarda.empty()) return true;
    runs::Circunstancias c = tarea.circunstancias;
    c.segundos = tarea.testigo.Segundos();
    return EscribeEnLibro({.dirProyecto = c.dirProyecto, .proyecto = c.proyecto},
                          runs::PorGuardar({.clase = std::string(clase),
                                            .ajuste = tarea.ajuste,
                                            .json = json(),
                                            .resumen = resumen,
                                            .enPalabras = tarea.enPalabras,
                                            .tormenta = tarea.tormenta,
                                            .pasos = tarea.pasos},
                                           c),
                          o.guarda, salidas);
}

int Niega(const Salidas& salidas, const std::vector<std::string>& reparos)
{
    for (const std::string& reparo : reparos)
        Falta(salidas, reparo);
    return EstadoInterrumpido;
}

}  // namespace batch
