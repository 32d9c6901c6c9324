// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Tarjeta_ventana.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <array>

#include "forms/Textos_ventana.h"

namespace shell {

using forms::Q;

namespace {

constexpr int Margen = 6;  // [pixels]
constexpr int CaracteresMinimos = 24, CaracteresComodos = 48;

/// What a mark says to whoever doesn't see it.
constexpr auto DichoDeMarcas = std::to_array<const char*>({"", "hecho", "por repetir", "falta"});

const QColor ColorHecha(0x2e, 0x7d, 0x32), ColorRepetir(0xb2, 0x6a, 0x00);

}  // namespace

Tarjeta::Tarjeta(const QString& nombre, QWidget* padre) : QPushButton(padre)
{
    setObjectName(nombre);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Tarjeta::Pon(const std::string& unTitulo, const std::string& unDetalle, Marca unaMarca, bool habilitada)
{
    titulo = Q(unTitulo).simplified();
    detalle = Q(unDetalle).simplified();
    marca = unaMarca;
    const QString dicho = QString::fromUtf8(DichoDeMarcas.at(static_cast<std::size_t>(marca)));
    setAccessibleName(dicho.isEmpty() ? titulo : titulo + QStringLiteral(", ") + dicho);
    setAccessibleDescription(detalle);
    setToolTip(detalle.isEmpty() ? titulo : titulo + QLatin1Char('\n') + detalle);
    setEnabled(habilitada);
    updateGeometry();
    update();
}

QSize Tarjeta::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * CaracteresComodos,
            2 * fontMetrics().lineSpacing() + 2 * Margen};
}

QSize Tarjeta::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * CaracteresMinimos, sizeHint().height()};
}

void Tarjeta::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    const QPalette& p = palette();
    const bool viva = isEnabled() && (underMouse() || hasFocus());
    // Where the keyboard is stands out from where the pointer is.
    pintor.setPen(QPen(viva ? p.color(QPalette::Highlight) : p.color(QPalette::Mid),
                       hasFocus() && isEnabled() ? 2 : 1));
    pintor.setBrush(isDown() ? p.color(QPalette::Midlight) : p.color(QPalette::Base));
    pintor.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);

    QRect texto = rect().adjusted(Margen, Margen, -Margen, -Margen);
    if (marca != Marca::Ninguna) {
        const int lado = Lado();
        PintaMarca(pintor, QRectF(texto.left(), texto.center().y() - lado / 2.0, lado, lado));
        texto.setLeft(texto.left() + lado + Margen);
    }
    const QPalette::ColorGroup grupo = isEnabled() ? QPalette::Active : QPalette::Disabled;
    QFont negrita = font();
    negrita.setBold(true);
    pintor.setFont(negrita);
    pintor.setPen(p.color(grupo, QPalette::Text));
    const QFontMetrics letra(negrita);
    pintor.drawText(texto, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                    letra.elidedText(titulo, Qt::ElideRight, texto.width()));
    pintor.setFont(font());
    pintor.drawText(texto, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                    fontMetrics().elidedText(detalle, Qt::ElideRight, texto.width()));
}

/// A tick in a full circle, an exclamation in one, an empty circle: told apart without colours too.
void Tarjeta::PintaMarca(QPainter& pintor, const QRectF& lugar) const
{
    const qreal lado = lugar.width(), grosor = lado / 9;
    const QRectF circulo = lugar.adjusted(grosor, grosor, -grosor, -grosor);
    const auto en = [&](qreal x, qreal y) { return lugar.topLeft() + QPointF(x * lado, y * lado); };
    const QColor color = marca == Marca::Hecha     ? ColorHecha
                         : marca == Marca::Repetir ? ColorRepetir
                                                   : palette().color(QPalette::PlaceholderText);
    pintor.setPen(QPen(color, grosor));
    pintor.setBrush(marca == Marca::Falta ? QBrush(Qt::NoBrush) : QBrush(color));
    pintor.drawEllipse(circulo);
    pintor.setPen(QPen(Qt::white, grosor * 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pintor.setBrush(Qt::NoBrush);
    if (marca == Marca::Hecha) pintor.drawPolyline(QPolygonF({en(0.3, 0.52), en(0.45, 0.67), en(0.7, 0.36)}));
    if (marca == Marca::Repetir) {
        pintor.drawLine(en(0.5, 0.28), en(0.5, 0.55));
        pintor.drawPoint(en(0.5, 0.72));
    }
}

void Tarjeta::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) return click();
    QPushButton::keyPressEvent(evento);
}

void Tarjeta::enterEvent(QEnterEvent* evento)
{
    update();
    QPushButton::enterEvent(evento);
}

void Tarjeta::leaveEvent(QEvent* evento)
{
    update();
    QPushButton::leaveEvent(evento);
}

}  // namespace shell
