// SPDX-License-Identifier: GPL-3.0-or-later
#include <qcustomplot.h>

#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "forms/Textos_ventana.h"
#include "report/Figuras_ventana.h"
#include "report/Piezas_ventana.h"

namespace report {
namespace {

constexpr double Interlinea = 1.22;

QTextCharFormat ManeraDe(const Tramo& tramo)
{
    QTextCharFormat manera;
    if (tramo.negrita) manera.setFontWeight(QFont::Bold);
    if (tramo.cursiva) manera.setFontItalic(true);
    if (tramo.altura == Altura::Arriba) manera.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (tramo.altura == Altura::Abajo) manera.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    return manera;
}

}  // namespace

QFont LetraDe(double puntos, bool negrita, bool cursiva)
{
    QFont letra = LetraDePapel();
    letra.setPixelSize(qRound(puntos * Punto));
    letra.setBold(negrita);
    letra.setItalic(cursiva);
    return letra;
}

double Renglon(const QFont& letra)
{
    return QFontMetricsF(letra).height() * Interlinea;
}

int Compuesto::Cuantas() const
{
    return lineas->lineCount();
}

double Compuesto::Ancho() const
{
    double ancho = 0;
    for (int i = 0; i < Cuantas(); ++i)
        ancho = std::max(ancho, lineas->lineAt(i).naturalTextWidth());
    return ancho;
}

void Compuesto::PintaLinea(QCPPainter& pintor, int cual, double x, double y) const
{
    const QFontMetricsF medidas(letra);
    const QTextLine linea = lineas->lineAt(cual);
    const double base = y + (Renglon(letra) - medidas.height()) / 2 + medidas.ascent();
    linea.draw(&pintor, QPointF(x, base - linea.ascent() - linea.y()));
}

void Compuesto::Pinta(QCPPainter& pintor, double x, double y) const
{
    for (int i = 0; i < Cuantas(); ++i)
        PintaLinea(pintor, i, x, y + i * Renglon(letra));
}

Compuesto Compone(const Texto& texto, const QFont& letra, double ancho, Qt::Alignment alineado)
{
    Compuesto c{std::make_shared<QTextLayout>(), letra};
    QString todo;
    QList<QTextLayout::FormatRange> maneras;
    for (const Tramo& tramo : texto) {
        const QString suyo = forms::Q(tramo.texto);
        maneras.append({static_cast<int>(todo.size()), static_cast<int>(suyo.size()), ManeraDe(tramo)});
        todo += suyo;
    }
    QTextOption opciones(alineado);
    opciones.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    opciones.setUseDesignMetrics(true);
    c.lineas->setText(todo.replace(QLatin1Char('\n'), QChar::LineSeparator));
    c.lineas->setFont(letra);
    c.lineas->setTextOption(opciones);
    c.lineas->setFormats(maneras);
    c.lineas->setCacheEnabled(true);
    c.lineas->beginLayout();
    double y = 0;
    for (QTextLine linea = c.lineas->createLine(); linea.isValid(); linea = c.lineas->createLine()) {
        linea.setLineWidth(ancho);
        linea.setPosition({0, y});
        y += linea.height();
    }
    c.lineas->endLayout();
    return c;
}

void AgregaTexto(Piezas& piezas, const Compuesto& texto, const Parte& parte, double ancho)
{
    const int cuantas = texto.Cuantas();
    const double alto = Renglon(texto.letra);
    const Compuesto guion =
        Compone(Llano(parte.guion), texto.letra, std::max(parte.sangria, 1.0), Qt::AlignLeft);
    for (int i = 0; i < cuantas; ++i) {
        Pieza p{.antes = i == 0 ? parte.antes : 0, .alto = alto};
        // The second and the one before the last stand with their neighbours.
        p.conLaSiguiente = cuantas > 1 && (i == 0 || i + 2 == cuantas);
        p.pinta = [texto, parte, ancho, alto, guion, i](QCPPainter& pintor, double y) {
            if (parte.aviso) {
                pintor.fillRect(QRectF(0, y, ancho, alto), QColor(ColorDeAviso));
                pintor.fillRect(QRectF(0, y, Punto * 2, alto), QColor(ColorDeBarra));
            }
            pintor.setPen(QColor(ColorDeTexto));
            if (i == 0 && !parte.guion.empty())
                guion.PintaLinea(pintor, 0, parte.sangria - guion.Ancho() - Punto * 5, y);
            texto.PintaLinea(pintor, i, parte.sangria, y);
        };
        piezas.push_back(std::move(p));
    }
}

}  // namespace report
