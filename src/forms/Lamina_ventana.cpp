// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Lamina_ventana.h"

#include <qcustomplot.h>

#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPageSize>
#include <QPdfWriter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QSvgGenerator>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "forms/Impresion_ventana.h"
#include "forms/LecturaGrafico.h"
#include "forms/Textos_ventana.h"
#include "forms/Trazo_ventana.h"
#include "model/Avisos.h"

namespace forms {
namespace {

constexpr double PorPaso = 1.25;  // of the zoom, by wheel or key
constexpr std::size_t FilasPorPagina = 10;
constexpr double PuntosDelPng = 2;  // dots of the image per dot of the screen

std::string Bytes(const QByteArray& bytes)
{
    return bytes.toStdString();
}

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

void Lamina::PonTema(std::string_view nuevo)
{
    tema = Q(nuevo);
    Describe();
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
    trazo->Acerca(veces, fila ? static_cast<double>(*fila) + 1 : (tramo.desde + tramo.hasta) / 2);
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
    const bool porTeclado = evento->reason() == QContextMenuEvent::Keyboard;
    menu.exec(porTeclado ? mapToGlobal(rect().center()) : evento->globalPos());
}

// --- image and files ---

QSize Lamina::TamanoDeImagen() const
{
    constexpr int LoMenos = 900;  // pixels across; the height as on the screen
    if (modo == Modo::Compacta || width() >= LoMenos) return size();
    return {LoMenos, LoMenos * std::max(1, height()) / std::max(1, width())};
}

/// Paints with the colours of paper and without the row that is being read.
std::string Lamina::EnPapel(const std::function<std::string(QSize)>& pinta) const
{
    const Tinta antes = trazo->TintaPuesta();
    const auto fila = trazo->FilaLeida();
    trazo->DejaDeLeer();
    trazo->PonTinta(TintaDePapel());
    std::string bytes = pinta(TamanoDeImagen());
    trazo->PonTinta(antes);
    if (fila) trazo->Lee(*fila);
    return bytes;
}

namespace {

template <typename Dispositivo>
void PintaEn(QCustomPlot& plano, Dispositivo& dispositivo, QSize tamano)
{
    QCPPainter pintor;
    if (pintor.begin(&dispositivo)) plano.toPainter(&pintor, tamano.width(), tamano.height());
}

std::string Png(QCustomPlot& plano, QSize tamano)
{
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    plano.toPixmap(tamano.width(), tamano.height(), PuntosDelPng).save(&archivo, "PNG");
    return Bytes(archivo.data());
}

std::string Svg(QCustomPlot& plano, const QString& titulo, QSize tamano)
{
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    {
        QSvgGenerator dispositivo;
        dispositivo.setOutputDevice(&archivo);
        dispositivo.setSize(tamano);
        dispositivo.setViewBox(QRect({0, 0}, tamano));
        dispositivo.setTitle(titulo);
        PintaEn(plano, dispositivo, tamano);
    }
    return Bytes(archivo.data());
}

std::string Pdf(QCustomPlot& plano, const QString& titulo, QSize tamano)
{
    constexpr int PuntosPorPulgada = 96;  // of the screen's letters
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    {
        QPdfWriter dispositivo(&archivo);
        dispositivo.setTitle(titulo);
        dispositivo.setResolution(PuntosPorPulgada);
        dispositivo.setPageSize(QPageSize(QSizeF(tamano) / PuntosPorPulgada, QPageSize::Inch));
        dispositivo.setPageMargins({});
        PintaEn(plano, dispositivo, tamano);
    }
    return Bytes(archivo.data());
}

}  // namespace

void Lamina::CopiaImagen() const
{
    EnPapel([&](QSize tamano) {
        QGuiApplication::clipboard()->setPixmap(
            plano->toPixmap(tamano.width(), tamano.height(), PuntosDelPng));
        return std::string();
    });
}

void Lamina::Guarda(std::string_view pregunta, std::string_view filtro, std::string_view extension,
                    const std::function<std::string()>& bytes) const
{
    const std::string ruta =
        entorno.s.Anfitrion.EligeDestino(pregunta, filtro, DeQ(titulo).append(extension));
    if (ruta.empty()) return;
    model::Sentencia(
        [&] { entorno.s.Disco.Escribe(ruta, bytes()); },
        [&](const model::Falla& falla) { model::Informa(entorno.s, model::TextoFallaArchivo(falla)); });
}

void Lamina::GuardaPng() const
{
    Guarda("Guardar el gráfico como PNG", "Imagen PNG |*.png", ".png",
           [this] { return EnPapel([this](QSize tamano) { return Png(*plano, tamano); }); });
}

void Lamina::GuardaSvg() const
{
    Guarda("Guardar el gráfico como SVG", "Dibujo SVG |*.svg", ".svg",
           [this] { return EnPapel([this](QSize tamano) { return Svg(*plano, titulo, tamano); }); });
}

void Lamina::GuardaPdf() const
{
    Guarda("Guardar el gráfico como PDF", "Documento PDF |*.pdf", ".pdf",
           [this] { return EnPapel([this](QSize tamano) { return Pdf(*plano, titulo, tamano); }); });
}

void Lamina::GuardaCsv() const
{
    Guarda("Guardar las celdas como CSV", "Celdas CSV |*.csv", ".csv",
           [this] { return CeldasComoCsv(trazo->Mostrado()); });
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

void ImprimeConLaminas(Entorno& entorno, QWidget& ventana, std::initializer_list<Lamina*> laminas)
{
    for (Lamina* const lamina : laminas)
        lamina->Afina(PuntosDeImpresion);
    ImprimeVentana(entorno, ventana);
    for (Lamina* const lamina : laminas)
        lamina->Afina(0);
}

}  // namespace forms
