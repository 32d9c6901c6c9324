// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/mapa/PintaMapa_ventana.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "forms/ParteDeImagen_ventana.h"
#include "forms/Polilinea_ventana.h"
#include "forms/Textos_ventana.h"

namespace results {

using forms::Pixel;
using model::Clase;

namespace {

constexpr QRgb Hoja = 0xFFFFFFFF, Contorno = 0xFF263238, Tinta = 0xFF202124, Enlace = 0xFF78909C;
constexpr QRgb SinCaudal = 0xFFB0BEC5, Elegido = 0xFFD81B60;
constexpr double BordeDeCauce = 1.2;   // dark edge on each side, so that light colours are seen [pixels]
constexpr double FondoALaVista = 0.5;  // share of the image's colours: those of the flows stand out
constexpr double Velo = 0.8;           // of a label's white ground

QColor ColorDe(double parte)
{
    const ColorDeCaudal c = Color(parte);
    return {c.rojo, c.verde, c.azul};
}

QPointF P(Pixel p)
{
    return {p.x, p.y};
}

QRectF R(const Caja& c)
{
    return {c.x, c.y, c.ancho, c.alto};
}

/// Points nearer than half a pixel to the one before say nothing.
QPolygonF EnPantalla(const ComponenteDelMapa& c, const VistaDeMapa& v)
{
    constexpr double Minimo = 0.5;
    QPolygonF linea;
    for (std::size_t i = 0; i < c.linea.size(); ++i) {
        const QPointF p = P(v.APixel(c.linea[i]));
        const bool extremo = i == 0 || i + 1 == c.linea.size();
        if (extremo || QLineF(linea.last(), p).length() >= Minimo) linea.append(p);
    }
    return linea;
}

/// Circle, triangle or diamond of the same width.
void PintaSimbolo(QPainter& pintor, Clase clase, QPointF centro, double lado)
{
    const double r = lado / 2;
    if (clase == Clase::UEH)
        pintor.drawEllipse(centro, r, r);
    else if (clase == Clase::Represa)
        pintor.drawPolygon(
            QPolygonF({centro + QPointF(0, -r), centro + QPointF(r, r), centro + QPointF(-r, r)}));
    else
        pintor.drawPolygon(QPolygonF({centro + QPointF(0, -r), centro + QPointF(r, 0), centro + QPointF(0, r),
                                      centro + QPointF(-r, 0)}));
}

QSizeF Mide(const QString& texto, const QFontMetricsF& m)
{
    constexpr double Borde = 2;
    double ancho = 0;
    const QStringList renglones = texto.split(QLatin1Char('\n'));
    for (const QString& renglon : renglones)
        ancho = std::max(ancho, m.horizontalAdvance(renglon));
    return {std::ceil(ancho) + 2 * Borde, m.lineSpacing() * static_cast<double>(renglones.size())};
}

void PintaCauce(QPainter& pintor, const QPolygonF& linea, double parte, bool elegido)
{
    const double ancho = AnchoDeCauce(parte);
    const auto traza = [&](const QColor& color, double cuanto) {
        pintor.setPen(QPen(color, cuanto, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pintor.setBrush(Qt::NoBrush);
        forms::PintaPolilinea(pintor, linea);
    };
    if (elegido) traza(QColor(Elegido), ancho + 8);
    traza(QColor(Contorno), ancho + 2 * BordeDeCauce);
    traza(ColorDe(parte), ancho);
}

/// Boxes over a line of a width.
void Cubre(std::vector<Caja>& cajas, const QPolygonF& linea, double ancho)
{
    constexpr double Paso = 8;
    double queda = 0;
    for (qsizetype i = 1; i < linea.size(); ++i) {
        const QLineF tramo(linea[i - 1], linea[i]);
        const double largo = tramo.length();
        for (; queda <= largo && largo > 0; queda += Paso) {
            const QPointF p = tramo.pointAt(queda / largo);
            cajas.push_back({p.x() - ancho / 2, p.y() - ancho / 2, ancho, ancho});
        }
        queda -= largo;
    }
}

/// Width or side at a component's peak [pixels].
double Mayor(const MapaDeCorrida& f, const ComponenteDelMapa& c)
{
    const double parte = f.escala.Parte(c.Pico());
    return c.EsCauce() ? AnchoDeCauce(parte) : LadoDeSimbolo(parte);
}

double AnchoDeLeyenda(const QFont& letra)
{
    return std::ceil(QFontMetricsF(letra).horizontalAdvance(QStringLiteral("Caudal [m3/s]"))) + 24;
}

}  // namespace

// --- what depends on the view ---

Caja PintorDeMapa::MarcoDeRed(QSizeF lienzo, const QFont& letra)
{
    return {0, 0, std::max(1., lienzo.width() - AnchoDeLeyenda(letra)), std::max(1., lienzo.height())};
}

void PintorDeMapa::Prepara(const MapaDeCorrida& f, const VistaDeMapa& v, QSizeF unLienzo,
                           const QFont& suLetra)
{
    constexpr double LargoConFlecha = 24, LadoDeFlecha = 6;
    vista = v;
    lienzo = unLienzo;
    letra = suLetra;
    marco = MarcoDeRed(lienzo, letra);
    lineas.clear();
    flechas.clear();
    for (const ComponenteDelMapa& c : f.red.componentes) {
        lineas.push_back(EnPantalla(c, v));
        if (!c.EsCauce()) continue;
        const auto lugar = [&](int j) { return v.APixel(c.linea[static_cast<std::size_t>(j) - 1]); };
        const auto medio = forms::MedioDe(static_cast<int>(c.linea.size()), lugar, LargoConFlecha);
        if (medio) flechas.push_back({*medio, LadoDeFlecha});
    }
    PreparaRotulos(f);
}

/// All of it as large as it ever gets, so that a label stays where it is while the time goes on.
Estorbos PintorDeMapa::EstorbosDe(const MapaDeCorrida& f) const
{
    Estorbos estorbos;
    for (const Flecha& flecha : flechas)
        estorbos.obstaculos.push_back({flecha.medio.en.x - flecha.lado, flecha.medio.en.y - flecha.lado,
                                       2 * flecha.lado, 2 * flecha.lado});
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const ComponenteDelMapa& c = f.red.componentes[i];
        if (lineas[i].isEmpty()) continue;
        const double lado = Mayor(f, c);
        const QPointF p = lineas[i].first();
        if (c.EsCauce())
            Cubre(estorbos.evitables, lineas[i], lado);
        else
            estorbos.obstaculos.push_back({p.x() - lado / 2, p.y() - lado / 2, lado, lado});
    }
    return estorbos;
}

void PintorDeMapa::PreparaRotulos(const MapaDeCorrida& f)
{
    constexpr double Aparte = 4;
    pedidos.clear();
    textos.clear();
    const QFontMetricsF medidas(letra);
    for (const int i : OrdenDeRotulos(f)) {
        const ComponenteDelMapa& c = f.red.componentes[static_cast<std::size_t>(i)];
        const std::optional<Pixel> centro = CentroDe(c, vista);
        if (!centro || !marco.Encierra({centro->x, centro->y, 0, 0})) continue;
        RotuloPedido pedido{.en = *centro, .aparte = Mayor(f, c) / 2 + Aparte};
        std::vector<QString> suyos;
        for (const std::string& texto : TextosDeRotulo(f, c)) {
            suyos.push_back(forms::Q(texto));
            const QSizeF tamano = Mide(suyos.back(), medidas);
            pedido.tamanos.push_back({0, 0, tamano.width(), tamano.height()});
        }
        if (suyos.empty()) continue;
        pedidos.push_back(std::move(pedido));
        textos.push_back(std::move(suyos));
    }
    puestos = ColocaRotulos(pedidos, marco, EstorbosDe(f));
}

const QString& PintorDeMapa::Texto(const RotuloPuesto& puesto) const
{
    return textos[puesto.pedido][puesto.texto];
}

// --- below the water ---

void PintorDeMapa::PintaFondo(QPainter& pintor, const MapaDeCorrida& f, const FondoDeMapa& fondo) const
{
    pintor.save();
    pintor.setFont(letra);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    pintor.fillRect(QRectF({0, 0}, lienzo), QColor(Hoja));
    pintor.save();
    pintor.setClipRect(R(marco));
    if (f.chkImagen && !fondo.imagen.isNull()) {
        const Pixel esquina = vista.APixel({fondo.marco.X, fondo.marco.Y});
        pintor.setOpacity(FondoALaVista);
        forms::PintaParte(pintor, fondo.imagen,
                          {esquina.x, esquina.y, fondo.marco.ancho * vista.escala,
                           fondo.marco.alto * vista.EscalaVertical()},
                          R(marco));
        pintor.setOpacity(1);
    }
    pintor.setPen(QPen(QColor(Enlace), 1.2, Qt::DashLine));
    for (std::size_t i = 0; i < lineas.size(); ++i)
        if (!f.red.componentes[i].EsCauce() && lineas[i].size() > 1) pintor.drawPolyline(lineas[i]);
    pintor.restore();
    pintor.restore();
}

/// A wedge as wide as the reaches are and as coloured, with its flows beside it; below it the symbols.
void PintorDeMapa::PintaLeyenda(QPainter& pintor, const MapaDeCorrida& f) const
{
    constexpr double Alto = 260, Hueco = 10;
    const QFontMetricsF m(letra);
    const double x = marco.ancho + Hueco, renglon = m.lineSpacing();
    pintor.fillRect(QRectF(marco.ancho, 0, lienzo.width() - marco.ancho, lienzo.height()), QColor(Hoja));
    pintor.setPen(QColor(Enlace));
    pintor.drawLine(QPointF(marco.ancho, 0), QPointF(marco.ancho, lienzo.height()));
    pintor.setPen(QColor(Tinta));
    pintor.drawText(QPointF(x, Hueco + m.ascent()), QStringLiteral("Caudal [m3/s]"));
    const double arriba = Hueco + 2 * renglon;
    const double alto = std::clamp(lienzo.height() - arriba - 6 * renglon, 3 * renglon, Alto);
    const auto altura = [&](double parte) { return arriba + alto * (1 - parte); };
    const double eje = x + AnchoDeCauce(1) / 2;
    QLinearGradient tinte(0, altura(0), 0, altura(1));
    constexpr int Pasos = 20;
    for (int i = 0; i <= Pasos; ++i)
        tinte.setColorAt(double{1} * i / Pasos, ColorDe(double{1} * i / Pasos));
    const double seco = AnchoDeCauce(0) / 2, lleno = AnchoDeCauce(1) / 2;
    pintor.setPen(QPen(QColor(Contorno), 1));
    pintor.setBrush(tinte);
    pintor.drawPolygon(QPolygonF({{eje - seco, altura(0)},
                                  {eje - lleno, altura(1)},
                                  {eje + lleno, altura(1)},
                                  {eje + seco, altura(0)}}));
    double ultimo = 1e9;
    for (const double q : f.escala.Marcas()) {
        const double y = altura(f.escala.Parte(q));
        if (ultimo - y < renglon) continue;
        ultimo = y;
        pintor.setPen(QColor(Contorno));
        pintor.drawLine(QPointF(eje + lleno + 2, y), QPointF(eje + lleno + 6, y));
        pintor.setPen(QColor(Tinta));
        pintor.drawText(QPointF(eje + lleno + 9, y + m.ascent() / 2 - 1),
                        forms::Q(TextoDeCaudal(q)).replace(QLatin1Char('.'), QLatin1Char(f.decimal)));
    }
    PintaClave(pintor, {x, altura(0) + renglon});
}

void PintorDeMapa::PintaClave(QPainter& pintor, QPointF en) const
{
    struct Renglon {
        Clase clase;
        const char* texto;
    };
    constexpr double Lado = 11;
    const QFontMetricsF m(letra);
    double y = en.y() + m.lineSpacing();
    for (const Renglon r :
         {Renglon{Clase::UEH, "UEH"}, Renglon{Clase::Represa, "Represa"}, Renglon{Clase::Lago, "Lago"}}) {
        pintor.setPen(QPen(QColor(Contorno), 1));
        pintor.setBrush(QColor(Hoja));
        PintaSimbolo(pintor, r.clase, {en.x() + Lado / 2, y - m.ascent() / 2 + 1}, Lado);
        pintor.setPen(QColor(Tinta));
        pintor.drawText(QPointF(en.x() + Lado + 8, y), QString::fromUtf8(r.texto));
        y += m.lineSpacing();
    }
}

// --- the water ---

void PintorDeMapa::PintaAgua(QPainter& pintor, const MapaDeCorrida& f) const
{
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const ComponenteDelMapa& c = f.red.componentes[i];
        if (lineas[i].isEmpty()) continue;
        const double parte = ParteDe(f, c);
        const bool elegido = f.elegido == static_cast<int>(i);
        if (c.EsCauce()) {
            PintaCauce(pintor, lineas[i], parte, elegido);
            continue;
        }
        pintor.setPen(QPen(QColor(elegido ? Elegido : Contorno), elegido ? 3 : BordeDeCauce));
        pintor.setBrush(c.Q.empty() ? QColor(SinCaudal) : ColorDe(parte));
        PintaSimbolo(pintor, c.clase, lineas[i].first(), LadoDeSimbolo(parte));
    }
    pintor.restore();
}

// --- above the water ---

void PintorDeMapa::PintaAfuera(QPainter& pintor) const
{
    if (Afuera() == 0) return;
    constexpr double Borde = 4;
    const QString texto = QString::number(Afuera()) + (Afuera() == 1 ? QStringLiteral(" rótulo no cabe")
                                                                     : QStringLiteral(" rótulos no caben"));
    const QFontMetricsF m(letra);
    const QSizeF tamano(m.horizontalAdvance(texto) + 2 * Borde, m.lineSpacing() + Borde);
    const QRectF caja({0, lienzo.height() - tamano.height()}, tamano);
    pintor.fillRect(caja, QColor(Hoja));
    pintor.setPen(QColor(Tinta));
    pintor.drawText(caja, Qt::AlignCenter, texto);
}

void PintorDeMapa::PintaRotulos(QPainter& pintor, const MapaDeCorrida& f) const
{
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(QColor(Contorno), 1));
    pintor.setBrush(QColor(Hoja));
    for (const Flecha& flecha : flechas) {
        const auto& [en, dx, dy] = flecha.medio;
        const auto punto = [&, dx = dx, dy = dy, en = en](double adelante, double alLado) {
            return QPointF(en.x + dx * adelante - dy * alLado, en.y + dy * adelante + dx * alLado);
        };
        const double l = flecha.lado;
        pintor.drawPolygon(
            QPolygonF({punto(l, 0), punto(-l, l * 0.8), punto(-l * 0.4, 0), punto(-l, -l * 0.8)}));
    }
    pintor.setFont(letra);
    QColor velo(Hoja);
    velo.setAlphaF(static_cast<float>(Velo));
    for (const RotuloPuesto& puesto : puestos) {
        pintor.fillRect(R(puesto.caja), velo);
        pintor.setPen(QColor(Tinta));
        pintor.drawText(R(puesto.caja), Qt::AlignCenter, Texto(puesto));
    }
    PintaAfuera(pintor);
    PintaLeyenda(pintor, f);
    pintor.restore();
}

}  // namespace results
