// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/LecturaGrafico.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "model/Numeros.h"

namespace forms {
namespace {

const std::string& TituloDelEje(const Grafico& grafico, const Serie& serie)
{
    return serie.ejeSecundario ? grafico.ejeYSecundario : grafico.ejeY;
}

/// The unit in the square brackets of a title; none: nothing.
std::string_view SoloUnidad(std::string_view titulo)
{
    const std::size_t abre = titulo.rfind('[');
    const std::size_t cierra = titulo.rfind(']');
    if (abre == std::string_view::npos || cierra == std::string_view::npos || cierra < abre + 2) return {};
    return titulo.substr(abre + 1, cierra - abre - 1);
}

/// The same with the blank ahead of it.
std::string Unidad(std::string_view titulo)
{
    const std::string_view unidad = SoloUnidad(titulo);
    return unidad.empty() ? std::string{} : " " + std::string(unidad);
}

/// A title without its unit.
std::string SinUnidad(std::string_view titulo)
{
    titulo = titulo.substr(0, titulo.rfind('['));
    while (titulo.ends_with(' '))
        titulo.remove_suffix(1);
    return std::string(titulo);
}

/// Name of a series: its legend, or else the title of its axis without the unit.
std::string NombreDe(const Grafico& grafico, const Serie& serie)
{
    if (!serie.leyenda.empty())
        return grafico.tituloLeyenda.empty() ? serie.leyenda : grafico.tituloLeyenda + " " + serie.leyenda;
    return SinUnidad(TituloDelEje(grafico, serie));
}

/// With the seven digits of the arrays that the cells come from.
std::string Valor(const Grafico& grafico, const Serie& serie, double celda)
{
    return model::NumeroATexto(static_cast<float>(celda)) + Unidad(TituloDelEje(grafico, serie));
}

std::string Abscisa(const Grafico& grafico, std::size_t fila)
{
    const std::string& categoria = grafico.categorias[fila];
    if (grafico.ejeX.empty()) return categoria;
    return grafico.abscisas.empty() ? categoria + " " + grafico.ejeX : grafico.ejeX + ": " + categoria;
}

/// Digits that a label shows, zeros at its end and the point apart: what makes it look round.
std::size_t CifrasSignificativas(std::string_view rotulo)
{
    const std::size_t fin = rotulo.find_last_not_of("0.");
    if (fin == std::string_view::npos) return 1;
    const std::size_t inicio = rotulo.find_first_not_of("0.");
    return fin - inicio + 1;
}

// Headings of the columns of its cells, with units: "t [horas]", "Qsale [m3/s]", "R= 2 años [m3/s]". None is
// empty.

std::string EncabezadoDeCategorias(const Grafico& grafico)
{
    if (grafico.ejeX.empty()) return "Fila";
    return grafico.magnitudX.empty() ? grafico.ejeX : grafico.magnitudX + " [" + grafico.ejeX + "]";
}

std::string EncabezadoDe(const Grafico& grafico, const Serie& serie)
{
    const std::string& eje = TituloDelEje(grafico, serie);
    if (serie.leyenda.empty()) return eje.empty() ? "Valor" : eje;
    const std::string_view unidad = SoloUnidad(eje);
    std::string encabezado = serie.leyenda;
    if (!grafico.tituloLeyenda.empty())
        encabezado = SinUnidad(grafico.tituloLeyenda) + "= " + serie.leyenda + Unidad(grafico.tituloLeyenda);
    if (!unidad.empty()) encabezado.append(" [").append(unidad).append("]");
    return encabezado;
}

std::string TextoDeCelda(double celda)
{
    if (EstaVacia(celda)) return {};
    if (celda == std::floor(celda)) return model::NumeroATexto(celda);
    return model::NumeroATexto(static_cast<float>(celda));
}

}  // namespace

std::string LecturaDeFila(const Grafico& grafico, std::size_t fila)
{
    if (fila >= grafico.categorias.size()) return {};
    std::string lectura = Abscisa(grafico, fila);
    for (const Serie& serie : grafico.series) {
        if (fila >= serie.celdas.size() || EstaVacia(serie.celdas[fila])) continue;
        lectura.append("\n")
            .append(NombreDe(grafico, serie))
            .append(" = ")
            .append(Valor(grafico, serie, serie.celdas[fila]));
    }
    return lectura;
}

Planilla CeldasComoPlanilla(const Grafico& grafico)
{
    Planilla planilla;
    planilla.columnas.push_back({EncabezadoDeCategorias(grafico)});
    for (const Serie& serie : grafico.series)
        planilla.columnas.push_back({EncabezadoDe(grafico, serie)});
    for (std::size_t i = 0; i < grafico.categorias.size(); ++i) {
        std::vector<std::string>& fila = planilla.filas.emplace_back();
        fila.push_back(grafico.categorias[i]);
        for (const Serie& serie : grafico.series)
            fila.push_back(TextoDeCelda(serie.celdas[i]));
    }
    return planilla;
}

std::string Descripcion(const Grafico& grafico)
{
    std::string texto = model::NumeroATexto(static_cast<std::int32_t>(grafico.categorias.size())) + " filas.";
    for (const Serie& serie : grafico.series) {
        std::size_t pico = serie.celdas.size();
        for (std::size_t i = 0; i < serie.celdas.size() && i < grafico.categorias.size(); ++i)
            if (!EstaVacia(serie.celdas[i]) &&
                (pico == serie.celdas.size() || serie.celdas[i] > serie.celdas[pico]))
                pico = i;
        if (pico == serie.celdas.size()) continue;
        texto.append(" ")
            .append(NombreDe(grafico, serie))
            .append(": máximo ")
            .append(Valor(grafico, serie, serie.celdas[pico]))
            .append(" en ")
            .append(Abscisa(grafico, pico))
            .append(".");
    }
    return texto;
}

std::size_t PrimeraRotulada(std::size_t desde, std::size_t paso, std::int32_t primeraFila)
{
    const auto n = static_cast<std::int64_t>(paso);
    const std::int64_t resto = (static_cast<std::int64_t>(desde) + primeraFila - 1) % n;
    return desde + static_cast<std::size_t>((n - resto) % n);
}

std::size_t PasoDeRotulos(const std::vector<std::string>& categorias, std::size_t visibles, std::size_t caben,
                          std::int32_t primeraFila)
{
    constexpr std::size_t Holgura = 3;       // steps tried: up to so many times the least one
    constexpr double PesoDeLaDistancia = 1;  // digits that a step twice as long has to save
    const std::size_t minimo = std::max<std::size_t>(1, (visibles + caben - 1) / caben);
    if (minimo == 1) return 1;
    std::size_t mejor = minimo;
    double menor = HUGE_VAL;
    for (std::size_t paso = minimo; paso < Holgura * minimo && paso <= visibles; ++paso) {
        double cifras = 0;
        std::size_t n = 0;
        for (std::size_t i = PrimeraRotulada(1, paso, primeraFila); i <= categorias.size(); i += paso, ++n)
            cifras += static_cast<double>(CifrasSignificativas(categorias[i - 1]));
        if (n == 0) break;
        const double puntos =
            cifras / static_cast<double>(n) +
            PesoDeLaDistancia * std::log2(static_cast<double>(paso) / static_cast<double>(minimo));
        if (puntos < menor) {
            menor = puntos;
            mejor = paso;
        }
    }
    return mejor;
}

bool MismaEstructura(const Grafico& a, const Grafico& b)
{
    const auto iguales = [](const Serie& x, const Serie& y) {
        return x.tipo == y.tipo && x.leyenda == y.leyenda && x.ejeSecundario == y.ejeSecundario;
    };
    return a.tipo == b.tipo && a.titulo == b.titulo && a.notaAlPie == b.notaAlPie && a.ejeX == b.ejeX &&
           a.ejeY == b.ejeY && a.ejeYSecundario == b.ejeYSecundario && a.leyendaVisible == b.leyendaVisible &&
           a.muchasLineas == b.muchasLineas && a.tituloLeyenda == b.tituloLeyenda &&
           a.marcasEjeX == b.marcasEjeX && a.escala == b.escala && a.abscisas.empty() == b.abscisas.empty() &&
           a.ejeYLogaritmico == b.ejeYLogaritmico && a.marcas.size() == b.marcas.size() &&
           std::equal(a.series.begin(), a.series.end(), b.series.begin(), b.series.end(), iguales);
}

bool CuelgaDeArriba(const Grafico& grafico, const Serie& serie)
{
    return grafico.tipo == TipoGrafico::Combinacion && serie.tipo == TipoSerie::Escalon2D &&
           serie.ejeSecundario;
}

}  // namespace forms
