// SPDX-License-Identifier: GPL-3.0-or-later
//
// The graphic editor on the network at the limits: 70 UEHs, 70 reaches of 100 vertices, 70 Lagos, 20
// Represas, names as long as they can be, orders shown, a reach selected.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QStyleFactory>
#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "ProyectoLimite.h"
#include "editor/frmUEHs.h"
#include "editor/frmUEHs_ventana.h"
#include "forms/Entorno_ventana.h"
#include "model/Componentes.h"
#include "model/OrdenCauces.h"

namespace {

using editor::Punto;
using model::Siro;

constexpr int Vertices = 100;
constexpr int Lado = 10;      // nodes in a row of the drawing
constexpr float Celda = 160;  // a node's square [drawing units]
constexpr QSize Pantalla{1920, 1080};
constexpr const char* Fondo = SIRO_DATA_DIR "/Proyectos/Quelmar.jpg";

Punto Esquina(int nudo)
{
    return {static_cast<float>(nudo % Lado) * Celda, static_cast<float>(nudo / Lado) * Celda};
}

/// A meandering reach across its node's square.
void TrazaCauce(Siro& s, int n)
{
    const Punto e = Esquina(n - 1);
    s.Red.NroVertices(n) = Vertices;
    for (int v = 1; v <= Vertices; ++v) {
        const double avance = static_cast<double>(v) / Vertices;
        s.Red.XVertice(n, v) = static_cast<float>(e.X + Celda * (0.5 + 0.2 * std::sin(avance * 25)));
        s.Red.YVertice(n, v) = static_cast<float>(e.Y + Celda * (0.95 - 0.9 * avance));
    }
}

void Alarga(std::string& nombre)
{
    if (!nombre.empty()) nombre += "-aguasarrib";  // 15 characters
}

Siro RedLimite()
{
    Siro s;
    bench::ArmaRed(s, {});
    s.Red.XVertice.Dimensiona(model::MaxCauces, Vertices);
    s.Red.YVertice.Dimensiona(model::MaxCauces, Vertices);
    for (auto& c : s.Red.ColCauces) {
        c.numVertices = Vertices;
        TrazaCauce(s, c.numCauce);
        Alarga(c.NombreCauce);
        Alarga(c.Cauce_aa);
    }
    for (auto& u : s.Red.ColUEHs) {
        const Punto e = Esquina(u.numUEH - 1);
        u.IconoUEHx = e.X + 10;
        u.IconoUEHy = e.Y + 20;
        u.XCauce = s.Red.XVertice(u.numUEH, Vertices);
        u.YCauce = s.Red.YVertice(u.numUEH, Vertices);
        Alarga(u.NombreUEH);
        Alarga(u.Cauce_aa);
    }
    for (auto& l : s.Red.ColLagos) {
        const Punto e = Esquina(l.numLAGO - 1);
        const int aguasAbajo = std::max<int>(1, l.numLAGO / 2);
        l.IconoLAGOx = e.X + 0.7F * Celda;
        l.IconoLAGOy = e.Y + 0.9F * Celda;
        l.XCauce = s.Red.XVertice(aguasAbajo, Vertices);
        l.YCauce = s.Red.YVertice(aguasAbajo, Vertices);
        Alarga(l.NombreLAGO);
        Alarga(l.Cauce_aa);
    }
    for (auto& r : s.Red.ColRepresas) {
        const int nudo = model::MaxUEHs - model::MaxRepresas + r.numRepresa;
        const Punto e = Esquina(nudo - 1);
        r.IconoRepresaX = e.X + 0.7F * Celda;
        r.IconoRepresaY = e.Y + 0.3F * Celda;
        r.XCauce = s.Red.XVertice(nudo, Vertices);
        r.YCauce = s.Red.YVertice(nudo, Vertices);
        Alarga(r.NombreRepresa);
        Alarga(r.Cauce_aa);
    }
    model::CalculaOrdenCauces(s.Red);
    return s;
}

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
            s.Configuracion.EscalaImagen = 100.0 * Lado * Celda / f.fondo.imagen.ancho;
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

    Siro s = RedLimite();
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
