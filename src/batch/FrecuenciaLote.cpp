// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/FrecuenciaLote.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "batch/CorridaLote.h"
#include "frequency/Analisis.h"
#include "frequency/EscribeAnalisis.h"
#include "frequency/ImportaMaximos.h"
#include "frequency/Maximos.h"
#include "model/Disco.h"
#include "model/Falla.h"
#include "model/Sistema.h"

namespace batch {
namespace {

frequency::PedidoDeAnalisis PedidoDe(const Opciones& o)
{
    using frequency::Metodo;
    frequency::PedidoDeAnalisis pedido;
    for (const Metodo metodo : {Metodo::Momentos, Metodo::MomentosL, Metodo::Verosimilitud})
        if (frequency::ClaveDe(metodo) == o.metodo) pedido.metodo = metodo;
    if (const frequency::Ley* ley = frequency::LeyDeClave(o.ley)) pedido.leyes = {ley};
    pedido.remuestreo = {o.semilla, o.remuestras, o.hilos};
    pedido.posicion = o.posicion;
    pedido.tratamiento = frequency::TratamientoDe(o.bajos, o.asimetria, o.ecmAsimetria);
    return pedido;
}

/// Without the years that were measured too little, which is told.
frequency::Serie SinAniosCortos(frequency::Serie serie, int diasMinimos)
{
    std::vector<frequency::Maximo> quedan;
    std::string fuera;
    for (const frequency::Maximo& m : serie.maximos) {
        if (!m.dias || *m.dias >= diasMinimos)
            quedan.push_back(m);
        else
            fuera += (fuera.empty() ? "" : ", ") + std::to_string(m.anio);
    }
    if (fuera.empty() || !serie.errores.empty()) return serie;
    frequency::Serie menor = frequency::RevisaMaximos(std::move(quedan));
    menor.avisos.insert(menor.avisos.begin(), "Años con menos de " + std::to_string(diasMinimos) +
                                                  " días de registro, que no se ajustan: " + fuera + ".");
    return menor;
}

/// Annual maxima out of a record, as a series that is fitted.
frequency::Serie DeRegistro(const std::string& bytes, const Opciones& o)
{
    const double duracion = o.duracion.value_or(1440);
    const frequency::Importacion importada =
        *frequency::ImportaMaximos(bytes, {.mesInicial = o.mesInicial, .duraciones = {duracion}});
    if (!importada.errores.empty()) return {.errores = importada.errores};
    frequency::Serie serie =
        SinAniosCortos(frequency::RevisaMaximos(importada.series.front().maximos), o.diasMinimos);
    serie.avisos.insert(serie.avisos.begin(), importada.avisos.begin(), importada.avisos.end());
    return serie;
}

}  // namespace

int MuestraFrecuencia(const Opciones& o, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    if (!o.ley.empty() && frequency::LeyDeClave(o.ley) == nullptr) {
        salidas.Errores("siro-lote: no hay una ley \"" + o.ley + "\"\n\n");
        salidas.Errores(UsoFrecuencia());
        return EstadoOrdenErronea;
    }
    const bool deRegistro = !o.registro.empty();
    const std::string ruta = model::RutaAbsoluta(deRegistro ? o.registro : o.archivo);
    std::string texto;
    try {
        texto = model::DiscoDelSistema().Lee(ruta);
    } catch (const model::Falla&) {
        salidas.Errores("siro-lote: no se puede leer " + ruta +
                        (deRegistro ? ", o pasa de 64 MiB: repártalo en varios\n" : "\n"));
        return EstadoInterrumpido;
    }
    const frequency::Serie serie =
        deRegistro ? DeRegistro(texto, o)
                   : SinAniosCortos(frequency::LeeMaximos(texto, o.duracion), o.diasMinimos);
    if (!serie.errores.empty()) {
        for (const std::string& error : serie.errores)
            salidas.Errores("siro-lote: " + error + "\n");
        return EstadoInterrumpido;
    }
    const frequency::Analisis a = *frequency::Analiza(serie, PedidoDe(o));
    const bool escrito = Muestra(salidas, o.json  ? frequency::JsonDe(a)
                                          : o.csv ? frequency::CsvDe(a)
                                                  : frequency::TextoDe(a));
    return escrito ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
