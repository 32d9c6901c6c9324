// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/EscribeCalibracion.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "calibration/Diagnostico.h"
#include "calibration/Puntajes.h"
#include "checks/Json.h"
#include "model/Numeros.h"
#include "model/Texto.h"

namespace calibration {
namespace {

using checks::Citado;

constexpr std::size_t AnchoNombre = 34, AnchoNumero = 12;

std::string EnJson(double x)
{
    return std::isfinite(x) ? model::NumeroATexto(x) : "null";
}

std::string EnJson(const std::optional<double>& x)
{
    return x ? EnJson(*x) : "null";
}

std::string EnCsv(const std::optional<double>& x)
{
    return x && std::isfinite(*x) ? model::NumeroATexto(*x) : "";
}

/// Seven digits.
std::string Corto(const std::optional<double>& x)
{
    return x && std::isfinite(*x) ? model::NumeroATexto(static_cast<float>(*x)) : "-";
}

std::string Derecha(const std::string& texto)
{
    const std::size_t largo = model::CuentaCaracteres(texto);
    return std::string(largo < AnchoNumero ? AnchoNumero - largo : 1, ' ') + texto;
}

std::string EnCampo(const std::string& texto)
{
    return texto.find(',') == std::string::npos ? texto : '"' + texto + '"';
}

template <typename T>
std::string Lista(const std::vector<T>& cosas, auto&& enJson)
{
    std::string t = "[";
    for (std::size_t i = 0; i < cosas.size(); ++i)
        t += (i > 0 ? ", " : "") + enJson(cosas[i]);
    return t + "]";
}

std::string ListaDeNumeros(const std::vector<double>& x)
{
    return Lista(x, [](double uno) { return EnJson(uno); });
}

std::string JsonDeHallado(const Hallado& h)
{
    return "\n    {\"clave\": " + Citado(h.clave) + ", \"nombre\": " + Citado(h.nombre) +
           ", \"unidad\": " + Citado(h.unidad) + ", \"minimo\": " + EnJson(h.minimo) +
           ", \"maximo\": " + EnJson(h.maximo) + ", \"antes\": " + EnJson(h.antes) +
           ", \"mejor\": " + EnJson(h.mejor) + ", \"cerca_minimo\": " + EnJson(h.cercaMinimo) +
           ", \"cerca_maximo\": " + EnJson(h.cercaMaximo) + ", \"parte\": " + EnJson(h.parte) +
           ", \"borde\": " + std::to_string(h.borde) +
           ", \"sin_efecto\": " + (h.sinEfecto ? "true" : "false") +
           ", \"identificable\": " + (h.identificable ? "true" : "false") + "}";
}

std::string JsonDeSitio(const PuntajeDeSitio& s)
{
    return "\n    {\"evento\": " + Citado(s.evento) + ", \"componente\": " + Citado(s.componente) +
           ", \"papel\": " + Citado(s.papel) + ", \"peso\": " + EnJson(s.peso) +
           ", \"antes\": " + EnJson(s.antes) + ", \"despues\": " + EnJson(s.despues) +
           ", \"palabras\": " + Citado(s.palabras) + ", \"pares\": " + Citado(s.pares) + "}";
}

std::string_view ClaveDelFin(FinDeBusqueda fin)
{
    constexpr std::array<std::string_view, 3> Claves{"presupuesto", "converge", "cancelada"};
    return Claves.at(static_cast<std::size_t>(fin));
}

}  // namespace

std::string TextoDe(const PedidoDeCalibracion& p, const Calibrado& c)
{
    const Puntaje& puntaje = *PuntajeDe(p.como.puntaje);
    std::string t = "Calibración por " + std::string(MetodoDeBusquedaDe(p.como.metodo)->nombre) +
                    ", semilla " + std::to_string(p.como.semilla) + "\n";
    t += "  " + std::string(puntaje.nombre) + ": " + Texto(puntaje, c.Puntaje());
    t += c.antes ? "; con los valores de la red, " + Texto(puntaje, c.antes) + "\n\n" : "\n\n";
    t += model::AjustaIzquierda("  Parámetro", AnchoNombre);
    for (const char* titulo : {"antes", "mejor", "cerca, de", "a"})
        t += Derecha(titulo);
    t += "\n";
    for (std::size_t i = 0; i < c.parametros.size(); ++i) {
        const Hallado& h = c.parametros[i];
        const std::string aviso = AvisoDe(c, i);
        t += model::AjustaIzquierda("  " + h.nombre, AnchoNombre) + Derecha(Corto(h.antes)) +
             Derecha(Corto(h.mejor)) + Derecha(Corto(h.cercaMinimo)) + Derecha(Corto(h.cercaMaximo)) + "  " +
             h.unidad + (aviso.empty() ? "" : "; " + aviso) + "\n";
    }
    t += "\n";
    for (const PuntajeDeSitio& s : c.sitios) {
        t += "  " + s.evento + ", " + s.componente + (s.papel == "valida" ? " (validación)" : "") + ": " +
             Texto(puntaje, s.despues) + "; antes, " + Texto(puntaje, s.antes);
        t += s.palabras.empty() ? "\n" : "; " + s.palabras + "\n";
    }
    t += "\n";
    for (const std::string& dicho : c.dichos)
        t += "  " + dicho + "\n";
    return t;
}

std::string JsonDe(const PedidoDeCalibracion& p, const Calibrado& c)
{
    const auto citado = [](const std::string& texto) { return Citado(texto); };
    const auto& parametros = c.parametros;
    std::string t =
        "{\"metodo\": " + Citado(p.como.metodo) + ", \"puntaje\": " + Citado(p.como.puntaje) +
        ", \"semilla\": " + std::to_string(p.como.semilla) +
        ", \"presupuesto\": " + std::to_string(p.como.corridas) +
        ", \"corridas\": " + std::to_string(c.corridas.size()) + ", \"fin\": " + Citado(ClaveDelFin(c.fin)) +
        ",\n  \"objetivo\": " + EnJson(c.Puntaje()) + ", \"objetivo_antes\": " + EnJson(c.antes) +
        ", \"validacion\": " + EnJson(c.validacion) + ", \"validacion_antes\": " + EnJson(c.validacionAntes) +
        ",\n  \"fallidas\": " + std::to_string(c.fallidas) + ", \"motivos\": " + Lista(c.motivos, citado);
    t += ",\n  \"parametros\": " + Lista(parametros, JsonDeHallado);
    t += ",\n  \"sitios\": " + Lista(c.sitios, JsonDeSitio);
    t += ",\n  \"atados\": " + Lista(c.atados, [&](const Atados& a) {
             return "{\"a\": " + Citado(parametros[a.a].clave) + ", \"b\": " + Citado(parametros[a.b].clave) +
                    ", \"r\": " + EnJson(a.r) + "}";
         });
    t += ",\n  \"correlacion\": " + Lista(c.correlacion, ListaDeNumeros);
    t += ",\n  \"cuantos_cercanos\": " + std::to_string(c.cuantosCercanos);
    t += ",\n  \"cercanos\": " + Lista(c.cercanos, [](const study::Juego& j) {
             return "\n    {\"valores\": " + ListaDeNumeros(j.valores) +
                    ", \"puntaje\": " + EnJson(j.puntaje) + "}";
         });
    return t + ",\n  \"dichos\": " + Lista(c.dichos, citado) + "}\n";
}

std::string CsvDe(const Calibrado& c)
{
    std::string t = "parametro,unidad,minimo,maximo,antes,mejor,cerca_minimo,cerca_maximo,aviso\n";
    for (std::size_t i = 0; i < c.parametros.size(); ++i) {
        const Hallado& h = c.parametros[i];
        t += EnCampo(h.clave) + "," + h.unidad;
        for (const auto& x :
             {std::optional(h.minimo), std::optional(h.maximo), h.antes, std::optional(h.mejor),
              std::optional(h.cercaMinimo), std::optional(h.cercaMaximo)})
            t += "," + EnCsv(x);
        t += "," + EnCampo(AvisoDe(c, i)) + "\n";
    }
    return t;
}

std::string CsvDeCorridas(const Calibrado& c)
{
    std::string t = "corrida";
    for (const Hallado& h : c.parametros)
        t += "," + EnCampo(h.clave);
    t += ",puntaje\n";
    std::size_t n = 0;
    for (const CorridaHecha& corrida : c.corridas) {
        t += std::to_string(++n);
        for (const double x : corrida.valores)
            t += "," + EnCsv(x);
        t += "," + EnCsv(corrida.puntaje) + "\n";
    }
    return t;
}

}  // namespace calibration
