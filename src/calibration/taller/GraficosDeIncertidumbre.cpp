// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/taller/GraficosDeIncertidumbre.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "model/Numeros.h"

namespace calibration {

forms::Grafico GraficoDeBanda(const Conjunto& c, const std::vector<study::Punto>& observados)
{
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Tiempo [min]";
    g.ejeY = "Caudal [m3/s]";
    g.leyendaVisible = g.muchasLineas = true;
    for (std::size_t i = 0; i < c.caudal.size(); ++i)
        g.abscisas.push_back(static_cast<double>(i) * c.paso);
    const double fin = g.abscisas.empty() ? 0 : g.abscisas.back();
    for (const study::Punto& p : observados)
        if (p.minuto >= 0 && p.minuto <= fin) g.abscisas.push_back(p.minuto);
    std::sort(g.abscisas.begin(), g.abscisas.end());
    g.abscisas.erase(std::unique(g.abscisas.begin(), g.abscisas.end()), g.abscisas.end());
    const auto fila = [&g](double minuto) {
        return static_cast<std::size_t>(std::lower_bound(g.abscisas.begin(), g.abscisas.end(), minuto) -
                                        g.abscisas.begin());
    };
    for (const double x : g.abscisas)
        g.categorias.push_back(model::NumeroATexto(model::Redondea(x, 2)));
    const auto serie = [&](forms::TipoSerie tipo, std::string leyenda) {
        forms::Serie s{.tipo = tipo, .leyenda = std::move(leyenda)};
        s.celdas.assign(g.abscisas.size(), forms::CeldaVacia);
        return s;
    };
    forms::Serie mediana = serie(forms::TipoSerie::Linea2D, "Mediana"),
                 bajo = serie(forms::TipoSerie::Banda2D, ""),
                 alto = serie(forms::TipoSerie::Banda2D, "Banda de 5 a 95 %"),
                 puntos = serie(forms::TipoSerie::Puntos2D, "Observado");
    for (std::size_t i = 0; i < c.caudal.size(); ++i) {
        constexpr std::array<double, 3> Probabilidades{0.05, 0.5, 0.95};
        std::array<double, 3> q{};
        c.caudal[i].Varios(Probabilidades.data(), q.data(), q.size());
        const std::size_t donde = fila(static_cast<double>(i) * c.paso);
        bajo.celdas[donde] = q[0];
        mediana.celdas[donde] = q[1];
        alto.celdas[donde] = q[2];
    }
    bool hay = false;
    for (const study::Punto& p : observados) {
        if (p.minuto < 0 || p.minuto > fin) continue;
        puntos.celdas[fila(p.minuto)] = p.valor;
        hay = true;
    }
    if (hay) g.series.push_back(std::move(puntos));
    g.series.push_back(std::move(mediana));
    g.series.push_back(std::move(bajo));
    g.series.push_back(std::move(alto));
    return g;
}

forms::Grafico GraficoDeMedida(const runs::Cuantiles& d, double base, const std::string& nombre)
{
    constexpr std::size_t Barras = 24, Puntos = 2000;
    constexpr double PorCiento = 100;
    forms::Grafico g;
    g.ejeX = nombre;
    g.magnitudX = "Medio de la parte";
    g.ejeY = "Juegos de cada parte [%]";
    const double desde = d.Minimo(), ancho = (d.Maximo() - desde) / Barras;
    std::vector<double> p(Puntos), q(Puntos);
    for (std::size_t i = 0; i < Puntos; ++i)
        p[i] = (static_cast<double>(i) + 0.5) / Puntos;
    d.Varios(p.data(), q.data(), Puntos);
    forms::Serie serie{.leyenda = "Juegos"};
    serie.celdas.assign(ancho > 0 ? Barras : 1, 0);
    for (const double x : q) {
        const double parte = ancho > 0 ? (x - desde) / ancho : 0;
        serie.celdas[std::min(static_cast<std::size_t>(parte), serie.celdas.size() - 1)] +=
            PorCiento / Puntos;
    }
    for (std::size_t i = 0; i < serie.celdas.size(); ++i) {
        const double medio = base + desde + (static_cast<double>(i) + 0.5) * ancho;
        g.abscisas.push_back(medio);
        g.categorias.push_back(model::NumeroATexto(model::Redondea(medio, 2)));
    }
    g.series.push_back(std::move(serie));
    return g;
}

}  // namespace calibration
