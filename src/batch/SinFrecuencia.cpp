// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/AjustaLote.h"
#include "batch/ComparaLote.h"
#include "batch/ConjuntoLote.h"
#include "batch/CorridaLote.h"
#include "batch/CorridasLote.h"
#include "batch/FrecuenciaLote.h"
#include "batch/GuardaLote.h"
#include "batch/IdfLote.h"
#include "batch/SensibilidadLote.h"
#include "batch/TormentaLote.h"

namespace batch {
namespace {

int NoLaTrae(const std::string& orden, const Salidas& salidas)
{
    salidas.Errores("siro-lote: esta versión no trae la orden " + orden + "; la trae la versión completa\n");
    return EstadoInterrumpido;
}

}  // namespace

int MuestraFrecuencia(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("frecuencia", salidas);
}

int MuestraIdf(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("idf", salidas);
}

int MuestraTormenta(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("tormenta", salidas);
}

int MuestraSensibilidad(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("sensibilidad", salidas);
}

int MuestraConjunto(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("conjunto", salidas);
}

int MuestraComparacion(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("compara", salidas);
}

int MuestraCorridas(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("corridas", salidas);
}

struct Guardadora::Partes {
    const Opciones& o;
};

Guardadora::Guardadora(model::Siro& /*s*/, const Opciones& opciones) : partes(new Partes{opciones}) {}

Guardadora::~Guardadora() = default;

bool Guardadora::Guarda(const model::Tormenta& /*entrada*/, const Salidas& salidas)
{
    return partes->o.guarda.empty() || NoLaTrae("--guarda", salidas) == EstadoCompleto;
}

int MuestraUnion(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("une", salidas);
}

int AjustaProyecto(const Opciones& /*o*/, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    return NoLaTrae("ajusta", salidas);
}

}  // namespace batch
