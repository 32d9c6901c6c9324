// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Polilinea_ventana.h"

#include <QLineF>
#include <QList>
#include <QPaintDevice>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>

// A pen with joints makes one outline of a polyline, which is slow to build and slow to fill; single lines
// with flat ends go straight to the pixels. Each is lengthened by what closes the wedge at its joints.
namespace forms {
namespace {

// More vertices than a user draws in one go: the few joints of those that have less may be round.
constexpr qsizetype VerticesDeUnTrazo = 21;
constexpr double LargoNulo = 1e-6;    // vertices at one place give no direction [pixels]
constexpr double SolapeMinimo = 0.5;  // the smoothed ends of two lines in a row would show a seam [pixels]

/// What two lines of these directions must be lengthened by to meet: the tangent of half the turn, half the
/// width of the line long [pixels].
double Alargue(QPointF u, QPointF v, double medioAncho)
{
    const double seno = std::fabs(u.x() * v.y() - u.y() * v.x());
    const double coseno = QPointF::dotProduct(u, v);
    const double tangente = coseno <= 0 ? 1 : seno / (1 + coseno);
    return std::max(SolapeMinimo, tangente * medioAncho);
}

QList<QLineF> Lineas(const QPolygonF& puntos, double medioAncho)
{
    QList<QLineF> lineas;
    lineas.reserve(puntos.size());
    QPointF anterior;
    for (qsizetype i = 1; i < puntos.size(); ++i) {
        const QPointF avance = puntos[i] - puntos[i - 1];
        const double largo = std::hypot(avance.x(), avance.y());
        if (largo < LargoNulo) continue;
        const QPointF direccion = avance / largo;
        QPointF desde = puntos[i - 1];
        if (!lineas.isEmpty()) {
            const double alargue = Alargue(anterior, direccion, medioAncho);
            lineas.last().setP2(lineas.last().p2() + anterior * alargue);
            desde -= direccion * alargue;
        }
        lineas.append({desde, puntos[i]});
        anterior = direccion;
    }
    return lineas;
}

}  // namespace

void PintaPolilinea(QPainter& pintor, const QPolygonF& puntos)
{
    if (puntos.size() == 1)
        pintor.drawPoint(puntos.first());
    else if (puntos.size() > VerticesDeUnTrazo && pintor.device()->devType() == QInternal::Widget)
        PintaLineaDensa(pintor, puntos);
    else
        pintor.drawPolyline(puntos);
}

void PintaLineaDensa(QPainter& pintor, const QPolygonF& puntos)
{
    if (puntos.isEmpty()) return;
    const QPen suya = pintor.pen();
    QPen pluma = suya;
    pluma.setCapStyle(Qt::FlatCap);
    pintor.setPen(pluma);
    pintor.drawLines(Lineas(puntos, suya.widthF() / 2));
    pluma.setCapStyle(Qt::RoundCap);
    pintor.setPen(pluma);
    for (const QPointF extremo : {puntos.first(), puntos.last()})
        pintor.drawPoint(extremo);
    pintor.setPen(suya);
}

}  // namespace forms
