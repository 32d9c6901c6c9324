// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text of one storm on the network at the limits, without the hydrology behind it.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

#include "ProyectoLimite.h"
#include "batch/AnfitrionLote.h"
#include "batch/ResultadosCsv.h"
#include "engine/mdlProceso1.h"
#include "engine/modDistriPp.h"
#include "engine/modProceso0.h"
#include "model/Disco.h"
#include "model/Numeros.h"
#include "model/Registros.h"
#include "model/Texto.h"

namespace {

using model::Siro;

/// A storm that has been run, with the Slate on or off.
struct Corrido {
    explicit Corrido(bool pizarra) : anfitrion({}, pizarra, true), s(bench::ProyectoAbierto(proyecto.Dir()))
    {
        s.Anfitrion = anfitrion.Anfitrion();
        engine::CorreUnaTormenta(s);
    }
    bench::ProyectoTemporal proyecto;
    batch::AnfitrionLote anfitrion;
    Siro s;
};

void Bytes(benchmark::State& estado, std::size_t porVuelta)
{
    estado.SetBytesProcessed(static_cast<std::int64_t>(estado.iterations()) *
                             static_cast<std::int64_t>(porVuelta));
}

// Every flow, height and storage of the run as text: the digits alone.
void Numeros(benchmark::State& estado)
{
    const Corrido corrido(false);
    const Siro& s = corrido.s;
    std::int64_t numeros = 0;
    for (auto _ : estado) {
        char cifras[model::LargoNumero];
        const auto fila = [&](const float* x) {
            for (int p = 0; p <= s.Resultados.NroPasosQ; ++p)
                benchmark::DoNotOptimize(model::EscribeNumero(cifras, x[p]));
            numeros += s.Resultados.NroPasosQ + 1;
        };
        for (int c = 1; c <= s.Resultados.NroComponentes; ++c)
            fila(s.Resultados.QSale.Fila(c));
        for (int l = 1; l <= s.Red.NroLagos(); ++l) {
            fila(s.Resultados.HLago.Fila(l));
            fila(s.Resultados.SLago.Fila(l));
        }
    }
    estado.SetItemsProcessed(numeros);
}
BENCHMARK(Numeros)->Unit(benchmark::kMicrosecond);

// What the text adds to a run: a run with it less a run without it, in turn. Argument: Slate on.
void TextoDeUnaCorrida(benchmark::State& estado)
{
    Corrido corrido(estado.range(0) != 0);
    Siro& s = corrido.s;
    const auto corre = [&](bool conTexto) {
        s.Anfitrion.PonPizarra("");
        engine::ConstruyeHietograma(s);
        engine::Memoria memoria;
        const auto antes = std::chrono::steady_clock::now();
        engine::ProcesoPrincipal(s, {.GuardaTexto = false, .ConTexto = conTexto}, memoria);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
    };
    for (auto _ : estado) {
        const double con = corre(true);
        benchmark::DoNotOptimize(s.Control.TextoPizarra.data());
        s.Control.SalidaPizarra = false;
        const double sin = corre(false);
        s.Control.SalidaPizarra = estado.range(0) != 0;
        estado.SetIterationTime(con > sin ? con - sin : 0);
    }
}
BENCHMARK(TextoDeUnaCorrida)
    ->ArgName("pizarra")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// From memory to the code page of the file.
void PaginaDeCodigos(benchmark::State& estado)
{
    const Corrido corrido(estado.range(0) != 0);
    for (auto _ : estado)
        benchmark::DoNotOptimize(model::AWindows1252(corrido.s.Control.TextoPizarra));
    Bytes(estado, corrido.s.Control.TextoPizarra.size());
}
BENCHMARK(PaginaDeCodigos)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

// The whole file.
void Archivo(benchmark::State& estado)
{
    const Corrido corrido(estado.range(0) != 0);
    const std::string ruta = model::Ruta(corrido.proyecto.Dir(), "texto.txt");
    for (auto _ : estado) {
        model::EscritorRegistros escritor(corrido.s.Disco);
        escritor.Abre(ruta);
        escritor.Texto(corrido.s.Control.TextoPizarra).FinRegistro();
        escritor.Cierra();
    }
    Bytes(estado, corrido.s.Control.TextoPizarra.size());
}
BENCHMARK(Archivo)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void Csv(benchmark::State& estado)
{
    const Corrido corrido(false);
    const std::string ruta = model::Ruta(corrido.proyecto.Dir(), "r.csv");
    for (auto _ : estado)
        batch::GuardaCsvTormenta(corrido.s, ruta);
}
BENCHMARK(Csv)->Unit(benchmark::kMicrosecond);

}  // namespace
