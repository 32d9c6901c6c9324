// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibration/Sensibilidad.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <numeric>
#include <utility>

#include "calibration/SucesionDeSobol.h"
#include "study/Philox.h"

namespace calibration {

double EnRango(const Rango& r, double parte)
{
    if (parte <= 0) return r.minimo;
    if (parte >= 1) return r.maximo;
    return r.logaritmica ? r.minimo * std::pow(r.maximo / r.minimo, parte)
                         : r.minimo + (r.maximo - r.minimo) * parte;
}

namespace {

using study::Sensibilidad;
using Filas = std::vector<std::vector<double>>;

constexpr double NoHay = std::numeric_limits<double>::quiet_NaN();

// --- one at a time ---

/// Point 0: all as they are; then each at its minimum and at its maximum.
Plan PlanDeTornado(const std::vector<Rango>& rangos, const Sensibilidad& /*s*/)
{
    return {2 * rangos.size() + 1, [rangos](std::size_t k) {
                std::vector<double> punto;
                for (const Rango& r : rangos)
                    punto.push_back(r.actual);
                if (k > 0) {
                    const Rango& r = rangos[(k - 1) / 2];
                    punto[(k - 1) / 2] = k % 2 == 1 ? r.minimo : r.maximo;
                }
                return punto;
            }};
}

Filas BarrasDeTornado(std::size_t parametros, const Sensibilidad& /*s*/, std::span<const double> valores)
{
    Filas filas;
    for (std::size_t i = 0; i < parametros; ++i) {
        const double enMinimo = valores[2 * i + 1], enMaximo = valores[2 * i + 2];
        filas.push_back({enMinimo, enMaximo, std::abs(enMaximo - enMinimo)});
    }
    return filas;
}

std::string SinReparo(const Sensibilidad& /*s*/)
{
    return {};
}

// --- Morris ---

/// A walk through the grid that changes each parameter once, by half of its levels.
struct Trayectoria {
    std::vector<std::size_t> orden{};   ///< which parameter changes at each step
    std::vector<int> desde{}, hasta{};  ///< levels of each, before and after its change
};

Trayectoria TrayectoriaDe(std::size_t parametros, const Sensibilidad& s, std::size_t cual)
{
    study::Sorteo sorteo(s.semilla, cual);
    const auto menorQue = [&sorteo](std::size_t n) {
        return static_cast<std::size_t>(sorteo.Uniforme() * static_cast<double>(n));
    };
    const int salto = s.niveles / 2;
    Trayectoria t;
    for (std::size_t i = 0; i < parametros; ++i) {
        int bajo = static_cast<int>(menorQue(static_cast<std::size_t>(salto))), alto = bajo + salto;
        if (menorQue(2) == 1) std::swap(bajo, alto);
        t.desde.push_back(bajo);
        t.hasta.push_back(alto);
    }
    t.orden.resize(parametros);
    std::iota(t.orden.begin(), t.orden.end(), std::size_t{0});
    for (std::size_t i = parametros; i > 1; --i)
        std::swap(t.orden[i - 1], t.orden[menorQue(i)]);
    return t;
}

/// A trajectory after another, each of a point more than there are parameters.
Plan PlanDeMorris(const std::vector<Rango>& rangos, const Sensibilidad& s)
{
    const std::size_t puntos = rangos.size() + 1;
    return {puntos * static_cast<std::size_t>(s.trayectorias), [rangos, s, puntos](std::size_t k) {
                const Trayectoria t = TrayectoriaDe(rangos.size(), s, k / puntos);
                std::vector<int> niveles = t.desde;
                for (std::size_t i = 0; i < k % puntos; ++i)
                    niveles[t.orden[i]] = t.hasta[t.orden[i]];
                std::vector<double> punto;
                for (std::size_t i = 0; i < rangos.size(); ++i)
                    punto.push_back(EnRango(rangos[i], double(niveles[i]) / (s.niveles - 1)));
                return punto;
            }};
}

std::vector<double> MomentosDe(const std::vector<double>& efectos)
{
    const auto n = static_cast<double>(efectos.size());
    if (efectos.empty()) return {NoHay, NoHay, NoHay, 0};
    double mu = 0, absolutos = 0, cuadrados = 0;
    for (const double e : efectos) {
        mu += e / n;
        absolutos += std::abs(e) / n;
    }
    for (const double e : efectos)
        cuadrados += (e - mu) * (e - mu);
    return {absolutos, mu, n > 1 ? std::sqrt(cuadrados / (n - 1)) : NoHay, n};
}

Filas EfectosDeMorris(std::size_t parametros, const Sensibilidad& s, std::span<const double> valores)
{
    const double delta = s.niveles / (2.0 * (s.niveles - 1));
    std::vector<std::vector<double>> efectos(parametros);
    for (std::size_t t = 0; t < static_cast<std::size_t>(s.trayectorias); ++t) {
        const Trayectoria trayectoria = TrayectoriaDe(parametros, s, t);
        const auto suyos = valores.subspan(t * (parametros + 1), parametros + 1);
        for (std::size_t i = 0; i < parametros; ++i) {
            const std::size_t cual = trayectoria.orden[i];
            const double cambio = suyos[i + 1] - suyos[i];
            const bool sube = trayectoria.hasta[cual] > trayectoria.desde[cual];
            if (std::isfinite(cambio)) efectos[cual].push_back((sube ? cambio : -cambio) / delta);
        }
    }
    Filas filas;
    for (const std::vector<double>& suyos : efectos)
        filas.push_back(MomentosDe(suyos));
    return filas;
}

std::string ReparoDeMorris(const Sensibilidad& s)
{
    if (s.trayectorias < 2) return "Las trayectorias de Morris son 2 o más.";
    if (s.niveles < 2 || s.niveles % 2 != 0) return "Los niveles de Morris son un número par, 2 o más.";
    return {};
}

// --- Sobol ---

/// By sample j: A, B, and A with each parameter in turn from B.
Plan PlanDeSobol(const std::vector<Rango>& rangos, const Sensibilidad& s)
{
    const std::size_t d = rangos.size();
    const auto sucesion = std::make_shared<const SucesionDeSobol>(2 * d, s.semilla);
    return {(d + 2) * static_cast<std::size_t>(s.base), [rangos, sucesion, d](std::size_t k) {
                const auto muestra = static_cast<std::uint32_t>(k / (d + 2));
                const std::size_t cual = k % (d + 2);
                std::vector<double> punto;
                for (std::size_t i = 0; i < d; ++i) {
                    const bool deB = cual == 1 || cual == i + 2;
                    punto.push_back(EnRango(rangos[i], (*sucesion)(muestra, deB ? d + i : i)));
                }
                return punto;
            }};
}

/// Numbers of the samples that are whole, less their mean: A, B, and A with each parameter from B.
struct Muestras {
    std::vector<double> A{}, B{};
    Filas AB{};  ///< by parameter
};

Muestras MuestrasEnteras(std::size_t d, std::span<const double> valores)
{
    Muestras m;
    m.AB.resize(d);
    double suma = 0;
    for (std::size_t j = 0; j + d + 2 <= valores.size(); j += d + 2) {
        const auto suyos = valores.subspan(j, d + 2);
        if (!std::ranges::all_of(suyos, [](double x) { return std::isfinite(x); })) continue;
        m.A.push_back(suyos[0]);
        m.B.push_back(suyos[1]);
        suma += suyos[0] + suyos[1];
        for (std::size_t i = 0; i < d; ++i)
            m.AB[i].push_back(suyos[i + 2]);
    }
    const double media = m.A.empty() ? 0 : suma / (2 * static_cast<double>(m.A.size()));
    const auto centra = [media](std::vector<double>& lista) {
        for (double& x : lista)
            x -= media;
    };
    centra(m.A);
    centra(m.B);
    std::ranges::for_each(m.AB, centra);
    return m;
}

struct PrimeroYTotal {
    double primero = NoHay, total = NoHay;
};

/// The estimators (b) and (f) of Saltelli and others 2010, table 2, over the samples that `cuales` names.
std::vector<PrimeroYTotal> Estimados(const Muestras& m, const std::vector<std::size_t>& cuales)
{
    const auto n = static_cast<double>(cuales.size());
    double suma = 0, cuadrados = 0;
    for (const std::size_t j : cuales) {
        suma += m.A[j] + m.B[j];
        cuadrados += m.A[j] * m.A[j] + m.B[j] * m.B[j];
    }
    const double media = suma / (2 * n), varianza = cuadrados / (2 * n) - media * media;
    std::vector<PrimeroYTotal> indices(m.AB.size());
    if (!(varianza > 0)) return indices;
    for (std::size_t i = 0; i < indices.size(); ++i) {
        double primero = 0, total = 0;
        for (const std::size_t j : cuales) {
            const double cambio = m.AB[i][j] - m.A[j];
            primero += (m.B[j] - media) * cambio;
            total += cambio * cambio;
        }
        indices[i] = {primero / n / varianza, total / (2 * n) / varianza};
    }
    return indices;
}

/// The quantile of a list, a straight line between its members; NaN of an empty one.
double Cuantil(std::vector<double> lista, double p)
{
    std::erase_if(lista, [](double x) { return !std::isfinite(x); });
    if (lista.empty()) return NoHay;
    std::ranges::sort(lista);
    const double lugar = p * static_cast<double>(lista.size() - 1);
    const auto i = static_cast<std::size_t>(lugar);
    const double siguiente = lista[std::min(i + 1, lista.size() - 1)];
    return lista[i] + (siguiente - lista[i]) * (lugar - static_cast<double>(i));
}

constexpr std::size_t Replicas = 200;
constexpr double Cola = 0.025;
constexpr std::uint64_t DeReplicas = std::uint64_t{1} << 40;  // members of the draw that no trajectory has

Filas IndicesDeSobol(std::size_t parametros, const Sensibilidad& s, std::span<const double> valores)
{
    const Muestras m = MuestrasEnteras(parametros, valores);
    const std::size_t n = m.A.size();
    Filas filas(parametros, std::vector<double>(6, NoHay));
    if (n < 2) return filas;
    std::vector<std::size_t> cuales(n);
    std::iota(cuales.begin(), cuales.end(), std::size_t{0});
    const std::vector<PrimeroYTotal> indices = Estimados(m, cuales);
    Filas primeros(parametros), totales(parametros);
    for (std::size_t r = 0; r < Replicas; ++r) {
        study::Sorteo sorteo(s.semilla, DeReplicas + r);
        for (std::size_t& j : cuales)
            j = static_cast<std::size_t>(sorteo.Uniforme() * static_cast<double>(n));
        const std::vector<PrimeroYTotal> deReplica = Estimados(m, cuales);
        for (std::size_t i = 0; i < parametros; ++i) {
            primeros[i].push_back(deReplica[i].primero);
            totales[i].push_back(deReplica[i].total);
        }
    }
    for (std::size_t i = 0; i < parametros; ++i)
        filas[i] = {indices[i].primero, Cuantil(primeros[i], Cola), Cuantil(primeros[i], 1 - Cola),
                    indices[i].total,   Cuantil(totales[i], Cola),  Cuantil(totales[i], 1 - Cola)};
    return filas;
}

constexpr int MayorBase = 1 << 20;

std::string ReparoDeSobol(const Sensibilidad& s)
{
    if (s.base < 16 || s.base > MayorBase || !std::has_single_bit(static_cast<unsigned>(s.base)))
        return "La base de Sobol es una potencia de dos, de 16 a 1048576.";
    return {};
}

// --- the methods ---

constexpr auto DeTornado = std::to_array<Indice>({
    {"en_minimo", "En el mínimo", "La medida con el parámetro en su mínimo y los demás en su valor actual.",
     'm'},
    {"en_maximo", "En el máximo", "La medida con el parámetro en su máximo y los demás en su valor actual.",
     'm'},
    {"amplitud", "Amplitud", "La distancia entre ambas: el largo de la barra.", 'm'},
});
constexpr auto DeMorris = std::to_array<Indice>({
    {"mu_estrella", "μ*", "Media de los efectos sin su signo: cuánto importa el parámetro.", 'm'},
    {"mu", "μ", "Media de los efectos: hacia dónde mueve la medida cuando crece.", 'm'},
    {"sigma", "σ", "Desvío de los efectos: cuánto dependen del lugar o de los demás parámetros.", 'm'},
    {"efectos", "Efectos", "Cuántos efectos se pudieron calcular.", '-'},
});
constexpr auto DeSobol = std::to_array<Indice>({
    {"primero", "Primer orden", "Parte de la varianza que el parámetro explica por sí solo.", '-'},
    {"primero_desde", "desde", "Su intervalo del 95 %, por remuestreo.", '-'},
    {"primero_hasta", "hasta", "Su intervalo del 95 %, por remuestreo.", '-'},
    {"total", "Total", "Parte de la varianza en la que interviene, solo o con otros.", '-'},
    {"total_desde", "desde", "Su intervalo del 95 %, por remuestreo.", '-'},
    {"total_hasta", "hasta", "Su intervalo del 95 %, por remuestreo.", '-'},
});

const auto Metodos = std::to_array<MetodoDeSensibilidad>({
    {"tornado", "De a uno (tornado)",
     "Lleva cada parámetro de su mínimo a su máximo con los demás quietos: barato, no ve interacciones.",
     "f(máximo) - f(mínimo)",
     "T. G. Eschenbach (1992), Spiderplots versus tornado diagrams for sensitivity analysis, Interfaces "
     "22(6), 40-46",
     DeTornado, 2, SinReparo, PlanDeTornado, BarrasDeTornado},
    {"morris", "Morris (efectos elementales)",
     "Caminos al azar por una grilla: separa los que importan de los que no, con pocas corridas.",
     "efecto = (f(x + Δ) - f(x))/Δ, Δ = p/(2(p - 1)) del recorrido",
     "M. D. Morris (1991), Factorial sampling plans for preliminary computational experiments, Technometrics "
     "33(2), 161-174; μ* de F. Campolongo, J. Cariboni y A. Saltelli (2007), Environ. Model. Softw. 22(10), "
     "1509-1518",
     DeMorris, 0, ReparoDeMorris, PlanDeMorris, EfectosDeMorris},
    {"sobol", "Sobol (varianza)",
     "Reparte la varianza de la medida entre los parámetros y sus interacciones: caro y completo.",
     "primero = Σ fB (fAB - fA)/(N V), total = Σ (fA - fAB)²/(2 N V)",
     "A. Saltelli y otros (2010), Variance based sensitivity analysis of model output, Comput. Phys. Commun. "
     "181(2), 259-270, tabla 2, (b) y (f)",
     DeSobol, 3, ReparoDeSobol, PlanDeSobol, IndicesDeSobol},
});

}  // namespace

std::span<const MetodoDeSensibilidad> MetodosDeSensibilidad()
{
    return Metodos;
}

const MetodoDeSensibilidad* MetodoDeSensibilidadDe(std::string_view clave)
{
    const auto* const i = std::ranges::find(Metodos, clave, &MetodoDeSensibilidad::clave);
    return i == Metodos.end() ? nullptr : i;
}

namespace {

/// The index that ranks, less than any other where it isn't defined.
double Importancia(const MetodoDeSensibilidad& metodo, const std::vector<double>& fila)
{
    const double x = fila[metodo.importancia];
    return std::isfinite(x) ? x : -1;
}

}  // namespace

std::vector<std::size_t> PorImportancia(const MetodoDeSensibilidad& metodo,
                                        std::span<const std::vector<double>> filas)
{
    std::vector<std::size_t> orden(filas.size());
    std::iota(orden.begin(), orden.end(), std::size_t{0});
    std::ranges::stable_sort(orden, std::ranges::greater{},
                             [&](std::size_t i) { return Importancia(metodo, filas[i]); });
    return orden;
}

std::vector<std::size_t> SinEfecto(const MetodoDeSensibilidad& metodo,
                                   std::span<const std::vector<double>> filas)
{
    constexpr double Parte = 0.01;
    double umbral = Parte;
    if (metodo.indices[metodo.importancia].unidad == 'm') {
        double mayor = 0;
        for (const std::vector<double>& fila : filas)
            mayor = std::max(mayor, Importancia(metodo, fila));
        umbral = Parte * mayor;
    }
    std::vector<std::size_t> sin;
    for (std::size_t i = 0; i < filas.size(); ++i) {
        const double x = Importancia(metodo, filas[i]);
        if (x == 0 || (x > 0 && x < umbral)) sin.push_back(i);
    }
    return sin;
}

}  // namespace calibration
