// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/Lienzo_ventana.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QWheelEvent>
#include <utility>

namespace editor {
namespace {

BotonRaton De(Qt::MouseButton boton)
{
    switch (boton) {
    case Qt::LeftButton:
        return BotonRaton::Izquierdo;
    case Qt::RightButton:
        return BotonRaton::Derecho;
    case Qt::MiddleButton:
        return BotonRaton::Medio;
    default:
        return BotonRaton::Ninguno;
    }
}

/// Dark on light, so that it is seen over lines and over an image; the point itself stays free.
void PintaCruz(QPainter& pintor, Pixel en)
{
    constexpr double Brazo = 14, Hueco = 3;
    constexpr int Ancho = 2, Halo = 5;
    const QPointF centro(en.x, en.y);
    for (const auto& [color, ancho] :
         {std::pair(QColor(Qt::white), Halo), std::pair(QColor(0xC62828), Ancho)}) {
        pintor.setPen(QPen(color, ancho, Qt::SolidLine, Qt::RoundCap));
        for (const QPointF hacia : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
            pintor.drawLine(centro + hacia * Hueco, centro + hacia * Brazo);
    }
}

}  // namespace

Lienzo::Lienzo(const frmUEHs& mostrada, PintorDibujo& quienPinta) : f(mostrada), pintorDibujo(quienPinta)
{
    setObjectName(QStringLiteral("picDibujo"));
    setAccessibleName(QStringLiteral("Dibujo de la red"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
}

QSize Lienzo::sizeHint() const
{
    return {800, 600};
}

void Lienzo::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintorDibujo.Pinta(pintor, f, rect());
    if (f.gesto.cruz) PintaCruz(pintor, APixel(f.vista, *f.gesto.cruz));
}

void Lienzo::mousePressEvent(QMouseEvent* evento)
{
    AlBajar(De(evento->button()), Lugar(evento->position()));
}

void Lienzo::mouseMoveEvent(QMouseEvent* evento)
{
    AlMover(Lugar(evento->position()), evento->buttons().testFlag(Qt::LeftButton));
}

void Lienzo::mouseReleaseEvent(QMouseEvent* evento)
{
    AlSubir(De(evento->button()), Lugar(evento->position()));
}

void Lienzo::mouseDoubleClickEvent(QMouseEvent* evento)
{
    if (evento->button() == Qt::LeftButton)
        AlDobleClic();
    else
        mousePressEvent(evento);
}

void Lienzo::wheelEvent(QWheelEvent* evento)
{
    constexpr double OctavosPorVuelta = 120;
    AlGirar(evento->angleDelta().y() / OctavosPorVuelta, Lugar(evento->position()));
    evento->accept();
}

void Lienzo::keyPressEvent(QKeyEvent* evento)
{
    if (!AlTeclear(*evento)) QWidget::keyPressEvent(evento);
}

void Lienzo::resizeEvent(QResizeEvent* evento)
{
    if (AlCambiarDeTamano) AlCambiarDeTamano(evento->size());
}

}  // namespace editor
