// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/Series.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <set>
#include <utility>

#include "forms/RenglonesDeRegistro.h"
#include "model/Falla.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace study {
namespace {

constexpr std::string_view Minutos = "minutos";
constexpr std::string_view Valores = " valores";
constexpr std::string_view ComienzoSerie = "_serie_";
constexpr std::string_view TerminacionSerie = ".csv";
constexpr std::string_view TerminacionJson = ".json";
constexpr std::string_view TerminacionEstudio = "_Estudio";

std::string_view Encabezado(std::string_view magnitud)
{
    return magnitud == "nivel" ? "nivel [m]" : "caudal [m3/s]";
}

std::string Exacto(double x)
{
    std::array<char, 32> lugar{};
    return {lugar.data(), std::to_chars(lugar.data(), lugar.data() + lugar.size(), x).ptr};
}

std::optional<double> Numero(std::string_view texto)
{
    std::optional<double> x;
    model::Sentencia([&] { x = model::NumeroEntero(model::ComasAPuntos(texto)); });
    return x;
}

/// How many values the heading announces: none where it doesn't say.
struct Comienzo {
    std::optional<std::size_t> cuantos{};
    std::string motivo{};
};

Comienzo LeeEncabezado(std::string_view renglon, std::string_view magnitud)
{
    const auto campos = forms::CamposDeRenglon(renglon, ';');
    if (!campos[0].starts_with(Minutos) || campos.size() < 2)
        return {{},
                "no empieza con el encabezado \"minutos [min];" + std::string(Encabezado(magnitud)) + "\""};
    if (campos[1] != Encabezado(magnitud))
        return {
            {},
            "la segunda columna no es \"" + std::string(Encabezado(magnitud)) + "\", como dice el estudio"};
    if (campos.size() < 3 || campos[2].empty()) return {};
    const std::string_view cuenta = campos[2];
    const auto n =
        cuenta.ends_with(Valores) ? Numero(cuenta.substr(0, cuenta.size() - Valores.size())) : std::nullopt;
    if (!n || *n < 1 || *n > static_cast<double>(MaximoDeValores) || *n != std::floor(*n))
        return {{}, "el encabezado no dice cuántos valores hay: está cortado"};
    return {static_cast<std::size_t>(*n), {}};
}

/// Takes a line's minute and value; returns what keeps it from being one.
std::string Toma(std::string_view renglon, std::vector<Punto>& puntos)
{
    const auto campos = forms::CamposDeRenglon(renglon, ';');
    const auto minuto = Numero(campos[0]), valor = campos.size() > 1 ? Numero(campos[1]) : std::nullopt;
    if (!minuto) return "los minutos no son un número";
    if (!valor) return "falta el valor, o no es un número";
    if (!puntos.empty() && *minuto <= puntos.back().minuto) return "el tiempo no es posterior al anterior";
    if (puntos.size() == MaximoDeValores) return "la serie pasa de un millón de valores";
    puntos.push_back({*minuto, *valor});
    return {};
}

bool SirveDeNombre(std::string_view archivo)
{
    constexpr std::size_t MaximoDeLetras = 60;
    return !archivo.empty() && archivo.size() <= MaximoDeLetras &&
           std::all_of(archivo.begin(), archivo.end(), [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                      c == '_' || c == '-';
           });
}

template <typename A, typename F>
void PorCada(A& ajuste, F f)
{
    for (auto& evento : ajuste.eventos)
        for (auto& observacion : evento.observaciones)
            f(evento, observacion);
}

std::string MotivoDe(const model::Falla& falla)
{
    std::string motivo(model::DescripcionFalla(falla.numero));
    return falla.nota.empty() ? motivo : motivo.append(". ").append(falla.nota);
}

/// Reads one file; returns why it can't be taken, empty where it is.
std::string LeeUna(Observacion& o, const std::string& ruta,
                   const std::function<std::string(const std::string& ruta)>& lee)
{
    std::string motivo;
    if (ruta.empty()) return "no es el nombre de una serie";
    model::Sentencia(
        [&] {
            LecturaDeSerie lectura = LeeSerie(lee(ruta), o.magnitud);
            o.puntos = std::move(lectura.puntos);
            if (!lectura.motivo.empty())
                motivo = "renglón " + std::to_string(lectura.renglon) + ": " + lectura.motivo;
        },
        [&](const model::Falla& falla) { motivo = MotivoDe(falla); });
    return motivo;
}

}  // namespace

LecturaDeSerie LeeSerie(std::string_view bytes, std::string_view magnitud)
{
    const std::string texto = forms::TextoDeBytes(bytes);
    std::string_view resto = texto;
    if (forms::EsVacio(resto.substr(0, resto.find_first_of("\r\n")))) return {{}, 1, "está vacía"};
    const Comienzo comienzo = LeeEncabezado(forms::SacaRenglon(resto), magnitud);
    if (!comienzo.motivo.empty()) return {{}, 1, comienzo.motivo};
    LecturaDeSerie lectura;
    for (lectura.renglon = 2; !resto.empty(); ++lectura.renglon) {
        const std::string_view renglon = forms::SacaRenglon(resto);
        if (forms::EsVacio(renglon)) continue;
        if (std::string motivo = Toma(renglon, lectura.puntos); !motivo.empty())
            return {{}, lectura.renglon, std::move(motivo)};
    }
    const int ultimo = lectura.renglon - 1;
    if (comienzo.cuantos && (*comienzo.cuantos != lectura.puntos.size() || !texto.ends_with('\n')))
        return {{},
                ultimo,
                "hay " + std::to_string(lectura.puntos.size()) + " valores enteros y el encabezado dice " +
                    std::to_string(*comienzo.cuantos) + ": está cortada"};
    if (lectura.puntos.empty()) return {{}, ultimo, "no tiene valores"};
    lectura.renglon = 0;
    return lectura;
}

std::string EscribeSerie(const Observacion& observacion)
{
    std::string texto = std::string(Minutos) + " [min];" + std::string(Encabezado(observacion.magnitud)) +
                        ';' + std::to_string(observacion.puntos.size()) + std::string(Valores) + '\n';
    for (const Punto& p : observacion.puntos)
        texto.append(Exacto(p.minuto)).append(";").append(Exacto(p.valor)) += '\n';
    return texto;
}

std::string ReparoDe(const std::vector<Punto>& puntos)
{
    if (puntos.size() > MaximoDeValores) return "la serie pasa de un millón de valores";
    for (std::size_t i = 0; i < puntos.size(); ++i) {
        const auto reparo = [i](std::string_view que) {
            return "valor " + std::to_string(i + 1) + ": " + std::string(que);
        };
        if (!std::isfinite(puntos[i].minuto)) return reparo("los minutos no son un número");
        if (!std::isfinite(puntos[i].valor)) return reparo("no es un número");
        if (i > 0 && puntos[i].minuto <= puntos[i - 1].minuto)
            return reparo("el tiempo no es posterior al anterior");
    }
    return {};
}

std::string ReparoDe(const Ajuste& ajuste)
{
    std::string reparo;
    PorCada(ajuste, [&](const Evento& e, const Observacion& o) {
        if (!reparo.empty()) return;
        reparo = ReparoDe(o.puntos);
        if (!reparo.empty()) reparo = "en " + o.componente + " del evento \"" + e.nombre + "\", " + reparo;
    });
    return reparo;
}

std::string RutaDeSerie(std::string_view base, std::string_view archivo)
{
    if (!SirveDeNombre(archivo)) return {};
    return std::string(base).append(ComienzoSerie).append(archivo).append(TerminacionSerie);
}

std::string BaseDeSeries(std::string_view ruta)
{
    for (const std::string_view fin : {TerminacionJson, TerminacionEstudio})
        if (ruta.ends_with(fin)) ruta.remove_suffix(fin.size());
    return std::string(ruta);
}

std::vector<SerieDanada> LeeSeries(Ajuste& ajuste, std::string_view base,
                                   const std::function<std::string(const std::string& ruta)>& lee)
{
    std::vector<SerieDanada> danadas;
    PorCada(ajuste, [&](const Evento& e, Observacion& o) {
        if (o.archivo.empty()) return;
        const std::string ruta = RutaDeSerie(base, o.archivo), motivo = LeeUna(o, ruta, lee);
        if (motivo.empty()) return;
        const std::string_view nombre = ruta.empty() ? std::string_view(o.archivo) : std::string_view(ruta);
        danadas.push_back({o.archivo, "La serie " +
                                          std::string(nombre.substr(nombre.find_last_of("/\\") + 1)) +
                                          ", de " + o.componente + " en el evento \"" + e.nombre +
                                          "\", no se puede leer: " + motivo + "."});
    });
    return danadas;
}

std::map<std::string, std::string> EscribeSeries(const Ajuste& ajuste)
{
    std::map<std::string, std::string> textos;
    PorCada(ajuste, [&](const Evento& /*e*/, const Observacion& o) {
        if (!o.puntos.empty()) textos[o.archivo] = EscribeSerie(o);
    });
    return textos;
}

std::size_t CuentaDeValores(const Ajuste& ajuste)
{
    std::size_t cuantos = 0;
    PorCada(ajuste, [&](const Evento& /*e*/, const Observacion& o) { cuantos += o.puntos.size(); });
    return cuantos;
}

const SerieDanada* DanadaDe(const std::vector<SerieDanada>& danadas, const std::string& archivo)
{
    const auto hallada = std::find_if(danadas.begin(), danadas.end(),
                                      [&](const SerieDanada& d) { return d.archivo == archivo; });
    return hallada == danadas.end() ? nullptr : &*hallada;
}

void NombraSeries(Ajuste& ajuste, const std::vector<SerieDanada>& danadas,
                  const std::function<bool(const std::string& archivo)>& libre)
{
    std::set<std::string> dados, pedidos;
    const auto sirve = [&](const std::string& nombre) {
        return SirveDeNombre(nombre) && !dados.contains(nombre) && !DanadaDe(danadas, nombre) &&
               libre(nombre);
    };
    PorCada(ajuste, [&](const Evento& /*e*/, const Observacion& o) { pedidos.insert(o.archivo); });
    PorCada(ajuste, [&](const Evento& /*e*/, Observacion& o) {
        if (o.puntos.empty()) {
            if (!DanadaDe(danadas, o.archivo)) o.archivo.clear();
            return;
        }
        if (!sirve(o.archivo)) {
            int n = 1;
            while (pedidos.contains(std::to_string(n)) || !sirve(std::to_string(n)))
                ++n;
            o.archivo = std::to_string(n);
        }
        dados.insert(o.archivo);
    });
}

}  // namespace study
