// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/RevisaLote.h"

#include <new>
#include <vector>

#include "batch/CorridaLote.h"
#include "checks/AvisosDeCorrida.h"
#include "checks/EscribeHallazgos.h"
#include "checks/ProyectoAparte.h"
#include "checks/Revisa.h"
#include "checks/RevisaAbierto.h"
#include "model/Avisos.h"
#include "model/DirPropio.h"
#include "model/Siro.h"
#include "model/Sistema.h"

namespace batch {
namespace {

using checks::Hallazgo;
using model::Siro;

/// Brings everything into memory that a run reads. Returns whether a project is open.
bool Carga(Siro& s, const Opciones& o)
{
    if (!checks::AbreProyecto(s, model::RutaAbsoluta(o.conf))) return false;
    FijaTormenta(s, o);
    checks::CargaEntera(s);
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
    s.Anfitrion = checks::Oyente(hallazgos);
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
    checks::OrdenaPorGravedad(hallazgos);
    const bool escrito = Muestra(salidas, o.json ? checks::EnJson(hallazgos) : checks::EnTexto(hallazgos));
    const bool conError = !hallazgos.empty() && hallazgos.front().gravedad == checks::Gravedad::Error;
    return escrito && !conError ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
