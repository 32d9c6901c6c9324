// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/InformeDeConjunto.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <type_traits>
#include <utility>

#include "calibration/Puntajes.h"
#include "checks/Huella.h"
#include "checks/Json.h"
#include "checks/Sha256.h"
#include "model/Numeros.h"
#include "model/Texto.h"
#include "study/ArchivoEstudio.h"
#include "study/Series.h"

namespace calibration {
namespace {

using checks::Citado;

constexpr std::array<double, 5> Probabilidades{0.05, 0.25, 0.5, 0.75, 0.95};
constexpr std::string_view Resolucion = "los cuantiles, a un milésimo de su valor o a una millonésima";

constexpr auto Medidas = std::to_array<std::string_view>({"pico", "tiempo", "volumen", "nivel"});

std::string Numero(double x)
{
    return std::isfinite(x) ? model::NumeroATexto(x) : "";
}

std::string EnJson(double x)
{
    return std::isfinite(x) ? model::NumeroATexto(x) : "null";
}

/// Mean, least, quantiles, greatest.
std::array<double, 8> ResumenDe(const runs::Cuantiles& c, double base = 0)
{
    std::array<double, 8> r{c.Media(), c.Minimo()};
    c.Varios(Probabilidades.data(), r.data() + 2, Probabilidades.size());
    r.back() = c.Maximo();
    for (double& x : r)
        x += base;
    return r;
}
constexpr std::array<std::string_view, 8> Cabeza{"media", "minimo", "p5",  "p25",
                                                 "p50",   "p75",    "p95", "maximo"};

// --- text, JSON, CSV ---

std::string JsonDe(const runs::Cuantiles& c, double base)
{
    const auto resumen = ResumenDe(c, base);
    std::string t;
    for (std::size_t i = 0; i < resumen.size(); ++i)
        t += ", " + Citado(Cabeza[i]) + ": " + EnJson(resumen[i]);
    return t;
}

std::string JsonDeMedidas(const Conjunto& c)
{
    std::string t;
    for (const std::string_view que : Medidas)
        if (const runs::Cuantiles* d = DistribucionDe(c, que); d != nullptr)
            t += (t.empty() ? "" : ",") + ("\n    {\"medida\": " + Citado(que)) +
                 ", \"unidad\": " + Citado(UnidadDeMedida(que)) + JsonDe(*d, BaseDe(c, que)) + "}";
    return "[" + t + "]";
}

/// A list of one number for each output step.
std::string Lista(std::size_t cuantos, auto&& numero)
{
    std::string t;
    for (std::size_t i = 0; i < cuantos; ++i)
        t += (i > 0 ? ", " : "") + EnJson(numero(i));
    return "[" + t + "]";
}

std::string JsonDelHidrograma(const Conjunto& c)
{
    std::vector<std::array<double, 8>> resumenes;
    for (const runs::Cuantiles& paso : c.caudal)
        resumenes.push_back(ResumenDe(paso));
    const std::size_t n = resumenes.size();
    std::string t = "{\"unidad\": \"m3/s\", \"minutos\": " +
                    Lista(n, [&](std::size_t i) { return static_cast<double>(i) * c.paso; });
    t += ",\n    \"peso\": " +
         Lista(n, [&](std::size_t i) { return static_cast<double>(c.caudal[i].Total()); });
    for (std::size_t j = 0; j < Cabeza.size(); ++j)
        t += ",\n    " + Citado(Cabeza[j]) + ": " + Lista(n, [&](std::size_t i) { return resumenes[i][j]; });
    return t + "}";
}

std::string JsonDeFallidos(const Conjunto& c)
{
    std::string t;
    for (const auto& [motivo, f] : c.fallidos) {
        t += (t.empty() ? "" : ",") + ("\n    {\"motivo\": " + Citado(motivo)) +
             ", \"cuantos\": " + std::to_string(f.cuantos) + ", \"primeros\": [";
        for (std::size_t i = 0; i < f.primeros.size(); ++i)
            t += (i > 0 ? ", " : "") + std::to_string(f.primeros[i] + 1);
        t += "]}";
    }
    return "[" + t + "]";
}

std::string JsonDeRebose(const EncabezadoDeConjunto& e, const Conjunto& c)
{
    if (!c.conTope) return "null";
    const auto [desde, hasta] = IntervaloBinomial(c.rebosan, c.cuentan);
    std::string t = "{\"casos\": " + std::to_string(c.rebosan) + ", \"probabilidad\": " + EnJson(c.Rebose());
    if (!e.como.glue) t += ", \"desde\": " + EnJson(desde) + ", \"hasta\": " + EnJson(hasta);
    return t + "}";
}

std::string FilaCsv(std::string_view que, std::string_view unidad, const std::string& minutos,
                    const runs::Cuantiles& c, double base = 0)
{
    std::string t =
        std::string(que) + "," + std::string(unidad) + "," + minutos + "," + std::to_string(c.Total());
    for (const double x : ResumenDe(c, base))
        t += "," + Numero(x);
    return t + "\n";
}

std::string Derecha(const std::string& texto)
{
    constexpr std::size_t Ancho = 12;
    return std::string(texto.size() < Ancho ? Ancho - texto.size() : 1, ' ') + texto;
}

// --- parts ---

constexpr std::string_view Primera = "SIRO parte de un conjunto 1";

constexpr int MaximoDePartes = 100000;

/// The fields of a part ahead of its set, by their keys, a line each.
void Campos(auto& v, auto& p)
{
    auto& e = p.encabezado;
    v("proyecto", e.proyecto);
    v("huella", e.huella);
    v("parte", p.cual);
    v("de", p.de);
    v("miembros", e.como.miembros);
    v("muestreo", e.como.muestreo);
    v("semilla", e.como.semilla);
    v("puntaje", e.como.medida.puntaje);
    v("glue", e.como.glue);
    v("umbral", e.como.umbral);
}

/// Reads such lines; one that isn't what it should be, and all behind it, is none.
class Lector {
  public:
    explicit Lector(std::string_view unTexto) : resto(unTexto) {}
    std::string_view resto;
    bool bien = true;

    std::string_view Linea()
    {
        const std::size_t fin = resto.find('\n');
        bien = bien && fin != std::string_view::npos;
        if (!bien) return {};
        const std::string_view linea = resto.substr(0, fin);
        resto.remove_prefix(fin + 1);
        return linea;
    }
    void operator()(std::string_view clave, std::string& x) { x = Valor(clave); }
    void operator()(std::string_view clave, bool& x)
    {
        int n = 0;
        (*this)(clave, n);
        x = n != 0;
    }
    template <typename T>
    requires std::is_arithmetic_v<T>
    void operator()(std::string_view clave, T& x)
    {
        const std::string_view v = Valor(clave);
        const auto [fin, error] = std::from_chars(v.data(), v.data() + v.size(), x);
        bien = bien && error == std::errc{} && fin == v.data() + v.size();
    }

  private:
    std::string_view Valor(std::string_view clave)
    {
        const std::string_view linea = Linea();
        bien = bien && linea.starts_with(clave) && linea.size() > clave.size() && linea[clave.size()] == ' ';
        return bien ? linea.substr(clave.size() + 1) : std::string_view{};
    }
};

/// Writes them.
struct Escritor {
    std::string texto{};
    void operator()(std::string_view clave, const std::string& x)
    {
        texto.append(clave).append(" ").append(x) += '\n';
    }
    void operator()(std::string_view clave, double x) { (*this)(clave, model::NumeroATexto(x)); }
    template <typename T>
    requires std::is_integral_v<T>
    void operator()(std::string_view clave, T x) { (*this)(clave, std::to_string(x)); }
};

}  // namespace

EncabezadoDeConjunto EncabezadoDe(std::string proyecto, const PedidoDeIncertidumbre& pedido)
{
    checks::Sha256 sha;
    const runs::Modelo& m = pedido.modelo;
    sha.Agrega(checks::HuellaDeRed(m.red));
    for (const runs::Lluvia& l : m.lluvias)
        sha.Agrega(checks::HuellaDeLluvia(m.red, l.tormenta, l.pasos, m.tablas, nullptr));
    study::Estudio estudio{.ajuste = {.eventos = pedido.eventos, .parametros = m.parametros}};
    estudio.ajuste.calibracion = pedido.calibracion;
    estudio.ajuste.incertidumbre = pedido.como;
    sha.Agrega(study::EscribeEstudio(estudio));
    for (const study::Evento& evento : pedido.eventos)
        for (const study::Observacion& o : evento.observaciones)
            sha.Agrega(study::EscribeSerie(o));
    return {std::move(proyecto), sha.Cierra(), pedido.como};
}

std::string TextoDe(const EncabezadoDeConjunto& e, const Conjunto& c)
{
    std::string t = "Incertidumbre de " + e.proyecto + ", " + c.componente;
    if (!c.evento.empty()) t += ", " + c.evento;
    t += ": " + std::to_string(c.miembros) + " juegos por " +
         (e.como.muestreo == "simple" ? "sorteo simple" : "hipercubo latino") + ", semilla " +
         std::to_string(e.como.semilla) + "\n\n  " + std::string(23, ' ');
    for (const std::string_view columna : Cabeza)
        t += Derecha(std::string(columna));
    t += "\n";
    for (const std::string_view que : Medidas)
        if (const runs::Cuantiles* d = DistribucionDe(c, que); d != nullptr) {
            t += model::AjustaIzquierda(
                "  " + std::string(que) + " [" + std::string(UnidadDeMedida(que)) + "]", 25);
            for (const double x : ResumenDe(*d, BaseDe(c, que)))
                t += Derecha(std::isfinite(x) ? model::NumeroATexto(static_cast<float>(x)) : "-");
            t += "\n";
        }
    t += "\n";
    for (const std::string& dicho : EnPalabras(c, e.como))
        t += "  " + dicho + "\n";
    return t + "  Los cuantiles tienen un error de hasta un milésimo de su valor.\n";
}

std::string JsonDe(const EncabezadoDeConjunto& e, const Conjunto& c)
{
    std::string t =
        "{\"proyecto\": " + Citado(e.proyecto) + ", \"evento\": " + Citado(c.evento) +
        ", \"componente\": " + Citado(c.componente) + ", \"huella\": " + Citado(e.huella) +
        ",\n  \"miembros\": " + std::to_string(c.miembros) + ", \"cuentan\": " + std::to_string(c.cuentan) +
        ", \"fallaron\": " + std::to_string(c.Fallaron()) + ", \"muestreo\": " + Citado(e.como.muestreo) +
        ", \"semilla\": " + std::to_string(e.como.semilla) +
        ",\n  \"glue\": " + (e.como.glue ? "true" : "false");
    if (e.como.glue)
        t += ", \"puntaje\": " + Citado(e.como.medida.puntaje) + ", \"umbral\": " + EnJson(e.como.umbral);
    t += ", \"exactitud\": " + Citado(Resolucion);
    t += ",\n  \"medidas\": " + JsonDeMedidas(c) + ",\n  \"rebose\": " + JsonDeRebose(e, c);
    t += ",\n  \"hidrograma\": " + JsonDelHidrograma(c) + ",\n  \"fallidos\": " + JsonDeFallidos(c);
    std::string dichos;
    for (const std::string& dicho : EnPalabras(c, e.como))
        dichos += (dichos.empty() ? "" : ",") + ("\n    " + Citado(dicho));
    return t + ",\n  \"dichos\": [" + dichos + "]}\n";
}

std::string CsvDe(const Conjunto& c)
{
    std::string t = "medida,unidad,minutos,peso";
    for (const std::string_view columna : Cabeza)
        t.append(",").append(columna);
    t += "\n";
    for (const std::string_view que : Medidas)
        if (const runs::Cuantiles* d = DistribucionDe(c, que); d != nullptr)
            t += FilaCsv(que, UnidadDeMedida(que), "", *d, BaseDe(c, que));
    for (std::size_t i = 0; i < c.caudal.size(); ++i)
        t += FilaCsv("caudal", "m3/s", model::NumeroATexto(static_cast<double>(i) * c.paso), c.caudal[i]);
    return t;
}

std::string EscribeParte(const ParteDeConjunto& parte)
{
    Escritor v;
    v.texto.append(Primera) += '\n';
    Campos(v, parte);
    return v.texto + Escribe(parte.conjunto);
}

LecturaDeParte LeeParte(std::string_view texto)
{
    LecturaDeParte l;
    Lector v(texto);
    if (v.Linea() != Primera) return {{}, "no es una parte de un conjunto, escrita con --parcial"};
    Campos(v, l.parte);
    const ParteDeConjunto& p = l.parte;
    if (!v.bien || p.cual < 1 || p.cual > p.de || p.de > MaximoDePartes || !Lee(v.resto, l.parte.conjunto))
        return {{}, "el archivo está dañado o cortado"};
    return l;
}

std::string Union::Agrega(ParteDeConjunto parte)
{
    if (estan.empty()) {
        encabezado = std::move(parte.encabezado);
        estan.resize(static_cast<std::size_t>(parte.de));
    } else if (parte.encabezado.huella != encabezado.huella ||
               static_cast<std::size_t>(parte.de) != estan.size()) {
        return "no es una parte del mismo conjunto que las de antes";
    }
    const auto lugar = static_cast<std::size_t>(parte.cual) - 1;
    if (estan[lugar]) return "la parte " + std::to_string(parte.cual) + " está dos veces";
    estan[lugar] = true;
    todo.Junta(parte.conjunto);
    return {};
}

std::string Union::Falta() const
{
    const auto hueco = std::ranges::find(estan, false);
    if (estan.empty() || hueco == estan.end()) return estan.empty() ? "no hay ninguna parte" : "";
    return "falta la parte " + std::to_string(hueco - estan.begin() + 1) + " de " +
           std::to_string(estan.size());
}

}  // namespace calibration
