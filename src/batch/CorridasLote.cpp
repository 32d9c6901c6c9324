// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/CorridasLote.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "batch/CorridaLote.h"
#include "batch/ResultadosCsv.h"
#include "batch/TareaLote.h"
#include "checks/Json.h"
#include "model/Avisos.h"
#include "model/Camino.h"
#include "model/Configuracion.h"
#include "model/Disco.h"
#include "model/Numeros.h"
#include "model/Sistema.h"
#include "runs/LibroDeCorridas.h"

namespace batch {
namespace {

using runs::Libro;
using runs::RenglonDeLibro;

const study::PicoDeSalida* Mayor(const study::Ficha& f)
{
    const auto mayor = std::ranges::max_element(f.salidas, {}, &study::PicoDeSalida::caudal);
    return mayor == f.salidas.end() ? nullptr : &*mayor;
}

std::string EnTexto(const std::vector<RenglonDeLibro>& renglones)
{
    std::string texto;
    for (const RenglonDeLibro& r : renglones) {
        const study::Ficha& f = r.ficha;
        if (!r.reparo.empty()) {
            texto += r.archivo + ": " + r.reparo + "\n";
            continue;
        }
        texto += f.cuando + "  " + f.clase + (f.fijada ? " (fijada)" : "") +
                 (f.nombre.empty() ? "" : "  " + f.nombre) + "\n    " + f.tormenta + f.resumen + "\n";
        for (const study::PicoDeSalida& p : f.salidas)
            texto +=
                "    " + p.componente + ": " + model::NumeroATexto(static_cast<float>(p.caudal)) + " m3/s" +
                (p.minuto ? " a los " + model::NumeroATexto(*p.minuto) + " min" : ", " + p.tormenta) + "\n";
    }
    return texto;
}

std::string EnJson(const std::vector<RenglonDeLibro>& renglones)
{
    std::string texto = "[";
    const char* separador = "\n";
    for (const RenglonDeLibro& r : renglones) {
        texto.append(std::exchange(separador, ",\n"))
            .append("{\"archivo\": ")
            .append(checks::Citado(r.archivo));
        texto.append(", \"bytes\": ").append(std::to_string(r.bytes));
        if (r.reparo.empty())
            texto.append(", \"corrida\": ").append(study::EscribeFicha(r.ficha)).pop_back();
        else
            texto.append(", \"reparo\": ").append(checks::Citado(r.reparo));
        texto += "}";
    }
    return texto + "\n]\n";
}

std::string EnCsv(const std::vector<RenglonDeLibro>& renglones)
{
    std::string texto =
        "archivo,cuando,clase,nombre,fijada,tormenta,resumen,salida,caudal_m3s,minuto,errores,avisos,notas,"
        "segundos,quien,programa,huella,nota,reparo\n";
    for (const RenglonDeLibro& r : renglones) {
        const study::Ficha& f = r.ficha;
        const study::PicoDeSalida* const p = Mayor(f);
        FilaCsv fila;
        for (const std::string& t : {r.archivo, f.cuando, f.clase, f.nombre,
                                     std::string(f.fijada ? "1" : "0"), f.tormenta, f.resumen})
            fila.Texto(t);
        fila.Texto(p != nullptr ? p->componente : "");
        p != nullptr ? fila.Numero(static_cast<float>(p->caudal)) : fila.Vacio();
        p != nullptr && p->minuto ? fila.Numero(static_cast<float>(*p->minuto)) : fila.Vacio();
        fila.Numero(f.errores).Numero(f.avisos).Numero(f.notas).Numero(static_cast<float>(f.segundos));
        for (const std::string& t : {f.quien, f.programa, f.huella, f.nota, r.reparo})
            fila.Texto(t);
        fila.Termina(texto);
    }
    return texto;
}

}  // namespace

int MuestraCorridas(const Opciones& o, const std::string& /*dirEjecutable*/, const Salidas& salidas)
{
    const std::string conf = model::RutaAbsoluta(o.conf), dir = model::DirectorioDe(conf);
    const std::string archivo = conf.substr(dir.size() + 1);
    const Libro libro{.dirProyecto = dir,
                      .proyecto = archivo.substr(0, archivo.size() - model::TerminacionConf.size())};
    std::vector<RenglonDeLibro> renglones;
    if (!model::Sentencia([&] {
            static_cast<void>(libro.disco.Lee(conf));
            renglones = runs::ListaDe(libro);
        }))
        return Niega(salidas, {"no se puede abrir " + conf});
    const bool escrito = Muestra(salidas, o.json  ? EnJson(renglones)
                                          : o.csv ? EnCsv(renglones)
                                                  : EnTexto(renglones));
    return escrito ? EstadoCompleto : EstadoInterrumpido;
}

}  // namespace batch
