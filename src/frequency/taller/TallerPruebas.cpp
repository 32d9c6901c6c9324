// SPDX-License-Identifier: GPL-3.0-or-later
#include "frequency/taller/TallerPruebas.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "frequency/Muestra.h"
#include "frequency/taller/GraficosDeTaller.h"
#include "frequency/taller/TallerMaximos.h"

namespace frequency {
namespace {

std::string Cifras(double x, int decimales)
{
    return TextoDe(x, decimales);
}

bool EsDeAnomalos(const Prueba& p)
{
    return p.clave.starts_with("grubbs");
}

std::vector<std::string> Fila(const Prueba& p)
{
    return {std::string(p.nombre),
            std::string(p.simbolo) + " = " + Cifras(p.estadistico, p.simbolo == "R" ? 1 : 3) +
                (p.simbolo == "R" ? " mm²" : ""),
            Cifras(p.z, 3),
            Cifras(p.p, 4),
            (p.rechaza ? "✗ " : "✓ ") + p.veredicto,
            p.remedio,
            std::string(p.fuente)};
}

double Mediana(std::vector<double> x)
{
    std::sort(x.begin(), x.end());
    const std::size_t n = x.size();
    return n == 0 ? std::nan("") : (x[(n - 1) / 2] + x[n / 2]) / 2;
}

/// The same number in the rows of some years, from one to the other.
forms::Serie Nivel(const std::string& leyenda, std::size_t filas, std::size_t desde, std::size_t hasta,
                   double y)
{
    forms::Serie s{.tipo = forms::TipoSerie::Linea2D, .leyenda = leyenda};
    s.celdas.assign(filas, forms::CeldaVacia);
    for (std::size_t i = desde; i <= hasta && i < filas; ++i)
        s.celdas[i] = y;
    return s;
}

/// Median of the slopes between all pairs of years; the line goes through both medians.
forms::Serie Tendencia(const study::SerieDeMaximos& s, std::size_t filas)
{
    std::vector<double> pendientes, anios, valores;
    for (const study::Maximo& a : s.maximos) {
        anios.push_back(a.anio);
        valores.push_back(a.valor);
        for (const study::Maximo& b : s.maximos)
            if (b.anio > a.anio) pendientes.push_back((b.valor - a.valor) / (b.anio - a.anio));
    }
    const double pendiente = Mediana(pendientes), x = Mediana(anios), y = Mediana(valores);
    forms::Serie linea{.tipo = forms::TipoSerie::Linea2D,
                       .leyenda = "Tendencia, " + Cifras(pendiente, 3) + " mm/año"};
    for (std::size_t i = 0; i < filas; ++i)
        linea.celdas.push_back(y + pendiente * (s.maximos.front().anio + static_cast<double>(i) - x));
    return linea;
}

void PonMitades(forms::Grafico& g, const study::SerieDeMaximos& s)
{
    const auto fila = [&](std::size_t i) {
        return static_cast<std::size_t>(s.maximos[i].anio - s.maximos.front().anio);
    };
    const std::size_t mitad = s.maximos.size() / 2, filas = g.categorias.size();
    std::vector<double> primera, segunda;
    for (std::size_t i = 0; i < s.maximos.size(); ++i)
        (i < mitad ? primera : segunda).push_back(s.maximos[i].valor);
    g.series.push_back(Nivel("Mediana de la primera mitad", filas, 0, fila(mitad - 1), Mediana(primera)));
    g.series.push_back(Nivel("Mediana de la segunda", filas, fila(mitad), filas - 1, Mediana(segunda)));
}

/// The value beyond which a maximum is an outlier [mm].
double LimiteDeAnomalos(const std::vector<Maximo>& maximos, bool altos)
{
    std::vector<double> y;
    for (const Maximo& m : maximos)
        if (m.valor > 0) y.push_back(std::log10(m.valor));
    const Momentos momentos = MomentosDe(y);
    return std::pow(10, momentos.media + (altos ? 1 : -1) * LimiteDeGrubbsBeck(y.size()) * momentos.desvio);
}

void PonLimite(forms::Grafico& g, const study::SerieDeMaximos& s, bool altos)
{
    const std::vector<Maximo> maximos = Revisada(s).maximos;
    const double limite = LimiteDeAnomalos(maximos, altos);
    g.series.push_back(Nivel("Límite, " + Cifras(limite, 1) + " mm", g.categorias.size(), 0,
                             g.categorias.size() - 1, limite));
    g.marcas.clear();
    for (const Maximo& m : maximos)
        if (m.valor > 0 && (altos ? m.valor > limite : m.valor < limite))
            g.marcas.push_back(
                {0, static_cast<std::size_t>(m.anio - s.maximos.front().anio), std::to_string(m.anio)});
}

forms::Grafico CadaAnioYElSiguiente(const study::SerieDeMaximos& s)
{
    std::vector<Punto> puntos;
    for (std::size_t i = 0; i < s.maximos.size(); ++i)
        puntos.push_back({s.maximos[i].valor, s.maximos[(i + 1) % s.maximos.size()].valor});
    forms::Grafico g;
    g.tipo = forms::TipoGrafico::Linea;
    g.ejeX = "Máximo de un año [mm]";
    g.ejeY = "Máximo del siguiente [mm]";
    PonCurvas(g, {{forms::TipoSerie::Puntos2D, "", puntos}}, [](double x) { return Cifras(x, 2); });
    return g;
}

}  // namespace

forms::Grafico GraficoDePrueba(const Prueba& prueba, const study::SerieDeMaximos& s)
{
    if (prueba.clave == "wald-wolfowitz") return CadaAnioYElSiguiente(s);
    forms::Grafico g = GraficoDeMaximos(s);
    if (g.series.empty()) return g;
    g.series.front().leyenda = "Máximo del año";
    g.leyendaVisible = true;
    if (prueba.clave == "mann-kendall") g.series.push_back(Tendencia(s, g.categorias.size()));
    if (prueba.clave == "mann-whitney") PonMitades(g, s);
    if (EsDeAnomalos(prueba)) PonLimite(g, s, prueba.clave.ends_with("alto"));
    return g;
}

void Toma(TallerPruebas& m, const dlgTaller& f)
{
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    m.pruebas.clear();
    if (s != nullptr && FaltanMaximos(f).empty()) m.pruebas = PruebasDe(Revisada(*s).maximos);
    forms::Planilla p{{std::string(TituloDlgTaller) + ": pruebas de la muestra", TemaDe(f)},
                      {{"Prueba", true},
                       {"Estadístico", true},
                       {"z"},
                       {"p"},
                       {"Veredicto", true},
                       {"Qué hacer", true},
                       {"Fuente", true}},
                      {}};
    for (const Prueba& prueba : m.pruebas)
        p.filas.push_back(Fila(prueba));
    forms::PonFilas(m.tblPruebas, std::move(p));
    tblPruebas_Mueve(m, f, m.prueba);
}

void tblPruebas_Mueve(TallerPruebas& m, const dlgTaller& f, std::size_t fila)
{
    m.prueba = fila < m.pruebas.size() ? fila : 0;
    const study::SerieDeMaximos* const s = SerieEnMano(f);
    if (m.pruebas.empty() || s == nullptr) {
        m.lblPrueba = m.lblVeredicto = m.lblRemedio = m.lblFuente = "";
        m.Grafico = {};
        return;
    }
    const Prueba& p = m.pruebas[m.prueba];
    m.lblPrueba = p.nombre;
    m.lblVeredicto = p.veredicto + (p.rechaza ? EsDeAnomalos(p) ? " Al 10 %." : " Se rechaza al 5 %." : "");
    m.lblRemedio = p.remedio.empty() ? "nada." : p.remedio;
    m.lblFuente = p.fuente;
    m.Grafico = GraficoDePrueba(p, *s);
    m.Grafico.titulo = std::string(p.nombre) + "\n" + TituloDe(f);
}

void AlPulsarEncabezado(TallerPruebas& m, int columna)
{
    forms::PulsaEncabezado(m.tblPruebas, columna);
}

}  // namespace frequency
