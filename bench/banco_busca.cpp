// SPDX-License-Identifier: GPL-3.0-or-later
//
// The search of commands over a network of 5,000 components that have been run: 10,000 entries and the
// menu's.

#include <benchmark/benchmark.h>

#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "model/Siro.h"
#include "shell/Busca.h"

namespace {

constexpr int Componentes = 5000;

struct Red {
    Red()
    {
        s.Proyecto.NombreProyecto = "Grande";
        for (int i = 0; i < Componentes; ++i) {
            model::UEH u;
            u.NombreUEH = "u-Arroyo" + std::to_string(i);
            ir.corridos.push_back(u.NombreUEH);
            s.Red.ColUEHs.Agrega(u);
        }
    }
    [[nodiscard]] std::vector<shell::Candidato> Todos() const
    {
        std::vector<shell::Candidato> todos = shell::DelMenu({}, [](shell::Rutina) {});
        std::vector<shell::Candidato> suyos = shell::DeComponentes(s, ir);
        todos.insert(todos.end(), std::make_move_iterator(suyos.begin()),
                     std::make_move_iterator(suyos.end()));
        return todos;
    }
    model::Siro s{};
    shell::IrAComponente ir{};
};

// What opening the window takes: all entries gathered and folded.
void Abre(benchmark::State& estado)
{
    const Red red;
    for (auto _ : estado)
        benchmark::DoNotOptimize(shell::Buscador(red.Todos(), {}).Cuantos());
}
BENCHMARK(Abre)->Unit(benchmark::kMillisecond);

// A keystroke: from nothing typed, which finds all, to a name.
void Tecla(benchmark::State& estado, const char* texto)
{
    const Red red;
    const shell::Buscador buscador(red.Todos(), {});
    for (auto _ : estado)
        benchmark::DoNotOptimize(buscador.Halla(texto).size());
}
BENCHMARK_CAPTURE(Tecla, nada, "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Tecla, una_letra, "a")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Tecla, palabra, "arroyo")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Tecla, dos_palabras, "hidro u-arroyo49")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Tecla, sin_nada, "zapallo")->Unit(benchmark::kMillisecond);

}  // namespace
