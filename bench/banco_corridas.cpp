// SPDX-License-Identifier: GPL-3.0-or-later
//
// The ledger of runs with 10,000 of them: what opening its window reads.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "model/CambioArchivo.h"
#include "model/Disco.h"
#include "runs/LibroDeCorridas.h"

namespace {

constexpr std::size_t Corridas = 10'000;

/// A ledger whose runs are as large as those of the sample project; it goes with the object.
struct LibroTemporal {
    LibroTemporal()
    {
        std::filesystem::create_directories(carpeta);
        libro.dirProyecto = carpeta.string();
        // Not waited for on the disk one by one.
        libro.disco.Reemplaza = [disco = libro.disco](const std::vector<model::CambioArchivo>& cambios) {
            for (const model::CambioArchivo& c : cambios)
                disco.Escribe(c.ruta, c.bytes);
        };
        const std::string huella(64, 'a');
        runs::CorridaPorGuardar una{
            .ficha = {.proyecto = "P",
                      .clase = "una",
                      .quien = "Operadora",
                      .tormenta = "Tormenta: P 60.5 mm, D 60 min, R 25 años, López Cadenas, pasos 10/10 min",
                      .huellaEntradas = huella,
                      .huella = huella,
                      .huellaResultados = huella,
                      .salidas = {{"c-Quelmar4", 127.802, 140, ""}},
                      .avisos = 2,
                      .segundos = 0.06,
                      .programa = "1.0",
                      .nombre = "Con presa",
                      .nota = "cota 101.5 m"},
            .piezas = {{"proyecto/P_UEHs.vlm", std::string(4000, 'x'), false}}};
        for (std::size_t i = 0; i < Corridas; ++i)
            runs::Guarda(libro, una);
    }
    ~LibroTemporal() { std::filesystem::remove_all(carpeta); }
    LibroTemporal(const LibroTemporal&) = delete;
    LibroTemporal& operator=(const LibroTemporal&) = delete;

    std::filesystem::path carpeta = std::filesystem::temp_directory_path() / "siro-banco-corridas";
    runs::Libro libro{.dirProyecto = {}, .proyecto = "P"};
};

void Lista(benchmark::State& estado)
{
    const LibroTemporal temporal;
    for (auto _ : estado)
        if (runs::ListaDe(temporal.libro).size() != Corridas) throw std::runtime_error("not all are listed");
}
BENCHMARK(Lista)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

void Ocupado(benchmark::State& estado)
{
    const LibroTemporal temporal;
    for (auto _ : estado)
        benchmark::DoNotOptimize(runs::Ocupado(temporal.libro));
}
BENCHMARK(Ocupado)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace
