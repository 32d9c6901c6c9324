// SPDX-License-Identifier: GPL-3.0-or-later
#include "empirical/FormulaDibujada_ventana.h"

#include <QEvent>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "forms/Textos_ventana.h"

namespace empirical {

using forms::Q;

namespace {

constexpr double ParteDeUnExponente = 0.75;  // of the height of the letters
constexpr double ParteQueSeAlza = 0.45;      // of what the letters rise above their line

}  // namespace

FormulaDibujada::FormulaDibujada(std::string_view expresion, QWidget* padre)
    : QWidget(padre), trozos(Trozos(expresion))
{
    setAccessibleName(Q(expresion));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QFont FormulaDibujada::LetraDe(const Trozo& trozo) const
{
    QFont letra = font();
    if (trozo.elevado) letra.setPixelSize(qRound(QFontInfo(letra).pixelSize() * ParteDeUnExponente));
    letra.setItalic(trozo.variable);
    return letra;
}

double FormulaDibujada::Alza() const
{
    return QFontMetricsF(font()).ascent() * ParteQueSeAlza;
}

QSize FormulaDibujada::sizeHint() const
{
    double ancho = 0;
    for (const Trozo& trozo : trozos)
        ancho += QFontMetricsF(LetraDe(trozo)).horizontalAdvance(Q(trozo.texto));
    const QFontMetricsF letra(font()), exponente(LetraDe({{}, true, false}));
    const double sobreLaLinea = std::max(letra.ascent(), Alza() + exponente.ascent());
    constexpr double AireDeCursiva = 2;  // pixels that a slanted letter leans beyond its place
    return {static_cast<int>(std::ceil(ancho + AireDeCursiva)),
            static_cast<int>(std::ceil(sobreLaLinea + letra.descent()))};
}

void FormulaDibujada::changeEvent(QEvent* evento)
{
    QWidget::changeEvent(evento);
    if (evento->type() == QEvent::FontChange) updateGeometry();
}

void FormulaDibujada::paintEvent(QPaintEvent* /*evento*/)
{
    QPainter pintor(this);
    pintor.setPen(palette().color(QPalette::WindowText));
    const double descenso = QFontMetricsF(font()).descent();
    const double linea = (height() + sizeHint().height()) / 2.0 - descenso;
    double x = 0;
    for (const Trozo& trozo : trozos) {
        const QFont letra = LetraDe(trozo);
        pintor.setFont(letra);
        pintor.drawText(QPointF(x, linea - (trozo.elevado ? Alza() : 0)), Q(trozo.texto));
        x += QFontMetricsF(letra).horizontalAdvance(Q(trozo.texto));
    }
}

}  // namespace empirical
