// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/EscribeSensibilidad.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "checks/Json.h"
#include "model/Texto.h"

namespace calibration {
namespace {

using checks::Citado;

/// Four figures that mean something; "-" where there is none.
std::string Corto(double x)
{
    if (!std::isfinite(x)) return "-";
    constexpr int Cifras = 4;
    std::array<char, 32> t{};
    return {t.begin(), std::to_chars(t.begin(), t.end(), x, std::chars_format::general, Cifras).ptr};
}

/// The shortest text that gives the same double back; empty where there is none.
std::string Exacto(double x)
{
    std::array<char, 32> t{};
    return std::isfinite(x) ? std::string(t.begin(), std::to_chars(t.begin(), t.end(), x).ptr) : "";
}

std::string EnJson(double x)
{
    return std::isfinite(x) ? Exacto(x) : "null";
}

const MetodoDeSensibilidad& MetodoDe(const AnalisisDeSensibilidad& a)
{
    return *MetodoDeSensibilidadDe(a.pedido.metodo);
}

std::string TituloDe(const Indice& indice, const std::string& unidad)
{
    const bool conUnidad = indice.unidad == 'm' && unidad != "-";
    return std::string(indice.nombre) + (conUnidad ? " [" + unidad + "]" : "");
}

/// What was asked for, in a line.
std::string Como(const AnalisisDeSensibilidad& a)
{
    const study::Sensibilidad& p = a.pedido;
    std::string t = std::string(MetodoDe(a).nombre) + ", " + std::to_string(a.corridas) + " corridas";
    if (p.metodo == "morris")
        t += ", " + std::to_string(p.trayectorias) + " trayectorias, " + std::to_string(p.niveles) +
             " niveles";
    if (p.metodo == "sobol") t += ", base " + std::to_string(p.base);
    if (p.metodo != "tornado") t += ", semilla " + std::to_string(p.semilla);
    return t;
}

std::string ListaDeTextos(const std::vector<std::string>& textos)
{
    std::string t = "[";
    for (const std::string& uno : textos)
        t += (t.size() > 1 ? ", " : "") + Citado(uno);
    return t + "]";
}

}  // namespace

forms::Planilla PlanillaDe(const AnalisisDeSensibilidad& a)
{
    const MetodoDeSensibilidad& metodo = MetodoDe(a);
    forms::Planilla p{{"Sensibilidad: " + a.medida.nombre, Como(a)}, {{"N.º"}, {"Parámetro"}}, {}};
    if (a.actual) p.titulos.push_back("Hoy: " + Corto(*a.actual) + " " + a.medida.unidad);
    for (const Indice& indice : metodo.indices)
        p.columnas.push_back({TituloDe(indice, a.medida.unidad)});
    for (const std::size_t i : PorImportancia(metodo, a.filas)) {
        std::vector<std::string> fila{std::to_string(p.filas.size() + 1), a.parametros[i]};
        for (const double x : a.filas[i])
            fila.push_back(Corto(x));
        p.filas.push_back(std::move(fila));
    }
    return p;
}

std::string TextoDe(const AnalisisDeSensibilidad& a)
{
    const forms::Planilla p = PlanillaDe(a);
    std::vector<std::size_t> anchos;
    for (std::size_t c = 0; c < p.columnas.size(); ++c) {
        std::size_t ancho = model::CuentaCaracteres(p.columnas[c].encabezado);
        for (const auto& fila : p.filas)
            ancho = std::max(ancho, model::CuentaCaracteres(fila[c]));
        anchos.push_back(ancho);
    }
    std::string t;
    for (const std::string& titulo : p.titulos)
        t += titulo + "\n";
    t += "\n";
    const auto renglon = [&](const std::vector<std::string>& celdas) {
        for (std::size_t c = 0; c < celdas.size(); ++c) {
            constexpr std::size_t Nombre = 1;
            const std::string blancos(anchos[c] - model::CuentaCaracteres(celdas[c]), ' ');
            t += (c > 0 ? "  " : "") + (c == Nombre ? celdas[c] + blancos : blancos + celdas[c]);
        }
        t.erase(t.find_last_not_of(' ') + 1);
        t += "\n";
    };
    std::vector<std::string> titulos;
    for (const forms::ColumnaPlanilla& columna : p.columnas)
        titulos.push_back(columna.encabezado);
    renglon(titulos);
    for (const auto& fila : p.filas)
        renglon(fila);
    t += "\n";
    for (const std::string& frase : EnPalabras(a))
        t += frase + "\n";
    return t + "\nFuente: " + std::string(MetodoDe(a).fuente) + ".\n";
}

std::string JsonDe(const AnalisisDeSensibilidad& a)
{
    const MetodoDeSensibilidad& metodo = MetodoDe(a);
    const study::Sensibilidad& p = a.pedido;
    std::string t = "{\"metodo\": " + Citado(p.metodo) + ", \"semilla\": " + std::to_string(p.semilla) +
                    ", \"trayectorias\": " + std::to_string(p.trayectorias) +
                    ", \"niveles\": " + std::to_string(p.niveles) + ", \"base\": " + std::to_string(p.base) +
                    ",\n  \"medida\": {\"que\": " + Citado(a.medida.medida.que) +
                    ", \"componente\": " + Citado(a.medida.medida.componente) +
                    ", \"evento\": " + Citado(a.medida.medida.evento) +
                    ", \"nombre\": " + Citado(a.medida.nombre) + ", \"unidad\": " + Citado(a.medida.unidad) +
                    "},\n  \"corridas\": " + std::to_string(a.corridas) +
                    ", \"actual\": " + (a.actual ? EnJson(*a.actual) : "null") + ",\n  \"indices\": [";
    for (std::size_t i = 0; i < a.filas.size(); ++i) {
        t += std::string(i > 0 ? "," : "") + "\n    {\"parametro\": " + Citado(a.parametros[i]);
        for (std::size_t c = 0; c < metodo.indices.size(); ++c)
            t += ", " + Citado(metodo.indices[c].clave) + ": " + EnJson(a.filas[i][c]);
        t += "}";
    }
    t += "],\n  \"fallas\": [";
    for (std::size_t i = 0; i < a.fallas.size(); ++i)
        t += std::string(i > 0 ? "," : "") + "\n    {\"motivo\": " + Citado(a.fallas[i].motivo) +
             ", \"veces\": " + std::to_string(a.fallas[i].veces) +
             ", \"primera\": " + std::to_string(a.fallas[i].primera + 1) + "}";
    return t + "],\n  \"palabras\": " + ListaDeTextos(EnPalabras(a)) + "}\n";
}

std::string CsvDe(const AnalisisDeSensibilidad& a)
{
    std::string t = "parametro";
    for (const Indice& indice : MetodoDe(a).indices)
        t += "," + std::string(indice.clave);
    for (std::size_t i = 0; i < a.filas.size(); ++i) {
        const bool citado = a.parametros[i].find_first_of(",\"") != std::string::npos;
        t += "\n" + (citado ? "\"" + a.parametros[i] + "\"" : a.parametros[i]);
        for (const double x : a.filas[i])
            t += "," + Exacto(x);
    }
    return t + "\n";
}

}  // namespace calibration
