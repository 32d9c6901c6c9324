// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RotuloProyecto_ventana.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace shell {
namespace {

constexpr double UnidadesPorPixel = 15;
constexpr int Margen = 4;  // [pixels] between frame and text
constexpr int LetrasPorDefecto = 24;
constexpr int LetrasMinimas = 8;
constexpr int Alineado = Qt::AlignLeft | Qt::AlignVCenter;

}  // namespace

RotuloProyecto::RotuloProyecto(int unosRenglones, std::function<bool(double, double)> crece, QWidget* padre)
    : QFrame(padre), renglones(unosRenglones), creceEn(std::move(crece))
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setMouseTracking(static_cast<bool>(creceEn));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RotuloProyecto::PonTexto(const QString& nuevo)
{
    if (texto == nuevo) return;
    texto = nuevo;
    setToolTip(texto);
    setAccessibleDescription(texto);
    update();
}

QSize RotuloProyecto::sizeHint() const
{
    const int orla = 2 * (frameWidth() + Margen);
    return {fontMetrics().averageCharWidth() * LetrasPorDefecto + orla,
            fontMetrics().lineSpacing() * renglones + 2 * frameWidth() + Margen};
}

QSize RotuloProyecto::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * LetrasMinimas, sizeHint().height()};
}

QRect RotuloProyecto::Lugar(const QRect& marco) const
{
    const int orla = frameWidth() + Margen;
    return marco.adjusted(orla, frameWidth(), -orla, -frameWidth());
}

void RotuloProyecto::paintEvent(QPaintEvent* evento)
{
    QFrame::paintEvent(evento);
    QPainter pintor(this);
    pintor.setPen(palette().color(QPalette::Text));
    const QRect lugar = Lugar(rect());
    if (crecido) {
        pintor.drawText(lugar, Alineado | Qt::TextWrapAnywhere, texto);
        return;
    }
    QStringList lineas = texto.split(QLatin1Char('\n'));
    for (QString& linea : lineas)
        linea = fontMetrics().elidedText(linea, Qt::ElideRight, lugar.width());
    pintor.drawText(lugar, Alineado, lineas.join(QLatin1Char('\n')));
}

void RotuloProyecto::mouseMoveEvent(QMouseEvent* evento)
{
    if (!creceEn) return;
    const QPointF lugar = evento->position();
    Crece(creceEn(lugar.x() * UnidadesPorPixel, lugar.y() * UnidadesPorPixel));
}

void RotuloProyecto::leaveEvent(QEvent* evento)
{
    Crece(false);
    QFrame::leaveEvent(evento);
}

void RotuloProyecto::Crece(bool si)
{
    if (si == crecido) return;
    crecido = si;
    if (!si) {
        setGeometry(fijo);
        return;
    }
    fijo = geometry();
    const QRect panel = parentWidget()->rect();
    const int ancho = std::max(fijo.width(), panel.right() - fijo.left());
    const int orla = 2 * (frameWidth() + Margen);
    const QRect texto1 = fontMetrics().boundingRect(QRect(0, 0, ancho - orla, panel.height()),
                                                    Alineado | Qt::TextWrapAnywhere, texto);
    QRect grande(fijo.topLeft(), QSize(std::max(fijo.width(), std::min(ancho, texto1.width() + orla + 1)),
                                       std::max(fijo.height(), texto1.height() + Margen + 2 * frameWidth())));
    if (grande.bottom() > panel.bottom()) grande.moveBottom(std::max(panel.bottom(), grande.height()));
    setGeometry(grande);
    raise();
}

}  // namespace shell
