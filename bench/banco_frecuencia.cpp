// SPDX-License-Identifier: GPL-3.0-or-later
//
// Ten thousand samples of 60 years, each fitted by the greatest likelihood, with one thread and with two; and
// an analysis of all laws.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <stdexcept>
#include <vector>

#include "frequency/Analisis.h"

namespace {

using namespace frequency;

constexpr std::size_t Anios = 60;

/// Maxima that a GEV of mild tail would give at the plotting positions.
std::vector<double> Maximos()
{
    std::vector<double> x;
    for (std::size_t i = 1; i <= Anios; ++i)
        x.push_back(Gev.cuantil({62, 16, -0.1}, Posicion(i, Anios, Cunnane)));
    return x;
}

void RemuestreoDeGev(benchmark::State& estado)
{
    constexpr int Muestras = 10000;
    const Muestra m = HazMuestra(Maximos());
    const Estimado e = Ajusta(Gev, m, Metodo::Verosimilitud);
    for (auto _ : estado) {
        const auto r =
            Remuestrea(Gev, e, Metodo::Verosimilitud, m, {1, Muestras, static_cast<int>(estado.range(0))});
        if (r->sirven < Muestras * 99 / 100) throw std::runtime_error("samples without a fit");
    }
}
BENCHMARK(RemuestreoDeGev)->ArgName("hilos")->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

/// What the workshop and the command line wait for: eight laws, a thousand samples of each. Argument: the way
/// of fitting.
void AnalisisEntero(benchmark::State& estado)
{
    Serie s;
    int anio = 1960;
    for (const double x : Maximos())
        s.maximos.push_back({anio++, x});
    PedidoDeAnalisis pedido;
    pedido.metodo = static_cast<Metodo>(estado.range(0));
    pedido.remuestreo.hilos = 2;
    for (auto _ : estado)
        if (!Analiza(s, pedido)->recomendacion.ley) throw std::runtime_error("no law is recommended");
}
BENCHMARK(AnalisisEntero)->ArgName("metodo")->DenseRange(0, 2)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
