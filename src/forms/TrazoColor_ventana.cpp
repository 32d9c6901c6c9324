// SPDX-License-Identifier: GPL-3.0-or-later
#include <qcustomplot.h>

#include <array>
#include <span>

#include "forms/Trazo_ventana.h"

namespace forms {
namespace {

/// Colours that people who don't see all of them tell apart too (Okabe and Ito, 2008), on paper and on a dark
/// ground, and how the line is dashed, so that none is told by its colour alone.
struct Trama {
    QRgb claro, oscuro;
    Qt::PenStyle trazo;
};
constexpr auto Tramas = std::to_array<Trama>({
    {0xff0072b2, 0xff5db3e6, Qt::SolidLine},
    {0xffd55e00, 0xffff9a4d, Qt::DashLine},
    {0xff009e73, 0xff3fd0a4, Qt::DashDotLine},
    {0xffb0508a, 0xffe59ac6, Qt::SolidLine},
    {0xffb27a00, 0xfff2c14e, Qt::DashLine},
    {0xff4b6478, 0xffa9bccb, Qt::DashDotLine},
    {0xff7a3fb0, 0xffc29bf0, Qt::DotLine},
});
/// Twelve of three depths of grey over four dashes: two that are dashed alike differ by a sixth of the way
/// from black to white.
constexpr auto Doce = std::to_array<Trama>({
    {0xff08306b, 0xffc6dbef, Qt::SolidLine},
    {0xffd7301f, 0xfffb8a6a, Qt::DashLine},
    {0xff74c476, 0xff3c8f4a, Qt::DotLine},
    {0xff4a1486, 0xffe0cff5, Qt::DashDotLine},
    {0xff238b45, 0xff72c283, Qt::SolidLine},
    {0xff6baed6, 0xff3f7fb5, Qt::DashLine},
    {0xff7f0000, 0xffffd0c8, Qt::DotLine},
    {0xffb35c00, 0xffe0a050, Qt::DashDotLine},
    {0xfffd9a44, 0xffb06a28, Qt::SolidLine},
    {0xff00441b, 0xffc9efc9, Qt::DashLine},
    {0xff2171b5, 0xff79b4e6, Qt::DotLine},
    {0xffe78ac3, 0xffa8588c, Qt::DashDotLine},
});

std::span<const Trama> TramasDe(const Grafico& grafico)
{
    if (grafico.muchasLineas) return Doce;
    return Tramas;
}

/// The colours come round again for further lines, dashed otherwise, their dots of another shape.
Qt::PenStyle TrazoDeVuelta(Qt::PenStyle trazo)
{
    switch (trazo) {
    case Qt::SolidLine:
        return Qt::DashDotDotLine;
    case Qt::DashLine:
        return Qt::DotLine;
    case Qt::DashDotLine:
        return Qt::SolidLine;
    default:
        return Qt::DashLine;
    }
}

constexpr Trama Lluvia = {0xff4a90c4, 0xff6fb6e8, Qt::SolidLine};
constexpr int OpacidadDeLluvia = 110;  // of 255

constexpr double Grueso = 2;     // of a line [pixels]
constexpr int PocosPuntos = 40;  // up to so many rows each one has a dot

QColor Mezcla(const QColor& a, const QColor& b, double parteDeB)
{
    return QColor::fromRgbF(static_cast<float>(a.redF() + (b.redF() - a.redF()) * parteDeB),
                            static_cast<float>(a.greenF() + (b.greenF() - a.greenF()) * parteDeB),
                            static_cast<float>(a.blueF() + (b.blueF() - a.blueF()) * parteDeB));
}

Tinta TintaSobre(const QColor& fondo, const QColor& texto)
{
    constexpr double DeLosEjes = 0.45, DeLaGrilla = 0.12;
    return {fondo, texto, Mezcla(fondo, texto, DeLosEjes), Mezcla(fondo, texto, DeLaGrilla),
            fondo.lightness() < texto.lightness()};
}

}  // namespace

Tinta TintaDe(const QPalette& colores)
{
    return TintaSobre(colores.color(QPalette::Base), colores.color(QPalette::Text));
}

Tinta TintaDePapel()
{
    return TintaSobre(Qt::white, QColor(0x20, 0x20, 0x20));
}

void Trazo::PonTinta(const Tinta& nueva)
{
    tinta = nueva;
    Colorea();
}

void Trazo::PonLetra(const QFont& base)
{
    constexpr double Reducida = 0.85, DelTitulo = 1.15;
    // In pixels: the same letters on the screen, in a file and on paper.
    letra = base;
    const double alto = QFontInfo(base).pixelSize() * (compacto ? Reducida : 1);
    letra.setPixelSize(qRound(alto));
    QFont chica = letra, fuerte = letra;
    chica.setPixelSize(qRound(alto * (compacto ? 1 : 0.92)));
    fuerte.setPixelSize(qRound(alto * DelTitulo));
    fuerte.setBold(true);
    for (QCPAxis* const eje : {plano.xAxis, plano.yAxis, plano.yAxis2}) {
        eje->setTickLabelFont(chica);
        eje->setLabelFont(letra);
    }
    plano.legend->setFont(letra);
    tituloLeyenda->setFont(letra);
    titulo->setFont(fuerte);
    nota->setFont(chica);
    lectura->setFont(letra);
    Colorea();
}

void Trazo::Colorea()
{
    plano.setBackground(QBrush(tinta.fondo));
    for (QCPAxis* const eje : {plano.xAxis, plano.yAxis, plano.xAxis2, plano.yAxis2})
        ColoreaEje(*eje);
    plano.xAxis->setTickLengthIn(0);
    const bool marcas = grafico.marcasEjeX || grafico.escala.marcaDeRotulo;
    constexpr int LargoDeMarca = 5, LargoDeSubmarca = 3;
    plano.xAxis->setTickLength(0, marcas ? LargoDeMarca : 0);
    plano.xAxis->setSubTickLength(0, grafico.marcasEjeX ? LargoDeSubmarca : 0);
    plano.legend->setTextColor(tinta.texto);
    tituloLeyenda->setTextColor(tinta.texto);
    titulo->setTextColor(tinta.texto);
    nota->setTextColor(tinta.texto);
    hilo->setPen(QPen(tinta.ejes, 1, Qt::DashLine));
    constexpr int Opacidad = 235;
    QColor papel = tinta.fondo;
    papel.setAlpha(Opacidad);
    lectura->setBrush(papel);
    lectura->setPen(QPen(tinta.ejes));
    lectura->setColor(tinta.texto);
    ColoreaSeries();
}

void Trazo::ColoreaEje(QCPAxis& eje) const
{
    constexpr int LargoDeMarca = 5;
    const QPen pluma(tinta.ejes, 1);
    eje.setBasePen(pluma);
    eje.setTickPen(pluma);
    eje.setSubTickPen(pluma);
    eje.setTickLength(0, LargoDeMarca);
    eje.setSubTicks(&eje == plano.xAxis);
    eje.setTickLabelColor(tinta.texto);
    eje.setLabelColor(tinta.texto);
    eje.setLabelPadding(compacto ? 2 : 6);
    eje.grid()->setPen(QPen(tinta.grilla, 1));
    eje.grid()->setZeroLinePen(Qt::NoPen);
    eje.grid()->setSubGridVisible(false);
}

namespace {

/// Dots of the curves by the round of colours that they are in; empty ones have the ground's colour inside.
struct Punto {
    QCPScatterStyle::ScatterShape forma;
    double tamano;  ///< [pixels]
    bool lleno;
};
constexpr auto Puntos = std::to_array<Punto>({
    {QCPScatterStyle::ssDisc, 5, true},
    {QCPScatterStyle::ssTriangle, 9, false},
    {QCPScatterStyle::ssDiamond, 9, true},
    {QCPScatterStyle::ssSquare, 7, false},
});

QCPScatterStyle PuntoDeCurva(const QColor& color, const QColor& fondo, std::size_t vuelta)
{
    const Punto& punto = Puntos[vuelta % Puntos.size()];
    return {punto.forma, color, punto.lleno ? color : fondo, punto.tamano};
}

}  // namespace

void Trazo::ColoreaSeries()
{
    const std::span<const Trama> tramas = TramasDe(grafico);
    std::size_t nroLinea = 0, nroPuntos = 0, nroBarras = 0;
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        QCPGraph& linea = *lineas[i];
        const bool escalon = EscalonEn(i);
        const TipoSerie tipo = grafico.series[i].tipo;
        if (tipo == TipoSerie::Banda2D) {
            ColoreaBanda(i);
            continue;
        }
        if (tipo == TipoSerie::Barra2D || tipo == TipoSerie::Tramos2D) {
            ColoreaBarra(i, nroBarras++);
            continue;
        }
        const Trama& trama = escalon ? Lluvia : tramas[nroLinea % tramas.size()];
        const std::size_t vuelta = escalon ? 0 : nroLinea / tramas.size();
        if (!escalon) ++nroLinea;
        const QColor color = QColor::fromRgba(tinta.oscura ? trama.oscuro : trama.claro);
        QPen pluma(color, escalon ? 1 : Grueso, vuelta % 2 == 1 ? TrazoDeVuelta(trama.trazo) : trama.trazo);
        pluma.setCapStyle(Qt::FlatCap);
        pluma.setJoinStyle(escalon ? Qt::MiterJoin : Qt::RoundJoin);
        linea.setPen(pluma);
        QColor relleno = color;
        relleno.setAlpha(OpacidadDeLluvia);
        linea.setBrush(escalon ? QBrush(relleno) : QBrush(Qt::NoBrush));
        const bool pocos = tipo == TipoSerie::Puntos2D || tipo == TipoSerie::PuntosUnidos2D ||
                           (grafico.abscisas.empty() && grafico.categorias.size() <= PocosPuntos);
        const std::size_t forma = tipo == TipoSerie::Puntos2D ? nroPuntos++ : vuelta;
        linea.setScatterStyle(!escalon && pocos ? PuntoDeCurva(color, tinta.fondo, forma)
                                                : QCPScatterStyle());
        puntosLeidos[i]->setPen(QPen(color, Grueso));
        puntosLeidos[i]->setBrush(tinta.fondo);
        constexpr double PuntoLeido = 8;
        puntosLeidos[i]->setSize(PuntoLeido);
    }
    ColoreaMarcas();
}

/// The upper line of a band fills the room down to the lower one ahead of it.
void Trazo::ColoreaBanda(std::size_t serie)
{
    constexpr int Opacidad = 40;  // of 255
    QColor relleno = tinta.ejes;
    relleno.setAlpha(Opacidad);
    const bool arriba = serie > 0 && grafico.series[serie - 1].tipo == TipoSerie::Banda2D;
    lineas[serie]->setPen(QPen(tinta.ejes, 1, Qt::DotLine));
    lineas[serie]->setBrush(arriba ? QBrush(relleno) : QBrush(Qt::NoBrush));
    lineas[serie]->setChannelFillGraph(arriba ? lineas[serie - 1] : nullptr);
    puntosLeidos[serie]->setPen(QPen(tinta.ejes));
    puntosLeidos[serie]->setBrush(tinta.fondo);
}

/// The second bar of a pair is paler than the first, so that grey tells them apart too; an interval over them
/// has the ink of texts, and a mark at either end.
void Trazo::ColoreaBarra(std::size_t serie, std::size_t cual)
{
    constexpr double Ancho = 14, Palidez = 0.62, Marca = 7;
    QCPGraph& barra = *lineas[serie];
    const bool intervalo = grafico.series[serie].tipo == TipoSerie::Tramos2D;
    const Trama& trama = Tramas[cual % 2];
    QColor color = QColor::fromRgba(tinta.oscura ? trama.oscuro : trama.claro);
    if (cual % 2 == 1) color = Mezcla(color, tinta.fondo, Palidez);
    QPen pluma(intervalo ? tinta.texto : color, intervalo ? 1 : Ancho);
    pluma.setCapStyle(Qt::FlatCap);
    barra.setPen(pluma);
    barra.setBrush(Qt::NoBrush);
    barra.setScatterStyle(intervalo ? QCPScatterStyle(QCPScatterStyle::ssPlus, tinta.texto, Marca)
                                    : QCPScatterStyle());
    puntosLeidos[serie]->setPen(QPen(intervalo ? tinta.texto : color, Grueso));
    puntosLeidos[serie]->setBrush(tinta.fondo);
}

void Trazo::ColoreaMarcas()
{
    for (std::size_t i = 0; i < puntosMarcados.size() && i < grafico.marcas.size(); ++i) {
        constexpr double PuntoMarcado = 9;
        const std::size_t serie = grafico.marcas[i].serie;
        const QColor color = serie < lineas.size() ? lineas[serie]->pen().color() : tinta.texto;
        puntosMarcados[i]->setPen(QPen(color, Grueso));
        puntosMarcados[i]->setBrush(tinta.fondo);
        puntosMarcados[i]->setSize(PuntoMarcado);
        rotulosMarcados[i]->setColor(tinta.texto);
        rotulosMarcados[i]->setFont(plano.xAxis->tickLabelFont());
    }
}

}  // namespace forms
