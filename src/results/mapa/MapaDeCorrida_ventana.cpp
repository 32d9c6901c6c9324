// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/MapaDeCorrida_ventana.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>
#include <chrono>
#include <utility>

#include "results/mapa/SalidaDeMapa_ventana.h"

namespace results {

using forms::Q;

namespace {

constexpr std::chrono::milliseconds Latido{16};  // while it plays: the frames of a screen
constexpr int PasosPorPagina = 10;

}  // namespace

MapaDeCorrida_ventana::MapaDeCorrida_ventana(forms::Entorno& alrededor, MapaDeCorrida& registro,
                                             QWidget* padre)
    : Ventana(alrededor, {"MapaDeCorrida", TituloMapaDeCorrida, RotulosDelMapa}, padre),
      f(registro),
      franja(new checks::Franja(alrededor, checks::Alcance::Corrida)),
      lienzo(Nombra(new LienzoDeMapa(registro), "lienzo"))
{
    Sigue(f.abierta);
    QLabel* const titulo = EnNegrita(Texto("lblTitulo", f.lblTitulo));
    titulo->setAlignment(Qt::AlignCenter);
    titulo->setWordWrap(true);
    lienzo->AlElegir = [this](int componente) { Elige(componente); };
    lienzo->AlTeclear = [this](const QKeyEvent& evento) { return Teclea(evento); };
    lienzo->AlPedirMenu = [this](QPoint donde) { AbreMenu(donde); };
    setLayout(EnPila({franja, titulo, {lienzo, 1}, Tiempo(), Botones()}));
    latido.setTimerType(Qt::PreciseTimer);
    latido.setInterval(Latido);
    connect(&latido, &QTimer::timeout, this, [this] { Late(); });
}

QLayout* MapaDeCorrida_ventana::Tiempo()
{
    sldTiempo = Nombra(new QSlider(Qt::Horizontal), "sldTiempo");
    sldTiempo->setPageStep(PasosPorPagina);
    connect(sldTiempo, &QSlider::valueChanged, this, [this](int paso) { Suceso([&] { PonPaso(f, paso); }); });
    lblTiempo = Texto("lblTiempo", f.lblTiempo);
    reproducir = Boton("cmdReproducir", [this] { cmdReproducir(f); });
    for (const QString& texto : {QStringLiteral("&Reproducir"), QStringLiteral("&Detener")}) {
        reproducir->setText(texto);
        reproducir->setMinimumWidth(std::max(reproducir->minimumWidth(), reproducir->sizeHint().width()));
    }
    QComboBox* const velocidad = Desplegable("cmbVelocidad", f.velocidades, f.velocidad, [this](int indice) {
        f.velocidad = std::clamp(indice, 0, static_cast<int>(VelocidadesDelMapa.size()) - 1);
    });
    velocidad->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return EnFila({Boton("cmdInicio", [this] { PonPaso(f, 1); }),
                   Boton("cmdPico", [this] { PonPaso(f, PasoDelPico(f.red)); }),
                   reproducir,
                   {sldTiempo, 1},
                   lblTiempo,
                   Rotulo("cmbVelocidad", velocidad),
                   velocidad});
}

QLayout* MapaDeCorrida_ventana::Botones()
{
    const auto casilla = [this](std::string_view control, bool& opcion) {
        return Casilla(
            control, [&opcion] { return opcion; }, [&opcion](bool si) { opcion = si; });
    };
    QPushButton* const guardar = Boton("cmdGuardar", [] {});
    auto* const menu = new QMenu(guardar);
    menu->setObjectName(QStringLiteral("mnuGuardar"));
    PonSalidas(*menu);
    guardar->setMenu(menu);
    QCheckBox* const imagen =
        HabilitadoSi(casilla("chkImagen", f.chkImagen), [this] { return !lienzo->Fondo().imagen.isNull(); });
    return EnFila({casilla("chkPicos", f.chkPicos), casilla("chkNombres", f.chkNombres), imagen, Hueco(),
                   Boton("cmdVerTodo", [this] { lienzo->VeTodo(); }), guardar,
                   Boton("cmdImprimir",
                         [this] {
                             ImprimeMapa(entorno, {f, *lienzo});
                         }),
                   Boton("OKButton", [this] { f.abierta = false; })});
}

void MapaDeCorrida_ventana::Abre(RedDeCorrida red, const forms::Procedencia& procedencia, FondoDeMapa fondo)
{
    results::Muestra(f, std::move(red), procedencia);
    lblTiempo->setMinimumWidth(fontMetrics().horizontalAdvance(Q(TextoDePaso(f, f.red.pasos))));
    lienzo->PonCorrida(std::move(fondo));
    Muestra();
    if (!f.abierta) return;
    entorno.Presenta(*this);
    lienzo->setFocus();
}

void MapaDeCorrida_ventana::AlCerrar()
{
    f.abierta = f.corriendo = false;
}

void MapaDeCorrida_ventana::hideEvent(QHideEvent* evento)
{
    if (!evento->spontaneous()) latido.stop();
    Ventana::hideEvent(evento);
}

void MapaDeCorrida_ventana::Muestra()
{
    if (reproducir->text() != Q(f.cmdReproducir)) reproducir->setText(Q(f.cmdReproducir));
    if (f.corriendo && f.abierta && !latido.isActive()) {
        reloj.start();
        latido.start();
    } else if (!f.corriendo) {
        latido.stop();
    }
    MuestraTiempo();
    Ventana::Muestra();
}

/// What a step in time changes, and nothing else.
void MapaDeCorrida_ventana::MuestraTiempo()
{
    const QSignalBlocker silencio(*sldTiempo);
    sldTiempo->setRange(1, std::max(1, f.red.pasos));
    sldTiempo->setValue(f.paso);
    forms::Pon(*lblTiempo, f.lblTiempo);
    lienzo->Muestra();
}

void MapaDeCorrida_ventana::Late()
{
    constexpr double Nano = 1e-9;
    const bool otro = Avanza(f, static_cast<double>(reloj.nsecsElapsed()) * Nano);
    reloj.start();
    if (!f.corriendo) return Muestra();
    if (otro) MuestraTiempo();
}

void MapaDeCorrida_ventana::Elige(int componente)
{
    Suceso([&] {
        f.elegido = componente;
        const ComponenteDelMapa& c = f.red.componentes[static_cast<std::size_t>(componente)];
        if (!c.Q.empty()) AbreHidrograma(c.nombre);
    });
}

// --- keys ---

bool MapaDeCorrida_ventana::Teclea(const QKeyEvent& evento)
{
    const auto haz = [this](auto rutina) {
        Suceso(rutina);
        return true;
    };
    switch (evento.key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return haz([this] { Recorre(f, 1); });
    case Qt::Key_Left:
    case Qt::Key_Up:
        return haz([this] { Recorre(f, -1); });
    case Qt::Key_PageDown:
        return haz([this] { PonPaso(f, f.paso + PasosPorPagina); });
    case Qt::Key_PageUp:
        return haz([this] { PonPaso(f, f.paso - PasosPorPagina); });
    case Qt::Key_Home:
        return haz([this] { PonPaso(f, 1); });
    case Qt::Key_End:
        return haz([this] { PonPaso(f, f.red.pasos); });
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (f.elegido >= 0) Elige(f.elegido);
        return true;
    default:
        if (evento.matches(QKeySequence::Copy)) return haz([this] { Copia(); });
        return false;
    }
}

/// What no control of the window has taken: a button and a box take the blank for themselves.
void MapaDeCorrida_ventana::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() != Qt::Key_Space) return Ventana::keyPressEvent(evento);
    if (!evento->isAutoRepeat()) Suceso([this] { cmdReproducir(f); });
}

// --- the ways out ---

void MapaDeCorrida_ventana::AbreMenu(QPoint donde)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuMapa"));
    const auto entrada = [&](const char* leyenda, auto rutina) {
        connect(menu.addAction(QString::fromUtf8(leyenda)), &QAction::triggered, this,
                [this, rutina] { Suceso(rutina); });
    };
    const QPointF medio = lienzo->rect().center();
    constexpr double Veces = 1.25;
    entrada("&Acercar\t+", [this, medio] { lienzo->Acerca(Veces, medio); });
    entrada("A&lejar\t-", [this, medio] { lienzo->Acerca(1 / Veces, medio); });
    entrada("Ver &todo\t0", [this] { lienzo->VeTodo(); });
    menu.addSeparator();
    entrada("&Copiar imagen\tCtrl+C", [this] { Copia(); });
    PonSalidas(menu);
    menu.exec(donde);
}

void MapaDeCorrida_ventana::PonSalidas(QMenu& menu)
{
    const auto entrada = [&](const char* leyenda, std::string_view tipo) {
        connect(menu.addAction(QString::fromUtf8(leyenda)), &QAction::triggered, this,
                [this, tipo] { Suceso([this, tipo] { Guarda(tipo); }); });
    };
    entrada("Guardar como &PNG...", "PNG");
    entrada("Guardar como &SVG...", "SVG");
    entrada("Guardar como P&DF...", "PDF");
}

void MapaDeCorrida_ventana::Guarda(std::string_view tipo)
{
    GuardaMapa(entorno, {f, *lienzo}, tipo);
}

void MapaDeCorrida_ventana::Copia()
{
    QGuiApplication::clipboard()->setImage(ImagenDeMapa(entorno, {f, *lienzo}));
}

}  // namespace results
