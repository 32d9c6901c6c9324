// SPDX-License-Identifier: GPL-3.0-or-later
//
// A series of 999 storms of 24 h on the network at the limits, with one thread and with two.

#include <benchmark/benchmark.h>

#include <stdexcept>

#include "ProyectoLimite.h"
#include "engine/mdlSeriePDR.h"
#include "model/ArchivosTormenta.h"

namespace {

using model::Siro;

// Reading and the file of results included, as siro-lote does it. Argument: threads.
void Serie(benchmark::State& estado)
{
    const bench::ProyectoTemporal proyecto;
    const auto hilos = static_cast<int>(estado.range(0));
    for (auto _ : estado) {
        Siro s = bench::ProyectoAbierto(proyecto.Dir());
        s.Tormenta.FormaPp = model::FormaLluvia::SeriePDR;
        model::LeeTablaPDRs(s);
        if (s.Serie.NroSeriePDR != bench::TormentasDeLaSerie)
            throw std::runtime_error("the series wasn't read");
        if (engine::CorreSeriePDR(s, hilos) != engine::FinSerie::Completa)
            throw std::runtime_error("the series ended early");
        if (!(s.Resultados.QMax(s.Resultados.NroComponentes, bench::TormentasDeLaSerie) >
              s.Resultados.QMax(s.Resultados.NroComponentes, 1)))
            throw std::runtime_error("a greater storm gives no greater peak");
    }
}
BENCHMARK(Serie)->ArgName("hilos")->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
