// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/lienzo/Lienzo_ventana.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QWheelEvent>

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
    if (!AlTeclear(evento->key())) QWidget::keyPressEvent(evento);
}

void Lienzo::resizeEvent(QResizeEvent* evento)
{
    if (AlCambiarDeTamano) AlCambiarDeTamano(evento->size());
}

}  // namespace editor
