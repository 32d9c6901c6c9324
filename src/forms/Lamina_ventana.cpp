// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Lamina_ventana.h"

#include <qcustomplot.h>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "forms/LecturaGrafico.h"
#include "forms/SignoDecimal_ventana.h"
#include "forms/Textos_ventana.h"
#include "forms/Trazo_ventana.h"

namespace forms {
namespace {

constexpr double PorPaso = 1.25;  // of the zoom, by wheel or key
constexpr std::size_t FilasPorPagina = 10;

}  // namespace

Lamina::Lamina(Entorno& alrededor, std::string_view nombre, std::string_view unTitulo, Modo unModo)
    : entorno(alrededor),
      titulo(Q(unTitulo)),
      modo(unModo),
      plano(new QCustomPlot),
      trazo(std::make_unique<Trazo>(*plano, unModo == Modo::Compacta))
{
    setObjectName(Q(nombre));
    setAccessibleName(titulo);
    setWhatsThis(
        QStringLiteral("Rueda: acerca y aleja (con Ctrl, los valores). Arrastrar: desplaza. Doble clic: ve "
                       "todo. Botón derecho: copia y guarda. Flechas: leen fila por fila."));
    setFocusPolicy(Qt::StrongFocus);
    plano->setFocusPolicy(Qt::NoFocus);
    auto* const pila = new QVBoxLayout(this);
    pila->setContentsMargins(1, 1, 1, 1);
    pila->addWidget(plano);
    trazo->PonLetra(font());
    trazo->PonTinta(TintaDe(palette()));
    plano->setMouseTracking(true);
    plano->installEventFilter(this);
    ConectaRaton();
}

Lamina::~Lamina() = default;

void Lamina::ConectaRaton()
{
    connect(plano, &QCustomPlot::mouseWheel, this, [this](const QWheelEvent* evento) {
        QCPAxisRect& marco = *plano->axisRect();
        marco.setRangeZoomFactor(1 / PorPaso);
        if (evento->modifiers().testFlag(Qt::ControlModifier)) {
            marco.setRangeZoomAxes({plano->yAxis, plano->yAxis2});
            marco.setRangeZoom(Qt::Vertical);
        } else {
            marco.setRangeZoomAxes({plano->xAxis});
            marco.setRangeZoom(Qt::Horizontal);
        }
    });
    connect(plano, &QCustomPlot::beforeReplot, this, [this] { trazo->Acota(); });
    connect(plano, &QCustomPlot::mouseDoubleClick, this, [this] { VeTodo(); });
    connect(plano, &QCustomPlot::mouseMove, this, [this](const QMouseEvent* evento) {
        if (const auto fila = trazo->FilaEn(evento->position().toPoint()))
            Lee(*fila);
        else
            DejaDeLeer();
    });
}

void Lamina::Muestra(const Grafico& nuevo)
{
    if (nuevo == trazo->Mostrado()) return;
    trazo->Pon(nuevo);
    Describe();
    plano->replot(QCustomPlot::rpQueuedReplot);
}

void Lamina::PonTema(std::string_view nuevo, std::string_view nombre)
{
    tema = Q(nuevo);
    componente = nombre;
    Describe();
}

void Lamina::PonOrigen(std::string_view deProyecto, std::string_view deFecha)
{
    proyecto = deProyecto;
    fecha = deFecha;
}

void Lamina::Describe()
{
    QString texto = Q(Descripcion(trazo->Mostrado()));
    if (!tema.isEmpty()) texto.prepend(tema + QStringLiteral(". "));
    if (const auto fila = trazo->FilaLeida())
        texto.prepend(Q(LecturaDeFila(trazo->Mostrado(), *fila)) + QStringLiteral(". "));
    if (accessibleDescription() != texto) setAccessibleDescription(texto);
}

std::string Lamina::Lectura() const
{
    const auto fila = trazo->FilaLeida();
    return fila ? LecturaDeFila(trazo->Mostrado(), *fila) : std::string();
}

Lamina::Tramo Lamina::EnVista() const
{
    const Trazo::Tramo tramo = trazo->EnVista();
    return {tramo.desde, tramo.hasta};
}

QStringList Lamina::RotulosEnVista() const
{
    return trazo->RotulosEnVista();
}

QStringList Lamina::MarcasRotuladas() const
{
    return trazo->MarcasRotuladas();
}

namespace {

QList<QRectF> Corridos(QList<QRectF> lugares, QPoint cuanto)
{
    for (QRectF& lugar : lugares)
        lugar.translate(cuanto);
    return lugares;
}

}  // namespace

QList<QRectF> Lamina::LugaresDeMarcas() const
{
    return Corridos(trazo->LugaresDeMarcas(), plano->pos());
}

QList<QRectF> Lamina::LugaresDeLeyenda() const
{
    return Corridos(trazo->LugaresDeLeyenda(), plano->pos());
}

// --- reading and zooming ---

void Lamina::Lee(std::size_t fila)
{
    if (trazo->FilaLeida() == fila) return;
    trazo->Lee(fila);
    plano->layer(QStringLiteral("overlay"))->replot();
}

void Lamina::DejaDeLeer()
{
    if (!trazo->FilaLeida()) return;
    trazo->DejaDeLeer();
    plano->layer(QStringLiteral("overlay"))->replot();
}

void Lamina::Acerca(double veces)
{
    const Tramo tramo = EnVista();
    const auto fila = trazo->FilaLeida();
    trazo->Acerca(veces, fila ? trazo->LugarDeFila(*fila) : (tramo.desde + tramo.hasta) / 2);
    plano->replot(QCustomPlot::rpQueuedReplot);
}

void Lamina::VeTodo()
{
    trazo->VeTodo();
    plano->replot(QCustomPlot::rpQueuedReplot);
}

// --- events ---

bool Lamina::eventFilter(QObject* objeto, QEvent* evento)
{
    if (evento->type() == QEvent::Leave) DejaDeLeer();
    if (evento->type() == QEvent::ContextMenu) {
        // The surface keeps all that the mouse does to itself; this widget would never hear of it.
        contextMenuEvent(static_cast<QContextMenuEvent*>(evento));
        return true;
    }
    return QWidget::eventFilter(objeto, evento);
}

void Lamina::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange || evento->type() == QEvent::StyleChange)
        trazo->PonTinta(TintaDe(palette()));
    else if (evento->type() == QEvent::FontChange)
        trazo->PonLetra(font());
    else
        return;
    plano->replot(QCustomPlot::rpImmediateRefresh);
}

void Lamina::keyPressEvent(QKeyEvent* evento)
{
    const std::size_t filas = trazo->Mostrado().categorias.size();
    const std::size_t fila = trazo->FilaLeida().value_or(0);
    const bool leia = trazo->FilaLeida().has_value();
    const auto lee = [&](std::size_t nueva) {
        if (filas == 0) return;
        Lee(std::min(nueva, filas - 1));
        Describe();
    };
    const auto atras = [&](std::size_t cuantas) { lee(fila >= cuantas ? fila - cuantas : 0); };
    if (evento->matches(QKeySequence::Copy)) return CopiaImagen();
    switch (evento->key()) {
    case Qt::Key_Left:
        return atras(1);
    case Qt::Key_Right:
        return lee(leia ? fila + 1 : 0);
    case Qt::Key_PageUp:
        return atras(FilasPorPagina);
    case Qt::Key_PageDown:
        return lee(fila + FilasPorPagina);
    case Qt::Key_Home:
        return lee(0);
    case Qt::Key_End:
        return lee(filas);
    case Qt::Key_Plus:
        return Acerca(PorPaso);
    case Qt::Key_Minus:
        return Acerca(1 / PorPaso);
    case Qt::Key_0:
        return VeTodo();
    default:
        QWidget::keyPressEvent(evento);
    }
}

void Lamina::focusInEvent(QFocusEvent* evento)
{
    QWidget::focusInEvent(evento);
    update();
}

void Lamina::focusOutEvent(QFocusEvent* evento)
{
    QWidget::focusOutEvent(evento);
    if (evento->reason() != Qt::PopupFocusReason) DejaDeLeer();
    update();
}

void Lamina::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Lamina::contextMenuEvent(QContextMenuEvent* evento)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("mnuLamina"));
    const auto entrada = [&](const char* leyenda, const char* tecla, auto rutina) {
        QAction* const accion = menu.addAction(QString::fromUtf8(leyenda));
        accion->setShortcut(QKeySequence(QString::fromUtf8(tecla)));
        connect(accion, &QAction::triggered, this, [this, rutina] { entorno.Atiende(rutina); });
    };
    entrada("&Acercar", "+", [this] { Acerca(PorPaso); });
    entrada("A&lejar", "-", [this] { Acerca(1 / PorPaso); });
    entrada("Ver &todo", "0", [this] { VeTodo(); });
    menu.addSeparator();
    entrada("&Copiar imagen", "Ctrl+C", [this] { CopiaImagen(); });
    entrada("Guardar como &PNG...", "", [this] { GuardaPng(); });
    entrada("Guardar como &SVG...", "", [this] { GuardaSvg(); });
    entrada("Guardar como P&DF...", "", [this] { GuardaPdf(); });
    entrada("&Guardar celdas como CSV...", "", [this] { GuardaCsv(); });
    entrada("Guardar celdas como &XLSX...", "", [this] { GuardaXlsx(); });
    AgregaSignoDecimal(menu, entorno);
    const bool porTeclado = evento->reason() == QContextMenuEvent::Keyboard;
    menu.exec(porTeclado ? mapToGlobal(rect().center()) : evento->globalPos());
}

void Lamina::Afina(double puntos)
{
    plano->setBufferDevicePixelRatio(puntos > 0 ? puntos : devicePixelRatioF());
    plano->replot(QCustomPlot::rpImmediateRefresh);
}

QSize Lamina::sizeHint() const
{
    const int alto = fontMetrics().height();
    return modo == Modo::Compacta ? QSize(20 * alto, 12 * alto) : QSize(50 * alto, 27 * alto);
}

QSize Lamina::minimumSizeHint() const
{
    const int alto = fontMetrics().height();
    return modo == Modo::Compacta ? QSize(12 * alto, 8 * alto) : QSize(22 * alto, 14 * alto);
}

}  // namespace forms
