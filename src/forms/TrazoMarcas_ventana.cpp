// SPDX-License-Identifier: GPL-3.0-or-later
//
// The cells that stand out: a ring each, and a label beside it where there is room.

#include <qcustomplot.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "forms/Textos_ventana.h"
#include "forms/Trazo_ventana.h"

namespace forms {
namespace {

/// Whether a line comes into a rectangle.
bool Entra(const QLineF& linea, const QRectF& sitio)
{
    if (sitio.contains(linea.p1()) || sitio.contains(linea.p2())) return true;
    const std::array<QPointF, 4> esquinas = {sitio.topLeft(), sitio.topRight(), sitio.bottomRight(),
                                             sitio.bottomLeft()};
    for (std::size_t i = 0; i < esquinas.size(); ++i) {
        const QLineF lado(esquinas[i], esquinas[(i + 1) % esquinas.size()]);
        if (linea.intersects(lado, nullptr) == QLineF::BoundedIntersection) return true;
    }
    return false;
}

/// Places around a ring, the best first: beyond it (above, or below where that leaves more room), towards the
/// middle of the chart; then the other side, then beside it.
QList<QRectF> LugaresAlrededor(const QPointF& anillo, const QSizeF& letras, bool debajo, bool aLaIzquierda)
{
    constexpr double Adelante = 4, Encima = 6, Lado = 9;  // from the ring's centre [pixels]
    const double arriba = anillo.y() - Encima - letras.height(), abajo = anillo.y() + Encima;
    const double derecha = anillo.x() + Adelante, izquierda = anillo.x() - Adelante - letras.width();
    QList<QRectF> lugares;
    for (const double y : {debajo ? abajo : arriba, debajo ? arriba : abajo})
        for (const double x : {aLaIzquierda ? izquierda : derecha, anillo.x() - letras.width() / 2,
                               aLaIzquierda ? derecha : izquierda})
            lugares.append({{x, y}, letras});
    for (const double x : {anillo.x() + Lado, anillo.x() - Lado - letras.width()})
        lugares.append({{x, anillo.y() - letras.height() / 2}, letras});
    return lugares;
}

}  // namespace

void Trazo::PonMarcas()
{
    while (puntosMarcados.size() > grafico.marcas.size()) {
        plano.removeItem(puntosMarcados.back());
        plano.removeItem(rotulosMarcados.back());
        puntosMarcados.pop_back();
        rotulosMarcados.pop_back();
    }
    while (puntosMarcados.size() < grafico.marcas.size()) {
        puntosMarcados.push_back(new QCPItemTracer(&plano));
        puntosMarcados.back()->setStyle(QCPItemTracer::tsCircle);
        rotulosMarcados.push_back(new QCPItemText(&plano));
        rotulosMarcados.back()->setPositionAlignment(Qt::AlignTop | Qt::AlignLeft);
        rotulosMarcados.back()->position->setType(QCPItemPosition::ptAbsolute);
    }
    for (std::size_t i = 0; i < grafico.marcas.size(); ++i) {
        const Marca& marca = grafico.marcas[i];
        const bool hay = HayMarca(i);
        puntosMarcados[i]->setVisible(hay);
        rotulosMarcados[i]->setVisible(hay);
        if (!hay) continue;
        puntosMarcados[i]->position->setAxes(plano.xAxis, lineas[marca.serie]->valueAxis());
        puntosMarcados[i]->position->setCoords(Abscisa(marca.serie, marca.fila),
                                               grafico.series[marca.serie].celdas[marca.fila]);
        rotulosMarcados[i]->setText(Q(marca.rotulo));
    }
    ColoreaSeries();
}

bool Trazo::HayMarca(std::size_t cual) const
{
    const Marca& marca = grafico.marcas[cual];
    if (marca.serie >= lineas.size()) return false;
    const std::vector<double>& celdas = grafico.series[marca.serie].celdas;
    return marca.fila < celdas.size() && !EstaVacia(celdas[marca.fila]);
}

QPointF Trazo::LugarDeMarca(std::size_t cual) const
{
    return puntosMarcados[cual]->position->pixelPosition();
}

/// The curves on the surface, piece by piece.
QList<QLineF> Trazo::Curvas() const
{
    QList<QLineF> pedazos;
    for (const QCPGraph* const linea : lineas) {
        if (linea->lineStyle() == QCPGraph::lsNone) continue;
        QPointF antes;
        bool hayAntes = false;
        for (const QCPGraphData& dato : *linea->data()) {
            const QPointF punto = linea->coordsToPixels(dato.key, dato.value);
            if (hayAntes && !std::isnan(dato.value)) pedazos.append({antes, punto});
            antes = punto;
            hayAntes = !std::isnan(dato.value);
        }
    }
    return pedazos;
}

bool Trazo::PisaAnillo(const QRectF& sitio) const
{
    for (std::size_t i = 0; i < puntosMarcados.size() && i < grafico.marcas.size(); ++i) {
        const double radio = puntosMarcados[i]->size() / 2;
        if (HayMarca(i) && sitio.marginsAdded({radio, radio, radio, radio}).contains(LugarDeMarca(i)))
            return true;
    }
    return false;
}

/// From the highest down, each label takes the first place beside its ring that touches no curve, no ring and
/// no label; one without such a place goes. The rings stay.
void Trazo::AcomodaMarcas()
{
    constexpr double AireDeCurva = 4;  // half a curve, or a dot on it [pixels]
    std::vector<std::size_t> deArribaAbajo;
    for (std::size_t i = 0; i < rotulosMarcados.size() && i < grafico.marcas.size(); ++i)
        if (HayMarca(i)) deArribaAbajo.push_back(i);
    if (deArribaAbajo.empty()) return;
    std::stable_sort(deArribaAbajo.begin(), deArribaAbajo.end(),
                     [&](std::size_t a, std::size_t b) { return LugarDeMarca(a).y() < LugarDeMarca(b).y(); });
    const QList<QLineF> curvas = Curvas();
    const QRectF marco = plano.axisRect()->rect();
    QList<QRectF> puestos;
    const auto libre = [&](const QRectF& sitio) {
        const QRectF conAire = sitio.marginsAdded({AireDeCurva, AireDeCurva, AireDeCurva, AireDeCurva});
        return marco.contains(sitio) && !PisaAnillo(sitio) &&
               std::none_of(puestos.cbegin(), puestos.cend(),
                            [&](const QRectF& otro) { return otro.intersects(sitio); }) &&
               std::none_of(curvas.cbegin(), curvas.cend(),
                            [&](const QLineF& pedazo) { return Entra(pedazo, conAire); });
    };
    for (const std::size_t i : deArribaAbajo) {
        QCPItemText& rotulo = *rotulosMarcados[i];
        const QSizeF letras = QFontMetricsF(rotulo.font()).size(0, rotulo.text());
        const QPointF anillo = LugarDeMarca(i);
        const QList<QRectF> lugares =
            LugaresAlrededor(anillo, letras, grafico.marcas[i].debajo, anillo.x() > marco.center().x());
        const auto elegido = std::find_if(lugares.cbegin(), lugares.cend(), libre);
        rotulo.setVisible(marco.contains(anillo) && elegido != lugares.cend());
        if (!rotulo.visible()) continue;
        rotulo.position->setPixelPosition(elegido->topLeft());
        puestos.append(*elegido);
    }
}

QStringList Trazo::MarcasRotuladas() const
{
    QStringList rotulos;
    for (const QCPItemText* const rotulo : rotulosMarcados)
        if (rotulo->visible()) rotulos.append(rotulo->text());
    return rotulos;
}

QList<QRectF> Trazo::LugaresDeMarcas() const
{
    QList<QRectF> lugares;
    for (const QCPItemText* const rotulo : rotulosMarcados)
        if (rotulo->visible())
            lugares.append(
                {rotulo->position->pixelPosition(), QFontMetricsF(rotulo->font()).size(0, rotulo->text())});
    return lugares;
}

}  // namespace forms
