// SPDX-License-Identifier: GPL-3.0-or-later
//
// One storm of 24 h on the network at the limits.

#include <benchmark/benchmark.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "ProyectoLimite.h"
#include "batch/AnfitrionLote.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "engine/modProceso0.h"

namespace {

using model::Siro;

void Exige(bool completa)
{
    if (!completa) throw std::runtime_error("a check ended the run");
}

/// Runs without a window whose boxes go nowhere.
batch::Salidas SinSalida()
{
    return {};
}

// What siro-lote does once its command line is read: header, reading, storm, result file. Argument: Slate on.
void Tormenta(benchmark::State& estado)
{
    const bench::ProyectoTemporal proyecto;
    for (auto _ : estado) {
        batch::AnfitrionLote anfitrion(SinSalida(), estado.range(0) != 0, true);
        Siro s = bench::ProyectoAbierto(proyecto.Dir());
        s.Anfitrion = anfitrion.Anfitrion();
        Exige(engine::CorreUnaTormenta(s));
        benchmark::DoNotOptimize(s.Resultados.QMax.Fila(1));
    }
}
BENCHMARK(Tormenta)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// A project read and ready to run, its Slate off.
struct Leido {
    explicit Leido(const bench::Medidas& medidas = {})
        : proyecto(medidas), s(bench::ProyectoAbierto(proyecto.Dir()))
    {
        engine::CargaProyecto(s);
        s.Control.AvisoDescargasVisto = true;
        s.Serie.NroSeriePDR = 0;
    }
    bench::ProyectoTemporal proyecto;
    Siro s;
};

void Proceso(Siro& s, bool conTexto, engine::Memoria& memoria)
{
    engine::ConstruyeHietograma(s);
    Exige(engine::ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = conTexto}, memoria));
    benchmark::DoNotOptimize(s.Resultados.QMax.Fila(1));
}

// The calculation alone: no reading, no text, nothing kept from an earlier storm.
void Calculo(benchmark::State& estado)
{
    Leido leido;
    for (auto _ : estado) {
        engine::Memoria memoria;
        Proceso(leido.s, false, memoria);
    }
}
BENCHMARK(Calculo)->Unit(benchmark::kMicrosecond);

// The same with what the network keeps from storm to storm, as a series has it.
void CalculoConMemoria(benchmark::State& estado)
{
    Leido leido;
    engine::Memoria memoria{.VariasCorridas = true};  // as whoever makes several runs keeps it
    for (auto _ : estado)
        Proceso(leido.s, false, memoria);
}
BENCHMARK(CalculoConMemoria)->Unit(benchmark::kMicrosecond);

// The same with base flow on every UEH.
void CalculoConBase(benchmark::State& estado)
{
    Leido leido({.base = true});
    for (auto _ : estado) {
        engine::Memoria memoria;
        Proceso(leido.s, false, memoria);
    }
}
BENCHMARK(CalculoConBase)->Unit(benchmark::kMicrosecond);

// Lagos and Represas by the other two methods.
void CalculoPorMetodo(benchmark::State& estado, const char* metodo)
{
    Leido leido({.metodo = metodo});
    for (auto _ : estado) {
        engine::Memoria memoria;
        Proceso(leido.s, false, memoria);
    }
}
BENCHMARK_CAPTURE(CalculoPorMetodo, RungeKutta, "Runge Kutta")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(CalculoPorMetodo, Muskingum, "Muskingum")->Unit(benchmark::kMicrosecond);

// With the text that a run builds while the Slate is off, the sheets of 90 level pools among it.
void CalculoYTexto(benchmark::State& estado)
{
    Leido leido;
    for (auto _ : estado) {
        engine::Memoria memoria;
        Proceso(leido.s, true, memoria);
    }
}
BENCHMARK(CalculoYTexto)->Unit(benchmark::kMicrosecond);

// Time should grow as the number of components, argument nodes, and as the number of steps.
void CalculoPorNudos(benchmark::State& estado)
{
    Leido leido({.nudos = static_cast<int>(estado.range(0))});
    for (auto _ : estado) {
        engine::Memoria memoria;
        Proceso(leido.s, false, memoria);
    }
    estado.SetComplexityN(estado.range(0));
}
BENCHMARK(CalculoPorNudos)
    ->ArgName("nudos")
    ->Arg(7)
    ->Arg(14)
    ->Arg(28)
    ->Arg(42)
    ->Arg(56)
    ->Arg(70)
    ->Complexity();

void CalculoPorDuracion(benchmark::State& estado)
{
    Leido leido;
    leido.s.Tormenta.DurTormenta = static_cast<std::int16_t>(estado.range(0));
    leido.s.Tormenta.DistriPp = 0;
    for (auto _ : estado) {
        engine::Memoria memoria;
        Proceso(leido.s, false, memoria);
    }
    estado.SetComplexityN(leido.s.Resultados.NroPasosQ);
}
BENCHMARK(CalculoPorDuracion)
    ->ArgName("minutos")
    ->Arg(720)
    ->Arg(1440)
    ->Arg(2880)
    ->Arg(5760)
    ->Arg(11520)
    ->Complexity();

}  // namespace
