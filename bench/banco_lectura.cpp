// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reading the project at the limits: all of it as a run does, and file by file.

#include <benchmark/benchmark.h>

#include <stdexcept>

#include "ProyectoLimite.h"
#include "engine/modProceso0.h"
#include "model/ArchivoConf.h"
#include "model/ArchivosTormenta.h"
#include "model/Componentes.h"
#include "model/Configuracion.h"
#include "model/TablasEmbalse.h"

namespace {

using model::Siro;

void Proyecto(benchmark::State& estado)
{
    const bench::ProyectoTemporal proyecto;
    Siro s = bench::ProyectoAbierto(proyecto.Dir());
    for (auto _ : estado)
        engine::CargaProyecto(s);
    if (s.Red.ColLagos.Cuenta() != model::MaxLagos) throw std::runtime_error("the project wasn't read");
}
BENCHMARK(Proyecto)->Unit(benchmark::kMicrosecond);

template <typename Resultado>
void Archivo(benchmark::State& estado, Resultado (*lee)(Siro&))
{
    const bench::ProyectoTemporal proyecto;
    Siro s = bench::ProyectoAbierto(proyecto.Dir());
    engine::CargaProyecto(s);
    for (auto _ : estado)
        lee(s);
}
BENCHMARK_CAPTURE(Archivo, Conf, model::leoConf)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Archivo, UEHs, model::LeeUEHs)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Archivo, RHAS, model::LeeTablaHSVRepresa)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Archivo, RHQ, model::LeeTablaHQRepresa)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Archivo, LHASQ, model::LeeTablaHSVQLago)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Archivo, TablasPDRs, model::LeeTablaPDRs)->Unit(benchmark::kMicrosecond);

}  // namespace
