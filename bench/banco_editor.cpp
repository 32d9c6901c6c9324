// SPDX-License-Identifier: GPL-3.0-or-later
//
// The graphic editor on the network at the limits: 70 UEHs, 70 reaches of 100 vertices, 70 Lagos, 20
// Represas, names as long as they can be, orders shown, a reach selected.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QStyleFactory>
#include <stdexcept>

#include "RedMeandrosa.h"
#include "editor/frmUEHs.h"
#include "editor/frmUEHs_ventana.h"
#include "forms/Entorno_ventana.h"

namespace {

using editor::Punto;
using model::Siro;

constexpr QSize Pantalla{1920, 1080};
constexpr const char* Fondo = SIRO_DATA_DIR "/Proyectos/Quelmar.jpg";

/// The editor's window over that network, with or without a background image that covers it.
struct Editor {
    explicit Editor(bool conFondo)
    {
        f.abierta = f.vista.OrdenVisible = true;
        f.vista.AnchoLinea = 4;
        f.vista.recentra = f.vista.reescala = true;
        s.Seleccion.CauceSel = 1;
        if (conFondo) {
            f.fondo.imagen = f.fondo.CargaImagen(Fondo).tamano;
            if (f.fondo.imagen == editor::Tamano{}) throw std::runtime_error("no background image");
            f.fondo.ImagenVisible = true;
            s.Configuracion.EscalaImagen = 100.0 * bench::AnchoDeMeandros / f.fondo.imagen.ancho;
        }
        ventana.resize(Pantalla);
        ventana.show();
        QCoreApplication::processEvents();
    }
    /// A step of a drag with the left button, until it is painted.
    void Mueve(QPointF pixel)
    {
        QMouseEvent mueve(QEvent::MouseMove, pixel, lienzo.mapToGlobal(pixel), Qt::NoButton, Qt::LeftButton,
                          {});
        QCoreApplication::sendEvent(&lienzo, &mueve);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QPointF Pixel(Punto p) const
    {
        const editor::Pixel lugar = editor::APixel(f.vista, p);
        return {lugar.x, lugar.y};
    }

    Siro s = bench::RedMeandrosa();
    forms::Entorno entorno{s};
    editor::frmUEHs f{};
    editor::frmUEHs_ventana ventana{entorno, f};
    QWidget& lienzo = *ventana.findChild<QWidget*>(QStringLiteral("picDibujo"));
};

// The list of primitives alone.
void Lista(benchmark::State& estado)
{
    Editor e(false);
    for (auto _ : estado)
        editor::Redibuja(e.f, e.s);
    estado.counters["primitivas"] = static_cast<double>(e.f.dibujo.Primitivas().size());
}
BENCHMARK(Lista)->Unit(benchmark::kMillisecond);

// The whole redraw: list and painting. Argument: background image on.
void Redibujo(benchmark::State& estado)
{
    Editor e(estado.range(0) != 0);
    for (auto _ : estado) {
        editor::Redibuja(e.f, e.s);
        e.lienzo.repaint();
    }
}
BENCHMARK(Redibujo)->ArgName("fondo")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// From a move of the pointer that drags a UEH to the painted drawing.
void Arrastre(benchmark::State& estado)
{
    Editor e(estado.range(0) != 0);
    e.s.Seleccion.CauceSel = 0;
    const auto& icono = e.s.Red.ColUEHs.Item(1);
    const QPointF desde = e.Pixel({icono.IconoUEHx + 3, icono.IconoUEHy + 3});
    QMouseEvent aprieta(QEvent::MouseButtonPress, desde, e.lienzo.mapToGlobal(desde), Qt::LeftButton,
                        Qt::LeftButton, {});
    QCoreApplication::sendEvent(&e.lienzo, &aprieta);
    if (e.f.gesto.arrastra != editor::Arrastra::IconoUEH)
        throw std::runtime_error("no UEH under the pointer");
    int paso = 0;
    for (auto _ : estado)
        e.Mueve(desde + QPointF(++paso % 40, 0));
}
BENCHMARK(Arrastre)->ArgName("fondo")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

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
