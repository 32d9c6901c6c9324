// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/IdfLote.h"

#include <optional>
#include <string_view>
#include <vector>

#include "batch/CorridaLote.h"
#include "frequency/Maximos.h"
#include "frequency/idf/Curvas.h"
#include "frequency/idf/EscribeIdf.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Sistema.h"

namespace batch {
namespace {

/// The maxima of a file as a series of the station; none where it is wrong, which has been told.
std::optional<study::SerieDeMaximos> LeeSerie(const Opciones& o, double duracion, const std::string& archivo,
                                              const Salidas& salidas)
{
    const std::string ruta = model::RutaAbsoluta(archivo);
    frequency::Serie leida;
    try {
        leida = frequency::LeeMaximos(model::DiscoDelSistema().Lee(ruta));
    } catch (const model::Falla&) {
        salidas.Errores("siro-lote: no se puede leer " + ruta + "\n");
        return {};
    }
    for (const std::string& error : leida.errores)
        salidas.Errores("siro-lote: " + archivo + ": " + error + "\n");
    if (!leida.errores.empty()) return {};
    constexpr double Dia = 1440;
    study::SerieDeMaximos s;
    s.duracion = duracion;
    s.lecturaDiaria = duracion == Dia && o.lecturaDiaria;
    s.ley = o.ley;
    s.metodo = o.metodo;
    for (const frequency::Maximo& m : leida.maximos)
        s.maximos.push_back({.anio = m.anio, .valor = m.valor});
    return s;
}

}  // namespace

std::string ClaveErronea(const Opciones& o)
{
    using namespace frequency;
    if (!o.ley.empty() && LeyDeClave(o.ley) == nullptr) return "no hay una ley \"" + o.ley + "\"";
    if (!o.idf.familia.empty() && idf::FamiliaDeClave(o.idf.familia) == nullptr)
        return "no hay una familia \"" + o.idf.familia + "\"";
    if (o.idf.origen == "diaria" && idf::DesagregacionDeClave(o.idf.desagregacion) == nullptr)
        return "no hay una desagregación \"" + o.idf.desagregacion + "\"";
    if (!o.idf.reduccion.empty() && idf::ReduccionDeClave(o.idf.reduccion) == nullptr)
        return "no hay una reducción \"" + o.idf.reduccion + "\"";
    return {};
}

std::optional<study::Estacion> EstacionDe(const Opciones& o, const Salidas& salidas)
{
    auto archivos = o.series;
    if (!o.archivo.empty()) archivos = {{1440, o.archivo}};
    study::Estacion estacion;
    for (const auto& [duracion, archivo] : archivos) {
        auto serie = LeeSerie(o, duracion, archivo, salidas);
        if (!serie) return {};
        estacion.series.push_back(std::move(*serie));
    }
    return estacion;
}

int MuestraIdf(const Opciones& o, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    if (const std::string mala = ClaveErronea(o); !mala.empty()) {
        salidas.Errores("siro-lote: " + mala + "\n\n");
        salidas.Errores(UsoIdf());
        return EstadoOrdenErronea;
    }
    const auto estacion = EstacionDe(o, salidas);
    if (!estacion) return EstadoInterrumpido;
    const frequency::idf::Curvas curvas = frequency::idf::Calcula(o.idf, {&*estacion, 1});
    for (const std::string& error : curvas.errores)
        salidas.Errores("siro-lote: " + error + "\n");
    if (!curvas.errores.empty()) return EstadoInterrumpido;
    const bool escrito = Muestra(salidas, o.json  ? frequency::idf::JsonDe(curvas)
                                          : o.csv ? frequency::idf::CsvDe(curvas)
                                                  : frequency::idf::TextoDe(curvas));
    return escrito ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
