// SPDX-License-Identifier: GPL-3.0-or-later
//
// Members of a set against the bare calculation, on the sample project and on the network at the limits.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ProyectoLimite.h"
#include "engine/modDistriPp.h"
#include "engine/modProceso0.h"
#include "model/VidaProyecto.h"
#include "runs/Campos.h"
#include "runs/Corredor.h"

namespace {

using model::Siro;

/// 0: the sample project under 60 mm in an hour; 1: the network at the limits under its storm.
Siro Proyecto(std::int64_t cual)
{
    Siro s;
    s.Disco.Escribe = [](const std::string&, std::string_view) {};  // the sample stays as it is
    if (cual == 1) {
        bench::ArmaRed(s, {});
        bench::PonTormenta(s);
        return s;
    }
    model::TomaRutaProyecto(s, SIRO_DATA_DIR "/Proyectos/Quelmar_Conf.vlm");
    s.Tormenta.PpTormenta = 60;
    s.Tormenta.DurTormenta = 60;
    engine::CargaProyecto(s);
    if (s.Red.ColUEHs.Cuenta() == 0) throw std::runtime_error("the sample project wasn't read");
    return s;
}

constexpr double Factores[] = {0.9, 1.1, 1.05, 0.95, 1.2};  // of a, member after member

/// What moves: nothing; a; a, b, velocity and the clock's start of all units.
std::vector<study::Parametro> Parametros(std::int64_t cuantos)
{
    std::vector<study::Parametro> p;
    for (const char* campo : {"kostiakov_a", "kostiakov_b", "velocidad_media", "kostiakov_i"})
        p.push_back({.componentes = "u-*", .campo = campo, .modo = "factor", .minimo = 0.9, .maximo = 1.1});
    p.resize(static_cast<std::size_t>(cuantos));
    return p;
}

// The calculation in arrays that are made once, the network as it is or edited by hand.
void Pelado(benchmark::State& estado)
{
    Siro s = Proyecto(estado.range(0));
    engine::ConstruyeHietograma(s);
    engine::Calculadora calculadora(s.Red, s.Pasos, {.VariasCorridas = true});
    const std::vector<study::Parametro> mueve = Parametros(estado.range(1));
    std::vector<runs::Movido> movidos;
    for (const study::Parametro& p : mueve)
        movidos.push_back(runs::Resuelve(p, s.Red, s.Tormenta));
    std::size_t k = 0;
    for (auto _ : estado) {
        const double factor = Factores[k++ % std::size(Factores)];
        for (std::size_t i = 0; i < mueve.size(); ++i)
            runs::Pon(movidos[i], mueve[i], factor, calculadora.Red());
        benchmark::DoNotOptimize(calculadora.Corre(s.Tormenta, s.Hietograma).Resultados.QMax.Fila(1));
    }
}
BENCHMARK(Pelado)
    ->ArgNames({"red", "mueve"})
    ->ArgsProduct({{0, 1}, {0, 1, 4}})
    ->Unit(benchmark::kMicrosecond);

// A member: the same with volumes, heights, storages and the look at every flow.
void Miembro(benchmark::State& estado)
{
    const Siro s = Proyecto(estado.range(0));
    const runs::Modelo modelo{.red = s.Red,
                              .tablas = s.TablasDeLluvia,
                              .lluvias = {{.tormenta = s.Tormenta, .pasos = s.Pasos}},
                              .parametros = Parametros(estado.range(1))};
    runs::Corredor corredor(modelo);
    std::vector<double> valores(modelo.parametros.size());
    std::size_t k = 0;
    for (auto _ : estado) {
        valores.assign(valores.size(), Factores[k++ % std::size(Factores)]);
        if (!runs::MotivoDe(corredor.Corre(valores, 0)).empty()) throw std::runtime_error("a member failed");
    }
}
BENCHMARK(Miembro)
    ->ArgNames({"red", "mueve"})
    ->ArgsProduct({{0, 1}, {0, 1, 4}})
    ->Unit(benchmark::kMicrosecond);

// 2,000 members. Arguments: the network, threads.
void Miembros(benchmark::State& estado)
{
    const Siro s = Proyecto(estado.range(0));
    const runs::Modelo modelo{.red = s.Red,
                              .tablas = s.TablasDeLluvia,
                              .lluvias = {{.tormenta = s.Tormenta, .pasos = s.Pasos}},
                              .parametros = Parametros(4)};
    for (auto _ : estado)
        runs::CorreMiembros(modelo, 2000, static_cast<int>(estado.range(1)),
                            [](std::size_t k, runs::Corredor& corredor) {
                                corredor.Corre(std::vector(4, Factores[k % std::size(Factores)]), 0);
                            });
}
BENCHMARK(Miembros)
    ->ArgNames({"red", "hilos"})
    ->ArgsProduct({{0, 1}, {1, 2}})
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
