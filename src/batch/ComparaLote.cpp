// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/ComparaLote.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "batch/CorridaLote.h"
#include "engine/Calcula.h"
#include "model/Camino.h"
#include "model/Configuracion.h"
#include "model/DirPropio.h"
#include "model/Disco.h"
#include "model/Sistema.h"
#include "runs/Comparacion.h"
#include "runs/CorreAparte.h"
#include "runs/EscribeComparacion.h"

namespace batch {
namespace {

/// A side as it was typed: the project, and what of its ledger, empty: the project itself.
struct Pedido {
    std::string conf, guardada;
};
Pedido PedidoDe(const std::string& lado)
{
    const std::size_t marca = lado.find('#');
    return {lado.substr(0, marca), marca == std::string::npos ? "" : lado.substr(marca + 1)};
}

/// Name of the project of a configuration file.
std::string NombreDe(const std::string& conf)
{
    const std::string archivo = conf.substr(conf.find_last_of("/\\") + 1);
    return archivo.substr(0, archivo.size() - model::TerminacionConf.size());
}

/// Names of the columns: those of the projects, of the kept runs; where two are alike, as they were typed.
std::vector<std::string> Nombres(const std::vector<std::string>& lados)
{
    std::vector<std::string> nombres;
    for (const std::string& lado : lados) {
        const Pedido p = PedidoDe(lado);
        nombres.push_back(p.guardada.empty() ? NombreDe(p.conf) : p.guardada);
    }
    const std::vector<std::string> cortos = nombres;
    for (std::size_t k = 0; k < lados.size(); ++k)
        if (std::ranges::count(cortos, cortos[k]) > 1) nombres[k] = lados[k];
    return nombres;
}

runs::CorridaAparte Guardada(const Pedido& p)
{
    const std::string conf = model::RutaAbsoluta(p.conf);
    return runs::CorreGuardada({.dirProyecto = model::DirectorioDe(conf), .proyecto = NombreDe(conf)},
                               p.guardada);
}

runs::CorridaAparte Proyecto(const Opciones& o, const std::string& dirEjecutable, const std::string& conf)
{
    return runs::CorreAparte({.conf = model::RutaAbsoluta(conf),
                              .disco = model::DiscoDelSistema(),
                              .dirTrabajo = o.trabajo.empty() ? model::DirTrabajoDe(dirEjecutable)
                                                              : model::RutaAbsoluta(o.trabajo),
                              .cuando = FechaHoraLocal(),
                              .ponTormenta = [&](model::Siro& s) { FijaTormenta(s, o); },
                              .hilos = o.hilos});
}

int Compara(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    const std::vector<std::string> nombres = Nombres(o.lados);
    runs::Lados lados;
    bool completas = true;
    for (std::size_t k = 0; k < nombres.size(); ++k) {
        const Pedido p = PedidoDe(o.lados[k]);
        runs::CorridaAparte hecha = p.guardada.empty() ? Proyecto(o, dirEjecutable, p.conf) : Guardada(p);
        for (const std::string& reparo : hecha.reparos)
            salidas.Errores("siro-lote: " + nombres[k] + ": " + reparo + "\n");
        if (hecha.corrida == nullptr) return EstadoInterrumpido;
        completas = completas &&
                    (hecha.corrida->esSerie || hecha.corrida->calculo.fin == engine::FinCalculo::Completo);
        lados.push_back({nombres[k], std::move(hecha.corrida)});
    }
    const runs::Comparacion c = runs::Compara(lados);
    const bool escrito = Muestra(salidas, o.json  ? runs::JsonDe(lados, c)
                                          : o.csv ? runs::CsvDe(lados, c)
                                                  : runs::TextoDe(lados, c));
    return completas && escrito ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace

int MuestraComparacion(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas)
{
    try {
        return Compara(o, dirEjecutable, salidas);
    } catch (const std::bad_alloc&) {
        salidas.Errores("siro-lote: no hay memoria suficiente\n");
        return EstadoInterrumpido;
    }
}

}  // namespace batch
