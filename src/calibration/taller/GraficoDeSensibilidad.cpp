// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/GraficoDeSensibilidad.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace calibration {
namespace {

using forms::CeldaVacia;
using forms::TipoSerie;

constexpr double Lado = 0.12;  // of a bar of a pair from the middle of its parameter

std::string ConUnidad(const std::string& que, const std::string& unidad)
{
    return unidad == "-" ? que : que + " [" + unidad + "]";
}

/// Rows on an axis of numbers, a place and a category each, empty at first.
class Filas {
  public:
    explicit Filas(forms::Grafico& unGrafico) : g(unGrafico) {}
    void Agrega(double lugar, const std::string& categoria)
    {
        g.abscisas.push_back(lugar);
        g.categorias.push_back(categoria);
        for (forms::Serie& serie : g.series)
            serie.celdas.push_back(CeldaVacia);
    }
    void Pon(std::size_t serie, double valor) { g.series[serie].celdas.back() = valor; }

  private:
    forms::Grafico& g;
};

/// Two bars of a parameter beside one another, with the interval of each.
struct Par {
    double primera = CeldaVacia, segunda = CeldaVacia;
    std::vector<double> intervalos{};  ///< from, to of the first, of the second; none: bars alone
};

template <typename DaPar>
void PonPares(forms::Grafico& g, const AnalisisDeSensibilidad& a, DaPar daPar)
{
    constexpr double Medio = 0.5;
    Filas filas(g);
    filas.Agrega(Medio, "");
    double numero = 0;
    for (const std::size_t i : PorImportancia(*MetodoDeSensibilidadDe(a.pedido.metodo), a.filas)) {
        ++numero;
        const Par par = daPar(a.filas[i]);
        for (const std::size_t cual : {0U, 1U}) {
            const double lugar = numero + (cual == 0 ? -Lado : Lado);
            filas.Agrega(lugar, a.parametros[i]);
            filas.Pon(cual, cual == 0 ? par.primera : par.segunda);
            if (par.intervalos.empty()) continue;
            filas.Pon(2, par.intervalos[2 * cual]);
            filas.Agrega(lugar, a.parametros[i]);
            filas.Pon(2, par.intervalos[2 * cual + 1]);
            filas.Agrega(lugar, a.parametros[i]);
        }
        g.rotulosX.push_back({numero, std::to_string(static_cast<int>(numero))});
    }
    filas.Agrega(numero + Medio, "");
    g.ejeX = "Parámetro, por su número en la tabla";
}

forms::Grafico Tornado(const AnalisisDeSensibilidad& a)
{
    forms::Grafico g;
    g.series = {{TipoSerie::Barra2D, "En su mínimo", false, {}},
                {TipoSerie::Barra2D, "En su máximo", false, {}}};
    const double hoy = a.actual.value_or(0);
    PonPares(g, a, [hoy](const std::vector<double>& fila) { return Par{fila[0] - hoy, fila[1] - hoy, {}}; });
    g.ejeY = ConUnidad(a.actual ? "Cambio" : "Valor", a.medida.unidad);
    return g;
}

forms::Grafico Sobol(const AnalisisDeSensibilidad& a)
{
    forms::Grafico g;
    g.series = {{TipoSerie::Barra2D, "Primer orden", false, {}},
                {TipoSerie::Barra2D, "Total", false, {}},
                {TipoSerie::Tramos2D, "Intervalo del 95 %", false, {}}};
    PonPares(g, a, [](const std::vector<double>& fila) {
        return Par{fila[0], fila[3], {fila[1], fila[2], fila[4], fila[5]}};
    });
    g.ejeY = "Parte de la varianza";
    return g;
}

/// Mean against deviation of the effects, with the line on which both are alike.
forms::Grafico Morris(const AnalisisDeSensibilidad& a)
{
    forms::Grafico g;
    g.series = {{TipoSerie::Puntos2D, "Parámetros", false, {}}, {TipoSerie::Linea2D, "σ = μ*", false, {}}};
    std::vector<std::size_t> orden = PorImportancia(*MetodoDeSensibilidadDe(a.pedido.metodo), a.filas);
    Filas filas(g);
    filas.Agrega(0, "");
    filas.Pon(1, 0);
    double mayor = 0;
    for (std::size_t lugar = orden.size(); lugar-- > 0;) {
        const std::vector<double>& fila = a.filas[orden[lugar]];
        if (!std::isfinite(fila[0]) || !std::isfinite(fila[2])) continue;
        filas.Agrega(fila[0], a.parametros[orden[lugar]]);
        filas.Pon(0, fila[2]);
        g.marcas.push_back({0, g.abscisas.size() - 1, std::to_string(lugar + 1), false});
        mayor = std::max(mayor, fila[0]);
    }
    filas.Agrega(mayor, "");
    filas.Pon(1, mayor);
    g.ejeX = ConUnidad("μ*: cuánto importa", a.medida.unidad);
    g.ejeY = ConUnidad("σ: cuánto depende de los demás", a.medida.unidad);
    return g;
}

}  // namespace

forms::Grafico GraficoDe(const AnalisisDeSensibilidad& a)
{
    forms::Grafico g = a.pedido.metodo == "tornado" ? Tornado(a)
                       : a.pedido.metodo == "sobol" ? Sobol(a)
                                                    : Morris(a);
    g.tipo = forms::TipoGrafico::Linea;
    g.leyendaVisible = true;
    return g;
}

}  // namespace calibration
