// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Diagnostico.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <string>
#include <utility>

#include "calibration/Juicio.h"
#include "model/Numeros.h"
#include "runs/Campos.h"

namespace calibration {
namespace {

constexpr double MuchoDelRango = 0.2, Juntos = 0.95, JuntoAlBorde = 0.005;
constexpr std::size_t MasCercanos = 200, MenosParaCorrelacion = 20;

/// The distinct sets near the best one, the best first, by their evaluations.
std::vector<std::size_t> CercaDelMejor(const Busqueda& b, const Calibrado& c, double cercania)
{
    const double tope = b.evaluaciones[c.cualEsMejor].costo + cercania;
    std::vector<std::size_t> cerca;
    for (std::size_t i = 0; i < b.evaluaciones.size(); ++i)
        if (b.evaluaciones[i].costo <= tope) cerca.push_back(i);
    std::stable_sort(cerca.begin(), cerca.end(), [&](std::size_t i, std::size_t k) {
        return b.evaluaciones[i].costo < b.evaluaciones[k].costo;
    });
    std::set<std::vector<double>> vistos;
    std::erase_if(cerca, [&](std::size_t i) { return !vistos.insert(c.corridas[i].valores).second; });
    return cerca;
}

/// The best one, and others evenly from there to the last one: the study keeps the spread of all.
void PonCercanos(const std::vector<std::size_t>& cerca, Calibrado& c)
{
    c.cuantosCercanos = cerca.size();
    const std::size_t n = std::min(cerca.size(), MasCercanos);
    for (std::size_t k = 0; k < n; ++k) {
        const CorridaHecha& corrida = c.corridas[cerca[k * cerca.size() / n]];
        c.cercanos.push_back({corrida.valores, corrida.puntaje});
    }
}

Hallado HalladoDe(const PedidoDeCalibracion& pedido, std::size_t i, const std::vector<std::size_t>& cerca,
                  const Calibrado& c)
{
    const study::Parametro& p = pedido.modelo.parametros[i];
    Hallado h{.nombre = runs::NombreDe(p),
              .clave = runs::ClaveDe(p),
              .unidad = std::string(runs::UnidadDe(p)),
              .minimo = p.minimo,
              .maximo = p.maximo,
              .antes = ValorDeLaRed(p, pedido.modelo),
              .mejor = c.Mejor()[i],
              .cercaMinimo = c.Mejor()[i],
              .cercaMaximo = c.Mejor()[i]};
    for (const std::size_t k : cerca) {
        h.cercaMinimo = std::min(h.cercaMinimo, c.corridas[k].valores[i]);
        h.cercaMaximo = std::max(h.cercaMaximo, c.corridas[k].valores[i]);
    }
    h.parte = LugarEnRango(p, h.cercaMaximo) - LugarEnRango(p, h.cercaMinimo);
    const double lugar = LugarEnRango(p, h.mejor);
    h.borde = lugar < JuntoAlBorde ? -1 : lugar > 1 - JuntoAlBorde ? 1 : 0;
    h.identificable = h.parte < MuchoDelRango;
    return h;
}

/// Whether the probes of a parameter all cost what the best set does.
bool SinEfecto(const std::vector<double>& sondas, std::size_t i, double mejor)
{
    if (sondas.empty()) return false;
    const auto desde = sondas.begin() + static_cast<std::ptrdiff_t>(i * SondasPorParametro);
    return std::all_of(desde, desde + SondasPorParametro, [&](double costo) { return costo == mejor; });
}

/// Pearson's coefficient; 0 where one of them stands still.
double Correlacion(const std::vector<double>& x, const std::vector<double>& y)
{
    const auto n = static_cast<double>(x.size());
    double mx = 0, my = 0, sxx = 0, syy = 0, sxy = 0;
    for (std::size_t k = 0; k < x.size(); ++k) {
        mx += x[k] / n;
        my += y[k] / n;
    }
    for (std::size_t k = 0; k < x.size(); ++k) {
        sxx += (x[k] - mx) * (x[k] - mx);
        syy += (y[k] - my) * (y[k] - my);
        sxy += (x[k] - mx) * (y[k] - my);
    }
    return sxx > 0 && syy > 0 ? sxy / std::sqrt(sxx * syy) : 0;
}

void PonCorrelaciones(const Busqueda& b, const std::vector<std::size_t>& cerca, Calibrado& c)
{
    const std::size_t n = c.parametros.size();
    c.correlacion.assign(n, std::vector<double>(n));
    if (cerca.size() < MenosParaCorrelacion) return;
    std::vector<std::vector<double>> lugares(n);
    for (const std::size_t k : cerca)
        for (std::size_t i = 0; i < n; ++i)
            lugares[i].push_back(b.evaluaciones[k].punto[i]);
    for (std::size_t i = 0; i < n; ++i) {
        c.correlacion[i][i] = 1;
        for (std::size_t k = 0; k < i; ++k) {
            const double r = Correlacion(lugares[i], lugares[k]);
            c.correlacion[i][k] = c.correlacion[k][i] = r;
            if (std::abs(r) > Juntos && !c.parametros[i].sinEfecto && !c.parametros[k].sinEfecto)
                c.atados.push_back({k, i, r});
        }
    }
}

// --- sentences ---

std::string DichoDelFin(const Calibrado& c)
{
    const std::string n = std::to_string(c.corridas.size());
    if (c.fin == FinDeBusqueda::Cancelada)
        return "La búsqueda se interrumpió a las " + n + " corridas; queda el mejor conjunto hasta ahí.";
    if (c.fin == FinDeBusqueda::Converge) return "La búsqueda convergió a las " + n + " corridas.";
    return "La búsqueda gastó las " + n + " corridas de su presupuesto.";
}

void DiceDeParametros(Calibrado& c)
{
    for (const Hallado& h : c.parametros) {
        if (h.sinEfecto) {
            c.dichos.push_back(h.nombre + " no tiene ningún efecto sobre el puntaje en todo su rango.");
            continue;
        }
        if (!h.identificable)
            c.dichos.push_back(h.nombre + " no es identificable: valores de " +
                               EnCuatroCifras(h.cercaMinimo) + " a " + EnCuatroCifras(h.cercaMaximo) +
                               " dan puntajes casi iguales.");
        if (h.borde != 0)
            c.dichos.push_back("El mejor valor de " + h.nombre + " está en el " +
                               (h.borde < 0 ? "mínimo" : "máximo") +
                               " de su rango: puede que el bueno esté fuera.");
    }
    for (const Atados& a : c.atados)
        c.dichos.push_back(c.parametros[a.a].nombre + " y " + c.parametros[a.b].nombre +
                           " se mueven juntos (r = " + EnCuatroCifras(std::round(a.r * 100) / 100) +
                           "): sólo se identifica una combinación de los dos; conviene dejar uno fijo.");
}

void DiceDePuntajes(const PedidoDeCalibracion& pedido, const Busqueda& b, Calibrado& c)
{
    const Puntaje& puntaje = *PuntajeDe(pedido.como.puntaje);
    if (!std::isfinite(c.Puntaje())) {
        c.dichos.emplace_back("Ninguna corrida dio un puntaje.");
        return;
    }
    c.dichos.push_back(std::to_string(c.cuantosCercanos) +
                       (c.cuantosCercanos == 1 ? " conjunto queda" : " conjuntos quedan") + " a " +
                       EnCuatroCifras(pedido.como.cercania) + " o menos del mejor puntaje.");
    if (c.antes && PuntajeDeCosto(puntaje, b.evaluaciones[c.cualEsMejor].costo) != *c.antes &&
        (puntaje.masEsMejor ? *c.antes > c.Puntaje() : *c.antes < c.Puntaje()))
        c.dichos.push_back("Los valores de la red puntúan mejor, " + Texto(puntaje, c.antes) +
                           ": están fuera de los rangos, o faltan corridas.");
    if (c.validacion)
        c.dichos.push_back("En los eventos de validación el puntaje es " + Texto(puntaje, c.validacion) +
                           "; en los de calibración, " + Texto(puntaje, c.Puntaje()) + ".");
    if (c.fallidas > 0)
        c.dichos.push_back((c.fallidas == 1 ? "1 corrida no dio puntaje y cuenta como la peor."
                                            : std::to_string(c.fallidas) +
                                                  " corridas no dieron puntaje y cuentan como las peores.") +
                           (c.motivos.empty() ? std::string{} : " " + c.motivos.front()));
}

}  // namespace

std::string EnCuatroCifras(double x)
{
    if (x == 0 || !std::isfinite(x)) return model::NumeroATexto(x);
    const double orden = std::pow(10, 3 - std::floor(std::log10(std::abs(x))));
    return model::NumeroATexto(static_cast<float>(std::round(x * orden) / orden));
}

std::string AvisoDe(const Calibrado& c, std::size_t i)
{
    const Hallado& h = c.parametros[i];
    if (h.sinEfecto) return "sin efecto";
    std::string aviso = h.identificable ? "" : "no identificable";
    const auto agrega = [&](const std::string& texto) { aviso += (aviso.empty() ? "" : ", ") + texto; };
    if (h.borde != 0) agrega(h.borde < 0 ? "en su mínimo" : "en su máximo");
    for (const Atados& a : c.atados)
        if (a.a == i || a.b == i) agrega("se mueve con " + c.parametros[a.a == i ? a.b : a.a].nombre);
    return aviso;
}

double ValorDe(const study::Parametro& p, double lugar)
{
    if (lugar <= 0) return p.minimo;
    if (lugar >= 1) return p.maximo;
    return p.logaritmica ? p.minimo * std::pow(p.maximo / p.minimo, lugar)
                         : p.minimo + (p.maximo - p.minimo) * lugar;
}

double LugarEnRango(const study::Parametro& p, double valor)
{
    return p.logaritmica ? std::log(valor / p.minimo) / std::log(p.maximo / p.minimo)
                         : (valor - p.minimo) / (p.maximo - p.minimo);
}

std::optional<double> ValorDeLaRed(const study::Parametro& p, const runs::Modelo& modelo)
{
    if (p.modo == "factor") return 1;
    if (p.modo == "suma") return 0;
    std::optional<double> valor;
    for (const runs::Lluvia& lluvia : modelo.lluvias)
        for (const double x : runs::Resuelve(p, modelo.red, lluvia.tormenta).actual) {
            if (valor && *valor != x) return {};
            valor = x;
        }
    return valor;
}

void Diagnostica(const PedidoDeCalibracion& pedido, const Busqueda& b, const std::vector<double>& sondas,
                 Calibrado& c)
{
    const double mejor = b.evaluaciones[c.cualEsMejor].costo;
    const auto cerca =
        std::isfinite(mejor) ? CercaDelMejor(b, c, pedido.como.cercania) : std::vector<std::size_t>{};
    PonCercanos(cerca, c);
    for (std::size_t i = 0; i < pedido.modelo.parametros.size(); ++i) {
        c.parametros.push_back(HalladoDe(pedido, i, cerca, c));
        Hallado& h = c.parametros.back();
        h.sinEfecto = std::isfinite(mejor) && SinEfecto(sondas, i, mejor);
        h.identificable = h.identificable && !h.sinEfecto;
        if (h.sinEfecto) h.borde = 0;
    }
    PonCorrelaciones(b, cerca, c);
    c.dichos.push_back(DichoDelFin(c));
    DiceDePuntajes(pedido, b, c);
    if (std::isfinite(mejor)) DiceDeParametros(c);
}

}  // namespace calibration
