// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/LienzoDeMapa_ventana.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "forms/Textos_ventana.h"

namespace results {

namespace {

constexpr double PorVuelta = 1.25;  // of the zoom

forms::Pixel En(QPointF p)
{
    return {p.x(), p.y()};
}

}  // namespace

LienzoDeMapa::LienzoDeMapa(const MapaDeCorrida& mostrado) : f(mostrado)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWhatsThis(QStringLiteral(
        "Rueda: acerca y aleja. Arrastrar: desplaza. Doble clic: ve todo. Clic en un componente: "
        "su hidrograma. Flechas: recorren los componentes; Entrar abre el hidrograma. Espacio: "
        "reproduce."));
}

QFont LienzoDeMapa::Letra() const
{
    QFont letra = font();
    letra.setPixelSize(QFontInfo(letra).pixelSize());
    return letra;
}

VistaDeMapa LienzoDeMapa::Entera() const
{
    return VistaDe(f.red.extension, PintorDeMapa::MarcoDeRed(size(), Letra()));
}

void LienzoDeMapa::Vence()
{
    vencidas = true;
    update();
}

void LienzoDeMapa::PonCorrida(FondoDeMapa nuevo)
{
    fondo = std::move(nuevo);
    senalado = -1;
    VeTodo();
}

void LienzoDeMapa::Muestra()
{
    const Opciones ahora{f.chkPicos, f.chkNombres, f.chkImagen};
    if (std::exchange(opciones, ahora) != ahora) vencidas = true;
    const QString texto = forms::Q(Descripcion(f));
    if (accessibleDescription() != texto) setAccessibleDescription(texto);
    if (senalado >= 0 && QToolTip::isVisible())
        QToolTip::showText(QCursor::pos(), forms::Q(Lectura(f, senalado)), this);
    update();
}

void LienzoDeMapa::VeTodo()
{
    todo = true;
    vista = Entera();
    Vence();
}

void LienzoDeMapa::Acerca(double veces, QPointF en)
{
    results::Acerca(vista, veces, En(en), Entera().escala);
    todo = false;
    Vence();
}

// --- painting ---

QPixmap LienzoDeMapa::Capa() const
{
    QPixmap capa(size() * devicePixelRatioF());
    capa.setDevicePixelRatio(devicePixelRatioF());
    capa.fill(Qt::transparent);
    return capa;
}

void LienzoDeMapa::RehaceCapas()
{
    pintor.Prepara(f, vista, size(), Letra());
    debajo = Capa();
    QPainter abajo(&debajo);
    pintor.PintaFondo(abajo, f, fondo);
    encima = Capa();
    QPainter arriba(&encima);
    pintor.PintaRotulos(arriba, f);
    vencidas = false;
}

void LienzoDeMapa::paintEvent(QPaintEvent* /*evento*/)
{
    if (std::abs(debajo.devicePixelRatio() - devicePixelRatioF()) > 1e-6) vencidas = true;
    if (vencidas) RehaceCapas();
    QPainter pincel(this);
    pincel.drawPixmap(0, 0, debajo);
    pintor.PintaAgua(pincel, f);
    pincel.drawPixmap(0, 0, encima);
    pincel.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    pincel.drawRect(rect().adjusted(0, 0, -1, -1));
}

void LienzoDeMapa::resizeEvent(QResizeEvent* /*evento*/)
{
    if (todo) vista = Entera();
    Vence();
}

QSize LienzoDeMapa::sizeHint() const
{
    const int alto = fontMetrics().height();
    return {50 * alto, 30 * alto};
}

QSize LienzoDeMapa::minimumSizeHint() const
{
    const int alto = fontMetrics().height();
    return {22 * alto, 16 * alto};
}

// --- mouse and keys ---

bool LienzoDeMapa::event(QEvent* evento)
{
    if (evento->type() == QEvent::Leave) {
        senalado = -1;
        QToolTip::hideText();
    }
    if (evento->type() == QEvent::FontChange) Vence();
    return QWidget::event(evento);
}

void LienzoDeMapa::Senala(QPointF en, QPoint enPantalla)
{
    const int ahora = Bajo(f, vista, En(en));
    setCursor(ahora >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (std::exchange(senalado, ahora) == ahora) return;
    if (ahora >= 0)
        QToolTip::showText(enPantalla, forms::Q(Lectura(f, ahora)), this);
    else
        QToolTip::hideText();
}

void LienzoDeMapa::mousePressEvent(QMouseEvent* evento)
{
    if (evento->button() != Qt::LeftButton) return;
    bajo = true;
    arrastra = false;
    apretado = ultimo = evento->position();
}

void LienzoDeMapa::mouseMoveEvent(QMouseEvent* evento)
{
    const QPointF en = evento->position();
    if (!bajo || !evento->buttons().testFlag(Qt::LeftButton)) {
        bajo = false;
        return Senala(en, evento->globalPosition().toPoint());
    }
    if (!arrastra && (en - apretado).manhattanLength() < QApplication::startDragDistance()) return;
    arrastra = true;
    todo = false;
    QToolTip::hideText();
    setCursor(Qt::ClosedHandCursor);
    const QPointF movido = en - std::exchange(ultimo, en);
    Desplaza(vista, movido.x(), movido.y());
    Vence();
}

void LienzoDeMapa::mouseReleaseEvent(QMouseEvent* evento)
{
    if (evento->button() != Qt::LeftButton || !std::exchange(bajo, false)) return;
    const bool clic = !std::exchange(arrastra, false);
    const int componente = Bajo(f, vista, En(evento->position()));
    setCursor(componente >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (clic && componente >= 0) AlElegir(componente);
}

void LienzoDeMapa::mouseDoubleClickEvent(QMouseEvent* evento)
{
    // The first of the two clicks has opened the hydrograph of a component already.
    if (evento->button() == Qt::LeftButton && Bajo(f, vista, En(evento->position())) < 0) VeTodo();
}

void LienzoDeMapa::wheelEvent(QWheelEvent* evento)
{
    constexpr double Vuelta = 120;  // eighths of a degree
    const double vueltas = evento->angleDelta().y() / Vuelta;
    if (vueltas != 0) Acerca(std::pow(PorVuelta, vueltas), evento->position());
    evento->accept();
}

void LienzoDeMapa::keyPressEvent(QKeyEvent* evento)
{
    switch (evento->key()) {
    case Qt::Key_Plus:
        return Acerca(PorVuelta, rect().center());
    case Qt::Key_Minus:
        return Acerca(1 / PorVuelta, rect().center());
    case Qt::Key_0:
        return VeTodo();
    default:
        if (!AlTeclear(*evento)) QWidget::keyPressEvent(evento);
    }
}

void LienzoDeMapa::contextMenuEvent(QContextMenuEvent* evento)
{
    const bool porTeclado = evento->reason() == QContextMenuEvent::Keyboard;
    AlPedirMenu(porTeclado ? mapToGlobal(rect().center()) : evento->globalPos());
}

void LienzoDeMapa::focusInEvent(QFocusEvent* evento)
{
    QWidget::focusInEvent(evento);
    update();
}

void LienzoDeMapa::focusOutEvent(QFocusEvent* evento)
{
    QWidget::focusOutEvent(evento);
    update();
}

}  // namespace results
