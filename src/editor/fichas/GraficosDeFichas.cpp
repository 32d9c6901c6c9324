// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/fichas/GraficosDeFichas.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "model/Numeros.h"

namespace editor {

namespace {

constexpr int MaximoTramos = 80;
constexpr double Holgura = 1e-6;  // part of a step by which a round number may miss an end

std::string Texto(double x)
{
    return model::NumeroATexto(static_cast<float>(x));
}

forms::Grafico Vacio(std::string_view ejeX, std::string_view ejeY)
{
    forms::Grafico grafico{
        .tipo = forms::TipoGrafico::Linea, .ejeX = std::string(ejeX), .ejeY = std::string(ejeY)};
    grafico.series.push_back({.tipo = forms::TipoSerie::Linea2D});
    return grafico;
}

void Agrega(forms::Grafico& grafico, PuntoCurva p)
{
    grafico.categorias.push_back(Texto(p.x));
    grafico.series.front().celdas.push_back(p.y);
}

bool CabeEnSimple(double x)
{
    return std::abs(x) <= double{std::numeric_limits<float>::max()};
}

std::vector<PuntoCurva> Crecientes(const std::vector<PuntoCurva>& puntos)
{
    std::vector<PuntoCurva> crecientes;
    for (const PuntoCurva p : puntos)
        if (CabeEnSimple(p.x) && CabeEnSimple(p.y) && (crecientes.empty() || p.x > crecientes.back().x))
            crecientes.push_back(p);
    return crecientes;
}

/// Width of the steps, so that the scale reads 100, 100.5, 101: the least of 1, 2, 2.5 and 5 times a power of
/// ten that takes no more than `MaximoTramos` over a length.
double PasoRedondo(double largo)
{
    const double minimo = largo / MaximoTramos;
    const double decena = std::pow(10.0, std::floor(std::log10(minimo)));
    for (const double veces : {1.0, 2.0, 2.5, 5.0})
        if (veces * decena >= minimo) return veces * decena;
    return 10 * decena;
}

/// The curve at x; `tramo` is the point at or before it, from a search that goes on from the last one.
double ValorEn(const std::vector<PuntoCurva>& puntos, double x, std::size_t& tramo)
{
    while (tramo + 2 < puntos.size() && puntos[tramo + 1].x <= x)
        ++tramo;
    const PuntoCurva a = puntos[tramo], b = puntos[tramo + 1];
    return a.y + (b.y - a.y) * ((x - a.x) / (b.x - a.x));
}

/// Adds the curve at the round numbers from its first point to its last one.
void Muestrea(forms::Grafico& grafico, const std::vector<PuntoCurva>& puntos)
{
    const double desde = puntos.front().x, hasta = puntos.back().x;
    const double paso = PasoRedondo(hasta - desde);
    const double primero = std::ceil(desde / paso - Holgura), ultimo = std::floor(hasta / paso + Holgura);
    if (std::abs(primero) < std::numeric_limits<std::int32_t>::max())
        grafico.escala.primeraFila = static_cast<std::int32_t>(primero);
    std::size_t tramo = 0;
    for (double i = primero; i <= ultimo; ++i) {
        const double x = std::clamp(i * paso, desde, hasta);
        Agrega(grafico, {i * paso, ValorEn(puntos, x, tramo)});
    }
}

/// Marks the row that is nearest to an abscissa, on a growing curve.
void Marca(forms::Grafico& grafico, double x, std::string rotulo)
{
    std::size_t mejor = 0;
    const auto lejania = [&](std::size_t fila) { return std::abs(model::Val(grafico.categorias[fila]) - x); };
    for (std::size_t fila = 1; fila < grafico.categorias.size(); ++fila)
        if (lejania(fila) < lejania(mejor)) mejor = fila;
    grafico.marcas.push_back({.serie = 0, .fila = mejor, .rotulo = std::move(rotulo), .debajo = true});
}

}  // namespace

forms::Grafico GraficoDe(const std::optional<CurvaInfiltracion>& curva)
{
    forms::Grafico grafico = Vacio("t [min]", "I [mm]");
    if (!curva) return grafico;
    std::vector<PuntoCurva> puntos;
    for (std::size_t i = 0; i < curva->t.size(); ++i)
        puntos.push_back({curva->t[i], curva->I[i]});
    Muestrea(grafico, puntos);
    if (curva->tInicial > 0) Marca(grafico, curva->tInicial, "T inicial");
    return grafico;
}

forms::Grafico GraficoDe(const CurvaTabla& curva)
{
    forms::Grafico grafico = Vacio(curva.ejeX, curva.ejeY);
    const std::vector<PuntoCurva> puntos = Crecientes(curva.puntos);
    if (puntos.size() == 1) Agrega(grafico, puntos.front());
    if (puntos.size() > 1) Muestrea(grafico, puntos);
    return grafico;
}

}  // namespace editor
