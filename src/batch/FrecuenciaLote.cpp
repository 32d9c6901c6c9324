// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/FrecuenciaLote.h"

#include <algorithm>
#include <array>
#include <optional>

#include "batch/CorridaLote.h"
#include "frequency/Analisis.h"
#include "frequency/EscribeAnalisis.h"
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
    if (!o.bajos.empty())
        pedido.tratamiento.bajos =
            o.bajos == "17b" ? frequency::Bajos::Boletin17B : frequency::Bajos::Boletin17C;
    if (o.asimetria) pedido.tratamiento.regional = {*o.asimetria, o.ecmAsimetria};
    return pedido;
}

}  // namespace

int MuestraFrecuencia(const Opciones& o, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    if (!o.ley.empty() && frequency::LeyDeClave(o.ley) == nullptr) {
        salidas.Errores("siro-lote: no hay una ley \"" + o.ley + "\"\n\n");
        salidas.Errores(UsoFrecuencia());
        return EstadoOrdenErronea;
    }
    const std::string ruta = model::RutaAbsoluta(o.archivo);
    std::string texto;
    try {
        texto = model::DiscoDelSistema().Lee(ruta);
    } catch (const model::Falla&) {
        salidas.Errores("siro-lote: no se puede leer " + ruta + "\n");
        return EstadoInterrumpido;
    }
    const frequency::Serie serie = frequency::LeeMaximos(texto);
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
