// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the second step proposes, and what it takes out of a spreadsheet.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "calibration/taller/AjusteParametros.h"
#include "forms/CampoNumerico.h"
#include "forms/ReglasGrilla.h"
#include "model/Avisos.h"
#include "runs/Sorteos.h"

namespace calibration {

using study::Parametro;

namespace {

constexpr double Veces = 3, Factor = 2;  ///< how far from the present value, to either side
constexpr double DeExponente = 1.5;      ///< the same of an exponent, which a little changes much
constexpr double Metros = 1;             ///< of a height
constexpr double DesdeCero = 10;         ///< top of what is 0 now and has no bound of its own

constexpr std::string_view Exponente = "kostiakov_b";

struct Rango {
    double minimo = 0, maximo = 1;
};

double Redondo(double x, double (*entero)(double))
{
    constexpr int Digitos = 3;
    if (x == 0 || !std::isfinite(x)) return x;
    const int decimales = Digitos - 1 - static_cast<int>(std::floor(std::log10(std::fabs(x))));
    const double escala = std::pow(10, std::abs(decimales));
    return decimales >= 0 ? entero(x * escala) / escala : entero(x / escala) * escala;
}

Rango PorValor(const runs::Campo& c, double menor, double mayor)
{
    if (c.unidad == "m" && (c.clase == 'r' || c.clase == 'l')) return {menor - Metros, mayor + Metros};
    const double veces = c.clave == Exponente ? DeExponente : Veces;
    if (menor > 0) return {menor / veces, mayor * veces};
    return {c.minimo, mayor > 0 ? mayor * Veces : std::min(c.maximo, DesdeCero)};
}

/// What a factor may be so that no value leaves the bounds of its field.
Rango PorFactor(const runs::Campo& c, double menor, double mayor)
{
    const double factor = c.clave == Exponente ? DeExponente : Factor;
    Rango r{1 / factor, factor};
    if (mayor > 0) r.maximo = std::min(r.maximo, c.maximo / mayor);
    if (menor > 0) r.minimo = std::max(r.minimo, c.minimo / menor);
    return r;
}

Rango PorSuma(const runs::Campo& c, double menor, double mayor)
{
    constexpr double Parte = 0.5;
    const bool altura = c.unidad == "m" && (c.clase == 'r' || c.clase == 'l');
    const double cuanto = altura ? Metros : mayor > 0 ? mayor * Parte : std::min(c.maximo, DesdeCero);
    return {std::max(-cuanto, c.minimo - menor), std::min(cuanto, c.maximo - mayor)};
}

}  // namespace

double Redondo(double x)
{
    return Redondo(x, [](double y) { return std::round(y); });
}

void ProponRango(Parametro& p, const dlgAjuste& f)
{
    const runs::Movido m = runs::Resuelve(p, ProyectoDe(f).Red, ProyectoDe(f).Tormenta);
    if (m.campo == nullptr || m.actual.empty()) return;
    const auto [a, b] = std::minmax_element(m.actual.begin(), m.actual.end());
    const double menor = *a, mayor = *b;
    Rango r = p.modo == "factor" ? PorFactor(*m.campo, menor, mayor)
              : p.modo == "suma" ? PorSuma(*m.campo, menor, mayor)
                                 : PorValor(*m.campo, menor, mayor);
    if (p.modo == "valor") r = {std::max(r.minimo, m.campo->minimo), std::min(r.maximo, m.campo->maximo)};
    p.minimo = Redondo(r.minimo);
    p.maximo = Redondo(r.maximo);
    // Rounding must not leave the bounds.
    if (runs::Movida(p.modo, menor, p.minimo) < m.campo->minimo)
        p.minimo = Redondo(r.minimo, [](double x) { return std::ceil(x); });
    if (runs::Movida(p.modo, mayor, p.maximo) > m.campo->maximo)
        p.maximo = Redondo(r.maximo, [](double x) { return std::floor(x); });
    p.logaritmica = p.minimo > 0 && p.maximo > 2 * p.minimo && m.campo->clave != Exponente;
    p.centro.reset();
    p.dispersion.reset();
}

std::vector<Parametro> Propuestos(const dlgAjuste& f)
{
    std::vector<Parametro> todos;
    bool conBase = false;
    for (const model::UEH& u : ProyectoDe(f).Red.ColUEHs)
        conBase = conBase || u.Q0Recesion > 0;
    const auto propon = [&](std::string_view campo) {
        Parametro p{.campo = std::string(campo)};
        const runs::Movido m = runs::Resuelve(p, ProyectoDe(f).Red, ProyectoDe(f).Tormenta);
        if (!m.motivo.empty()) return;
        const auto [menor, mayor] = std::minmax_element(m.actual.begin(), m.actual.end());
        const bool recesion = campo == "q0_recesion" || campo == "k_recesion";
        if (recesion && !(conBase && *mayor > 0)) return;
        // What differs from unit to unit keeps its proportions; a 0 would stay one.
        if (*menor != *mayor) p.modo = *menor > 0 || recesion ? "factor" : "suma";
        ProponRango(p, f);
        if (p.minimo < p.maximo) todos.push_back(std::move(p));
    };
    for (const std::string_view campo :
         {"kostiakov_a", "kostiakov_b", "retencion_z", "velocidad_media", "q0_recesion", "k_recesion"})
        propon(campo);
    return todos;
}

namespace {

/// A row of a block as a parameter; what is wrong with it, where it can't be one.
std::string LeeFila(const std::vector<std::string_view>& celdas, Parametro& p)
{
    const auto celda = [&](std::size_t i) {
        return i < celdas.size() ? forms::SinBlancos(celdas[i]) : std::string_view{};
    };
    const auto numero = [&](std::size_t i) { return forms::NumeroDeCampo(celda(i)); };
    p.componentes = celda(0);
    const char clase = p.componentes == runs::LaTormenta ? 't'
                       : p.componentes.empty()           ? ' '
                                                         : p.componentes[0];
    const std::span<const runs::Campo> todos = runs::Campos();
    const auto campo = std::find_if(todos.begin(), todos.end(), [&](const runs::Campo& c) {
        return c.clase == clase && (c.clave == celda(1) || c.nombre == celda(1));
    });
    if (campo == todos.end()) return "no tiene un campo que se llame «" + std::string(celda(1)) + "»";
    p.campo = campo->clave;
    const std::string modo(celda(2));
    p.modo = modo == "Factor" || modo == "factor" ? "factor"
             : modo == "Suma" || modo == "suma"   ? "suma"
                                                  : "valor";
    if (!numero(3) || !numero(4)) return "le falta el mínimo o el máximo";
    p.minimo = *numero(3);
    p.maximo = *numero(4);
    p.activo = celda(5) != "no";
    p.logaritmica = celda(6).starts_with("log");
    for (const runs::Distribucion& d : runs::Distribuciones())
        if (celda(7) == d.clave || celda(7) == d.nombre) p.distribucion = d.clave;
    p.centro = numero(8);
    p.dispersion = numero(9);
    const auto valores = ValoresDe(celda(10));
    if (!valores) return "tiene valores que no lo son";
    p.valores = *valores;
    return {};
}

}  // namespace

std::optional<std::vector<study::ValorPosible>> ValoresDe(std::string_view texto)
{
    std::vector<study::ValorPosible> valores;
    for (const std::string_view pedazo : forms::Pedazos(texto, ';')) {
        const std::string_view uno = forms::SinBlancos(pedazo);
        if (uno.empty()) continue;
        const std::size_t dos = uno.find(':');
        const auto valor = forms::NumeroDeCampo(uno.substr(0, dos));
        const auto peso =
            dos == std::string_view::npos ? std::optional(1.0) : forms::NumeroDeCampo(uno.substr(dos + 1));
        if (!valor || !peso || *peso < 0) return {};
        valores.push_back({*valor, *peso});
    }
    return valores;
}

void cmdPegar(AjusteParametros& m, dlgAjuste& f, std::string_view bloque)
{
    std::vector<Parametro> nuevos;
    std::size_t renglon = 0;
    for (const std::string_view fila : forms::Pedazos(bloque, '\n')) {
        ++renglon;
        const std::vector<std::string_view> celdas = forms::Pedazos(fila, '\t');
        if (forms::SinBlancos(fila).empty() || forms::SinBlancos(celdas[0]) == "Componentes") continue;
        if (celdas.size() < 2 && nuevos.empty()) continue;  // titles
        Parametro p;
        if (const std::string reparo = LeeFila(celdas, p); !reparo.empty())
            return model::Advierte(f.s,
                                   "No se pegó nada: el renglón " + std::to_string(renglon) + " " + reparo +
                                       ". Las columnas son las de esta tabla: componentes, campo, modo, "
                                       "mínimo, máximo, participa, escala, distribución, centro, desvío.");
        nuevos.push_back(std::move(p));
    }
    if (nuevos.empty()) return model::Advierte(f.s, "En el portapapeles no hay parámetros.");
    const std::size_t antes = AjusteDe(f).parametros.size();
    Cambia(f, "Pegar parámetros",
           [&](study::Ajuste& a) { a.parametros.insert(a.parametros.end(), nuevos.begin(), nuevos.end()); });
    m.enMano = static_cast<int>(antes);
    Toma(m, f);
}

}  // namespace calibration
