// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/Trazo_ventana.h"

#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/FajaDeLeyenda_ventana.h"
#include "forms/LecturaGrafico.h"
#include "forms/RotulosDeEje_ventana.h"
#include "forms/Textos_ventana.h"

namespace forms {
namespace {

constexpr double Aire = 0.08;           // part of a value axis left free beyond the data
constexpr double AireConMarcas = 0.14;  // the same where a label may stand over the peak
constexpr double LugarDeLluvia = 3.2;   // rain that hangs from the top takes one part in so many
constexpr double SobreElPico = 1.6;     // how far the values' axis goes beyond them, to leave that part free
constexpr double PocasFilas = 30;  // up to so many each row is a point of its own, half a row from the edge

/// Least and greatest of the cells of some series; nothing without any.
struct Extremos {
    double menor = HUGE_VAL, mayor = -HUGE_VAL;
    [[nodiscard]] bool Hay() const { return menor <= mayor; }
    void Agrega(const std::vector<double>& celdas)
    {
        for (const double celda : celdas) {
            if (EstaVacia(celda)) continue;
            menor = std::min(menor, celda);
            mayor = std::max(mayor, celda);
        }
    }
};

Extremos ExtremosDe(const Grafico& grafico, bool secundario)
{
    Extremos e;
    for (const Serie& serie : grafico.series)
        if (serie.ejeSecundario == secundario) e.Agrega(serie.celdas);
    return e;
}

QCPRange Rango(const Trazo::Tramo& tramo)
{
    return {tramo.desde, tramo.hasta};
}

/// A line has a point per row; a step begins one row earlier, and falls to the axis at its end.
QVector<QCPGraphData> DatosDe(const Serie& serie, const std::vector<double>& abscisas)
{
    QVector<QCPGraphData> datos;
    datos.reserve(static_cast<qsizetype>(serie.celdas.size()) + 3);
    if (!abscisas.empty()) {
        for (std::size_t i = 0; i < std::min(serie.celdas.size(), abscisas.size()); ++i)
            if (!EstaVacia(serie.celdas[i]) || serie.tipo == TipoSerie::Tramos2D)
                datos.append({abscisas[i], serie.celdas[i]});
        return datos;
    }
    if (serie.tipo != TipoSerie::Escalon2D) {
        for (std::size_t i = 0; i < serie.celdas.size(); ++i)
            datos.append({static_cast<double>(i + 1), serie.celdas[i]});
        return datos;
    }
    datos.append({0, 0});
    for (std::size_t i = 0; i < serie.celdas.size(); ++i)
        datos.append({static_cast<double>(i), serie.celdas[i]});
    const auto fin = static_cast<double>(serie.celdas.size());
    if (!serie.celdas.empty()) datos.append({fin, serie.celdas.back()});
    datos.append({fin, 0});
    return datos;
}

QCPGraph::LineStyle EstiloDe(TipoSerie tipo)
{
    if (tipo == TipoSerie::Escalon2D) return QCPGraph::lsStepLeft;
    if (tipo == TipoSerie::Barra2D) return QCPGraph::lsImpulse;
    return tipo == TipoSerie::Puntos2D ? QCPGraph::lsNone : QCPGraph::lsLine;
}

}  // namespace

Trazo::Trazo(QCustomPlot& superficie, bool reducido)
    : plano(superficie),
      compacto(reducido),
      titulo(new QCPTextElement(&superficie)),
      nota(new QCPTextElement(&superficie)),
      tituloLeyenda(new QCPTextElement(&superficie)),
      faja(new FajaDeLeyenda(superficie, *tituloLeyenda, reducido)),
      salvedad(new QCPTextElement(&superficie)),
      hilo(new QCPItemStraightLine(&superficie)),
      lectura(new QCPItemText(&superficie))
{
    plano.setLocale(QLocale::c());
    plano.setAntialiasedElements(QCP::aeAll);
    plano.setNotAntialiasedElements(QCP::aeAxes | QCP::aeGrid | QCP::aeZeroLine);
    plano.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    plano.setNoAntialiasingOnDrag(false);
    plano.axisRect()->setRangeDragAxes({plano.xAxis, plano.yAxis, plano.yAxis2}, {});
    plano.axisRect()->setRangeDrag(Qt::Horizontal | Qt::Vertical);
    plano.xAxis2->setVisible(true);
    plano.xAxis2->setTicks(false);
    plano.xAxis2->setTickLabels(false);
    for (QCPAxis* const eje : {plano.yAxis, plano.yAxis2}) {
        eje->setNumberFormat(QStringLiteral("g"));
        constexpr int Cifras = 7;
        eje->setNumberPrecision(Cifras);
    }
    plano.plotLayout()->setRowSpacing(compacto ? 2 : 6);
    constexpr QMargins BordeInferior(0, 0, 0, 5);
    nota->setMargins(BordeInferior);
    salvedad->setMargins(BordeInferior);
    salvedad->setVisible(false);
    constexpr QMargins LugarParaElUltimoRotulo(4, 10, 16, 4);
    plano.axisRect()->setMinimumMargins(LugarParaElUltimoRotulo);
    QObject::connect(&plano, &QCustomPlot::afterLayout, &plano, [this] { AcomodaMarcas(); });

    for (QCPAbstractItem* const item :
         {static_cast<QCPAbstractItem*>(hilo), static_cast<QCPAbstractItem*>(lectura)}) {
        item->setLayer(QStringLiteral("overlay"));
        item->setVisible(false);
        item->setSelectable(false);
    }
    lectura->position->setType(QCPItemPosition::ptAxisRectRatio);
    lectura->setTextAlignment(Qt::AlignLeft);
    constexpr QMargins Orla(7, 5, 7, 5);
    lectura->setPadding(Orla);
    lectura->setClipToAxisRect(false);
    Arma();
}

void Trazo::Pon(const Grafico& nuevo)
{
    const bool alike = MismaEstructura(grafico, nuevo);
    const bool mismasFilas = grafico.categorias.size() == nuevo.categorias.size();
    grafico = nuevo;
    if (!alike) Arma();
    PonDatos();
    PonEscalas();
    if (!acercado || !mismasFilas || !alike) VeTodo();
    PonMarcas();
    if (leida && *leida < grafico.categorias.size())
        Lee(*leida);
    else
        DejaDeLeer();
}

// --- structure ---

void Trazo::Arma()
{
    ArmaFilas();
    ArmaSeries();
    plano.xAxis->setLabel(Q(grafico.ejeX));
    plano.yAxis->setLabel(Q(grafico.ejeY));
    const bool haySecundario = std::any_of(grafico.series.begin(), grafico.series.end(),
                                           [](const Serie& s) { return s.ejeSecundario; });
    plano.yAxis2->setVisible(true);
    plano.yAxis2->setTicks(haySecundario);
    plano.yAxis2->setTickLabels(haySecundario);
    plano.yAxis2->setLabel(haySecundario ? Q(grafico.ejeYSecundario) : QString());
    plano.yAxis2->setRangeReversed(HayColgada());
    RotulaCategorias(*plano.xAxis, grafico);
    plano.yAxis->setScaleType(grafico.ejeYLogaritmico ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
    if (grafico.ejeYLogaritmico)
        RotulaLogaritmos(*plano.yAxis);
    else
        RotulaValores(*plano.yAxis);
    Colorea();
}

void Trazo::ArmaSeries()
{
    plano.clearGraphs();
    lineas.clear();
    for (QCPItemTracer* const punto : puntosLeidos)
        plano.removeItem(punto);
    puntosLeidos.clear();
    for (const Serie& serie : grafico.series) {
        QCPGraph* const linea = plano.addGraph(plano.xAxis, serie.ejeSecundario ? plano.yAxis2 : plano.yAxis);
        linea->setName(Q(serie.leyenda));
        if (serie.leyenda.empty()) linea->removeFromLegend();
        linea->setLineStyle(EstiloDe(serie.tipo));
        linea->setSelectable(QCP::stNone);
        lineas.push_back(linea);
        auto* const punto = new QCPItemTracer(&plano);
        punto->setLayer(QStringLiteral("overlay"));
        punto->setStyle(QCPItemTracer::tsCircle);
        punto->setSelectable(false);
        punto->setVisible(false);
        punto->position->setAxes(linea->keyAxis(), linea->valueAxis());
        puntosLeidos.push_back(punto);
    }
}

double Trazo::LugarDeFila(std::size_t fila) const
{
    return fila < grafico.abscisas.size() ? grafico.abscisas[fila] : static_cast<double>(fila) + 1;
}

bool Trazo::EscalonEn(std::size_t serie) const
{
    return grafico.series[serie].tipo == TipoSerie::Escalon2D;
}

double Trazo::Abscisa(std::size_t serie, std::size_t fila) const
{
    constexpr double MediaFila = 0.5;
    return LugarDeFila(fila) - (EscalonEn(serie) ? MediaFila : 0);
}

bool Trazo::HayColgada() const
{
    return std::any_of(grafico.series.begin(), grafico.series.end(),
                       [this](const Serie& s) { return CuelgaDeArriba(grafico, s); });
}

// --- data ---

void Trazo::PonDatos()
{
    for (std::size_t i = 0; i < lineas.size(); ++i)
        lineas[i]->data()->set(DatosDe(grafico.series[i], grafico.abscisas), true);
}

// --- scales ---

Trazo::Tramo Trazo::TodasLasFilas() const
{
    if (!grafico.abscisas.empty()) {
        constexpr double Orilla = 0.03;
        const double aire = Orilla * (grafico.abscisas.back() - grafico.abscisas.front());
        const double lado = aire > 0 ? aire : 1;
        return {grafico.abscisas.front() - lado, grafico.abscisas.back() + lado};
    }
    const auto filas = static_cast<double>(std::max<std::size_t>(1, grafico.categorias.size()));
    const bool hayEscalon = std::any_of(grafico.series.begin(), grafico.series.end(),
                                        [](const Serie& s) { return s.tipo == TipoSerie::Escalon2D; });
    constexpr double MediaFila = 0.5;
    if (hayEscalon) return {0, filas};
    if (filas <= PocasFilas) return {MediaFila, filas + MediaFila};
    return {1, filas};
}

void Trazo::PonEscalas()
{
    todo = TodasLasFilas();
    Extremos e = ExtremosDe(grafico, false);
    if (!e.Hay()) e = {0, 1};
    const double base = std::min(0.0, e.menor);
    const double alto = e.mayor > base ? e.mayor - base : 1;
    const double aireArriba = grafico.marcas.empty() ? Aire : AireConMarcas;
    todoY = {base < 0 ? base - Aire * alto : 0, base + alto * (HayColgada() ? SobreElPico : 1 + aireArriba)};
    if (grafico.ejeYLogaritmico && e.menor > 0) {
        const double aire = std::pow(std::max(e.mayor / e.menor, 2.0), Aire);
        todoY = {e.menor / aire, e.mayor * aire};
    }
    PonEscalaSecundaria();
}

void Trazo::PonEscalaSecundaria()
{
    Extremos e = ExtremosDe(grafico, true);
    if (!e.Hay()) {
        todoYSecundario = todoY;
        return;
    }
    if (HayColgada()) {
        const double alto = e.mayor > 0 ? e.mayor : 1;
        todoYSecundario = {0, alto * LugarDeLluvia};
        RotulaHasta(*plano.yAxis2, alto);
        return;
    }
    // A level that hardly moves must not look as if it did.
    constexpr double LoMenos = 0.1;
    const double aire = std::max(Aire * (e.mayor - e.menor), LoMenos / 2);
    todoYSecundario = {e.menor - aire, e.mayor + aire};
    RotulaValores(*plano.yAxis2);
}

// --- what is in sight ---

Trazo::Tramo Trazo::EnVista() const
{
    return {plano.xAxis->range().lower, plano.xAxis->range().upper};
}

QStringList Trazo::RotulosEnVista() const
{
    QStringList rotulos;
    for (const QString& rotulo : plano.xAxis->tickVectorLabels())
        rotulos.append(rotulo);
    return rotulos;
}

void Trazo::VeTodo()
{
    acercado = false;
    plano.xAxis->setRange(Rango(todo));
    plano.yAxis->setRange(Rango(todoY));
    plano.yAxis2->setRange(Rango(todoYSecundario));
}

void Trazo::Acerca(double veces, double centro)
{
    plano.xAxis->scaleRange(1 / veces, centro);
    Acota();
}

void Trazo::Acota()
{
    constexpr double LoMenosEnVista = 2;  // rows
    const auto acota = [](QCPAxis& eje, const Tramo& limites, double minimo) {
        QCPRange tramo = eje.range();
        if (tramo.size() < minimo) {
            const double centro = tramo.center();
            tramo = {centro - minimo / 2, centro + minimo / 2};
        }
        eje.setRange(tramo.bounded(limites.desde, limites.hasta));
    };
    constexpr double Centesima = 0.01;
    const double minimo = grafico.abscisas.empty() ? LoMenosEnVista : Centesima * (todo.hasta - todo.desde);
    acota(*plano.xAxis, todo, std::min(minimo, todo.hasta - todo.desde));
    acota(*plano.yAxis, todoY, Centesima * (todoY.hasta - todoY.desde));
    acota(*plano.yAxis2, todoYSecundario, Centesima * (todoYSecundario.hasta - todoYSecundario.desde));
    acercado = EnVista() != todo || plano.yAxis->range() != Rango(todoY) ||
               plano.yAxis2->range() != Rango(todoYSecundario);
}

// --- reading ---

std::optional<std::size_t> Trazo::FilaEn(const QPoint& punto) const
{
    if (grafico.categorias.empty() || !plano.axisRect()->rect().contains(punto)) return {};
    const double x = plano.xAxis->pixelToCoord(punto.x());
    if (!grafico.abscisas.empty()) {
        const auto cerca =
            std::min_element(grafico.abscisas.begin(), grafico.abscisas.end(),
                             [x](double a, double b) { return std::abs(a - x) < std::abs(b - x); });
        return static_cast<std::size_t>(cerca - grafico.abscisas.begin());
    }
    const bool soloEscalones = std::all_of(grafico.series.begin(), grafico.series.end(),
                                           [](const Serie& s) { return s.tipo == TipoSerie::Escalon2D; });
    const double fila = soloEscalones ? std::floor(x) : std::round(x) - 1;
    return static_cast<std::size_t>(
        std::clamp(fila, 0.0, static_cast<double>(grafico.categorias.size() - 1)));
}

void Trazo::Lee(std::size_t fila)
{
    leida = fila;
    const double x = grafico.series.empty() ? LugarDeFila(fila) : Abscisa(0, fila);
    hilo->point1->setCoords(x, todoY.desde);
    hilo->point2->setCoords(x, todoY.hasta);
    hilo->setVisible(true);
    for (std::size_t i = 0; i < puntosLeidos.size(); ++i) {
        const std::vector<double>& celdas = grafico.series[i].celdas;
        const bool hay = fila < celdas.size() && !EstaVacia(celdas[fila]);
        puntosLeidos[i]->setVisible(hay && !EscalonEn(i));
        if (hay) puntosLeidos[i]->position->setCoords(Abscisa(i, fila), celdas[fila]);
    }
    const QCPRange tramo = plano.xAxis->range();
    const double parte = (x - tramo.lower) / tramo.size();
    constexpr double Mitad = 0.5, Hueco = 0.015, Alto = 0.03;
    lectura->setPositionAlignment(Qt::AlignTop | (parte > Mitad ? Qt::AlignRight : Qt::AlignLeft));
    lectura->position->setCoords(parte + (parte > Mitad ? -Hueco : Hueco), Alto);
    lectura->setText(Q(LecturaDeFila(grafico, fila)));
    lectura->setVisible(true);
}

void Trazo::DejaDeLeer()
{
    leida.reset();
    hilo->setVisible(false);
    lectura->setVisible(false);
    for (QCPItemTracer* const punto : puntosLeidos)
        punto->setVisible(false);
}

}  // namespace forms
