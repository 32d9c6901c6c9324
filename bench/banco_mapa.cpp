// SPDX-License-Identifier: GPL-3.0-or-later
//
// The map of a run on the network at the limits, with peaks and names, in a window of 1920 by 1080.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QStyleFactory>
#include <stdexcept>

#include "ProyectoLimite.h"
#include "RedMeandrosa.h"
#include "engine/Calcula.h"
#include "forms/Entorno_ventana.h"
#include "results/mapa/MapaDeCorrida_ventana.h"

namespace {

constexpr QSize Pantalla{1920, 1080};
constexpr const char* Fondo = SIRO_DATA_DIR "/Proyectos/Quelmar.jpg";

/// The window over a run of that network, its image as large as the network.
struct Mapa {
    explicit Mapa(bool conFondo)
    {
        bench::PonTormenta(s);
        s.Pasos.N0Dur = 81;
        const engine::Calculo calculo = engine::Calcula(s.Red, s.Tormenta, s.Pasos);
        results::RedDeCorrida red = results::CopiaDeCorrida(s.Red, s.Pasos, calculo.Resultados);
        if (red.pasos != 301 || !(red.Mayor() > 0))
            throw std::runtime_error("the run isn't that of the limits");
        results::FondoDeMapa fondo;
        if (conFondo) {
            const results::Caja& e = red.extension;
            fondo = {QPixmap(QString::fromUtf8(Fondo)),
                     {static_cast<float>(e.x), static_cast<float>(e.y), static_cast<float>(e.ancho),
                      static_cast<float>(e.alto)}};
            if (fondo.imagen.isNull()) throw std::runtime_error("no background image");
        }
        entorno.Presenta = [](QWidget& suya) { suya.show(); };
        ventana.Abre(std::move(red), {.titulo = "Mapa"}, std::move(fondo));
        ventana.resize(Pantalla);  // once it is shown, however small the screen that nobody sees
        QCoreApplication::processEvents();
        if (lienzo.width() < Pantalla.width() * 9 / 10) throw std::runtime_error("the canvas is too small");
    }

    model::Siro s = bench::RedMeandrosa();
    forms::Entorno entorno{s};
    results::MapaDeCorrida f{};
    results::MapaDeCorrida_ventana ventana{entorno, f};
    results::LienzoDeMapa& lienzo =
        *static_cast<results::LienzoDeMapa*>(ventana.findChild<QWidget*>(QStringLiteral("lienzo")));
};

void CuentaCuadros(benchmark::State& estado)
{
    estado.counters["cuadros/s"] =
        benchmark::Counter(static_cast<double>(estado.iterations()), benchmark::Counter::kIsRate);
}

// A frame of the playing: a step of the slider, until it is painted. Argument: background image on.
void Cuadro(benchmark::State& estado)
{
    Mapa m(estado.range(0) != 0);
    int paso = 0;
    for (auto _ : estado) {
        results::PonPaso(m.f, ++paso % m.f.red.pasos + 1);
        m.ventana.Muestra();
        m.lienzo.repaint();
    }
    CuentaCuadros(estado);
}
BENCHMARK(Cuadro)->ArgName("fondo")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// A frame whose view has changed: image, labels and all.
void VistaNueva(benchmark::State& estado)
{
    Mapa m(estado.range(0) != 0);
    bool cerca = false;
    for (auto _ : estado) {
        cerca = !cerca;
        m.lienzo.Acerca(cerca ? 1.25 : 0.8, m.lienzo.rect().center());
        m.lienzo.repaint();
    }
    CuentaCuadros(estado);
    estado.counters["rotulos"] = static_cast<double>(m.lienzo.Pintor().Puestos().size());
}
BENCHMARK(VistaNueva)->ArgName("fondo")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
