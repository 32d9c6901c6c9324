// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/EscribeComparacion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "checks/Json.h"
#include "checks/ResumenDeCorrida.h"
#include "forms/Csv.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace runs {

using checks::CifraDeResumen;
using checks::Citado;
using model::NumeroATexto;
using Valor = std::optional<double>;

namespace {

constexpr std::string_view LaLluvia = "Lluvia y pasos", LaCuenca = "Cuenca";
constexpr int DecimalesDePico = 3, DecimalesDePorCiento = 1;

std::string Cifrado(Valor x, int decimales)
{
    return x && std::isfinite(*x) ? CifraDeResumen(*x, decimales, false) : std::string();
}

/// The shortest text that gives the same double back; empty where there is none.
std::string Exacto(Valor x)
{
    std::array<char, 32> t{};
    if (!x || !std::isfinite(*x)) return {};
    return {t.begin(), std::to_chars(t.begin(), t.end(), *x).ptr};
}

std::string ComponenteDe(const std::string& nombre, std::string_view sinNombre)
{
    return nombre.empty() ? std::string(sinNombre) : nombre;
}

std::string Formato(int decimales)
{
    return decimales == 0 ? "#,##0" : "0." + std::string(static_cast<std::size_t>(decimales), '0');
}

/// Whether a figure isn't the same on all sides, as far as it is shown.
bool Difiere(const Cifra& cifra)
{
    const std::string primera = Cifrado(cifra.valores.front(), cifra.decimales);
    return std::ranges::any_of(cifra.valores,
                               [&](const Valor& v) { return Cifrado(v, cifra.decimales) != primera; });
}

/// Columns for the sides of a number, its difference and its share.
void AgregaColumnas(forms::Planilla& p, const Comparacion& c, const std::string& prefijo, int decimales)
{
    const std::string formato = decimales < 0 ? "" : Formato(decimales);
    for (const std::string& lado : c.lados)
        p.columnas.push_back({prefijo + lado, false, formato});
    for (std::size_t k = 1; k < c.lados.size(); ++k) {
        p.columnas.push_back({"Dif. " + c.lados[k], false, formato});
        p.columnas.push_back({"Dif. " + c.lados[k] + " [%]", false, Formato(DecimalesDePorCiento)});
    }
}

void AgregaValores(std::vector<std::string>& fila, const std::vector<Valor>& valores, int decimales,
                   bool conPorCiento)
{
    for (const Valor& v : valores)
        fila.push_back(Cifrado(v, decimales));
    for (std::size_t k = 1; k < valores.size(); ++k) {
        fila.push_back(Cifrado(Diferencia(valores[0], valores[k]), decimales));
        const Valor parte = conPorCiento ? PorCiento(valores[0], valores[k]) : std::nullopt;
        fila.push_back(Cifrado(parte, DecimalesDePorCiento));
    }
}

std::string TormentaDe(const PicoDeSerie& p)
{
    return "D " + NumeroATexto(p.D) + " min, R " + NumeroATexto(p.R) + " años";
}

// --- text ---

/// A table as text: columns as wide as their cells, those of texts to the left.
std::string EnColumnas(const forms::Planilla& p)
{
    std::vector<std::vector<std::string>> filas(1);
    for (const forms::ColumnaPlanilla& c : p.columnas)
        filas[0].push_back(c.encabezado);
    filas.insert(filas.end(), p.filas.begin(), p.filas.end());
    std::string texto;
    std::vector<std::size_t> anchos(p.columnas.size());
    for (const auto& fila : filas)
        for (std::size_t k = 0; k < fila.size(); ++k)
            anchos[k] = std::max(anchos[k], model::CuentaCaracteres(fila[k]));
    for (const auto& fila : filas) {
        std::string renglon;
        for (std::size_t k = 0; k < fila.size(); ++k) {
            const std::string hueco(anchos[k] - model::CuentaCaracteres(fila[k]), ' ');
            renglon += (k == 0 ? "" : "  ") + (p.columnas[k].deTexto ? fila[k] + hueco : hueco + fila[k]);
        }
        texto += renglon.substr(0, renglon.find_last_not_of(' ') + 1) + '\n';
    }
    return texto;
}

std::string SerieEnTexto(const Lados& lados, const Comparacion& c)
{
    std::string texto;
    for (const Emparejado& e : c.componentes) {
        const forms::Planilla p = PlanillaDeSerie(c, PicosDeSerie(lados, e), e.Nombre());
        if (!p.filas.empty()) texto += "\n" + p.titulos.front() + "\n" + EnColumnas(p);
    }
    return texto;
}

// --- JSON ---

std::string EnJson(Valor x)
{
    const std::string texto = Exacto(x);
    return texto.empty() ? "null" : texto;
}

/// Values as an array.
template <typename V>
std::string Arreglo(const V& valores, auto&& escribe)
{
    std::string t = "[";
    for (const auto& v : valores)
        t += (t.size() > 1 ? ", " : "") + escribe(v);
    return t + "]";
}
std::string Numeros(const std::vector<Valor>& valores)
{
    return Arreglo(valores, EnJson);
}
std::string Numeros(const std::vector<double>& valores)
{
    return Arreglo(valores, [](double x) { return EnJson(x); });
}
std::string Textos(const std::vector<std::string>& valores)
{
    return Arreglo(valores, [](const std::string& t) { return t.empty() ? "null" : Citado(t); });
}

/// Objects, a line each, under a key.
std::string Lista(std::string_view clave, const std::vector<std::string>& objetos)
{
    std::string t = " " + Citado(clave) + ": [";
    for (const std::string& o : objetos)
        t += (t.back() == '[' ? "\n  " : ",\n  ") + o;
    return t + (objetos.empty() ? "]" : "\n ]");
}

std::vector<std::string> LadosEnJson(const Lados& lados)
{
    std::vector<std::string> objetos;
    for (const Lado& l : lados)
        objetos.push_back("{\"nombre\": " + Citado(l.nombre) + ", \"proyecto\": " +
                          Citado(l.corrida->sello.nombre) + ", \"titulo\": " + Citado(l.corrida->titulo) +
                          ", \"tormenta\": " + Citado(l.corrida->sello.tormenta) +
                          ", \"serie\": " + (l.corrida->esSerie ? "true" : "false") +
                          ", \"huella\": " + Citado(l.corrida->huella) + "}");
    return objetos;
}

std::vector<std::string> ParametrosEnJson(const Comparacion& c)
{
    std::vector<std::string> objetos;
    for (const Distinto& d : c.parametros)
        objetos.push_back("{\"componente\": " + Citado(d.componente) + ", \"nombre\": " + Citado(d.nombre) +
                          ", \"unidad\": " + Citado(d.unidad) + ", \"se_lee\": " +
                          (d.seLee ? "true" : "false") + ", \"valores\": " + Textos(d.valores) + "}");
    return objetos;
}

std::vector<std::string> CifrasEnJson(const Comparacion& c)
{
    std::vector<std::string> objetos;
    for (const Cifra& x : c.cifras) {
        std::vector<Valor> diferencias, partes;
        for (const Valor& v : x.valores) {
            diferencias.push_back(Diferencia(x.valores[0], v));
            partes.push_back(x.conPorCiento ? PorCiento(x.valores[0], v) : std::nullopt);
        }
        objetos.push_back(
            "{\"componente\": " + Citado(x.componente) + ", \"magnitud\": " + Citado(x.magnitud) +
            ", \"unidad\": " + Citado(x.unidad) + ", \"valores\": " + Numeros(x.valores) +
            ", \"diferencias\": " + Numeros(diferencias) + ", \"por_ciento\": " + Numeros(partes) + "}");
    }
    return objetos;
}

std::vector<std::string> HidrogramasEnJson(const Lados& lados, const Comparacion& c)
{
    std::vector<std::string> objetos;
    for (const Emparejado& e : c.componentes) {
        const Superpuestos s = Hidrogramas(lados, e);
        if (s.minutos.empty()) continue;
        objetos.push_back("{\"componente\": " + Citado(e.Nombre()) + ", \"nombres\": " + Textos(e.nombres) +
                          ", \"minutos\": " + Numeros(s.minutos) + ", \"caudales\": " +
                          Arreglo(s.caudales, [](const auto& q) { return Numeros(q); }) + "}");
    }
    return objetos;
}

std::vector<std::string> SeriesEnJson(const Lados& lados, const Comparacion& c)
{
    std::vector<std::string> objetos;
    for (const Emparejado& e : c.componentes)
        for (const PicoDeSerie& p : PicosDeSerie(lados, e))
            objetos.push_back(
                "{\"componente\": " + Citado(e.Nombre()) + ", \"duracion\": " + NumeroATexto(p.D) +
                ", \"recurrencia\": " + NumeroATexto(p.R) + ", \"laminas\": " + Numeros(p.laminas) +
                ", \"picos\": " + Numeros(p.picos) + "}");
    return objetos;
}

// --- CSV ---

/// In quotes where it must be.
std::string Campo(const std::string& texto)
{
    return texto.find_first_of(",\"\n\r") == std::string::npos ? texto : forms::CampoCsv(texto);
}

std::string Renglon(const std::vector<std::string>& campos)
{
    std::string t;
    for (const std::string& campo : campos)
        t += (t.empty() ? "" : ",") + Campo(campo);
    return t + "\n";
}

/// Values of all sides, a line each.
std::string Renglones(const Comparacion& c, const std::vector<std::string>& cabeza,
                      const std::vector<Valor>& valores, bool conPorCiento)
{
    std::string t;
    for (std::size_t k = 0; k < valores.size(); ++k) {
        std::vector<std::string> campos = cabeza;
        const bool resta = k > 0;
        campos.insert(campos.end(), {c.lados[k], Exacto(valores[k]),
                                     resta ? Exacto(Diferencia(valores[0], valores[k])) : "",
                                     resta && conPorCiento ? Exacto(PorCiento(valores[0], valores[k])) : ""});
        t += Renglon(campos);
    }
    return t;
}

}  // namespace

forms::Planilla PlanillaDeParametros(const Comparacion& c)
{
    forms::Planilla p{
        {"Parámetros que difieren"}, {{"Componente", true}, {"Parámetro", true}, {"Unidad", true}}, {}};
    for (const std::string& lado : c.lados)
        p.columnas.push_back({lado, false, {}});
    p.columnas.push_back({"Nota", true, {}});
    for (const Distinto& d : c.parametros) {
        std::vector<std::string>& fila = p.filas.emplace_back(
            std::vector<std::string>{ComponenteDe(d.componente, LaLluvia), d.nombre, d.unidad});
        fila.insert(fila.end(), d.valores.begin(), d.valores.end());
        fila.emplace_back(d.seLee ? "" : "no lo lee ninguna de estas corridas");
    }
    return p;
}

std::vector<std::size_t> CifrasALaVista(const Comparacion& c, bool soloDistintas)
{
    std::vector<std::size_t> lugares;
    for (std::size_t i = 0; i < c.cifras.size(); ++i)
        if (!soloDistintas || Difiere(c.cifras[i])) lugares.push_back(i);
    return lugares;
}

forms::Planilla PlanillaDeCifras(const Comparacion& c, bool soloDistintas)
{
    forms::Planilla p{{"Resultados"}, {{"Componente", true}, {"Magnitud", true}, {"Unidad", true}}, {}};
    AgregaColumnas(p, c, "", -1);
    for (const std::size_t i : CifrasALaVista(c, soloDistintas)) {
        const Cifra& x = c.cifras[i];
        std::vector<std::string>& fila = p.filas.emplace_back(std::vector<std::string>{
            ComponenteDe(x.componente, LaCuenca), std::string(x.magnitud), std::string(x.unidad)});
        AgregaValores(fila, x.valores, x.decimales, x.conPorCiento);
    }
    return p;
}

forms::Planilla PlanillaDeHidrogramas(const Comparacion& c, const Superpuestos& s, const std::string& titulo)
{
    forms::Planilla p{{titulo}, {{"t [min]", false, "#,##0"}}, {}};
    for (const std::string& lado : c.lados)
        p.columnas.push_back({lado + " [m3/s]", false, Formato(DecimalesDePico)});
    for (std::size_t i = 0; i < s.minutos.size(); ++i) {
        std::vector<std::string>& fila = p.filas.emplace_back();
        fila.push_back(NumeroATexto(s.minutos[i]));
        for (const std::vector<double>& q : s.caudales)
            fila.push_back(Cifrado(q[i], DecimalesDePico));
    }
    return p;
}

forms::Planilla PlanillaDeSerie(const Comparacion& c, const std::vector<PicoDeSerie>& picos,
                                const std::string& componente)
{
    forms::Planilla p{{"Caudales máximos de la serie: " + componente}, {{"R [años]"}, {"D [min]"}}, {}};
    for (const std::string& lado : c.lados)
        p.columnas.push_back({"P [mm] " + lado, false, {}});
    AgregaColumnas(p, c, "Qp [m3/s] ", DecimalesDePico);
    for (const PicoDeSerie& pico : picos) {
        std::vector<std::string>& fila =
            p.filas.emplace_back(std::vector<std::string>{NumeroATexto(pico.R), NumeroATexto(pico.D)});
        for (const Valor& lamina : pico.laminas)
            fila.push_back(Cifrado(lamina, 1));
        AgregaValores(fila, pico.picos, DecimalesDePico, true);
    }
    return p;
}

std::string TextoDe(const Lados& lados, const Comparacion& c)
{
    std::string texto;
    for (const std::string& renglon : c.procedencia)
        texto += renglon + "\n";
    const forms::Planilla parametros = PlanillaDeParametros(c), cifras = PlanillaDeCifras(c, true);
    texto += "\n" + (parametros.filas.empty() ? "Ningún parámetro difiere.\n"
                                              : parametros.titulos.front() + "\n" + EnColumnas(parametros));
    texto += "\n" + (cifras.filas.empty() ? "Ningún resultado difiere.\n"
                                          : "Resultados que difieren\n" + EnColumnas(cifras));
    return texto + SerieEnTexto(lados, c);
}

std::string JsonDe(const Lados& lados, const Comparacion& c)
{
    return "{\n" + Lista("lados", LadosEnJson(lados)) + ",\n" + Lista("parametros", ParametrosEnJson(c)) +
           ",\n" + Lista("cifras", CifrasEnJson(c)) + ",\n" +
           Lista("hidrogramas", HidrogramasEnJson(lados, c)) + ",\n" +
           Lista("series", SeriesEnJson(lados, c)) + "\n}\n";
}

std::string CsvDe(const Lados& lados, const Comparacion& c)
{
    std::string t = "tabla,componente,nombre,unidad,lado,valor,diferencia,por_ciento\n";
    for (const Distinto& d : c.parametros)
        for (std::size_t k = 0; k < d.valores.size(); ++k)
            t += Renglon({"parametro", d.componente, d.nombre, d.unidad, c.lados[k], d.valores[k], "", ""});
    for (const Cifra& x : c.cifras)
        t += Renglones(c, {"cifra", x.componente, std::string(x.magnitud), std::string(x.unidad)}, x.valores,
                       x.conPorCiento);
    for (const Emparejado& e : c.componentes)
        for (const PicoDeSerie& p : PicosDeSerie(lados, e))
            t += Renglones(c, {"serie", e.Nombre(), TormentaDe(p), "m3/s"}, p.picos, true);
    return t;
}

}  // namespace runs
