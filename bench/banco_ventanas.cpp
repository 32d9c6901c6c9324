// SPDX-License-Identifier: GPL-3.0-or-later
//
// From the command to the painted hydrograph, from the move of a slider to its chart, and from nothing to the
// main window.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QSlider>
#include <QStyleFactory>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "ProyectoLimite.h"
#include "engine/modProceso0.h"
#include "forms/Entorno_ventana.h"
#include "model/VidaProyecto.h"
#include "results/dlgChart2_ventana.h"
#include "results/frmPp_ventana.h"
#include "shell/Escritorio_ventana.h"

namespace {

using model::Siro;
namespace fs = std::filesystem;

void Exige(bool cumple, const char* que)
{
    if (!cumple) throw std::runtime_error(que);
}

/// A copy of the delivered data in a directory that goes with the object.
class Muestra {
  public:
    Muestra() : dir(fs::temp_directory_path() / "siro-banco-ventanas")
    {
        fs::remove_all(dir);
        fs::copy(SIRO_DATA_DIR, dir, fs::copy_options::recursive);
    }
    ~Muestra()
    {
        std::error_code error;
        fs::remove_all(dir, error);
    }
    Muestra(const Muestra&) = delete;
    Muestra& operator=(const Muestra&) = delete;

    [[nodiscard]] std::string Dir() const { return dir.string(); }
    /// Its project open, 80 mm in 120 min in hand.
    [[nodiscard]] Siro Abierta() const
    {
        Siro s;
        s.Proyecto.DirTrabajo = s.Proyecto.DirEjecutable = dir.string();
        model::AbreProyectoDe(s, (dir / "Proyectos" / "Quelmar_Conf.vlm").string());
        s.Tormenta.PpTormenta = 80;
        s.Tormenta.DurTormenta = 120;
        s.Tormenta.DistriPp = 2;
        s.Pasos.PasoPp = 10;
        s.Pasos.PasoQ = 5;
        return s;
    }

  private:
    fs::path dir;
};

/// Waits until a chart has been painted anew.
class Pintura : public QObject {
  public:
    explicit Pintura(QWidget& ventana)
    {
        QWidget& grafico = *ventana.findChild<QWidget*>(QStringLiteral("Grafico"));
        for (QWidget* parte : grafico.findChildren<QWidget*>())
            parte->installEventFilter(this);
    }
    void Empieza() { pintada = false; }
    void Espera() const
    {
        do
            QCoreApplication::processEvents();
        while (!pintada);
    }
    bool eventFilter(QObject* objeto, QEvent* evento) override
    {
        if (evento->type() == QEvent::Paint) pintada = true;
        return QObject::eventFilter(objeto, evento);
    }

  private:
    bool pintada = false;
};

/// The windows over a project, as the desktop has them.
struct Escritorio {
    Escritorio(Siro estado, bool conPizarra) : s(std::move(estado)), marca(conPizarra)
    {
        results::PonPizarra(s.Anfitrion, pizarra, ventanaPizarra, marca);
    }
    /// Run, chart in a window of its own, painting.
    void Corre()
    {
        Exige(engine::CorreUnaTormenta(s), "a check ended the run");
        hidrogramas = std::make_unique<results::dlgChart2_ventana>(entorno, f);
        hidrogramas->resize(1000, 620);
        pintura = std::make_unique<Pintura>(*hidrogramas);
        pintura->Empieza();
        hidrogramas->Abre();
        pintura->Espera();
    }

    Siro s;
    bool marca;
    forms::Entorno entorno{s};
    results::frmPp pizarra{};
    results::frmPp_ventana ventanaPizarra{entorno, pizarra};
    results::dlgChart2 f{};
    std::unique_ptr<results::dlgChart2_ventana> hidrogramas{};
    std::unique_ptr<Pintura> pintura{};
};

void Corrida(benchmark::State& estado, const Siro& proyecto)
{
    Escritorio escritorio(proyecto, estado.range(0) != 0);
    for (auto _ : estado)
        escritorio.Corre();
}

void MovimientoDe(benchmark::State& estado, const Siro& proyecto)
{
    Escritorio escritorio(proyecto, estado.range(0) != 0);
    escritorio.Corre();
    auto& deslizador = *escritorio.hidrogramas->findChild<QSlider*>(QStringLiteral("sldPp"));
    int paso = 1;
    for (auto _ : estado) {
        const int valor = deslizador.value() + paso;
        paso = -paso;
        escritorio.pintura->Empieza();
        deslizador.setValue(valor);
        while (escritorio.f.sldPp.valor != valor)
            QCoreApplication::processEvents();
        escritorio.pintura->Espera();
    }
}

// From the click to the painted hydrograph of the sample project. Argument: Slate on.
void CorridaDeMuestra(benchmark::State& estado)
{
    const Muestra muestra;
    Corrida(estado, muestra.Abierta());
}
BENCHMARK(CorridaDeMuestra)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// A slider's move on it.
void Movimiento(benchmark::State& estado)
{
    const Muestra muestra;
    MovimientoDe(estado, muestra.Abierta());
}
BENCHMARK(Movimiento)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The same on the network at the limits, a storm of 24 h.
void CorridaDeLimite(benchmark::State& estado)
{
    const bench::ProyectoTemporal proyecto;
    Corrida(estado, bench::ProyectoAbierto(proyecto.Dir()));
}
BENCHMARK(CorridaDeLimite)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void MovimientoDeLimite(benchmark::State& estado)
{
    const bench::ProyectoTemporal proyecto;
    MovimientoDe(estado, bench::ProyectoAbierto(proyecto.Dir()));
}
BENCHMARK(MovimientoDeLimite)->ArgName("pizarra")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// All windows made, the main one shown. Argument: milliseconds of splash, which should cost no processor
// time.
void Arranque(benchmark::State& estado)
{
    const Muestra muestra;
    for (auto _ : estado) {
        shell::Escritorio escritorio(muestra.Dir());
        escritorio.Arranca(static_cast<double>(estado.range(0)) / 1000, {});
        QCoreApplication::processEvents();
    }
}
BENCHMARK(Arranque)->ArgName("portada")->Arg(0)->Arg(500)->Unit(benchmark::kMillisecond);

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
