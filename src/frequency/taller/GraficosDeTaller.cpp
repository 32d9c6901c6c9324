// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/GraficosDeTaller.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "frequency/Especiales.h"
#include "model/Numeros.h"

namespace frequency {
namespace {

using forms::TipoSerie;

std::string ConCifras(double x, int cifras)
{
    const int decimales = cifras - 1 - static_cast<int>(std::floor(std::log10(std::fmax(std::abs(x), 1e-9))));
    return model::NumeroATexto(model::Redondea(x, std::clamp(decimales, 0, 6)));
}

/// The recurrence [years] of a place of the paper.
std::string RecurrenciaDe(Ejes ejes, double x)
{
    const double excede = ejes == Ejes::DeGumbel ? -std::expm1(-std::exp(-x)) : NormalProbabilidad(-x);
    constexpr int Cifras = 4;
    return ConCifras(1 / excede, Cifras);
}

/// The recurrences that an axis must name come first.
void PonMarcas(forms::Grafico& g, const std::vector<MarcaDePapel>& marcas)
{
    const auto rango = [](const std::string& rotulo) {
        if (rotulo.find('.') != std::string::npos) return 3;
        if (rotulo.front() == '1') return 0;
        return rotulo.front() == '5' || rotulo == "2" ? 1 : 2;
    };
    for (const MarcaDePapel& m : marcas)
        g.rotulosX.push_back({m.x, m.rotulo});
    std::stable_sort(g.rotulosX.begin(), g.rotulosX.end(),
                     [&](const auto& a, const auto& b) { return rango(a.texto) < rango(b.texto); });
}

/// One side of a closed curve, from vertex to vertex, by x.
std::vector<Punto> Lado(const std::vector<Punto>& cerrada, std::size_t desde, std::size_t hasta)
{
    std::vector<Punto> lado(cerrada.begin() + static_cast<std::ptrdiff_t>(desde),
                            cerrada.begin() + static_cast<std::ptrdiff_t>(hasta) + 1);
    std::stable_sort(lado.begin(), lado.end(), [](const Punto& a, const Punto& b) { return a.x < b.x; });
    return lado;
}

}  // namespace

std::string NombreCorto(const Ley& ley)
{
    std::string nombre(ley.nombre);
    for (const std::string_view sobra : {" de", " parámetros"})
        if (const std::size_t donde = nombre.find(sobra); donde != std::string::npos)
            nombre.erase(donde, sobra.size());
    return nombre;
}

void PonCurvas(forms::Grafico& g, const std::vector<CurvaDeGrafico>& curvas,
               const std::function<std::string(double x)>& categoria)
{
    for (const CurvaDeGrafico& c : curvas)
        for (const Punto& p : c.puntos)
            g.abscisas.push_back(p.x);
    // Equal places of one curve keep a row each, or one point would hide the other.
    std::sort(g.abscisas.begin(), g.abscisas.end());
    std::vector<double> unicas;
    for (const double x : g.abscisas) {
        if (!unicas.empty() && unicas.back() == x) continue;
        std::size_t veces = 1;
        for (const CurvaDeGrafico& c : curvas)
            veces = std::max(
                veces, static_cast<std::size_t>(std::count_if(c.puntos.begin(), c.puntos.end(),
                                                              [x](const Punto& p) { return p.x == x; })));
        unicas.insert(unicas.end(), veces, x);
    }
    g.abscisas = std::move(unicas);
    for (const double x : g.abscisas)
        g.categorias.push_back(categoria(x));
    for (const CurvaDeGrafico& c : curvas) {
        forms::Serie serie{.tipo = c.tipo, .leyenda = c.leyenda};
        serie.celdas.assign(g.abscisas.size(), forms::CeldaVacia);
        for (const Punto& p : c.puntos) {
            auto fila = static_cast<std::size_t>(std::lower_bound(g.abscisas.begin(), g.abscisas.end(), p.x) -
                                                 g.abscisas.begin());
            while (!forms::EstaVacia(serie.celdas[fila]))
                ++fila;
            serie.celdas[fila] = p.y;
        }
        g.series.push_back(std::move(serie));
    }
}

forms::Grafico GraficoDePapel(const Analisis& a, const PedidoDePapel& pedido)
{
    const PapelDeProbabilidad papel = PapelDe(a, pedido.ejes, pedido.posicion);
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Recurrencia [años]";
    g.ejeY = "Lámina [mm]";
    g.ejeYLogaritmico = pedido.ejes == Ejes::DeLogNormal;
    g.leyendaVisible = g.muchasLineas = true;
    std::vector<CurvaDeGrafico> curvas{{TipoSerie::Puntos2D, "Máximos", papel.datos}};
    for (const CurvaDePapel& ley : papel.leyes) {
        const bool enMano = pedido.enMano != nullptr && ley.curva.ley == pedido.enMano->ley;
        if (pedido.sola && !enMano) continue;
        CurvaDeGrafico curva{TipoSerie::Linea2D, NombreCorto(*ley.curva.ley), ley.curva.puntos};
        curvas.insert(enMano ? curvas.begin() + 1 : curvas.end(), std::move(curva));
        if (!enMano || ley.banda5.empty()) continue;
        curvas.push_back({TipoSerie::Banda2D, "", ley.banda5});
        curvas.push_back({TipoSerie::Banda2D, "Banda de 5 a 95 %", ley.banda95});
    }
    // The two lines of the band stay together at the end.
    std::stable_partition(curvas.begin(), curvas.end(),
                          [](const CurvaDeGrafico& c) { return c.tipo != TipoSerie::Banda2D; });
    PonCurvas(g, curvas, [&](double x) { return RecurrenciaDe(pedido.ejes, x); });
    PonMarcas(g, papel.marcas);
    return g;
}

forms::Grafico GraficoDeDiagrama(const Analisis& a, const AjusteDeLey* enMano)
{
    const DiagramaL d = DiagramaDe(a, enMano);
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Asimetría L, t3 [-]";
    g.ejeY = "Curtosis L, t4 [-]";
    g.leyendaVisible = g.muchasLineas = true;
    std::vector<CurvaDeGrafico> curvas{{TipoSerie::Puntos2D, "Muestra", {d.muestra}}};
    for (const Curva& c : d.leyes)
        curvas.push_back(
            {c.puntos.size() == 1 ? TipoSerie::Puntos2D : TipoSerie::Linea2D, NombreCorto(*c.ley), c.puntos});
    if (!d.elipse.empty() && enMano != nullptr) {
        const std::size_t medio = d.elipse.size() / 2;
        curvas.push_back({TipoSerie::Banda2D, "", Lado(d.elipse, medio, d.elipse.size() - 1)});
        curvas.push_back({TipoSerie::Banda2D, "90 % de las muestras de " + NombreCorto(*enMano->ley),
                          Lado(d.elipse, 0, medio)});
    }
    constexpr int Cifras = 4;
    PonCurvas(g, curvas, [](double x) { return ConCifras(x, Cifras); });
    return g;
}

}  // namespace frequency
