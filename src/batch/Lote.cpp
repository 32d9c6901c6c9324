// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Lote.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "batch/AjustaLote.h"
#include "batch/ComparaLote.h"
#include "batch/ConjuntoLote.h"
#include "batch/CorridaLote.h"
#include "batch/CorridasLote.h"
#include "batch/FrecuenciaLote.h"
#include "batch/IdfLote.h"
#include "batch/Opciones.h"
#include "batch/RevisaLote.h"
#include "batch/SensibilidadLote.h"
#include "batch/TormentaLote.h"
#include "batch/VerificaLote.h"
#include "model/Camino.h"
#include "model/Sistema.h"

namespace batch {
namespace {

/// An order: how it is called and what it does.
struct Verbo {
    std::string_view palabra;
    std::string_view (*uso)();
    Lectura (*lee)(int argc, const char* const* argv);
    int (*hace)(const Opciones& o, const std::string& dirEjecutable, const Salidas& salidas);
};

constexpr auto Verbos = std::to_array<Verbo>({
    {"revisa", UsoRevisa, LeeOpcionesRevisa, RevisaProyecto},
    {"frecuencia", UsoFrecuencia, LeeOpcionesFrecuencia, MuestraFrecuencia},
    {"idf", UsoIdf, LeeOpcionesIdf, MuestraIdf},
    {"tormenta", UsoTormenta, LeeOpcionesTormenta, MuestraTormenta},
    {"sensibilidad", UsoSensibilidad, LeeOpcionesSensibilidad, MuestraSensibilidad},
    {"conjunto", UsoConjunto, LeeOpcionesConjunto, MuestraConjunto},
    {"corridas", UsoCorridas, LeeOpcionesCorridas, MuestraCorridas},
    {"une", UsoUne, LeeOpcionesUne, MuestraUnion},
    {"compara", UsoCompara, LeeOpcionesCompara, MuestraComparacion},
    {"ajusta", UsoAjusta, LeeOpcionesAjusta, AjustaProyecto},
    {"verifica", UsoVerifica, LeeOpcionesVerifica, MuestraCasos},
});
/// una and serie, and whatever is none of them.
constexpr Verbo Corrida{"", Uso, LeeOpciones, Corre};

/// Directory of the program: as the system tells it, or else by the name under which it was called.
std::string DirectorioDelEjecutable(const std::string& nombre)
{
    const std::string propio = model::RutaDelPrograma();
    return model::DirectorioDe(propio.empty() ? model::RutaAbsoluta(nombre) : propio);
}

}  // namespace

int Lote(int argc, const char* const* argv, const Salidas& salidas)
{
    const auto* const otro = std::find_if(Verbos.begin(), Verbos.end(),
                                          [&](const Verbo& v) { return argc > 1 && v.palabra == argv[1]; });
    const Verbo& verbo = otro == Verbos.end() ? Corrida : *otro;
    const Lectura lectura = verbo.lee(argc, argv);
    if (lectura.opciones)
        return verbo.hace(*lectura.opciones, DirectorioDelEjecutable(argc > 0 ? argv[0] : ""), salidas);
    if (lectura.motivo.empty()) return Muestra(salidas, verbo.uso()) ? EstadoCompleto : EstadoInterrumpido;
    salidas.Errores("siro-lote: " + lectura.motivo + "\n\n");
    salidas.Errores(verbo.uso());
    return EstadoOrdenErronea;
}

}  // namespace batch
