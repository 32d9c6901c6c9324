// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/RevisaLote.h"

#include <algorithm>
#include <new>
#include <vector>

#include "batch/CorridaLote.h"
#include "checks/EscribeHallazgos.h"
#include "checks/Revisa.h"
#include "engine/modProceso0.h"
#include "model/ArchivosTormenta.h"
#include "model/Avisos.h"
#include "model/DirPropio.h"
#include "model/Siro.h"
#include "model/Sistema.h"
#include "model/Tormenta.h"

namespace batch {
namespace {

using checks::Hallazgo;
using model::Siro;

/// A host that makes findings of what it is told, each once, and says Yes.
model::Anfitrion Oyente(std::vector<Hallazgo>& hallazgos)
{
    const auto anota = [&hallazgos](const model::Mensaje& m) {
        const Hallazgo h = checks::DeApertura(m);
        if (std::find(hallazgos.begin(), hallazgos.end(), h) == hallazgos.end()) hallazgos.push_back(h);
    };
    model::Anfitrion puerta;
    puerta.Avisa = anota;
    puerta.Pregunta = puerta.Confirma = [anota](const model::Mensaje& m) {
        anota(m);
        return true;
    };
    return puerta;
}

/// Brings everything into memory that a run reads. Returns whether a project is open.
bool Carga(Siro& s, const Opciones& o)
{
    AbreProyecto(s, model::RutaAbsoluta(o.conf));
    if (s.Proyecto.NombreProyecto.empty() || s.Proyecto.DirProyecto.empty()) return false;
    FijaTormenta(s, o);
    engine::CargaProyecto(s);
    if (s.Tormenta.DistriPp >= model::PrimeraPersonal && s.Tormenta.FormaPp != model::FormaLluvia::Real)
        model::LeeTablaDisTemPer(s);
    return true;
}

void Busca(const Opciones& o, const std::string& dirEjecutable, std::vector<Hallazgo>& hallazgos)
{
    Siro s;
    const std::string conf = model::RutaAbsoluta(o.conf);
    const auto cierra = [&](const std::string& que, const std::string& cuanto) {
        hallazgos.push_back(
            {checks::Gravedad::Error, 200, "", que, cuanto, "Abra otro proyecto, o restaure una copia."});
    };
    if (!model::Sentencia([&] { s.Disco.Lee(conf); })) return cierra("No se puede abrir el proyecto", conf);
    s.Anfitrion = Oyente(hallazgos);
    s.Proyecto.DirEjecutable = dirEjecutable;
    s.Proyecto.DirTrabajo =
        o.trabajo.empty() ? model::DirTrabajoDe(dirEjecutable) : model::RutaAbsoluta(o.trabajo);
    bool abierto = false;
    try {
        abierto = Carga(s, o);
    } catch (const model::FinDelPrograma&) {
    }
    if (!abierto) return cierra("El proyecto no se abre", conf);
    checks::RevisaDirTrabajo(s, hallazgos);
    const auto delProyecto = checks::Revisa(s, double{o.cuenca});
    hallazgos.insert(hallazgos.end(), delProyecto.begin(), delProyecto.end());
}

}  // namespace

int RevisaProyecto(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    std::vector<Hallazgo> hallazgos;
    try {
        Busca(o, dirEjecutable, hallazgos);
    } catch (const std::bad_alloc&) {
        salidas.Errores("siro-lote: no hay memoria suficiente\n");
        return EstadoInterrumpido;
    }
    std::stable_sort(hallazgos.begin(), hallazgos.end(),
                     [](const Hallazgo& a, const Hallazgo& b) { return a.gravedad < b.gravedad; });
    const bool escrito = Muestra(salidas, o.json ? checks::EnJson(hallazgos) : checks::EnTexto(hallazgos));
    const bool conError = !hallazgos.empty() && hallazgos.front().gravedad == checks::Gravedad::Error;
    return escrito && !conError ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
