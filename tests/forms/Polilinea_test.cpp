// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "forms/Polilinea_ventana.h"

namespace {

using Pinta = void (*)(QPainter&, const QPolygonF&);

constexpr QRect Hoja{0, 0, 200, 200};

QImage Dibuja(Pinta pinta, const QPolygonF& puntos, double ancho)
{
    QImage hoja(Hoja.size(), QImage::Format_Grayscale8);
    hoja.fill(Qt::white);
    QPainter pintor(&hoja);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(Qt::black, ancho, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    pinta(pintor, puntos);
    EXPECT_EQ(pintor.pen().capStyle(), Qt::RoundCap);
    return hoja;
}

/// Sum of the darkness of a drawing [pixels].
double Tinta(const QImage& hoja)
{
    double suma = 0;
    for (int y = 0; y < hoja.height(); ++y)
        for (int x = 0; x < hoja.width(); ++x)
            suma += (255 - qGray(hoja.pixel(x, y))) / 255.0;
    return suma;
}

/// The same of where two drawings differ.
double Diferencia(const QImage& a, const QImage& b)
{
    double suma = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            suma += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) / 255.0;
    return suma;
}

/// A meander of 100 vertices that turns by up to some 20 degrees at each.
QPolygonF Meandro()
{
    QPolygonF puntos;
    for (int i = 0; i < 100; ++i)
        puntos.append(QPointF(20 + 1.6 * i, 100 + 60 * std::sin(i / 6.0)));
    return puntos;
}

TEST(Polilinea, LaLineaDensaSeVeComoLaDeUnionesRedondas)
{
    for (const double ancho : {2.0, 4.0, 9.0, 16.0}) {
        const QImage redonda =
            Dibuja([](QPainter& p, const QPolygonF& q) { p.drawPolyline(q); }, Meandro(), ancho);
        const QImage densa = Dibuja(forms::PintaLineaDensa, Meandro(), ancho);
        ASSERT_GT(Tinta(redonda), 300 * ancho);
        EXPECT_LT(Diferencia(redonda, densa), 0.03 * Tinta(redonda)) << ancho;
    }
}

TEST(Polilinea, UnaRectaDeMuchosVerticesNoMuestraCosturas)
{
    QPolygonF puntos;
    for (int i = 0; i <= 40; ++i)
        puntos.append(QPointF(20 + 4.1 * i, 50.5 + 2.3 * i));
    const QImage densa = Dibuja(forms::PintaLineaDensa, puntos, 6);
    for (double t = 0; t <= 1; t += 0.002) {
        const QPointF p = puntos.first() + (puntos.last() - puntos.first()) * t;
        ASSERT_LT(qGray(densa.pixel(p.toPoint())), 20) << t;
    }
}

TEST(Polilinea, UnAnguloRectoLlegaHastaSuEsquinaYUnoAgudoQuedaCortado)
{
    const QImage recto = Dibuja(forms::PintaLineaDensa, {{30, 100}, {100, 100}, {100, 170}}, 10);
    EXPECT_LT(qGray(recto.pixel(103, 96)), 20);    // inside the corner at (105, 95)
    EXPECT_GT(qGray(recto.pixel(107, 100)), 235);  // and no farther
    const QImage vuelta = Dibuja(forms::PintaLineaDensa, {{30, 100}, {100, 100}, {30, 101}}, 10);
    EXPECT_GT(qGray(vuelta.pixel(107, 100)), 235);
}

TEST(Polilinea, LosExtremosSonRedondos)
{
    const QImage densa = Dibuja(forms::PintaLineaDensa, {{50, 100}, {150, 100}}, 20);
    EXPECT_LT(qGray(densa.pixel(43, 100)), 20);
    EXPECT_GT(qGray(densa.pixel(41, 91)), 235);  // the corner of a square end
    EXPECT_LT(qGray(densa.pixel(157, 100)), 20);
}

TEST(Polilinea, VerticesEnUnMismoLugarNoEstorban)
{
    const QPolygonF doble{{30, 30}, {30, 30}, {90, 60}, {90, 60}, {90, 60}, {150, 30}};
    const QPolygonF simple{{30, 30}, {90, 60}, {150, 30}};
    EXPECT_EQ(Dibuja(forms::PintaLineaDensa, doble, 8), Dibuja(forms::PintaLineaDensa, simple, 8));
    const QImage punto = Dibuja(forms::PintaLineaDensa, QPolygonF(30, QPointF(100, 100)), 12);
    EXPECT_NEAR(Tinta(punto), M_PI * 36, 6);
    EXPECT_EQ(Tinta(Dibuja(forms::PintaLineaDensa, {}, 12)), 0);
}

TEST(Polilinea, FueraDeUnaPantallaLasUnionesSonDeLaPluma)
{
    const auto entera = [](QPainter& p, const QPolygonF& q) { p.drawPolyline(q); };
    EXPECT_EQ(Dibuja(forms::PintaPolilinea, Meandro(), 9), Dibuja(entera, Meandro(), 9));
    EXPECT_NEAR(Tinta(Dibuja(forms::PintaPolilinea, {{100, 100}}, 12)), M_PI * 36, 6);
}

}  // namespace
