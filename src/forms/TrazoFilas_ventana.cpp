// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of a chart: what it bears on its way out, title, the chart itself, legend, footnote.

#include <qcustomplot.h>

#include <algorithm>
#include <initializer_list>

#include "forms/FajaDeLeyenda_ventana.h"
#include "forms/Textos_ventana.h"
#include "forms/Trazo_ventana.h"

namespace forms {
namespace {

/// Texts as lines no wider than `ancho` [pixels]: side by side where they fit, parted at blanks where they
/// don't.
QStringList EnRenglones(const QStringList& textos, const QFont& letra, int ancho)
{
    const QFontMetrics medida(letra);
    const auto cabe = [&](const QString& texto) { return medida.horizontalAdvance(texto) <= ancho; };
    QStringList renglones;
    for (QString texto : textos) {
        const QString unidos =
            renglones.isEmpty() ? texto : renglones.constLast() + QStringLiteral("   ") + texto;
        if (!renglones.isEmpty() && cabe(unidos)) {
            renglones.last() = unidos;
            continue;
        }
        while (!cabe(texto)) {
            qsizetype corte = texto.lastIndexOf(QLatin1Char(' '));
            while (corte > 0 && !cabe(texto.left(corte)))
                corte = texto.lastIndexOf(QLatin1Char(' '), corte - 1);
            if (corte <= 0) break;
            renglones.append(texto.left(corte));
            texto = texto.mid(corte + 1);
        }
        renglones.append(texto);
    }
    return renglones;
}

}  // namespace

/// From top to bottom those that there are.
void Trazo::ArmaFilas()
{
    QCPLayoutGrid& filas = *plano.plotLayout();
    QCPAxisRect* const marco = plano.axisRect();
    QCPLegend* const leyenda = plano.legend;
    leyenda->setVisible(grafico.leyendaVisible &&
                        std::any_of(grafico.series.begin(), grafico.series.end(),
                                    [](const Serie& s) { return !s.leyenda.empty(); }));
    tituloLeyenda->setText(Q(grafico.tituloLeyenda));
    titulo->setText(Q(grafico.titulo));
    titulo->setVisible(!compacto && !grafico.titulo.empty());
    nota->setText(Q(grafico.notaAlPie));
    nota->setVisible(!compacto && !grafico.notaAlPie.empty());
    salvedad->setText(Q(grafico.salvedad));
    salvedad->setVisible(!encabezado.empty() && !grafico.salvedad.empty());

    for (QCPLayoutElement* const pieza :
         std::initializer_list<QCPLayoutElement*>{titulo, marco, faja, nota, salvedad})
        if (pieza->layout() != nullptr) pieza->layout()->take(pieza);
    for (QCPTextElement* const renglon : encabezado)
        if (renglon->layout() != nullptr) renglon->layout()->take(renglon);
    filas.simplify();
    int fila = 0;
    const auto agrega = [&](QCPLayoutElement* pieza, double parte) {
        filas.addElement(fila, 0, pieza);
        filas.setRowStretchFactor(fila++, parte);
    };
    constexpr double LoMenos = 0.001;
    for (QCPTextElement* const renglon : encabezado)
        agrega(renglon, LoMenos);
    if (titulo->visible()) agrega(titulo, LoMenos);
    agrega(marco, 1);
    if (leyenda->visible()) agrega(faja, LoMenos);
    if (nota->visible()) agrega(nota, LoMenos);
    if (salvedad->visible()) agrega(salvedad, LoMenos);
}

QList<QRectF> Trazo::LugaresDeLeyenda() const
{
    QList<QRectF> lugares;
    for (const QCPLayoutElement* const entrada : faja->Entradas())
        lugares.append(entrada->outerRect());
    return lugares;
}

int Trazo::PonEncabezado(const QStringList& textos, int ancho)
{
    for (QCPTextElement* const renglon : encabezado)
        plano.plotLayout()->remove(renglon);
    encabezado.clear();
    const auto agrega = [&](const QStringList& renglones, const QFont& con) {
        for (const QString& renglon : EnRenglones(renglones, con, ancho)) {
            encabezado.push_back(new QCPTextElement(&plano, renglon, con));
            encabezado.back()->setTextColor(tinta.texto);
        }
    };
    agrega(textos.mid(0, 1), titulo->font());
    agrega(textos.mid(1), nota->font());
    ArmaFilas();
    salvedad->setFont(nota->font());
    salvedad->setTextColor(tinta.texto);
    salvedad->setText(EnRenglones({Q(grafico.salvedad)}, nota->font(), ancho).join(QLatin1Char('\n')));

    int alto = 0;
    const auto suma = [&](const QCPLayoutElement& pieza) {
        alto += pieza.minimumOuterSizeHint().height() + plano.plotLayout()->rowSpacing();
    };
    for (const QCPTextElement* const renglon : encabezado)
        suma(*renglon);
    if (salvedad->visible()) suma(*salvedad);
    return alto;
}

}  // namespace forms
